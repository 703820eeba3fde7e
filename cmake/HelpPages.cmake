# The pages of the help, made anew whenever a chapter or a default file has changed.
set(helpFolder "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Help")
file(GLOB_RECURSE helpSources CONFIGURE_DEPENDS "tools/help/*")
set(helpPicture "${CMAKE_CURRENT_SOURCE_DIR}/docs/tempolark.jpg")
add_custom_command(OUTPUT "${helpFolder}/Tempolark/index.html"
  COMMAND bash "${CMAKE_CURRENT_SOURCE_DIR}/tools/help/make_help.sh"
          "${CMAKE_CURRENT_SOURCE_DIR}/data/ini" "${helpPicture}" "${helpFolder}"
  DEPENDS ${helpSources} "${helpPicture}"
          "${CMAKE_CURRENT_SOURCE_DIR}/data/ini/Tempolark.ini"
          "${CMAKE_CURRENT_SOURCE_DIR}/data/ini/TempolarkCentral.ini"
  COMMENT "Making the help")
add_custom_target(tempolark_help ALL DEPENDS "${helpFolder}/Tempolark/index.html")
install(DIRECTORY "${helpFolder}" DESTINATION "${CMAKE_INSTALL_DATADIR}/tempolark")
