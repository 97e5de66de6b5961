#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures Roamlet against plain alternatives and prints one table of ratios. Each ratio is the one of two medians that
# were taken in the same run, ours and theirs in turn. A target that is missed is said so; it is no error.
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/install-dependencies.sh build samples test bench
# Every desktop has a bus; looking for one in vain takes longer than the program's own start.
[ -n "${DBUS_SESSION_BUS_ADDRESS-}" ] || exec dbus-run-session -- "$PWD/Scripts/bench.sh" "$@"
cmake --preset bench >/dev/null
cmake --build --preset bench --target roamlet roamlet_window Benchmarks/all roamlet-sample-home app_tests
bin=$PWD/build/bench
homes=$PWD/build/bench-homes
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$homes"
export TMPDIR=$work

home() { # name, options of the builder
  local name=$1
  shift
  [ -d "$homes/$name" ] || "$bin/roamlet-sample-home" --layout linux --safari -1 "$@" "$homes/$name" >&2
}

rows=()
row() { # job, against, ours, theirs, at most
  rows+=("$(awk -v job="$1" -v against="$2" -v ours="$3" -v theirs="$4" -v most="$5" 'BEGIN {
    ratio = ours / theirs
    printf "%-52s | %-40s | %9.1f | %9.1f | %5.2f | %5.2f | %s", job, against, ours, theirs, ratio, most,
           ratio <= most ? "met" : "MISSED"
  }')")
}

# Milliseconds until a command has ended. No shell stands between: it would take longer than some of what is measured.
untilEnd() {
  hyperfine --style none --runs 1 --shell=none --export-csv "$work/csv" "$1" >/dev/null 2>&1
  awk -F, 'NR == 2 { print $2 * 1000 }' "$work/csv"
}

# Milliseconds until a program has painted, which prints the time of that, in microseconds.
untilPainted() {
  local start=${EPOCHREALTIME/[.,]/} end
  end=$("$1" 2>/dev/null)
  awk "BEGIN { print ($end - $start) / 1000 }"
}

# Runs two plain commands in turn, on one of the sample homes, and leaves the medians, in milliseconds, in $ours and
# $theirs.
compare() { # until when, home, rounds, ours, theirs
  local until=$1 home=$homes/$2 rounds=$3
  : >"$work/ours"
  : >"$work/theirs"
  for round in $(seq 0 "$rounds"); do
    for side in ours theirs; do
      local command=$4 taken
      [ $side = theirs ] && command=$5
      taken=$(HOME=$home XDG_CONFIG_HOME=$home/.config $until "$command")
      # The first round only warms up.
      [ "$round" -eq 0 ] || echo "$taken" >>"$work/$side"
    done
  done
  ours=$(sort -n "$work/ours" | awk '{ a[NR] = $1 } END { print a[int((NR + 1) / 2)] }')
  theirs=$(sort -n "$work/theirs" | awk '{ a[NR] = $1 } END { print a[int((NR + 1) / 2)] }')
}

recent="SELECT id, url, title, last_visit_time, visit_count FROM urls WHERE hidden = 0"
search="$recent AND (url || ' ' || title) LIKE '%garden%' ESCAPE '\\' AND (url || ' ' || title) LIKE '%maps%' ESCAPE '\\'
ORDER BY last_visit_time DESC LIMIT 1000"
recentPlaces="SELECT id, url, title, last_visit_date, visit_count FROM moz_places
WHERE hidden = 0 AND last_visit_date IS NOT NULL"
searchPlaces="$recentPlaces AND (url || ' ' || coalesce(title, '')) LIKE '%garden%' ESCAPE '\\'
AND (url || ' ' || coalesce(title, '')) LIKE '%maps%' ESCAPE '\\' ORDER BY last_visit_date DESC LIMIT 1000"
placeBookmarks="SELECT b.id, b.type, b.parent, b.position, b.title, b.dateAdded, b.guid, p.url FROM moz_bookmarks b
LEFT JOIN moz_places p ON p.id = b.fk ORDER BY b.parent, b.position, b.id"

echo "Preparing the sample homes"
home million --chrome 1 --edge 0 --rows 1000000 --bookmarks 1000 --icons 100
home tenth --chrome 1 --edge 0 --rows 100000 --bookmarks 1000 --icons 100
home million-firefox --chrome 0 --edge 0 --profiles firefox=1 --rows 1000000 --bookmarks 1000 --icons 100
home mixed --chrome 4 --edge 0 --profiles firefox=4 --rows 100000 --bookmarks 1000 --icons 5000
home profiles --chrome 4 --edge 4 --rows 100000 --bookmarks 1000 --icons 5000
home four --chrome 2 --edge 2 --rows 1000 --bookmarks 100 --icons 100
home ten --chrome 1 --edge 0 --rows 10 --bookmarks 10 --icons 1

