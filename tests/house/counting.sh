#!/bin/bash
# Shows that nothing that goes wrong is lost in the counting: each case is a small project whose
# test program ends in one particular way.
set -euo pipefail
root=$(cd "$(dirname "$0")/../.." && pwd)
. "$root/tools/tally.sh"

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/tools"
cp "$root/tools/run_tests.sh" "$scratch/tools"
cat >"$scratch/CMakePresets.json" <<'END'
{ "version": 6,
  "configurePresets": [ { "name": "debug", "generator": "Ninja",
                          "binaryDir": "${sourceDir}/build/${presetName}" } ],
  "testPresets": [ { "name": "debug", "configurePreset": "debug" } ] }
END

# Counts EXPECTED SCRIPT...: what run_tests.sh closes with when each script is a test program.
Counts() {
    local expected=$1 verdict i=0 status=0
    shift
    { echo 'cmake_minimum_required(VERSION 3.25)'
      echo 'project(Cases NONE)'
      echo 'enable_testing()'
      for script in "$@"; do
          i=$((i + 1))
          printf '#!/bin/sh\n%s\n' "$script" >"$scratch/case$i"
          chmod +x "$scratch/case$i"
          echo "add_test(NAME case$i COMMAND $scratch/case$i)"
          echo "set_tests_properties(case$i PROPERTIES TIMEOUT 1)"
      done; } >"$scratch/CMakeLists.txt"
    (cd "$scratch" && cmake --preset debug) >/dev/null
    verdict=$("$scratch/tools/run_tests.sh" debug 2>&1) || status=$?
    [[ "$(tail -n 1 <<<"$verdict")" == "$expected" ]] || { echo "$verdict"; return 1; }
    [[ "$expected" == *" 0 failed"* ]] && ((status == 0)) ||
        { [[ "$expected" != *" 0 failed"* ]] && ((status != 0)); }
}

totals() { echo "echo 'Totals: $1 passed, $2 failed, $3 skipped, 0 blacklisted, 3ms'"; }

Check "adds up what passed" Counts "8 passed, 0 failed" "$(totals 5 0 0)" "$(totals 3 0 0)"
Check "tells what was skipped" Counts "5 passed, 0 failed, 2 skipped" "$(totals 5 0 2)"
Check "tells what failed" Counts "5 passed, 2 failed" "$(totals 5 2 0); exit 2"
Check "counts a crash" Counts "3 passed, 1 failed" 'kill -SEGV $$' "$(totals 3 0 0)"
Check "counts a crash behind the totals" Counts "3 passed, 1 failed" "$(totals 3 0 0); exit 1"
Check "counts a crash once" Counts "3 passed, 1 failed" "$(totals 3 1 0); kill -SEGV \$\$"
Check "counts a time-out" Counts "0 passed, 1 failed" 'exec sleep 5'
Check "counts a program without totals" Counts "1 passed, 0 failed" 'exit 0'
Check "is not content with nothing" Counts "0 passed, 1 failed"

# Closes EXPECTED STATUS TEXT: the line and the status of a sum over one program's output.
Closes() {
    local verdict status=0
    verdict=$(. "$root/tools/tally.sh"
              Count part bash -c "echo '$3'; exit $2"
              Finish) || status=$?
    [[ "$(tail -n 1 <<<"$verdict")" == "$1" ]] || { echo "$verdict"; return 1; }
    [[ "$1" == [1-9]*" 0 failed"* ]] && ((status == 0)) ||
        { [[ "$1" == *" 0 failed"* ]] || ((status != 0)); }
}
Check "takes over a part's line" Closes "7 passed, 0 failed" 0 '7 passed, 0 failed'
Check "takes over its failures" Closes "7 passed, 2 failed" 1 '7 passed, 2 failed'
Check "minds the status of a part" Closes "7 passed, 1 failed" 3 '7 passed, 0 failed'
Check "minds a part without a line" Closes "0 passed, 1 failed" 0 'all is well'
Finish
