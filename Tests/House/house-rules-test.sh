#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Breaks each house rule in a small house of its own and expects the check to say so.
set -euo pipefail
check=$(cd "$(dirname "$0")/../.." && pwd)/Scripts/check-house-rules.sh
house=$(mktemp -d)
trap 'rm -rf "$house"' EXIT
failures=0

new_house() {
  rm -rf "${house:?}"/*
  mkdir -p "$house"/Sources/Roamlet/{Model,Platform/Linux,Readers,Library,Lists,Export,Opening,App} \
    "$house"/{Tests,Benchmarks,Fuzz,Scripts,cmake}
}

put() {
  mkdir -p "$(dirname "$house/$1")"
  printf '// SPDX-FileCopyrightText: 2026 The Roamlet authors\n// SPDX-License-Identifier: MIT\n%b\n' "$2" >"$house/$1"
}

judge() { # expected, actual, name
  if [ "$2" != "$1" ]; then
    echo "FAILED: $3: expected $1, got $2"
    failures=$((failures + 1))
  fi
}

expect() {
  local expected=$1 name=$2 actual=kept
  "$check" "$house" >/dev/null 2>&1 || actual=broken
  judge "$expected" "$actual" "$name"
}

new_house
expect kept "an empty house"

# Folder, what it includes, kept or broken: all in one house, where the check names the files that break a rule.
new_house
numbered=$(cat -n <<'CASES'
Model Model kept
Model Platform broken
Model Readers broken
Platform Model kept
Platform Readers broken
Platform Platform kept
Readers Model kept
Readers Platform kept
Readers Library broken
Readers Platform/Linux broken
Library Readers kept
Library Lists kept
Library Export broken
Library App broken
Lists Model kept
Lists Library broken
Export Model kept
Export Platform broken
Opening Platform kept
Opening Library broken
App Library kept
App Lists kept
App Export kept
App Platform/Linux kept
CASES
)
while read -r number folder included expected; do
  put "Sources/Roamlet/$folder/File$number.cpp" "#include \"$included/Other.h\""
done <<<"$numbered"
complaints=$("$check" "$house" 2>&1 || true)
while read -r number folder included expected; do
  actual=kept
  grep -qF "Sources/Roamlet/$folder/File$number.cpp includes" <<<"$complaints" && actual=broken
  judge "$expected" "$actual" "$folder includes $included"
done <<<"$numbered"

new_house
put Sources/Roamlet/Library/File.cpp '#include <QWidget>'
expect broken "a widget in the core"
new_house
put Sources/Roamlet/Library/File.cpp '#include <QtWidgets/QWidget>'
expect broken "a widget in the core, by its long name"
new_house
put Sources/Roamlet/Library/File.cpp '#include <QWindow>'
expect broken "a window of the window system in the core"
new_house
put Sources/Roamlet/Platform/Linux/File.cpp '#include <QWindow>'
expect kept "a window of the window system where the system is met"
new_house
put Sources/Roamlet/Platform/Linux/File.cpp '#include <QMenu>'
expect broken "a widget where the system is met"
new_house
put Sources/Roamlet/Library/File.cpp '#include <QPushButton>'
expect broken "a button in the core"
new_house
put Sources/Roamlet/Library/File.cpp '#include <QByteArrayView>'
expect kept "a view of bytes in the core"
new_house
put Sources/Roamlet/Model/File.cpp '#include <Library/Library.h>'
expect broken "a wrong direction in angle brackets"
new_house
put Sources/Roamlet/App/Diagnostics/File.cpp '#include <QWidget>'
expect broken "a widget in the jobs of the command line"
new_house
put Sources/Roamlet/App/Diagnostics/File.cpp '#include "App/Window/MainWindow.h"'
expect broken "a window in the jobs of the command line"
new_house
put Sources/Roamlet/App/File.cpp '#include <QWidget>'
expect kept "a widget in the App"
new_house
put Sources/Roamlet/Readers/File.cpp 'auto text = tr("Hello");'
expect broken "a worded text in the core"
new_house
mkdir -p "$house/Sources/Roamlet/Attic"
put Sources/Roamlet/Attic/File.cpp ''
expect broken "a folder that nobody knows"
new_house
put Tests/FileTest.cpp 'QTest::qWait(100);'
expect broken "a test that waits for a time"
new_house
printf 'int x;\n' >"$house/Sources/Roamlet/Model/File.cpp"
expect broken "a file without a licence"
new_house
put Sources/Roamlet/Model/File.h 'int x();'
expect broken "a header without a guard"
new_house
put Sources/Roamlet/Model/File.h '#pragma once\nusing namespace std;'
expect broken "a header that opens a namespace"

[ "$failures" -eq 0 ] && echo "Every broken rule was noticed."
exit "$failures"
