#pragma once

// For the toolkit's headers: the same interface as elsewhere.
#include <GL/gl.h>
