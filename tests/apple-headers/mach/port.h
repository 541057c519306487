#pragma once

// Wanted by headers of the toolkit that tests use.
#include <mach/mach.h>
