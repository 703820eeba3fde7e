#!/bin/bash
# Drives the real program with real keys and a real mouse: a property is found, chosen, seen on its
# clock, undone and applied; a new clock is named by typing; a shortcut is recorded and pressed. Needs
# a display with a window manager.
#
#   tests/e2e/editing.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

# A silent dial of 300 by 300 at the upper left, which opens by itself.
Prepare() {
    mkdir -p "$zones"
    cp -rp "$bin/ini" "$folder"
    NoTips
    sed "s/Window Left=-1/Window Left=300/; s/Window Top=-1/Window Top=300/
        s/Window Width=-1/Window Width=4500/; s/Window Height=-1/Window Height=4500/
        s/Animation Rate=[^,]*/Animation Rate=0/; s/Speaker Volume=8/Speaker Volume=0/" \
        "$folder/ini/Tempolark.ini" >"$zones/UTC.ini"
    printf 'UTC=UTC\r\n' >"$user/AutoStart.txt"
}

# The title of the clock.
ClickClock() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    ClickAt $((x + 100)) $((y + AreaTop + 28)) && sleep 0.3
}

# Only the hour hand can be of a pure blue.
BluePixels() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    import -window root -crop "280x260+$((x + 30))+$((y + AreaTop + 50))" -depth 8 txt:- |
        grep -c '#0000FF' || true
}
HandIsBlue() { (($(BluePixels) > 30)); }
HandIsNotBlue() { (($(BluePixels) == 0)); }
Is() { [[ "$(Value "$zones/UTC.ini" "$1" | cut -d, -f1)" == "$2" ]]; }

# The window of properties opens beside the clock, with the list in the focus.
OpenProperties() { ClickClock && Keys ctrl+p && sleep 1; }
Find() {
    Keys ctrl+f
    xdotool type --delay 30 "$1"
    sleep 0.3
    Keys Down
}
# Blue is the second of the colours.
ChooseBlue() { Keys Return Down Down Return && sleep 0.3; }
# From the list, behind the lines of information.
PressApply() { Keys Tab Tab space; }

HasBox() { [[ -n "$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null)" ]]; }
CloseShell() {
    local x y w
    read -r x y w _ < <(Box "$(ShellWindow)")
    ClickAt $((x + w - 10)) $((y - 10))
}
HasEnded() { test -s "$scratch/status" && [[ "$(<"$scratch/status")" == 0 ]]; }

NameNewClock() {
    PopUp 1 || return 1
    Keys Down Return
    WaitFor 5 HasPopups 0 && sleep 0.5
    xdotool type --delay 30 "Atlantis"
    Keys Return
    WaitFor 5 test -s "$zones/Atlantis.ini"
}
# The window of a new clock stands in the corner; the button is at its lower edge.
PressLaunch() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    ClickAt $((x + 444)) $((y + 646)) && sleep 1
}
ListsAtlantis() { tr -d '\r' <"$user/OpenedForms.txt" | grep -qx 'Atlantis='; }

# "Clocks" is the fourth of the commands.
RecordKey() { ClickClock && Keys ctrl+k && sleep 1 && Keys Down Down Down ctrl+j Down; }
KeyIs() { [[ "$(Value "$user/Shortcuts.txt" Clocks)" == "$1" ]]; }
PressIt() { ClickClock && Keys ctrl+j ctrl+s; }
SaveAtTheEnd() {
    CloseShell
    WaitFor 5 HasBox "Save Shortcut" || return 1
    sleep 0.3
    Keys alt+y
    WaitFor 10 HasEnded
}

Prepare
Check "the shell appears" Start
sleep 2
Check "the hour hand is not blue" HandIsNotBlue
Check "the properties open from the clock" OpenProperties
Check "a property is found" Find "hour hand colour"
Check "a colour is chosen" ChooseBlue
Check "the clock shows it" WaitFor 5 HandIsBlue
Check "and nothing is written" Is "Hour Hand Colour" 4731430
Keys ctrl+z
Check "undone, it is gone" WaitFor 5 HandIsNotBlue
Keys ctrl+y
Check "and comes back" WaitFor 5 HandIsBlue
PressApply
Check "applied, it is in the file" WaitFor 5 Is "Hour Hand Colour" Blue
Check "with its choices" grep -q 'Hour Hand Colour=Blue,Black,Blue,Cyan' "$zones/UTC.ini"
Keys Escape
Check "the mouse closes the program" CloseWithMouse

Check "the shell appears again" Start
Check "the hand is still blue" WaitFor 5 HandIsBlue
Check "a new clock is named by typing" NameNewClock
Check "its button launches it" PressLaunch
Check "its keys are filled in" WaitFor 5 test -n "$(Value "$zones/Atlantis.ini" 'Time Zone Standard Name')"
Check "a key is recorded" RecordKey
Check "it is not saved yet" KeyIs F2
Check "it works on the clock" PressIt
Check "which is digital now" WaitFor 5 Is Clocks Digital
Check "the end asks, and saves" SaveAtTheEnd
Check "the key is in its file" KeyIs Ctrl+J
Check "the new clock was open" ListsAtlantis
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
