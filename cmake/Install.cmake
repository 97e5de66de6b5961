# SPDX-License-Identifier: MIT
# What a desktop needs to know of the program, each file where the desktop looks for it. The program and its
# modules are installed where they are built.
include(GNUInstallDirs)
find_program(GZIP gzip REQUIRED)

set(resources ${CMAKE_SOURCE_DIR}/Resources)
set(application org.roamlet.Roamlet)

# Compressed as every distribution has it, and without a time stamp, so that the same sources give the same file.
function(roamlet_compress source result)
  set(file ${CMAKE_BINARY_DIR}/installed/${result}.gz)
  add_custom_command(OUTPUT ${file}
    COMMAND ${GZIP} -9 -n -c ${source} > ${file}
    DEPENDS ${source}
    VERBATIM)
  add_custom_target(compressed-${result} ALL DEPENDS ${file})
endfunction()

configure_file(${resources}/${application}.service.in ${CMAKE_BINARY_DIR}/installed/${application}.service @ONLY)
configure_file(${resources}/${application}.Search.service.in ${CMAKE_BINARY_DIR}/installed/${application}.Search.service
  @ONLY)
configure_file(${resources}/roamlet.1.in ${CMAKE_BINARY_DIR}/installed/roamlet.1 @ONLY)
roamlet_compress(${CMAKE_BINARY_DIR}/installed/roamlet.1 roamlet.1)
roamlet_compress(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog)

install(FILES ${resources}/${application}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${resources}/${application}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${resources}/${application}.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES ${resources}/${application}-symbolic.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/symbolic/apps)
install(FILES ${CMAKE_BINARY_DIR}/installed/${application}.service
  ${CMAKE_BINARY_DIR}/installed/${application}.Search.service
  DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)
install(FILES ${resources}/${application}.search-provider.ini
  DESTINATION ${CMAKE_INSTALL_DATADIR}/gnome-shell/search-providers)
install(FILES ${resources}/krunner.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/krunner/dbusplugins RENAME ${application}.desktop)
install(FILES ${CMAKE_BINARY_DIR}/installed/roamlet.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${CMAKE_BINARY_DIR}/installed/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/roamlet)
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/roamlet RENAME copyright)
