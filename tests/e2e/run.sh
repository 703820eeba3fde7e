#!/bin/bash
# Drives the real program with a real mouse: launches clocks from the menu, moves one, closes the
# program, and reads in the files what it left. Needs a display with a window manager.
#
#   tests/e2e/run.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

names=("India Standard Time" "Nepal Standard Time" "Tokyo Standard Time")

Prepare() {
    mkdir -p "$zones"
    cp -rp "$bin/ini" "$bin/Timezones" "$folder"
    NoTips
    for name in "${names[@]}"; do
        cp "$folder/ini/Tempolark.ini" "$zones/$name.ini"
    done
}

# OpenZone ROW: Launch, Open, the row.
OpenZone() {
    PopUp 1 || return 1
    # "Open" is the second entry; its first row is chosen when it opens.
    Keys Down Down Right
    WaitFor 5 HasPopups 2 || return 1
    Keys $(Times $(($1 - 1)) Down) Return
    WaitFor 5 HasPopups 0
}

HasKeys() { [[ -n "$(Value "$zones/$1.ini" "Time Zone Standard Name")" ]]; }

# The middle of the shell's inner area lies in the clock that was launched first.
ClockShows() {
    local x y w h
    read -r x y w h < <(Box "$(ShellWindow)")
    [[ "$(Pixel $((x + w / 2 - 60)) $((y + h / 2 + 40)))" != "$(Pixel $((x + 10)) $((y + h / 2)))" ]]
}

MoveMiddleClock() {
    local x y w h title
    read -r x y w h < <(Box "$(ShellWindow)")
    # The clock is a quarter of the shell and stands in the middle of the area above the status bar.
    title=$((y + AreaTop + (h - AreaTop - 24 - h / 4) / 2 + 8))
    xdotool mousemove $((x + w / 2)) "$title" sleep 0.1 mousedown 1
    for step in 40 80 120 160 200; do
        xdotool mousemove $((x + w / 2 - step)) $((title - step / 2)) sleep 0.05
    done
    xdotool mouseup 1
}

# The other two stand to the right and to the left of where it stood.
Moved() {
    local moved=$zones/${names[0]}.ini right=$zones/${names[1]}.ini left=$zones/${names[2]}.ini
    local stood=$((($(Value "$right" "Window Left") + $(Value "$left" "Window Left")) / 2))
    ((stood - $(Value "$moved" "Window Left") == 200 * 15)) &&
        (($(Value "$right" "Window Top") - $(Value "$moved" "Window Top") == 100 * 15))
}

OpenedListIs() { [[ "$(tr -d '\r' <"$user/OpenedForms.txt" | tr '\n' '|')" == "$1" ]]; }

KeepPlaces() { grep -h '^.*Window \(Top\|Left\|Width\|Height\)=' "$zones"/*.ini >"$scratch/places.$1"; }

OpenLastAll() {
    PopUp 1 || return 1
    Keys Down Down Down Right
    WaitFor 5 HasPopups 2 || return 1
    Keys Down Down Down Return # three names, then "All"
    WaitFor 5 HasPopups 0
}

# Where the moved clock stood.
MovedClockShows() {
    local x y left top
    read -r x y _ < <(Box "$(ShellWindow)")
    left=$(($(Value "$zones/${names[0]}.ini" "Window Left") / 15))
    top=$(($(Value "$zones/${names[0]}.ini" "Window Top") / 15))
    [[ "$(Pixel $((x + left + 30)) $((y + AreaTop + top + 60)))" != "$(Pixel $((x + 3)) $((y + 200)))" ]]
}

StartOneByItself() {
    # India, which was opened last, is the third of the clocks.
    PopUp 8 || return 1
    Keys Down Down Down Return
    WaitFor 5 HasPopups 0
}

Prepare
Check "the shell appears" Start
for i in 1 2 3; do
    Check "${names[$((i - 1))]} is launched from the menu" OpenZone "$i"
    Check "its zone keys are filled in" WaitFor 5 HasKeys "${names[$((i - 1))]}"
done
Check "a clock shows in the middle" WaitFor 5 ClockShows
Check "a clock is moved" MoveMiddleClock
Check "the mouse closes the program" CloseWithMouse
Check "the moved clock's place is in its file" Moved
Check "the opened clocks are listed, the last one first" \
    OpenedListIs "Tokyo Standard Time=|Nepal Standard Time=|India Standard Time=|"
Check "the shell's place is in its file" test "$(Value "$user/TempolarkCentral.ini" 'Window Left')" -ge 0
KeepPlaces before

Check "the shell appears again" Start
Check "all clocks are opened again" OpenLastAll
Check "the moved clock stands where it stood" WaitFor 5 MovedClockShows
Check "a clock is set to start by itself" StartOneByItself
Check "the mouse closes the program again" CloseWithMouse
KeepPlaces after
Check "all places are the same" cmp "$scratch/places.before" "$scratch/places.after"
autoStart=$(tr -d '\r' <"$user/AutoStart.txt")
Check "the auto-start list holds one clock" test "$(grep -c '=.' <<<"$autoStart")" -eq 1
Check "the shell starts" Start
Check "that clock has opened by itself" WaitFor 5 MovedClockShows
Check "the mouse closes the program a third time" CloseWithMouse
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
