# The icons, the version and the manifest of a program, in the program's file.
enable_language(RC)

function(orbelle_tell_windows program description)
    set(resources ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in ${resources} @ONLY)
    set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS
        "${PROJECT_SOURCE_DIR}/resources/orbelle.ico;${PROJECT_SOURCE_DIR}/resources/document.ico;${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest")
    target_sources(${program} PRIVATE ${resources})
endfunction()
