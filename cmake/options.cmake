# What every target of the project is compiled with.
option(QUORDSP_BUILD_TESTS "Build the tests" OFF)
option(QUORDSP_BUILD_BENCH "Build the benchmarks" OFF)
option(QUORDSP_BUILD_FUZZ "Build the fuzz targets around the fuzzing engine" OFF)
set(QUORDSP_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize= takes them")

set(CMAKE_C_STANDARD 11)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Results are the same bits on every machine and in every folder: no contraction of a*b+c, no build path in the output.
add_compile_options(-ffp-contract=off -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
if(WIN32)
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
    set(CMAKE_SHARED_MODULE_PREFIX "")
    # The debug information goes into a .pdb beside the module; neither knows the folder in which it was built.
    add_compile_options($<$<CONFIG:RelWithDebInfo>:-gcodeview> -gno-codeview-command-line -fdebug-compilation-dir=.)
    add_link_options(LINKER:--no-insert-timestamp LINKER:--pdb= LINKER:-Xlink=-pdbaltpath:%_PDB%
        LINKER:-Xlink=-pdbsourcepath:/QuorDSP_DAQ)
endif()
if(QUORDSP_SANITIZE)
    # The library and the backend know each other's functions by shape, not by type: that check is the compiler's, in
    # tests/abi. What a sanitizer weaves in keeps loops from being unrolled or vectorised as asked.
    add_compile_options(-fsanitize=${QUORDSP_SANITIZE} -fno-sanitize=function -fno-sanitize-recover=all
        -fno-omit-frame-pointer -Wno-pass-failed)
    add_link_options(-fsanitize=${QUORDSP_SANITIZE})
endif()

# Warnings are errors in our own code; code of others that is built along is not asked.
add_library(quordsp_warnings INTERFACE)
target_compile_options(quordsp_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Werror)
