# One interface target carries what every target of the house is compiled with.
add_library(zel_build_flags INTERFACE)
target_compile_features(zel_build_flags INTERFACE cxx_std_20)
target_compile_options(zel_build_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wsign-conversion
    -Wold-style-cast -Werror)
if(ZEL_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(zel_build_flags INTERFACE ${sanitizers})
    target_link_options(zel_build_flags INTERFACE ${sanitizers})
endif()
if(ZEL_COVERAGE)
    target_compile_options(zel_build_flags INTERFACE --coverage -fprofile-abs-path -O0)
    target_link_options(zel_build_flags INTERFACE --coverage)
endif()
