# What a desktop needs besides the program and its data, and the package for Debian:
# `cpack` in the build folder makes it.
configure_file(packaging/org.tempolark.Tempolark.metainfo.xml.in
               org.tempolark.Tempolark.metainfo.xml @ONLY)
install(FILES "${CMAKE_BINARY_DIR}/org.tempolark.Tempolark.metainfo.xml"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES packaging/org.tempolark.Tempolark.desktop
        DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(DIRECTORY packaging/hicolor DESTINATION "${CMAKE_INSTALL_DATADIR}/icons")
install(FILES README.md DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/tempolark")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tempolark)
set(CPACK_PACKAGE_CONTACT "Tempolark maintainers <maintainers@tempolark.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "clocks of the world's time zones on your desktop")
set(CPACK_PACKAGE_DESCRIPTION
"Tempolark holds as many clocks as you like in one window, each for one time
zone, chosen from a list or on a map of the world. Clocks show dials or digits
in many styles, keep timers, speak the time and play music.")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Plugins that no library asks for: SVG pictures for the toolbar. What speaks and what the styles
# are set in can be missing.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6, tzdata, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "qt6-qpa-plugins, qt6-speech-speechd-plugin | qt6-speech-flite-plugin, fonts-lato, fonts-dejavu-core, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS
  "fonts-bebas-neue, fonts-cantarell, fonts-comfortaa, fonts-dseg, fonts-league-spartan, fonts-oldstandard")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
  "${CMAKE_CURRENT_SOURCE_DIR}/packaging/debian/triggers"
  "${CMAKE_CURRENT_SOURCE_DIR}/packaging/debian/postinst"
  "${CMAKE_CURRENT_SOURCE_DIR}/packaging/debian/postrm")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
