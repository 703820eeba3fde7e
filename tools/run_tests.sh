#!/bin/bash
# Runs the Qt Test programs of a preset and counts their test functions.
#
#   tools/run_tests.sh preset
#
# Shows one line for each program and the whole output of those that fail; everything stands in
# build/<preset>/tests.log. The last line is "N passed, M failed".
set -euo pipefail
cd "$(dirname "$0")/.."
preset=$1
log=build/$preset/tests.log

status=0
ctest --preset "$preset" --parallel 2 --verbose 2>&1 | tee "$log" |
    grep --line-buffered -E '^ *[0-9]+/[0-9]+ Test +#' || status=$?

grep -qE '^ *[0-9]+/[0-9]+ Test +#' "$log" || tail -n 20 "$log"

# ctest puts the number of its program before each line: "7: Totals: 12 passed, 0 failed, ...". A
# program that ended badly without having counted a failure (a crash, a time-out) is one more.
awk '
    /^[0-9]+: / { number = $1 + 0; output[number] = output[number] $0 "\n" }
    /^[0-9]+: Totals: / {
        passed += $3; failed += $5; skipped += $7
        failures[number] += $5; counted[number] = 1
    }
    /^ *[0-9]+\/[0-9]+ Test +#/ {
        programs++
        match($0, /#[0-9]+/); number = substr($0, RSTART + 1, RLENGTH - 1) + 0
        good = /[ .]Passed +[0-9.]+ sec/
        if (good && counted[number]) next
        if (good) passed++
        else {
            if (!failures[number]) failed++
            print "\n" $0
            printf "%s", output[number]
        }
    }
    END {
        if (!programs) { print "no test program ran"; failed++ }
        printf "\n%d passed, %d failed", passed, failed
        if (skipped) printf ", %d skipped", skipped
        print ""
        exit failed > 0
    }' "$log"
