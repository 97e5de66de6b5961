#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Attacks every door of foreign bytes for this many minutes in all, one target for each core at a time. With names of
# targets: only these. What is learnt stays in build/fuzz/corpus, what fails in build/fuzz/findings, and fails the run.
set -euo pipefail
cd "$(dirname "$0")/.."
minutes=${1:-5}
shift || true

# Read to its end before it begins: a run takes hours, and the shell would go on with what is written here meanwhile.
{
Scripts/install-dependencies.sh build samples fuzz

# SQLite reads most of the foreign bytes, so it is watched as well: the system's own version, from its source package.
build_sqlite() {
  local folder=$PWD/build/fuzz/sqlite version
  version=$(dpkg-query -W -f '${source:Version}' libsqlite3-0)
  [ "$(cat "$folder.version" 2>/dev/null)" != "$version" ] || return 0
  echo "Building SQLite $version with the sanitizers; this takes minutes, once"
  rm -rf "$folder"
  mkdir -p "$folder"/{apt/lists/partial,apt/cache/archives/partial,make}
  (
    cd "$folder/apt"
    # The lists of source packages are fetched for this alone: the machine's own list of repositories stays as it is.
    . /etc/os-release
    for repository in "debian $VERSION_CODENAME" "debian $VERSION_CODENAME-updates" \
      "debian-security $VERSION_CODENAME-security"; do
      echo "deb-src http://deb.debian.org/${repository% *} ${repository#* } main"
    done >sources.list
    options=(-q -o Dir::Etc::sourcelist="$PWD/sources.list" -o Dir::Etc::sourceparts=/nonexistent
      -o Dir::State::lists="$PWD/lists" -o Dir::Cache="$PWD/cache")
    apt-get "${options[@]}" update
    apt-get "${options[@]}" source "sqlite3=$version"
    cd ../make
    "$(echo "$folder"/apt/sqlite3-*/configure)" --disable-tcl
    make sqlite3.c
    cp sqlite3.c sqlite3.h ..
    cd ..
    # Those of the package's options that change how a file is read. Its authors call functions by other types than
    # theirs and the like on purpose: here it is only watched for reaching out of its memory.
    clang-19 -c -O1 -g1 -w -fno-strict-aliasing -fno-omit-frame-pointer \
      -fsanitize=address,bounds,fuzzer-no-link -fno-sanitize-recover=bounds \
      -DSQLITE_SECURE_DELETE -DSQLITE_ENABLE_COLUMN_METADATA -DSQLITE_ENABLE_FTS3 -DSQLITE_ENABLE_FTS3_PARENTHESIS \
      -DSQLITE_ENABLE_FTS3_TOKENIZER -DSQLITE_ENABLE_RTREE -DSQLITE_SOUNDEX -DSQLITE_ENABLE_UNLOCK_NOTIFY \
      -DSQLITE_OMIT_LOOKASIDE -DSQLITE_ENABLE_DBSTAT_VTAB -DSQLITE_ALLOW_ROWID_IN_VIEW \
      -DSQLITE_LIKE_DOESNT_MATCH_BLOBS -DSQLITE_THREADSAFE=1 -DSQLITE_USE_URI=1 -DSQLITE_MAX_SCHEMA_RETRY=25 \
      -DSQLITE_ENABLE_PREUPDATE_HOOK -DSQLITE_ENABLE_SESSION -DSQLITE_ENABLE_STMTVTAB \
      -DSQLITE_MAX_VARIABLE_NUMBER=250000 sqlite3.c -o sqlite3.o
    ar rcs libsqlite3.a sqlite3.o
    rm -rf apt make
  ) >"$folder.log" 2>&1 || {
    tail -n 20 "$folder.log" >&2
    echo "SQLite could not be built; see $folder.log" >&2
    return 1
  }
  echo "$version" >"$folder.version"
}

build_sqlite
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target roamlet-fuzz
# What runs for long stays what it is while others build.
work=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")")
trap 'kill $(jobs -p) 2>/dev/null || true; wait; rm -rf "$work"' EXIT
cp build/fuzz/roamlet-fuzz "$work/roamlet-fuzz"
fuzzer=$work/roamlet-fuzz
corpus=$PWD/build/fuzz/corpus
findings=$PWD/build/fuzz/findings
logs=$PWD/build/fuzz/logs
export TMPDIR=$work
export ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1:allocator_may_return_null=0:malloc_context_size=8
export UBSAN_OPTIONS=print_stacktrace=1 LSAN_OPTIONS=suppressions=$PWD/Tests/lsan.supp:print_suppressions=0
export ASAN_SYMBOLIZER_PATH=/usr/lib/llvm-19/bin/llvm-symbolizer

