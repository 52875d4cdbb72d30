# GoogleTest from the system's sources, built for the target at hand, and how a test program is added.
include(GoogleTest)
set(INSTALL_GTEST OFF CACHE BOOL "")
set(gtest_force_shared_crt OFF CACHE BOOL "")
add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
# It is not what the sanitizers look at, and its own speed does not matter: that saves most of its compile time.
foreach(library gtest gtest_main gmock gmock_main)
    target_compile_options(${library} PRIVATE -O0 -g0)
    if(QUORDSP_SANITIZE)
        target_compile_options(${library} PRIVATE -fno-sanitize=all)
    endif()
endforeach()

# What the thread sanitizer's preset builds and, by the label of the same name, runs.
add_custom_target(threads)

# quordsp_add_test(name [THREADS] SOURCES file... [LIBRARIES target...] [PROPERTIES ctest properties...])
# One program; every TEST in it is a test of its own and runs in a process of its own. THREADS: some of them have more
# than one thread.
function(quordsp_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 test THREADS "" "SOURCES;LIBRARIES;PROPERTIES")
    add_executable(${name} ${test_SOURCES})
    target_link_libraries(${name} PRIVATE quordsp_warnings ${test_LIBRARIES} GTest::gmock_main)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_precompile_headers(${name} REUSE_FROM test_headers)
    if(test_THREADS)
        list(APPEND test_PROPERTIES LABELS threads)
        add_dependencies(threads ${name})
    endif()
    gtest_discover_tests(${name} TEST_PREFIX ${name}. NO_PRETTY_VALUES DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 120
        PROPERTIES TIMEOUT 120 ${test_PROPERTIES})
endfunction()
