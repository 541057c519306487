# Configures the project as for a Mac on a Linux machine, with Debian's clang 16: our own CMake files,
# the toolkit's headers and all of the application's sources are those that a Mac would build. What
# cannot be had here stands in: tests/apple-headers for the SDK, LLVM's C++ library for the system's,
# glibc below it. Objects are real Mach-O objects; nothing is linked.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_OSX_SYSROOT "")

get_filename_component(headers ${CMAKE_CURRENT_LIST_DIR}/../apple-headers ABSOLUTE)
# glibc has a macro of the name that clang gives a keyword of a Mac's.
string(JOIN " " flags
    "-D_GNU_SOURCE -U__nonnull -Wno-builtin-macro-redefined -fblocks -Wunguarded-availability"
    "-include ${CMAKE_CURRENT_LIST_DIR}/linux-only-names.h"
    "-isystem ${headers} -nostdinc++ -isystem /usr/lib/llvm-16/include/c++/v1"
    "-isystem /usr/include/x86_64-linux-gnu -isystem /usr/include")
foreach(language CXX OBJCXX)
    set(CMAKE_${language}_COMPILER /usr/bin/clang++-16)
    set(CMAKE_${language}_COMPILER_TARGET x86_64-apple-macosx)
    set(CMAKE_${language}_COMPILER_WORKS ON)
    set(CMAKE_${language}_FLAGS_INIT "${flags}")
    # A program or a library is a name with nothing behind it.
    set(CMAKE_${language}_LINK_EXECUTABLE "<CMAKE_COMMAND> -E touch <TARGET>")
    set(CMAKE_${language}_CREATE_STATIC_LIBRARY "<CMAKE_COMMAND> -E touch <TARGET>")
endforeach()
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_INSTALL_NAME_TOOL /bin/true)

# The toolkit of this machine.
set(CMAKE_LIBRARY_ARCHITECTURE x86_64-linux-gnu)
set(CMAKE_PREFIX_PATH /usr /usr/lib/x86_64-linux-gnu)
set(CMAKE_PROJECT_TOP_LEVEL_INCLUDES ${CMAKE_CURRENT_LIST_DIR}/stand-ins.cmake)