mkdir -p "$corpus" "$logs"
"$fuzzer" --seeds "$corpus"
mapfile -t targets < <("$fuzzer" --list)
if [ $# -gt 0 ]; then
  mapfile -t targets < <(printf '%s\n' "${targets[@]}" | grep -E "^($(IFS='|' && echo "$*")) ")
fi
[ ${#targets[@]} -gt 0 ] || { echo "There is no such target." >&2; exit 2; }

cores=$(nproc)
rounds=$(((${#targets[@]} + cores - 1) / cores))
seconds=$((minutes * 60 / rounds))
[ "$seconds" -gt 0 ] || seconds=1
echo "${#targets[@]} targets, $cores at a time, $seconds s each"

# One target; after a finding it goes on with what is left of its time.
attack() { # name, dictionary, longest input
  local name=$1 dictionary=$2 longest=$3 end=$((SECONDS + seconds)) left log=$logs/$1.log options=() running=
  trap 'kill $running 2>/dev/null; exit 1' TERM
  [ "$dictionary" = - ] || options+=(-dict="Fuzz/Dictionaries/$dictionary.dict")
  mkdir -p "$findings/$name"
  : >"$log"
  # Where something failed once, more may.
  for regression in Fuzz/Regressions/"$name"/*; do
    [ ! -f "$regression" ] || cp "$regression" "$corpus/$name/"
  done
  for attempt in 1 2 3 4 5; do
    left=$((end - SECONDS))
    [ "$left" -gt 0 ] || break
    ROAMLET_FUZZ_TARGET=$name "$fuzzer" "$corpus/$name" -max_total_time="$left" -max_len="$longest" -timeout=10 \
      -rss_limit_mb=2048 -malloc_limit_mb=1024 -print_final_stats=1 -print_funcs=0 -reload=0 \
      -artifact_prefix="$findings/$name/" "${options[@]}" >>"$log" 2>&1 &
    running=$!
    wait "$running" && break
  done
}

for target in "${targets[@]}"; do
  while [ "$(jobs -rp | wc -l)" -ge "$cores" ]; do wait -n || true; done
  read -r name dictionary longest <<<"$target"
  attack "$name" "$dictionary" "$longest" &
done
wait

printf '%-20s %12s %8s %9s %9s  %s\n' target executions edges features "exec/s" findings
status=0
total=0
for target in "${targets[@]}"; do
  name=${target%% *}
  log=$logs/$name.log
  executions=$(awk '/stat::number_of_executed_units/ { all += $2 } END { print all + 0 }' "$log")
  rate=$(awk '/stat::average_exec_per_sec/ { last = $2 } END { print last + 0 }' "$log")
  edges=$(grep -oE 'cov: [0-9]+' "$log" | awk '$2 > most { most = $2 } END { print most + 0 }')
  features=$(grep -oE 'ft: [0-9]+' "$log" | awk '$2 > most { most = $2 } END { print most + 0 }')
  mapfile -t failed < <(sed -n 's/.*Test unit written to //p' "$log" | grep -v '/slow-unit-' | sort -u)
  printf '%-20s %12d %8d %9d %9d  %s\n' "$name" "$executions" "$edges" "$features" "$rate" "${#failed[@]}"
  [ ${#failed[@]} -eq 0 ] || printf '    %s\n' "${failed[@]}"
  total=$((total + executions))
  [ ${#failed[@]} -eq 0 ] || status=1
  # A target that never ran proves nothing.
  [ "$executions" -gt 0 ] || { echo "    did not run; see $log"; status=1; }
done
printf '%-20s %12d\n' all "$total"
exit $status
}
