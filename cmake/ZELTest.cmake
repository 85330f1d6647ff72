# zel_test(<name> FILES <file> ... LINKS <target> ...)
#
# A test program of GoogleTest cases. ctest runs every case in a process of its own, so what a process does only once
# (resolving an attribute key, say) is done anew in every case.
include(GoogleTest)
include(ZELLintBatches)
find_package(GTest REQUIRED)

# What every test includes, parsed once for all of them.
add_executable(zel_test_headers "${PROJECT_SOURCE_DIR}/cmake/ZELTestHeaders.cpp")
target_link_libraries(zel_test_headers PRIVATE zel_build_flags GTest::gmock)
target_precompile_headers(zel_test_headers PRIVATE <gmock/gmock.h> <gtest/gtest.h> <memory> <string> <vector>)

function(zel_test name)
    cmake_parse_arguments(arg "" "" "FILES;LINKS" ${ARGN})
    if(ZEL_LINT)
        zel_lint_batches(arg_FILES ${arg_FILES})
    endif()
    add_executable(${name} ${arg_FILES})
    target_link_libraries(${name} PRIVATE ${arg_LINKS} zel_build_flags GTest::gmock GTest::gtest_main)
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
    target_precompile_headers(${name} REUSE_FROM zel_test_headers)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES ENVIRONMENT
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/leak-suppressions.txt:print_suppressions=0")
endfunction()
