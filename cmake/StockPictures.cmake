# The programs that make the stock pictures, and the flags, which are made with each fresh build.
find_package(Qt6 6.4 REQUIRED COMPONENTS Svg)

file(GLOB stockSources CONFIGURE_DEPENDS "tools/stock/*.cpp" "tools/stock/*.h")
list(FILTER stockSources EXCLUDE REGEX "flags_main")
# What it makes is kept with the sources, so it is built only when asked for.
add_executable(tempolark_stock EXCLUDE_FROM_ALL ${stockSources})
target_link_libraries(tempolark_stock PRIVATE Qt6::Gui tempolark_strict)
target_compile_options(tempolark_stock PRIVATE -O2)

add_executable(tempolark_flags tools/stock/flags_main.cpp)
target_link_libraries(tempolark_flags PRIVATE Qt6::Gui Qt6::Svg tempolark_strict)
# It is a tool: the folder of the program holds what a user needs.
set_target_properties(tempolark_stock tempolark_flags PROPERTIES
  RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tools")

# The package iso-flags-svg may be missing, or come later: CMake looks for it at each run.
set(TEMPOLARK_FLAGS "/usr/share/iso-flags-svg/country-4x3" CACHE PATH
  "Folder of the countries' flags as xx.svg")
set(flagFolder "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Images/Flags")
set(flagStamp "${CMAKE_BINARY_DIR}/flags.stamp")
if(EXISTS "${TEMPOLARK_FLAGS}/gb.svg")
  add_custom_command(OUTPUT "${flagStamp}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${flagFolder}"
    COMMAND tempolark_flags "${TEMPOLARK_FLAGS}" "${flagFolder}"
    COMMAND ${CMAKE_COMMAND} -E touch "${flagStamp}"
    DEPENDS tempolark_flags
    COMMENT "Making the flags")
  add_custom_target(tempolark_flag_pictures ALL DEPENDS "${flagStamp}")
  install(DIRECTORY "${flagFolder}" DESTINATION "${CMAKE_INSTALL_DATADIR}/tempolark/Images")
else()
  message(WARNING "No flags in ${TEMPOLARK_FLAGS}: clocks go without. "
                  "The package iso-flags-svg holds them.")
  add_custom_target(tempolark_flag_pictures)
endif()
