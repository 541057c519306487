#pragma once

// Below the stand-ins lies Linux's C library: what it has beyond a Mac's must not be used. The
// headers that declare or use these names themselves come first.

#ifdef __cplusplus
#include <atomic>
#include <condition_variable>
#include <filesystem>
#include <fstream>
#include <functional>
#include <future>
#include <iostream>
#include <locale>
#include <mutex>
#include <random>
#include <regex>
#include <thread>
#endif

#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sched.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#undef CLOCK_BOOTTIME
#undef CLOCK_MONOTONIC_COARSE
#undef MSG_NOSIGNAL
#undef O_PATH
#undef O_TMPFILE
#undef SOCK_CLOEXEC
#undef SOCK_NONBLOCK

#pragma GCC poison MSG_NOSIGNAL O_PATH O_TMPFILE SOCK_CLOEXEC SOCK_NONBLOCK
#pragma GCC poison CLOCK_BOOTTIME CLOCK_MONOTONIC_COARSE
#pragma GCC poison accept4 dup3 pipe2 ppoll execvpe secure_getenv get_current_dir_name
#pragma GCC poison fdatasync sync_file_range renameat2 fallocate posix_fallocate memfd_create
#pragma GCC poison gettid pthread_setaffinity_np sched_getcpu sched_setaffinity
#pragma GCC poison sigwaitinfo sigtimedwait clock_nanosleep
#pragma GCC poison memrchr mempcpy rawmemchr strchrnul
#pragma GCC poison program_invocation_name program_invocation_short_name
