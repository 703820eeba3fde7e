# The program that draws the map of the world. What it makes is kept with the sources, so it is
# built only when asked for.
file(GLOB mapSources CONFIGURE_DEPENDS "tools/map/*.cpp" "tools/map/*.h")
add_executable(tempolark_map EXCLUDE_FROM_ALL ${mapSources})
target_link_libraries(tempolark_map PRIVATE Qt6::Gui tempolark_strict)
set_target_properties(tempolark_map PROPERTIES
  RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tools")
