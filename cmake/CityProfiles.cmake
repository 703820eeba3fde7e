# The program that makes the profiles of cities from the machine's tz database. It is installed too,
# so that they can be made anew when the database changes. The data folder's target runs it.
file(GLOB profileSources CONFIGURE_DEPENDS "tools/profiles/*.cpp" "tools/profiles/*.h")
add_executable(tempolark-profiles ${profileSources})
target_link_libraries(tempolark-profiles PRIVATE tempolark_core tempolark_strict)
target_include_directories(tempolark-profiles PRIVATE tools/profiles)

install(TARGETS tempolark-profiles RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Timezones"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/tempolark")
