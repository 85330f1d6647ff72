# One interface target carries what every target of the house is compiled with.
add_library(zel_build_flags INTERFACE)
target_compile_features(zel_build_flags INTERFACE cxx_std_20)
target_compile_options(zel_build_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wsign-conversion
    -Wold-style-cast $<$<BOOL:${ZEL_WARNINGS_AS_ERRORS}>:-Werror>)
# When g++ 12 optimises, it takes what it inlined from the standard library's and JSON's containers for overlapping copies,
# for reads of nothing, and for reads and writes beyond a string: false alarms about code that is not ours. clang and the
# sanitizers look for the real ones.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    foreach(alarm IN ITEMS restrict maybe-uninitialized array-bounds stringop-overflow)
        target_compile_options(zel_build_flags INTERFACE $<$<NOT:$<CONFIG:Debug>>:-Wno-${alarm}>)
    endforeach()
endif()
# Nobody replaces a function of ours at run time, so a shared library may inline its own exported functions and call
# them directly. clang does so by itself.
target_compile_options(zel_build_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fno-semantic-interposition>)
if(ZEL_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # Reports need functions and lines alone; without variables the build takes a fifth less.
    target_compile_options(zel_build_flags INTERFACE ${sanitizers} -g1)
    target_link_options(zel_build_flags INTERFACE ${sanitizers})
endif()
if(ZEL_COVERAGE)
    target_compile_options(zel_build_flags INTERFACE --coverage -fprofile-abs-path -O0)
    target_link_options(zel_build_flags INTERFACE --coverage)
endif()

# For code that has to leave the process with its library: no symbol of it may be unique to the process, since such a
# symbol pins the library. Only g++ makes such symbols, and only g++ knows the option.
add_library(zel_unloadable INTERFACE)
target_compile_options(zel_unloadable INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
