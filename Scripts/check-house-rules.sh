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

# Looks for the pattern in all the files at once: a process for each would take half a minute.
forbid() { # what the file does, advice, pattern, files
  local does=$1 advice=$2 pattern=$3 file line
  shift 3
  while IFS=: read -r file line; do
    echo "$file:$line"
    fail "$file $does" "$advice"
  done < <(grep -nE -- "$pattern" /dev/null "$@")
}

# What each folder of Sources/Roamlet may include besides itself. Dependencies point one way.
declare -A may_include=(
  [Model]=""
  [Platform]="Model"
  [Readers]="Model Platform"
  [Library]="Lists Readers Model Platform"
  [Lists]="Model"
  [Export]="Model"
  [Opening]="Model Platform"
  [DesktopSearch]="Library Readers Model Platform"
  [App]="DesktopSearch Library Lists Export Opening Readers Model Platform"
)

mapfile -t sources < <(find Sources/Roamlet -name '*.cpp' -o -name '*.h')
core=()
without_windows=()
for file in "${sources[@]}"; do
  folder=${file#Sources/Roamlet/}
  folder=${folder%%/*}
  if [ -z "${may_include[$folder]+known}" ]; then
    fail "$file" "Sources/Roamlet/$folder is no room of the house; see Docs/Architecture.md."
  fi
  if [[ $folder != App || $file == Sources/Roamlet/App/Diagnostics/* ]]; then
    core+=("$file")
    # What stands for the window system is the system's; there, too, nothing is a widget.
    [[ $file == Sources/Roamlet/Platform/Linux/* ]] || without_windows+=("$file")
  fi
done

while IFS=: read -r file included; do
  folder=${file#Sources/Roamlet/}
  folder=${folder%%/*}
  room=${included%%/*}
  # A folder that nobody knows was already complained of.
  [ -n "${may_include[$folder]+known}" ] || continue
  if [ "$room" != "$folder" ] && [[ " ${may_include[$folder]} " != *" $room "* ]]; then
    fail "$file includes $included" "$folder may include only: ${may_include[$folder]:-nothing else}. Move the code, or hand the value down."
  fi
  if [[ $included == Platform/Linux/* && $file != Sources/Roamlet/Platform/Linux/* && $folder != App ]]; then
    fail "$file includes $included" "Only App chooses the system; everybody else takes the interface in Platform."
  fi
  if [[ $file == Sources/Roamlet/App/Diagnostics/* && $room == App && $included != App/Diagnostics/* ]]; then
    fail "$file includes $included" "The jobs of the command line run without what the windows need."
  fi
done < <(grep -HE '^ *# *include *[<"](Model|Platform|Readers|Library|Lists|Export|Opening|DesktopSearch|App)/' /dev/null "${sources[@]}" \
  | sed 's/: *# *include *[<"]\([^">]*\).*/:\1/')

forbid "includes a header of the window system" "The core runs without a display; Platform has a service for it, or App." \
  '^ *# *include *<(QGuiApplication|QWindow)>' "${without_windows[@]}"
forbid "includes a header of the window system" "The core runs without a display; widgets belong in App." \
  '^ *# *include *<(QtWidgets/|QApplication|Q[A-Za-z]*(Widget|Dialog|Menu|MenuBar|MessageBox|MainWindow|Button|Label|TableView|TreeView|ListView|ItemView|HeaderView|Edit|ComboBox|CheckBox|Layout|Action|TrayIcon)>)' "${core[@]}"
forbid "words a text for the screen" "The core returns values; App turns them into words." \
  '(^|[^[:alnum:]_])tr\(' "${core[@]}"

mapfile -t tests < <(find Tests Fuzz -name '*.cpp' -o -name '*.h')
forbid "waits for a time" "Wait for the condition, or inject a clock: a fixed wait is too long or too short." \
  'qWait\(|qSleep\(|sleep_for|sleep_until|QThread::(m|u)?sleep|usleep\(|[^[:alnum:]_.>]sleep\([0-9]' "${tests[@]}"

while IFS= read -r file; do
  mapfile -t -n 5 beginning <"$file"
  [[ ${beginning[*]} == *"SPDX-License-Identifier: MIT"* ]] \
    || fail "$file has no licence" "Begin it with the two SPDX lines that its neighbours have."
done < <(find Sources Tests Benchmarks Fuzz Scripts cmake -name '*.cpp' -o -name '*.h' -o -name '*.cmake' -o -name '*.sh' -o -name CMakeLists.txt)

mapfile -t headers < <(find Sources Tests Benchmarks Fuzz -name '*.h')
while IFS= read -r file; do
  fail "$file can be included twice" "Begin headers with #pragma once."
done < <(find Sources Tests Benchmarks Fuzz -name '*.h' -exec grep -L '^#pragma once' {} +)
forbid "opens a namespace for everybody" "Only .cpp files may say using namespace." '^using namespace' "${headers[@]}"

[ $status -eq 0 ] && echo "All house rules are kept."
exit $status
