# What is installed, and the Debian package that ./package makes of it.
include(GNUInstallDirs)
set(share ${CMAKE_INSTALL_DATADIR})
set(packaging ${CMAKE_SOURCE_DIR}/packaging)
set(id org.fidaleon.Fidaleon)

install(TARGETS fidaleon)
install(DIRECTORY templates DESTINATION ${share}/fidaleon PATTERN "LEEME.md" EXCLUDE)
install(DIRECTORY docs/manual docs/imagenes DESTINATION ${share}/fidaleon)
install(FILES ${packaging}/${id}.desktop DESTINATION ${share}/applications)
install(FILES ${packaging}/${id}.metainfo.xml DESTINATION ${share}/metainfo)
install(FILES ${packaging}/${id}.mime.xml DESTINATION ${share}/mime/packages RENAME ${id}.xml)
install(FILES ${packaging}/${id}.svg DESTINATION ${share}/icons/hicolor/scalable/apps)
foreach(size 48 128)
  install(FILES ${packaging}/icon-${size}.png RENAME ${id}.png
          DESTINATION ${share}/icons/hicolor/${size}x${size}/apps)
endforeach()
install(FILES ${packaging}/copyright LICENCES.md DESTINATION ${share}/doc/fidaleon)

# Compressed as Debian wants it, without the time of day.
function(fid_install_compressed source folder name)
  set(compressed ${CMAKE_BINARY_DIR}/compressed/${folder}/${name}.gz)
  get_filename_component(parent ${compressed} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  add_custom_command(OUTPUT ${compressed} DEPENDS ${source} VERBATIM
                     COMMAND sh -c "gzip -9n <\"$0\" >\"$1\"" ${source} ${compressed})
  string(MAKE_C_IDENTIFIER compressed_${folder}_${name} target)
  add_custom_target(${target} ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION ${share}/${folder})
endfunction()
if(FIDALEON_INSTALLED)
  fid_install_compressed(${packaging}/fidaleon.1 man/man1 fidaleon.1)
  fid_install_compressed(${packaging}/fidaleon.es.1 man/es/man1 fidaleon.1)
  fid_install_compressed(${packaging}/changelog.Debian doc/fidaleon changelog.Debian)
  fid_install_compressed(${CMAKE_SOURCE_DIR}/CHANGELOG.md doc/fidaleon changelog)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME fidaleon)
set(CPACK_PACKAGE_CONTACT "Fidaleon <mantenimiento@fidaleon.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "registers of a Spanish parish")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "The books of baptism, confirmation, marriage and death of a Spanish parish,
every entry on its folio under its number; the certificates, copies, notices
and duplicates that a parish signs and stamps; the dossier of a marriage; the
census and the groups of the parish.

Drafts are kept while one types, and a checked copy is made before anything
is taken away. Several desks may share one parish.")
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "fonts-linuxlibertine, fonts-dejavu-core, qt6-translations-l10n, libxcb-cursor0")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_SOURCE_DIR}/out)
include(CPack)
