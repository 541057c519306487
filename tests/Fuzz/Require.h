#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the fuzzer with the condition that did not hold, in every kind of build.
#define KESTROWIND_REQUIRE(condition)                                                              \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);    \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)
