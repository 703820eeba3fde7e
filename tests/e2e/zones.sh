#!/bin/bash
# Drives the window of time zones with a real mouse and keyboard: a city is searched and opened by
# Enter, a row by a double click, a check box offers its clock, what is unchecked is asked for, and
# files are deleted after a question. Needs a display with a window manager.
#
#   tests/e2e/zones.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

Prepare() {
    mkdir -p "$folder"
    cp -rp "$bin/ini" "$bin/Images" "$bin/Timezones" "$folder"
    NoTips
    sed -i 's/Heading Variation=Bend Up/Heading Variation=None/' "$folder/ini/TempolarkCentral.ini"
}
Has() { [[ -e "$zones/$1.ini" ]]; }
HasNot() { [[ ! -e "$zones/$1.ini" ]]; }
HasKeys() { [[ -n "$(Value "$zones/$1.ini" "Time Zone Standard Name")" ]]; }

# ToFront: opens the window of zones, or brings it before the clocks.
ToFront() { PressButton 11 && sleep 1; }
# Search TEXT: brings the window to the front and types into its field, in the place of what was there.
Search() {
    ToFront
    Keys ctrl+f
    xdotool type --delay 30 "$1"
    sleep 0.6
}
# InWindow X Y: a point of the shell, in which the window of zones stands in the middle.
InWindow() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    echo $((x + $1)) $((y + $2))
}
# At the left end of a row is its check box.
ClickBox() { ClickAt $(InWindow 147 $((425 + 20 * $1))); }
DoubleClickRow() {
    xdotool mousemove $(InWindow 200 $((425 + 20 * $1))) sleep 0.1 click --repeat 2 --delay 80 1
}
ClickLaunch() { ClickAt $(InWindow 648 650); }
ClickClose() { ClickAt $(InWindow 823 650); }

OpenCity() { Search "new york" && Keys Return && WaitFor 5 Has "New York"; }
OpenByDoubleClick() { Search "tokyo" && DoubleClickRow 2 && WaitFor 5 HasKeys "Tokyo Standard Time"; }
CheckBox() { Search "nepal" && ClickBox 1 && WaitFor 5 Has "Nepal Standard Time"; }

# Uncheck KEY: unchecks the zone, closes the window, and answers the question with that key.
Uncheck() {
    Search "nepal" && ClickBox 1 && sleep 0.3
    ClickClose
    WaitFor 5 HasPopups 1 || return 1
    sleep 0.3
    Keys "$1"
    WaitFor 5 HasPopups 0
}
Exit() { PressButton 20 && WaitFor 10 test -s "$scratch/status" && [[ "$(<"$scratch/status")" == 0 ]]; }
OpenedListIs() { [[ "$(tr -d '\r' <"$user/OpenedForms.txt" | tr '\n' '|')" == "$1" ]]; }

Prepare
Check "the shell appears" Start
sleep 1.5
Check "Enter opens the city that was searched" OpenCity
Check "not its zone" HasNot "Eastern Standard Time"
Check "a double click opens a zone" OpenByDoubleClick
Check "not the city before it" HasNot "Tokyo"
Check "a check box gives a zone its file" CheckBox
Check "the button opens its clock" ClickLaunch
sleep 1
Check "what is unchecked is asked for; Enter keeps it" Uncheck Return
Check "it is still there" Has "Nepal Standard Time"
Check "yes removes it" Uncheck y
Check "it is gone" WaitFor 5 HasNot "Nepal Standard Time"
Check "the program is closed" Exit
Check "three clocks have been opened" \
    OpenedListIs "Nepal Standard Time=|Tokyo Standard Time=|New York=|"
Check "nothing was written for it at the end" HasNot "Nepal Standard Time"
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
