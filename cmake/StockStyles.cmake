# The styles, made anew whenever their table or the default clock file has changed. The data
# folder's target places them beside the executables, where a user's own stand, too.
set(styleFolder "${CMAKE_BINARY_DIR}/styles")
set(styleStamp "${CMAKE_BINARY_DIR}/styles.stamp")
set(styleScript "${CMAKE_CURRENT_SOURCE_DIR}/tools/stock/make_styles.sh")
add_custom_command(OUTPUT "${styleStamp}"
  COMMAND bash "${styleScript}" "${styleFolder}"
  COMMAND ${CMAKE_COMMAND} -E touch "${styleStamp}"
  DEPENDS "${styleScript}" "${CMAKE_CURRENT_SOURCE_DIR}/tools/stock/styles.txt"
          "${CMAKE_CURRENT_SOURCE_DIR}/data/ini/Tempolark.ini"
  COMMENT "Making the styles")
add_custom_target(tempolark_styles ALL DEPENDS "${styleStamp}")
install(DIRECTORY "${styleFolder}/" DESTINATION "${CMAKE_INSTALL_DATADIR}/tempolark/Styles")
