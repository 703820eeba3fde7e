# The program that renders the shell's pictures. What it makes is kept with the sources, so it is
# built only when asked for.
find_package(Qt6 6.4 REQUIRED COMPONENTS Svg)
add_executable(tempolark_icons EXCLUDE_FROM_ALL tools/icons/icons_main.cpp)
target_link_libraries(tempolark_icons PRIVATE Qt6::Gui Qt6::Svg tempolark_strict)
set_target_properties(tempolark_icons PROPERTIES
  RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tools")
