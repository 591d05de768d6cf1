# The window's own icons stand in a folder beside the executables. tools/make_icons.sh draws them.
set(icon_folder ${PROJECT_SOURCE_DIR}/resources/icons)
file(GLOB icon_files CONFIGURE_DEPENDS ${icon_folder}/light/*.png ${icon_folder}/dark/*.png)
set(icons_copied ${CMAKE_BINARY_DIR}/generated/icons.copied)
add_custom_command(OUTPUT ${icons_copied}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${icon_folder}/light
            ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/icons/light
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${icon_folder}/dark
            ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/icons/dark
    COMMAND ${CMAKE_COMMAND} -E copy ${icon_folder}/kestrav.png
            ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/icons/kestrav.png
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/generated
    COMMAND ${CMAKE_COMMAND} -E touch ${icons_copied}
    DEPENDS ${icon_files} ${icon_folder}/kestrav.png VERBATIM)
add_custom_target(window_icons ALL DEPENDS ${icons_copied})
install(DIRECTORY ${icon_folder}/light ${icon_folder}/dark
        DESTINATION ${CMAKE_INSTALL_DATADIR}/kestrav/icons)
install(FILES ${icon_folder}/kestrav.png DESTINATION ${CMAKE_INSTALL_DATADIR}/kestrav/icons)

# What the desktop shows for the program and its files.
set(icon_theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(DIRECTORY ${icon_folder}/hicolor/ DESTINATION ${icon_theme})
install(FILES ${icon_folder}/org.kestrav.Kestrav.svg DESTINATION ${icon_theme}/scalable/apps)
install(FILES ${icon_folder}/application-x-kestrav-charts.svg
              ${icon_folder}/application-x-kestrav-yogas+xml.svg
        DESTINATION ${icon_theme}/scalable/mimetypes)
