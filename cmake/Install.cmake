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

# Where people turn to. A release names its own pages; the others follow from the first, where they are not named.
set(ROAMLET_HOMEPAGE_URL "https://roamlet.invalid" CACHE STRING "The project's page, for software centres")
foreach(page bugtracker source translate contact pictures)
  string(TOUPPER ${page} name)
  set(ROAMLET_${name}_URL "${ROAMLET_HOMEPAGE_URL}/${page}" CACHE STRING "For software centres: ${page}")
endforeach()
foreach(file metainfo.xml service Search.service)
  configure_file(${resources}/${application}.${file}.in ${CMAKE_BINARY_DIR}/installed/${application}.${file} @ONLY)
endforeach()
# The manual page, also in the languages that it is translated to.
foreach(page roamlet.1 roamlet.de.1 roamlet.fr.1)
  configure_file(${resources}/${page}.in ${CMAKE_BINARY_DIR}/installed/${page} @ONLY)
  roamlet_compress(${CMAKE_BINARY_DIR}/installed/${page} ${page})
endforeach()
roamlet_compress(${CMAKE_SOURCE_DIR}/CHANGELOG.md changelog)

install(FILES ${resources}/${application}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_BINARY_DIR}/installed/${application}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
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
foreach(language de fr)
  install(FILES ${CMAKE_BINARY_DIR}/installed/roamlet.${language}.1.gz
    DESTINATION ${CMAKE_INSTALL_MANDIR}/${language}/man1 RENAME roamlet.1.gz)
endforeach()
install(FILES ${CMAKE_BINARY_DIR}/installed/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/roamlet)
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/roamlet RENAME copyright)

# What follows the program's name on the command line. Below /usr, Debian's zsh looks in the folder for packages only.
set(completions ${resources}/Completions)
set(zsh_functions site-functions)
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set(zsh_functions vendor-completions)
endif()
install(FILES ${completions}/roamlet.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME roamlet)
install(FILES ${completions}/roamlet.zsh DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/${zsh_functions} RENAME _roamlet)
install(FILES ${completions}/roamlet.fish DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
