# The help pages stand in a folder beside the executables.
file(GLOB help_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/help/*.html
     ${PROJECT_SOURCE_DIR}/resources/help/*.css ${PROJECT_SOURCE_DIR}/resources/help/*.txt)
set(help_outputs)
foreach(file ${help_files})
    get_filename_component(name ${file} NAME)
    set(output ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/help/${name})
    add_custom_command(OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -E copy ${file} ${output} DEPENDS ${file} VERBATIM)
    list(APPEND help_outputs ${output})
endforeach()
add_custom_target(help_pages ALL DEPENDS ${help_outputs})
install(FILES ${help_files} DESTINATION ${CMAKE_INSTALL_DATADIR}/kestrav/help)
