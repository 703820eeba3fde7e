#!/bin/bash
# Starts a program, waits for its window, takes a picture of the screen and ends the program.
#
#   tools/take_screenshot.sh picture.png program arguments...
#
# A program that ends by itself before it shows a window (--help does) gives its own exit status.
set -euo pipefail

picture=$1
shift
rm -f "$picture"
"$@" &
program=$!
trap 'kill "$program" 2>/dev/null || true' EXIT

hasWindow() {
    [[ -n "$(xdotool search --onlyvisible --pid "$program" --name . 2>/dev/null)" ]]
}

for ((i = 0; i < 300; i++)); do
    if ! kill -0 "$program" 2>/dev/null; then
        trap - EXIT
        status=0
        wait "$program" || status=$?
        exit "$status"
    fi
    hasWindow && break
    sleep 0.2
done
if ! hasWindow; then
    echo "No window came up within a minute." >&2
    exit 1
fi
sleep "${SETTLE_SECONDS:-3}"  # the first ticks finish a clock's window
import -window root "$picture"
echo "A window is up; its picture is $picture"
kill "$program"
wait "$program" 2>/dev/null || true
trap - EXIT
