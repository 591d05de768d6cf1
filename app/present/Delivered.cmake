# The delivered reports and page layouts stand in folders beside the executables.
set(delivered_outputs)
foreach(kind reports pages)
    file(GLOB files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/${kind}/*.txt)
    foreach(file ${files})
        get_filename_component(name ${file} NAME)
        set(output ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${kind}/${name})
        add_custom_command(OUTPUT ${output}
            COMMAND ${CMAKE_COMMAND} -E copy ${file} ${output} DEPENDS ${file} VERBATIM)
        list(APPEND delivered_outputs ${output})
    endforeach()
    install(FILES ${files} DESTINATION ${CMAKE_INSTALL_DATADIR}/kestrav/${kind})
endforeach()
add_custom_target(delivered_layouts ALL DEPENDS ${delivered_outputs})
