# zel_library(<name> <SHARED|STATIC|OBJECT|INTERFACE>
#             FOLDER  <folder below the root that holds the library's files>
#             FILES   <file> ...            every file, listed
#             DEPENDS <zel library> ...     the libraries whose headers it may include, and which it links
#             LINKS   <other target> ...)   packages from outside the house
#
# Declares a library and the only libraries it may know. What is declared here is what the linker gets, and what
# tools/check-layering.sh holds every #include against (through <build>/layering.txt).
function(zel_library name kind)
    cmake_parse_arguments(arg "" "FOLDER" "FILES;DEPENDS;LINKS" ${ARGN})
    list(TRANSFORM arg_FILES PREPEND "${PROJECT_SOURCE_DIR}/${arg_FOLDER}/" OUTPUT_VARIABLE files)
    add_library(${name} ${kind} ${files})
    if(kind STREQUAL "INTERFACE")
        target_include_directories(${name} INTERFACE "${PROJECT_SOURCE_DIR}")
        target_link_libraries(${name} INTERFACE ${arg_DEPENDS} ${arg_LINKS})
    else()
        target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}")
        target_link_libraries(${name} PUBLIC ${arg_DEPENDS} ${arg_LINKS} PRIVATE zel_build_flags)
    endif()
    set_target_properties(${name} PROPERTIES ZEL_FOLDER "${arg_FOLDER}")

    set(allowed "${arg_FOLDER}")
    foreach(dependency IN LISTS arg_DEPENDS)
        get_target_property(folder ${dependency} ZEL_FOLDER)
        list(APPEND allowed "${folder}")
    endforeach()
    list(JOIN allowed " " allowed)
    file(APPEND "${CMAKE_BINARY_DIR}/layering.txt" "${arg_FOLDER}: ${allowed}\n")
endfunction()
