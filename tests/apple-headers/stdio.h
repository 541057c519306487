#pragma once

#include_next <stdio.h>

extern "C" {
extern FILE* __stdinp;
extern FILE* __stdoutp;
extern FILE* __stderrp;
}
#undef stdin
#undef stdout
#undef stderr
#define stdin __stdinp
#define stdout __stdoutp
#define stderr __stderrp
