# zel_test(<name> FILES <file> ... LINKS <target> ...)
#
# A test program of GoogleTest cases. ctest runs every case in a process of its own, so what a process does only once
# (resolving an attribute key, say) is done anew in every case.
include(GoogleTest)
find_package(GTest REQUIRED)

function(zel_test name)
    cmake_parse_arguments(arg "" "" "FILES;LINKS" ${ARGN})
    add_executable(${name} ${arg_FILES})
    target_link_libraries(${name} PRIVATE ${arg_LINKS} zel_build_flags GTest::gmock GTest::gtest_main)
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
    # GoogleTest's own macros trip over these.
    target_compile_options(${name} PRIVATE -Wno-null-dereference)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60)
endfunction()
