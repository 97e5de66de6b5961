# SPDX-License-Identifier: MIT
# The Debian package, which CPack makes of what is installed.
set(ROAMLET_PACKAGE_CONTACT "The Roamlet authors <noreply@roamlet.invalid>" CACHE STRING
  "Who answers for the package, with an address of electronic mail")

# The package's own change log names the release that the desktop metadata names first.
file(READ ${CMAKE_SOURCE_DIR}/Resources/org.roamlet.Roamlet.metainfo.xml.in metadata)
if(NOT metadata MATCHES "<release version=\"${PROJECT_VERSION}\"[^>]* date=\"([-0-9]+)\"")
  message(FATAL_ERROR "The desktop metadata knows no release ${PROJECT_VERSION}.")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date --utc --rfc-email --date ${CMAKE_MATCH_1}
  OUTPUT_VARIABLE release_date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/installed/changelog.Debian @ONLY CONTENT
"roamlet (@PROJECT_VERSION@-1) unstable; urgency=medium

  * Roamlet @PROJECT_VERSION@. What is new in it stands in changelog.gz.

 -- @ROAMLET_PACKAGE_CONTACT@  @release_date@
")
roamlet_compress(${CMAKE_BINARY_DIR}/installed/changelog.Debian changelog.Debian)
install(FILES ${CMAKE_BINARY_DIR}/installed/changelog.Debian.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/roamlet
  COMPONENT debian EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME roamlet)
set(CPACK_PACKAGE_VENDOR "The Roamlet authors")
set(CPACK_PACKAGE_CONTACT ${ROAMLET_PACKAGE_CONTACT})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "history and bookmarks of all your browsers in one place")
set(CPACK_PACKAGE_DESCRIPTION
"Roamlet gathers the history, the bookmarks and the site icons of Firefox,
LibreWolf, Waterfox, Floorp, Zen, Google Chrome, Chromium, Microsoft Edge,
Brave, Vivaldi, Opera and Safari, every profile of each, and finds a page in
all of them at once. A page opens in the browser and the profile that it came
from, and bookmarks can be exported as HTML, Markdown or CSV.

The browsers' files are never written to: Roamlet reads private copies, also
while the browsers run. What it reads does not leave the computer.")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# All that is installed everywhere, and what only a Debian package has.
set(CPACK_INSTALL_CMAKE_PROJECTS
  "${CMAKE_BINARY_DIR};${PROJECT_NAME};ALL;/;${CMAKE_BINARY_DIR};${PROJECT_NAME};debian;/")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# The libraries that the program and its modules need. The window system's plugin for X and the one that draws
# SVG icons come with two of them.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Wayland, the desktop's own dialogs, the languages of the toolkit's, one running program, opening what no browser of
# ours takes, and who vouches for the server of the updates.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "qt6-wayland, qt6-gtk-platformtheme, qt6-translations-l10n, default-dbus-session-bus | dbus-session-bus, hicolor-icon-theme, xdg-utils, ca-certificates")
# What installs updates.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-xdgdesktopportal-platformtheme, packagekit")
include(CPack)
