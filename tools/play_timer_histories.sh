#!/bin/bash
# Plays random histories of machines and their timers (tests/timers/tst_TimerHistories.cpp): each
# timer has to fire once, never early, and late only where the program was not there.
#
#     tools/play_timer_histories.sh [COUNT [SEED]]     10,000 histories from seed 0
#
# Prints the seed of the first history that goes wrong; with COUNT 1 that one is played alone.
set -euo pipefail
cd "$(dirname "$0")/.."
./tools/build.sh debug tst_TimerHistories
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
export TEMPOLARK_HISTORIES=${1:-10000} TEMPOLARK_SEED=${2:-0} QTEST_FUNCTION_TIMEOUT=86400000
echo "$TEMPOLARK_HISTORIES histories from seed $TEMPOLARK_SEED"
exec build/debug/tests/tst_TimerHistories
