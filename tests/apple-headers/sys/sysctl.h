#pragma once

#include <stddef.h>

extern "C" int sysctlbyname(const char* name, void* oldValue, size_t* oldSize, void* newValue,
                            size_t newSize);
