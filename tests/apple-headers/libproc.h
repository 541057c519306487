#pragma once

#include <stdint.h>

#define PROC_PIDTBSDINFO 3

// The fields that we read; the real record has more.
struct proc_bsdinfo {
    uint64_t pbi_start_tvsec;
    uint64_t pbi_start_tvusec;
};

extern "C" int proc_pidinfo(int pid, int flavor, uint64_t arg, void* buffer, int buffersize);
