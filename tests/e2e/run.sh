#!/bin/bash
# Drives the real program with a real mouse: launches clocks from the menu, moves one, closes the
# program, and reads in the files what it left. Needs a display with a window manager.
#
#   tests/e2e/run.sh FOLDER      where FOLDER holds TempolarkCentral and its data
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../../tools/tally.sh"
. "$here/lib.sh"
bin=$(cd "$1" && pwd)
export TZ=UTC LC_ALL=C.UTF-8 QT_SCALE_FACTOR=1

scratch=$(mktemp -d)
trap 'StopProgram; rm -rf "$scratch"' EXIT

user=$(id -un)
folder=$scratch/app
zones=$folder/$user/TimeZones
names=("India Standard Time" "Nepal Standard Time" "Tokyo Standard Time")
rows=4 # of the menu "Open": the three and the machine's own, UTC

Prepare() {
    mkdir -p "$zones"
    cp -rp "$bin/ini" "$bin/Timezones" "$folder"
    for name in "${names[@]}"; do
        cp "$folder/ini/Tempolark.ini" "$zones/$name.ini"
    done
}

# OpenZone ROW: Launch, Open, the row.
OpenZone() {
    local menus
    PressButton 35 || return 1
    menus=$(Popups)
    PointAtRow "$menus" 1 4 # "Open" is the first of the File menu's rows
    xdotool sleep 0.1 click 1
    WaitFor 5 HasPopups 2 || return 1
    PointAtRow "$(Popups | tail -n 1)" "$1" "$rows"
    xdotool sleep 0.1 click 1
    WaitFor 5 HasPopups 0
}

HasKeys() { [[ -n "$(Value "$zones/$1.ini" "Time Zone Standard Name")" ]]; }

# The middle of the shell's inner area lies in the clock that was launched last.
ClockShows() {
    local x y w h
    read -r x y w h < <(Box "$(ShellWindow)")
    [[ "$(Pixel $((x + w / 2 - 60)) $((y + h / 2 + 40)))" != "$(Pixel $((x + 10)) $((y + h / 2)))" ]]
}

MoveTopClock() {
    local x y w h title
    read -r x y w h < <(Box "$(ShellWindow)")
    # The clock is a quarter of the shell and stands in the middle below the toolbar.
    title=$((y + 30 + (h - 56 - h / 4) / 2 + 8))
    xdotool mousemove $((x + w / 2)) "$title" sleep 0.1 mousedown 1
    for step in 40 80 120 160 200; do
        xdotool mousemove $((x + w / 2 - step)) $((title - step / 2)) sleep 0.05
    done
    xdotool mouseup 1
}

Moved() {
    local moved=$zones/${names[2]}.ini still=$zones/${names[0]}.ini
    (($(Value "$still" "Window Left") - $(Value "$moved" "Window Left") == 200 * 15)) &&
        (($(Value "$still" "Window Top") - $(Value "$moved" "Window Top") == 100 * 15))
}

OpenedListIs() { [[ "$(tr -d '\r' <"$folder/$user/OpenedForms.txt" | tr '\n' '|')" == "$1" ]]; }

KeepPlaces() { grep -h '^.*Window \(Top\|Left\|Width\|Height\)=' "$zones"/*.ini >"$scratch/places.$1"; }

OpenLastAll() {
    PressButton 35 || return 1
    PointAtRow "$(Popups)" 2 4
    xdotool sleep 0.1 click 1
    WaitFor 5 HasPopups 2 || return 1
    PointAtRow "$(Popups | tail -n 1)" 4 4 # three names, then "All"
    xdotool sleep 0.1 click 1
    WaitFor 5 HasPopups 0
}

# Where the moved clock stood.
MovedClockShows() {
    local x y left top
    read -r x y _ < <(Box "$(ShellWindow)")
    left=$(($(Value "$zones/${names[2]}.ini" "Window Left") / 15))
    top=$(($(Value "$zones/${names[2]}.ini" "Window Top") / 15))
    [[ "$(Pixel $((x + left + 30)) $((y + 30 + top + 60)))" != "$(Pixel $((x + 3)) $((y + 200)))" ]]
}

StartOneByItself() {
    # "Auto Start" lists the three clocks under its title; India, which was opened last, is the third
    # of them and stands in the middle of the shell.
    PressButton 480 || return 1
    local menu
    menu=$(Popups)
    PointAtRow "$menu" 4 5
    xdotool sleep 0.1 click 1
    WaitFor 5 HasPopups 0
}

Prepare
Check "the shell appears" Start
for i in 1 2 3; do
    Check "${names[$((i - 1))]} is launched from the menu" OpenZone "$i"
    Check "its zone keys are filled in" WaitFor 5 HasKeys "${names[$((i - 1))]}"
done
Check "a clock shows in the middle" WaitFor 5 ClockShows
Check "a clock is moved" MoveTopClock
Check "the mouse closes the program" CloseWithMouse
Check "the moved clock's place is in its file" Moved
Check "the opened clocks are listed, the last one first" \
    OpenedListIs "Tokyo Standard Time=|Nepal Standard Time=|India Standard Time=|"
Check "the shell's place is in its file" test "$(Value "$folder/$user/TempolarkCentral.ini" 'Window Left')" -ge 0
KeepPlaces before

Check "the shell appears again" Start
Check "all clocks are opened again" OpenLastAll
Check "the moved clock stands where it stood" WaitFor 5 MovedClockShows
Check "a clock is set to start by itself" StartOneByItself
Check "the mouse closes the program again" CloseWithMouse
KeepPlaces after
Check "all places are the same" cmp "$scratch/places.before" "$scratch/places.after"
autoStart=$(tr -d '\r' <"$folder/$user/AutoStart.txt")
Check "the auto-start list holds one clock" test "$(grep -c '=.' <<<"$autoStart")" -eq 1
Check "the shell starts" Start
Check "that clock has opened by itself" WaitFor 5 ClockShows
Check "the mouse closes the program a third time" CloseWithMouse
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
