#pragma once

#include <GL/glext.h>
