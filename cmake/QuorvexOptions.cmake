# What every target is compiled with.

option(QUORVEX_TESTS "Build the tests" ON)
option(QUORVEX_WINDOW "Build the window and the companion's pictures, when there is Qt" ON)
option(QUORVEX_BENCH "Build the benchmarks" OFF)
option(QUORVEX_FUZZ "Build the fuzz targets (clang only)" OFF)
option(QUORVEX_ALONE "Offer to read every source and header alone, by the target quorvex_alone (clang only)" OFF)
option(QUORVEX_COVERAGE "Count which lines of the program are reached, in the build folder's counts (clang only)" OFF)
option(QUORVEX_WARNINGS_AS_ERRORS "Treat warnings as errors" ON)
set(QUORVEX_SEPARATE "" CACHE STRING "Targets compiled file by file where the others are compiled in large units")
set(QUORVEX_SANITIZERS "" CACHE STRING "Sanitizers, as in -fsanitize=<value>")

if(QUORVEX_SANITIZERS)
    set(QUORVEX_SLOWED ON) # whatever runs takes several times as long
endif()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_SCAN_FOR_MODULES OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# What moc makes of a header does not depend on the libraries that the target links.
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)

find_program(QUORVEX_CCACHE ccache)
if(QUORVEX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${QUORVEX_CCACHE})
endif()

# The faster linker, where it is installed.
find_program(QUORVEX_MOLD mold)
if(QUORVEX_MOLD AND NOT WIN32)
    add_link_options(-fuse-ld=mold)
endif()

add_library(quorvex_options INTERFACE)
if(WIN32)
    target_compile_definitions(quorvex_options INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN)
endif()
if(MSVC)
    target_compile_options(quorvex_options INTERFACE /W4 /permissive- /utf-8 /fp:precise)
    if(QUORVEX_WARNINGS_AS_ERRORS)
        target_compile_options(quorvex_options INTERFACE /WX)
    endif()
else()
    target_compile_options(quorvex_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wcast-align -Wold-style-cast
        -Wnon-virtual-dtor -Woverloaded-virtual -Wdouble-promotion -Wimplicit-fallthrough
        # The same sums on every processor: no fused multiply-add behind the program's back.
        -ffp-contract=off)
    if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # Every source is an included file there, so that its own unnamed namespace looks like that of a header.
        target_compile_options(quorvex_options INTERFACE -Wno-subobject-linkage)
    endif()
    if(QUORVEX_WARNINGS_AS_ERRORS)
        target_compile_options(quorvex_options INTERFACE -Werror)
    endif()
    if(QUORVEX_SANITIZERS)
        target_compile_options(quorvex_options INTERFACE
            -fsanitize=${QUORVEX_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(quorvex_options INTERFACE -fsanitize=${QUORVEX_SANITIZERS})
    endif()
    if(QUORVEX_COVERAGE)
        target_link_options(quorvex_options INTERFACE -fprofile-instr-generate)
    endif()
endif()

# compile_quickly(<target>): for what takes long to compile and little time to run. Under sanitizers the optimiser takes two
# thirds of the compilation there.
function(compile_quickly target)
    if(QUORVEX_SLOWED)
        compile_without_optimiser(${target})
    endif()
endfunction()

function(compile_without_optimiser target)
    if(NOT MSVC)
        target_compile_options(${target} PRIVATE -O0)
    endif()
endfunction()