echo "Measuring; the load of the machine is $(cut -d' ' -f1-3 /proc/loadavg)"
copy=$work/copy
mkdir "$copy"
million=$homes/million/.config/google-chrome/Default
roamlet=$bin/roamlet

cat >"$work/plain-search" <<SEARCH
cp '$million/History' '$copy/History'
sqlite3 '$copy/History' "$search" >/dev/null
SEARCH
compare untilEnd million 15 "$roamlet --search garden maps" "bash $work/plain-search"
rm -f "$copy"/*
row "--search of two words, 1,000,000 rows (ms)" "cp, sqlite3 with the same statement" "$ours" "$theirs" 0.6

places=$(echo "$homes"/million-firefox/.config/mozilla/firefox/*.default-release/places.sqlite)
cat >"$work/plain-search-firefox" <<SEARCH
cp '$places'* '$copy'
sqlite3 '$copy/places.sqlite' "$searchPlaces" >/dev/null
SEARCH
compare untilEnd million-firefox 15 "$roamlet --search garden maps" "bash $work/plain-search-firefox"
rm -f "$copy"/*
row "--search of two words, Firefox, 1,000,000 rows (ms)" "cp, sqlite3 with the same statement" "$ours" "$theirs" 0.9

cat >"$work/plain-summary" <<SUMMARY
for profile in $homes/profiles/.config/{google-chrome,microsoft-edge}/*/; do
  for file in History Favicons; do
    cp "\$profile/\$file"* $copy/
  done
  sqlite3 $copy/History "$recent ORDER BY last_visit_time DESC LIMIT 1000" >/dev/null
  sqlite3 $copy/Favicons "SELECT icon_id, image_data, width FROM favicon_bitmaps; SELECT page_url, icon_id FROM icon_mapping" >/dev/null
  cat "\$profile/Bookmarks" >/dev/null
  rm -f $copy/*
done
SUMMARY
compare untilEnd profiles 9 "$roamlet --summary" "bash $work/plain-summary"
row "--summary of 8 profiles of 100,000 rows (ms)" "cp, sqlite3, one after the other" "$ours" "$theirs" 0.5

cat >"$work/plain-summary-mixed" <<SUMMARY
for profile in $homes/mixed/.config/google-chrome/*/; do
  for file in History Favicons; do
    cp "\$profile/\$file"* $copy/
  done
  sqlite3 $copy/History "$recent ORDER BY last_visit_time DESC LIMIT 1000" >/dev/null
  sqlite3 $copy/Favicons "SELECT icon_id, image_data, width FROM favicon_bitmaps; SELECT page_url, icon_id FROM icon_mapping" >/dev/null
  cat "\$profile/Bookmarks" >/dev/null
  rm -f $copy/*
done
for places in $homes/mixed/.config/mozilla/firefox/*/places.sqlite; do
  cp "\$places"* "\${places%/*}/favicons.sqlite"* $copy/
  sqlite3 $copy/places.sqlite "$recentPlaces ORDER BY last_visit_date DESC LIMIT 1000; $placeBookmarks" >/dev/null
  sqlite3 $copy/favicons.sqlite "SELECT id, icon_url, width, root, data FROM moz_icons WHERE width < 65535;
    SELECT page_url, icon_id FROM moz_pages_w_icons JOIN moz_icons_to_pages ON page_id = id" >/dev/null
  rm -f $copy/*
done
SUMMARY
compare untilEnd mixed 9 "$roamlet --summary" "bash $work/plain-summary-mixed"
row "--summary of 4 Chrome and 4 Firefox profiles (ms)" "cp, sqlite3, one after the other" "$ours" "$theirs" 0.7

compare untilEnd ten 41 "$roamlet --export html --source chrome/Default" "$bin/BenchmarkEmptyProgram"
row "--export html of ten bookmarks, whole process (ms)" "an empty Qt Core program" "$ours" "$theirs" 2

# Windows are measured on a screen of their own, with a tray.
export DISPLAY=:93
Xvfb $DISPLAY -screen 0 1280x900x24 >/dev/null 2>&1 &
screen=$!
until xdotool getdisplaygeometry >/dev/null 2>&1; do sleep 0.1; done
trayer --edge top --align right >/dev/null 2>&1 &
tray=$!
compare untilPainted four 15 "$bin/BenchmarkStartMainWindow" "$bin/BenchmarkEmptyWindow"
row "start until the window has painted rows (ms)" "an empty window with an empty table" "$ours" "$theirs" 1.6
# A desktop has fonts for all scripts, and what they take is part of what the program takes.
Scripts/install-dependencies.sh fonts
kept() { HOME=$homes/four XDG_CONFIG_HOME=$homes/four/.config "$bin/$1" --memory 2>/dev/null; }
row "memory when idle in the tray (kB)" "the same empty window with a tray icon" \
  "$(kept BenchmarkStartMainWindow)" "$(kept BenchmarkEmptyWindow)" 1.3
# A wake-up of our own is one more than those of the empty window, which the desktop wakes, too. Half a minute after the
# start, Qt lets go of the pictures that it keeps.
wakeUps() {
  HOME=$homes/four XDG_CONFIG_HOME=$homes/four/.config "$@" >/dev/null 2>&1 &
  local program=$! before after
  sleep 40
  switches() { cat /proc/$program/task/*/status | awk '/ctxt_switches/ { n += $2 } END { print n }'; }
  before=$(switches)
  sleep 60
  after=$(switches)
  kill $program
  wait $program 2>/dev/null || true
  echo $((after - before))
}
ours=$(wakeUps "$roamlet" --started-at-login)
theirs=$(wakeUps "$bin/BenchmarkEmptyWindow" --stay)
rows+=("$(printf '%-52s | %-40s | %9d | %9d | %5s | %5d | %s' "wake-ups while idle in the tray for 60 s" \
  "the same empty window" "$ours" "$theirs" "" 0 "$([ "$ours" -le "$theirs" ] && echo met || echo MISSED)")")

