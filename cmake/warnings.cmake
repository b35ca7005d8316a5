# Warnings and sanitizers of the whole tree, in one place.
add_library(varnholt_flags INTERFACE)
target_compile_options(varnholt_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnull-dereference)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(varnholt_flags INTERFACE -Wduplicated-cond -Wlogical-op)
endif()
if(VARNHOLT_WERROR)
    target_compile_options(varnholt_flags INTERFACE -Werror)
endif()
if(VARNHOLT_SANITIZE)
    target_compile_options(varnholt_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(varnholt_flags INTERFACE -fsanitize=address,undefined)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    # The opcode tables are computed at compile time, beyond clang's default limit.
    target_compile_options(varnholt_flags INTERFACE -fconstexpr-steps=20000000)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_BUILD_TYPE STREQUAL "Release")
    # False alarms of gcc 12 inside the standard library's own headers at -O3.
    target_compile_options(varnholt_flags INTERFACE -Wno-restrict -Wno-null-dereference)
endif()
if(VARNHOLT_FUZZ)
    target_compile_options(varnholt_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
