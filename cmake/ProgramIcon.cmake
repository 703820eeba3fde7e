# The program's icon goes into the library of windows, so that it is there wherever the program runs.
foreach(side 16 22 24 32 48 64 96 128 256)
  set(picture "packaging/hicolor/${side}x${side}/apps/tempolark.png")
  set_source_files_properties("${picture}" PROPERTIES QT_RESOURCE_ALIAS "${side}.png")
  list(APPEND iconPictures "${picture}")
endforeach()
qt_add_resources(tempolark_ui program_icon PREFIX "/tempolark/icon" FILES ${iconPictures})
