# What `cmake --install BUILD --prefix FOLDER` puts there: the program, the libraries that it stands on, the feature
# catalogs, the manual page and what shells complete. The folder may be moved: the program looks for all of it from where
# it lies itself.
include(GNUInstallDirs)

# In a folder of their own, since their names say nothing among all the libraries of a system.
set(libraries "${CMAKE_INSTALL_LIBDIR}/zelmat")
file(RELATIVE_PATH from_program "/${CMAKE_INSTALL_BINDIR}" "/${libraries}")
set_target_properties(zelmat PROPERTIES INSTALL_RPATH "$ORIGIN/${from_program}")
set_target_properties(framework ZELShared ZELMaterialPropertiesModel PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS zelmat RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(TARGETS framework ZELShared ZELMaterialPropertiesModel LIBRARY DESTINATION "${libraries}")

# Where the program looks for them: beside its own folder.
install(DIRECTORY "${CMAKE_BINARY_DIR}/share/zelmat/" DESTINATION share/zelmat)

# The program writes these itself; `path` is where they go, `words` what it is asked.
function(zel_install_answer path)
    list(JOIN ARGN "\" \"" words)
    cmake_path(GET path PARENT_PATH folder)
    set(answer "${CMAKE_BINARY_DIR}/installed/${path}")
    install(CODE "file(MAKE_DIRECTORY \"${CMAKE_BINARY_DIR}/installed/${folder}\")
        execute_process(COMMAND \"$<TARGET_FILE:zelmat>\" \"${words}\" OUTPUT_FILE \"${answer}\" COMMAND_ERROR_IS_FATAL ANY)")
    install(FILES "${answer}" DESTINATION "${folder}")
endfunction()
zel_install_answer("${CMAKE_INSTALL_MANDIR}/man1/zelmat.1" help --man)
zel_install_answer(share/bash-completion/completions/zelmat completion bash)
zel_install_answer(share/zsh/site-functions/_zelmat completion zsh)
zel_install_answer(share/fish/vendor_completions.d/zelmat.fish completion fish)
