# The program that makes the stock sounds and the music. What it makes is kept with the sources, so
# it is built only when asked for.
file(GLOB soundSources CONFIGURE_DEPENDS "tools/sounds/*.cpp" "tools/sounds/*.h")
add_executable(tempolark_sounds EXCLUDE_FROM_ALL ${soundSources})
target_link_libraries(tempolark_sounds PRIVATE tempolark_strict)
target_compile_options(tempolark_sounds PRIVATE -O2)
set_target_properties(tempolark_sounds PROPERTIES
  AUTOMOC OFF RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tools")
