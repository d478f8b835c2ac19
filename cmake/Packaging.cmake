# What is installed, and the Debian package of it. Beside its data an installed program has no folder that it can
# write: state/InstalledFolder.h tells where it writes instead, and relies on these places.
include(GNUInstallDirs)
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
  WORLD_READ WORLD_EXECUTE)
set(share ${CMAKE_INSTALL_DATADIR}/norlaplan-mm)
set(packaging ${PROJECT_SOURCE_DIR}/packaging)

install(TARGETS norlaplan-cli RUNTIME)
install(DIRECTORY data/ DESTINATION ${share} PATTERN "save" EXCLUDE PATTERN ".*" EXCLUDE)
if(NORLAPLAN_SCREENS)
  install(TARGETS norlaplan RUNTIME)
  # So deep that the package isn't taken for one with libraries that others link.
  install(TARGETS norlaplan-paint LIBRARY DESTINATION lib/norlaplan-mm/modules)
  foreach(folder "bkground" "bearing pictures" "neds Pictures")
    install(DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder}" DESTINATION ${share} PATTERN ".*" EXCLUDE)
  endforeach()
  install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/icons/onmoniter.ico
    ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/icons/offmoniter.ico DESTINATION ${share}/icons)
  install(DIRECTORY ${PROJECT_BINARY_DIR}/desktop-icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
  install(FILES ${packaging}/com.varden.norlaplan.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES ${packaging}/com.varden.norlaplan.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
endif()
install(FILES ${packaging}/bash/norlaplan-cli DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${packaging}/zsh/_norlaplan-cli DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
if(NORLAPLAN_SCREENS)
  install(FILES ${packaging}/bash/norlaplan DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
  install(FILES ${packaging}/zsh/_norlaplan DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
endif()

set(documents ${CMAKE_INSTALL_DATADIR}/doc/norlaplan-mm)
install(FILES README.md DESTINATION ${documents})
install(DIRECTORY docs DESTINATION ${documents})
install(FILES ${packaging}/debian/copyright DESTINATION ${documents})

# Manual pages and the list of changes are packed, as Debian wants them; without the time, so that each build gives
# the same bytes.
set(packed ${PROJECT_BINARY_DIR}/packed)
file(MAKE_DIRECTORY ${packed})
foreach(page man/norlaplan.1 man/norlaplan-cli.1 debian/changelog)
  get_filename_component(name ${page} NAME)
  add_custom_command(
    OUTPUT ${packed}/${name}.gz
    COMMAND gzip --best --no-name --stdout ${packaging}/${page} > ${packed}/${name}.gz
    DEPENDS ${packaging}/${page}
    VERBATIM)
  list(APPEND packed_files ${packed}/${name}.gz)
endforeach()
add_custom_target(packed-documents ALL DEPENDS ${packed_files})
install(FILES ${packed}/norlaplan-cli.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
if(NORLAPLAN_SCREENS)
  install(FILES ${packed}/norlaplan.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()
install(FILES ${packed}/changelog.gz DESTINATION ${documents})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME norlaplan-mm)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "NORLAPLAN-MM developers <norlaplan@varden.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "size thin-section ball bearings")
set(CPACK_PACKAGE_DESCRIPTION
"NORLAPLAN-MM takes a bearing of the Varden catalog by its part number, or finds
those that fit an envelope and carry a load case, and works out data sheet,
L10 life, static safety, torque, limiting speed, deflection, axial play,
thermal fits, ball loads, contact stress and lubricant film.
.
It brings a window program and the same calculations for the command line.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "libreoffice-impress, libreoffice-calc, cups-client")
include(CPack)
