# The packages that cpack makes: a .deb for the system it is made on, and a .tar.gz.

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME tarrowin)
set(CPACK_PACKAGE_VENDOR "Tarrowin developers")
set(CPACK_PACKAGE_CONTACT "Tarrowin developers <maintainers@tarrowin.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "converts Microsoft Access databases to Visual Basic 6 source")
set(CPACK_PACKAGE_DESCRIPTION
    "Tarrowin opens one Microsoft Access database and turns its queries, forms, reports,
macros and modules into source files that load into Visual Basic 6. It reads the
database file itself and needs neither Windows nor Access.")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
# Folders that everybody may read, whatever the umask of the user who packs.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
                                                GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
if(TARROWIN_WINDOW)
  # Qt loads its reader of SVG files, which the icons are, as a plugin, so no program links to it.
  set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt6svg6)
endif()

include(CPack)
