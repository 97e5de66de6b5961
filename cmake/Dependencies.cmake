# SPDX-License-Identifier: MIT
# What stands on the system and is only called from here.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui Svg Widgets)
find_package(SQLite3 REQUIRED)
find_package(ICU 72 REQUIRED COMPONENTS uc i18n)
find_package(nlohmann_json 3.11 REQUIRED)
find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(PLIST REQUIRED IMPORTED_TARGET libplist-2.0)