# Letters typed into the search field, over a million rows and over a tenth of that; at the end the program waits for the
# minute for which it keeps what the search took.
typed() { awk -v name="$1" '$1 == name { print $2 }' "$work/typed"; }
for size in million tenth; do
  HOME=$homes/$size XDG_CONFIG_HOME=$homes/$size/.config "$bin/BenchmarkTypeInWindow" >"$work/typed" 2>/dev/null
  count=1,000,000
  [ $size = tenth ] && count=100,000
  row "a further letter over $count rows, until painted (ms)" "one pass over the bytes, and painting" \
    "$(typed letter_ms)" "$(typed plain_ms)" 3
  row "the same, 99 letters of 100 (ms)" "the same, 99 rounds of 100" "$(typed letter_99_ms)" "$(typed plain_99_ms)" 3
  row "longest stall while typing (ms)" "8 ms and the painting itself" "$(typed stall_ms)" \
    "$(awk "BEGIN { print $(typed plain_stall_ms) + 8 }")" 1
  row "memory in the tray after it (MB)" "before it" "$(typed tray_after_mb)" "$(typed tray_before_mb)" 1.03
  # What the window itself takes is the same for fewer rows.
  [ $size = tenth ] || row "memory for searching $count rows (MB)" "the bytes of their texts" \
    "$(typed memory_searching_mb)" "$(typed text_mb)" 1.5
  [ $size = tenth ] || cp "$work/typed" "$work/typed-million"
done
# Where no memory is allowed for it, a search goes as it went before.
settings=$homes/million/.config/Roamlet/Roamlet.conf
mkdir -p "${settings%/*}"
printf '[General]\nsearch.memoryLimit=0\n' >"$settings"
HOME=$homes/million XDG_CONFIG_HOME=$homes/million/.config "$bin/BenchmarkTypeInWindow" --short >"$work/typed" 2>/dev/null
rm -r "${settings%/*}"
row "the text of 1,000,000 rows built (ms)" "a search through the database, in the window" \
  "$(awk '$1 == "build_ms" { print $2 }' "$work/typed-million")" "$(typed letter_ms)" 1.3
kill $tray $screen

# What a desktop's search waits for, over a tenth of a million rows.
HOME=$homes/tenth XDG_CONFIG_HOME=$homes/tenth/.config "$bin/BenchmarkDesktopSearch" >"$work/desktop"
searched() { awk -v name="$1" '$1 == name { print $2 }' "$work/desktop"; }
row "a desktop's first answer, 100,000 rows (ms)" "100 ms" "$(searched first_ms)" 100 1
row "a further one (ms)" "one pass over the bytes, and 1 ms of the bus" "$(searched letter_ms)" \
  "$(awk "BEGIN { print $(searched pass_ms) + 1 }")" 3
