# SPDX-License-Identifier: MIT
# What stands on the system and is only called from here.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Network Svg Widgets)
find_package(SQLite3 REQUIRED)
find_package(ICU 72 REQUIRED COMPONENTS uc i18n)
find_package(nlohmann_json 3.11 REQUIRED)
find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(SODIUM REQUIRED IMPORTED_TARGET libsodium)
pkg_check_modules(ARCHIVE REQUIRED IMPORTED_TARGET libarchive)
pkg_check_modules(GIO REQUIRED IMPORTED_TARGET gio-2.0 gio-unix-2.0)
pkg_check_modules(X11 REQUIRED IMPORTED_TARGET x11)
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb)
# Debian's package of libxdo says nothing to pkg-config.
find_library(XDO_LIBRARY xdo REQUIRED)
find_path(XDO_INCLUDE_FOLDER xdo.h REQUIRED)
add_library(xdo INTERFACE IMPORTED)
target_include_directories(xdo INTERFACE ${XDO_INCLUDE_FOLDER})
target_link_libraries(xdo INTERFACE ${XDO_LIBRARY} PkgConfig::X11)
