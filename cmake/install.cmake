# What is installed beside the programs.

install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES ${PROJECT_SOURCE_DIR}/dist/unix/tarrowin-cli.1
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

if(TARROWIN_WINDOW)
  # The desktop file, the metadata, the icon and the window bear one name, by which desktops bring
  # them together.
  set(application_id org.tarrowin.Tarrowin)
  install(FILES ${PROJECT_SOURCE_DIR}/dist/unix/tarrowin.1
          DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  install(FILES ${PROJECT_SOURCE_DIR}/dist/unix/${application_id}.desktop
          DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${PROJECT_SOURCE_DIR}/dist/unix/${application_id}.metainfo.xml
          DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
  install(FILES ${PROJECT_SOURCE_DIR}/src/shell/icons/app.svg
          DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
          RENAME ${application_id}.svg)
endif()
