#pragma once

#include <stddef.h>

typedef struct _malloc_zone_t malloc_zone_t;

// All zones when the zone is null, as much as there is when the goal is 0; the bytes given back.
extern "C" size_t malloc_zone_pressure_relief(malloc_zone_t* zone, size_t goal);
