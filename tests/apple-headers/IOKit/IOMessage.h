#pragma once

#include <stdint.h>

#define kIOMessageCanSystemSleep ((uint32_t)0xe0000270)
#define kIOMessageSystemWillSleep ((uint32_t)0xe0000280)
#define kIOMessageSystemWillNotSleep ((uint32_t)0xe0000290)
#define kIOMessageSystemHasPoweredOn ((uint32_t)0xe0000300)