row "a further one in which nearly all rows are found (ms)" "10 ms" "$(searched slowest_letter_ms)" 10 1
row "memory of what answers (MB)" "30 MB" "$(searched memory_mb)" 30 1
row "what of it is its own (MB)" "the bytes of the text" "$(searched private_mb)" "$(searched text_mb)" 2
rows+=("$(printf '%-52s | %-40s | %9d | %9d | %5s | %5d | %s' "its wake-ups in 10 s of silence" "none" \
  "$(searched idle_switches)" 0 "" 0 "$([ "$(searched idle_switches)" -eq 0 ] && echo met || echo MISSED)")")

# The tests that drive the whole program over ten sources of 1,000 rows write down what they measured.
QT_QPA_PLATFORM=offscreen "$bin/app_tests" --gtest_filter='ResponsivenessTest.*' --gtest_output="xml:$work/used.xml" \
  >/dev/null 2>&1
used() { sed -n "s/.*name=\"$1\" value=\"\([0-9]*\)\".*/\1/p" "$work/used.xml" | awk '{ print $1 / 1000 }'; }
row "longest stall while loading, typing, sorting (ms)" "one frame" "$(used longest_stall_us)" 16.7 1
row "sorting 10,000 shown rows until painted (ms)" "the sort itself and one frame" "$(used sorted_until_painted_us)" \
  "$(awk "BEGIN { print $(used sort_us) + 16.7 }")" 1

peak=$(HOME=$homes/million XDG_CONFIG_HOME=$homes/million/.config \
  /usr/bin/time -f %M "$roamlet" --search garden maps 2>&1 >/dev/null | tail -n 1)
row "peak memory of the search (MB)" "60 MB" "$(awk "BEGIN { print $peak / 1024 }")" 60 1

compare untilEnd million 7 "$roamlet --search garden maps" \
  "env HOME=$homes/tenth XDG_CONFIG_HOME=$homes/tenth/.config $roamlet --search garden maps"
row "reading 1,000,000 rows (ms)" "100,000 rows" "$ours" "$theirs" 11

# The medians of one benchmark program, as "name milliseconds" of processor time.
medians() {
  # In turn, so that a moment in which the machine is slow is nobody's.
  "$bin/$1" --benchmark_format=csv --benchmark_repetitions=5 --benchmark_enable_random_interleaving=true \
    --benchmark_report_aggregates_only=true 2>/dev/null \
    | awk -F, '/_median"/ { gsub(/"/, "", $1); sub(/_median$/, "", $1); print $1, ($5 == "ns" ? $4 / 1e6 : $5 == "us" ? $4 / 1e3 : $4) }'
}

medians BenchmarkRenderBookmarks >"$work/render"
for format in html markdown csv; do
  few=$(awk -v name="render/$format/10000" '$1 == name { print $2 }' "$work/render")
  many=$(awk -v name="render/$format/100000" '$1 == name { print $2 }' "$work/render")
  row "rendering 100,000 bookmarks as $format (ms)" "10,000 bookmarks" "$many" "$few" 11
done

medians BenchmarkRefineLists >"$work/lists"
listed() { awk -v name="$1" '$1 == name { print $2 }' "$work/lists"; }
for order in VisitsAndTitle TitleAndDate VisitsAndDate; do
  row "refine of 100,000 rows, $order (ms)" "stable_sort and a substring pass by hand" \
    "$(listed "RefineBy$order/100000")" "$(listed "RefineBy${order}ByHand/100000")" 1.3
  row "refine of 1,000,000 rows, $order (ms)" "100,000 rows" \
    "$(listed "RefineBy$order/1000000")" "$(listed "RefineBy$order/100000")" 12
done
for group in GroupByDay GroupBySite; do
  row "$group of 100,000 rows (ms)" "copying the rows" \
    "$(listed "$group/100000/5000")" "$(listed CopyRows/100000/5000)" 5
done

medians BenchmarkHistoryText >"$work/text"
texted() { awk -v name="$1" '$1 == name { print $2 }' "$work/text"; }
row "a word in the text of 1,000,000 rows (ms)" "one memchr over as many bytes" \
  "$(texted SearchForNothing)" "$(texted OnePassOfMemchr)" 3
row "a letter in the text of 1,000,000 rows (ms)" "a search of the database" \
  "$(texted SearchForALetter)" "$(texted SearchOfTheDatabase)" 0.1

printf '\n%-52s | %-40s | %9s | %9s | %5s | %5s |\n' "job" "against" "ours" "theirs" "ratio" "most"
printf '%s\n' "${rows[@]}"
