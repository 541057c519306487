#pragma once

// Wanted by headers of the toolkit that tests use.
typedef const void* CFTypeRef;
typedef const struct __CFString* CFStringRef;

extern "C" {
CFTypeRef CFRetain(CFTypeRef object);
void CFRelease(CFTypeRef object);
}
