#pragma once

// Wanted by the toolkit's headers. What appeared after the oldest system that we support is marked
// where it is declared.

#ifdef __clang__
#define API_AVAILABLE_SINCE_macos(version) macos, introduced = version
#define API_AVAILABLE(platform) __attribute__((availability(API_AVAILABLE_SINCE_##platform)))
#else
#define API_AVAILABLE(platform)
#endif
