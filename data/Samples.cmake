# The sample charts and the empty database of a new user stand beside the executables.
add_executable(make_sample_charts ${PROJECT_SOURCE_DIR}/tools/make_sample_charts.cpp)
target_link_libraries(make_sample_charts PRIVATE kestrav_data)

set(sample_table ${PROJECT_SOURCE_DIR}/resources/charts/charts.txt)
set(sample_database "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Sample.ksc")
add_custom_command(
    OUTPUT ${sample_database}
    COMMAND make_sample_charts ${sample_table} ${sample_database}
    DEPENDS make_sample_charts ${sample_table}
    VERBATIM)

set(empty_database "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/My Charts.ksc")
add_custom_command(
    OUTPUT ${empty_database}
    COMMAND ${CMAKE_COMMAND} -E touch ${empty_database}
    VERBATIM)

add_custom_target(chart_databases ALL DEPENDS ${sample_database} ${empty_database})
install(FILES ${sample_database} ${empty_database}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/kestrav)
