#!/bin/bash
# Installs what is missing, builds Tempolark with warnings as errors and runs every test but the
# long ones. The last line is "N passed, M failed"; the exit status is 0 when nothing failed.
set -euo pipefail
cd "$(dirname "$0")"
. tools/tally.sh

tools/install.sh test

Say "Building in build/debug, warnings as errors"
Check "the build" tools/build.sh debug

Say "Unit and widget tests"
Count "unit and widget tests" tools/run_tests.sh debug

Say "End-to-end tests"
for script in run styles parts mouse timers ticks profiles shell bars places once zones editing; do
    Count "end-to-end tests, $script" tools/with_display.sh "tests/e2e/$script.sh" build/debug/bin
done

Say "Devices for real"
Count "devices for real" tests/devices/run.sh build/debug/tests

Say "Rules of the house"
Count "rules of the house" tools/check_style.sh
Say "Tests of these checks"
Count "tests of the rules" tests/house/rules.sh
Count "tests of the counting" tests/house/counting.sh
Count "tests of the installing" tests/house/installing.sh
Finish
