#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Fails when a file breaks a rule that the compiler does not know. Takes the folder to check, by default this project.
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"
status=0

fail() {
  echo "$1"
  echo "    $2"
  status=1
}

# What each folder of Sources/Roamlet may include besides itself. Dependencies point one way.
declare -A may_include=(
  [Model]=""
  [Platform]="Model"
  [Readers]="Model Platform"
  [Library]="Readers Model Platform"
  [Lists]="Model"
  [Export]="Model"
  [Opening]="Model Platform"
  [App]="Library Lists Export Opening Readers Model Platform"
)

while IFS= read -r file; do
  folder=${file#Sources/Roamlet/}
  folder=${folder%%/*}
  if [ -z "${may_include[$folder]+known}" ]; then
    fail "$file" "Sources/Roamlet/$folder is no room of the house; see Docs/Architecture.md."
    continue
  fi
  while IFS= read -r included; do
    room=${included%%/*}
    if [ "$room" != "$folder" ] && [[ " ${may_include[$folder]} " != *" $room "* ]]; then
      fail "$file includes $included" "$folder may include only: ${may_include[$folder]:-nothing else}. Move the code, or hand the value down."
    fi
    if [[ $included == Platform/Linux/* && $file != Sources/Roamlet/Platform/Linux/* && $folder != App ]]; then
      fail "$file includes $included" "Only App chooses the system; everybody else takes the interface in Platform."
    fi
    if [[ $file == Sources/Roamlet/App/Diagnostics/* && $room == App && $included != App/Diagnostics/* ]]; then
      fail "$file includes $included" "The jobs of the command line run without what the windows need."
    fi
  done < <(sed -n 's/^ *# *include *[<"]\([^">]*\/[^">]*\)[>"].*/\1/p' "$file" | grep -E "^(Model|Platform|Readers|Library|Lists|Export|Opening|App)/" || true)
  if [[ $folder != App || $file == Sources/Roamlet/App/Diagnostics/* ]]; then
    # What stands for the window system is the system's; there, too, nothing is a widget.
    if [[ $file != Sources/Roamlet/Platform/Linux/* ]] && grep -nE '^ *# *include *<(QGuiApplication|QWindow)>' "$file"; then
      fail "$file includes a header of the window system" "The core runs without a display; Platform has a service for it, or App."
    fi
    if grep -nE '^ *# *include *<(QtWidgets/|QApplication|Q[A-Za-z]*(Widget|Dialog|Menu|MenuBar|MessageBox|MainWindow|Button|Label|TableView|TreeView|ListView|ItemView|HeaderView|Edit|ComboBox|CheckBox|Layout|Action|TrayIcon)>)' "$file"; then
      fail "$file includes a header of the window system" "The core runs without a display; widgets belong in App."
    fi
    if grep -nE '(^|[^[:alnum:]_])tr\(' "$file"; then
      fail "$file words a text for the screen" "The core returns values; App turns them into words."
    fi
  fi
done < <(find Sources/Roamlet -name '*.cpp' -o -name '*.h' | sort)

while IFS= read -r file; do
  if grep -nE 'qWait\(|qSleep\(|sleep_for|sleep_until|QThread::(m|u)?sleep|usleep\(|[^[:alnum:]_.>]sleep\([0-9]' "$file"; then
    fail "$file waits for a time" "Wait for the condition, or inject a clock: a fixed wait is too long or too short."
  fi
done < <(find Tests -name '*.cpp' -o -name '*.h' | sort)

while IFS= read -r file; do
  head -n 5 "$file" | grep -q 'SPDX-License-Identifier: MIT' \
    || fail "$file has no licence" "Begin it with the two SPDX lines that its neighbours have."
done < <(find Sources Tests Benchmarks Scripts cmake -name '*.cpp' -o -name '*.h' -o -name '*.cmake' -o -name '*.sh' -o -name CMakeLists.txt | sort)

while IFS= read -r file; do
  grep -q '^#pragma once' "$file" || fail "$file can be included twice" "Begin headers with #pragma once."
  if grep -nE '^using namespace' "$file"; then
    fail "$file opens a namespace for everybody" "Only .cpp files may say using namespace."
  fi
done < <(find Sources Tests Benchmarks -name '*.h' | sort)

[ $status -eq 0 ] && echo "All house rules are kept."
exit $status
