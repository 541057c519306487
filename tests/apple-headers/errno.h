#pragma once

#include_next <errno.h>

extern "C" int* __error(void);
#undef errno
#define errno (*__error())
