# How every target of the project is made: one library a room, warnings as errors, and for each room
# only the libraries that it may know.

add_library(kestrowind_warnings INTERFACE)
# A test's locals may be called like what another file of its unit has in an anonymous namespace.
set(is_test $<BOOL:$<TARGET_PROPERTY:KESTROWIND_IS_TEST>>)
target_compile_options(kestrowind_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Wshadow$<$<AND:${is_test},$<CXX_COMPILER_ID:GNU>>:=local>
    $<$<NOT:$<BOOL:${KESTROWIND_FUZZERS}>>:-Werror> # the fuzzers' clang warns of what GCC allows
    # Members that a designated initializer leaves out have their defaults: that is what they are for.
    -Wno-missing-field-initializers)
target_compile_definitions(kestrowind_warnings INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)

if(KESTROWIND_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

if(KESTROWIND_SANITIZE_THREADS)
    add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
    add_link_options(-fsanitize=thread)
endif()

if(KESTROWIND_FUZZERS)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_program(KESTROWIND_MOLD mold)
if(KESTROWIND_MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_link_options(-fuse-ld=mold)
endif()

# kestrowind_headers(NAME HEADERS header... LINK target...): headers that are precompiled once for all
# targets that say target_precompile_headers(... REUSE_FROM NAME).
function(kestrowind_headers name)
    cmake_parse_arguments(SHARED "" "" "HEADERS;LINK" ${ARGN})
    file(CONFIGURE OUTPUT ${name}.cpp CONTENT "")
    add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    target_link_libraries(${name} PRIVATE ${SHARED_LINK} kestrowind_warnings)
    target_precompile_headers(${name} PRIVATE ${SHARED_HEADERS})
endfunction()

# kestrowind_room(NAME [LINK target...]): the sources of the current folder as a static library that
# others include by the path below src/.
function(kestrowind_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ROOM_LINK} PRIVATE ${ROOM_PRIVATE_LINK} kestrowind_warnings)
endfunction()
