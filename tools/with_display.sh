#!/bin/bash
# Runs a command on a screen of its own: Xvfb with openbox as its window manager.
#
#   tools/with_display.sh command arguments...
#
# The exit status is the command's. Screen and window manager end with it.
set -euo pipefail

scratch=$(mktemp -d)
xvfb= manager=
cleanUp() {
    kill $manager $xvfb 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$scratch"
}
trap cleanUp EXIT

# Xvfb picks a free display number itself and writes it down once it listens.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$scratch/number" 2>"$scratch/log" &
xvfb=$!
for ((i = 0; i < 200; i++)); do
    [[ -s "$scratch/number" ]] && break
    kill -0 "$xvfb" 2>/dev/null || break
    sleep 0.05
done
if ! [[ -s "$scratch/number" ]]; then
    echo "Xvfb did not start:" >&2
    cat "$scratch/log" >&2
    exit 1
fi
DISPLAY=":$(<"$scratch/number")"
export DISPLAY QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

openbox --sm-disable >"$scratch/openbox" 2>&1 &
manager=$!
for ((i = 0; i < 200; i++)); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
    sleep 0.05
done

"$@"
