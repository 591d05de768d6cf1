# The delivered yoga files stand in a folder beside the executables.
file(GLOB yoga_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/resources/yogas/*.ksy)
set(yoga_outputs)
foreach(path ${yoga_files})
    get_filename_component(name ${path} NAME)
    add_custom_command(
        OUTPUT ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/yogas/${name}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/yogas
        COMMAND ${CMAKE_COMMAND} -E copy ${path} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/yogas/${name}
        DEPENDS ${path}
        VERBATIM)
    list(APPEND yoga_outputs ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/yogas/${name})
endforeach()
add_custom_target(yoga_files ALL DEPENDS ${yoga_outputs})
install(FILES ${yoga_files} DESTINATION ${CMAKE_INSTALL_DATADIR}/kestrav/yogas)
