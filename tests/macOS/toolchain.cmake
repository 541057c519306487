# Configures the project as for a Mac on a Linux machine, with Debian's clang and lld 16: our own CMake files,
# the toolkit's headers and all of the application's sources are those that a Mac would build. What cannot be
# had here stands in: tests/apple-headers and tests/apple-stubs for the SDK, LLVM's C++ library for the
# system's, glibc's headers below it, and tables of this machine's own libraries for the toolkit. Objects and
# programs are real Mach-O files.
#
# KESTROWIND_MAC_PROCESSOR (x86_64 or arm64) is the processor, KESTROWIND_MAC_CXX_MARKS the folder of what
# scripts/check-mac changes about the C++ library's headers.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KESTROWIND_MAC_PROCESSOR KESTROWIND_MAC_CXX_MARKS)
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR ${KESTROWIND_MAC_PROCESSOR})
set(CMAKE_OSX_SYSROOT "")
set(c_headers_x86_64 /usr/include/x86_64-linux-gnu)
set(c_headers_arm64 /usr/aarch64-linux-gnu/include)

get_filename_component(headers ${CMAKE_CURRENT_LIST_DIR}/../apple-headers ABSOLUTE)
# glibc has a macro of the name that clang gives a keyword of a Mac's.
string(JOIN " " flags
    "-D_GNU_SOURCE -U__nonnull -Wno-builtin-macro-redefined -fblocks -Wunguarded-availability"
    "-include ${CMAKE_CURRENT_LIST_DIR}/linux-only-names.h"
    "-isystem ${headers} -nostdinc++"
    "-isystem ${KESTROWIND_MAC_CXX_MARKS} -isystem /usr/lib/llvm-16/include/c++/v1"
    "-isystem ${c_headers_${KESTROWIND_MAC_PROCESSOR}} -isystem /usr/include")
foreach(language CXX OBJCXX)
    set(CMAKE_${language}_COMPILER /usr/bin/clang++-16)
    set(CMAKE_${language}_COMPILER_TARGET ${KESTROWIND_MAC_PROCESSOR}-apple-macosx)
    set(CMAKE_${language}_COMPILER_WORKS ON)
    set(CMAKE_${language}_FLAGS_INIT "${flags}")
    set(CMAKE_${language}_LINK_EXECUTABLE
        "${CMAKE_CURRENT_LIST_DIR}/link <CMAKE_${language}_COMPILER> <FLAGS> <LINK_FLAGS> <OBJECTS> -o <TARGET> <LINK_LIBRARIES>")
endforeach()
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_AR /usr/bin/llvm-ar-16)
set(CMAKE_RANLIB /usr/bin/llvm-ranlib-16)
set(CMAKE_INSTALL_NAME_TOOL /bin/true)

# The toolkit of this machine.
set(CMAKE_LIBRARY_ARCHITECTURE x86_64-linux-gnu)
set(CMAKE_PREFIX_PATH /usr /usr/lib/x86_64-linux-gnu)
set(CMAKE_PROJECT_TOP_LEVEL_INCLUDES ${CMAKE_CURRENT_LIST_DIR}/stand-ins.cmake)
