# The lists of places and zones stand beside the executables.
set(place_files countries.txt zones.txt cities.txt)
set(place_outputs)
foreach(name ${place_files})
    add_custom_command(
        OUTPUT ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}
        COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/resources/places/${name}
                ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}
        DEPENDS ${PROJECT_SOURCE_DIR}/resources/places/${name}
        VERBATIM)
    list(APPEND place_outputs ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name})
    install(FILES ${PROJECT_SOURCE_DIR}/resources/places/${name}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/kestrav)
endforeach()
add_custom_target(place_lists ALL DEPENDS ${place_outputs})

# Writes atlas files from these lists.
add_executable(makeatlas ${PROJECT_SOURCE_DIR}/tools/makeatlas.cpp)
target_link_libraries(makeatlas PRIVATE kestrav_data)
add_dependencies(makeatlas place_lists)
