# Sourced by the end-to-end tests, which hand it their first word, the folder of the program and its
# data: a program in a window, a mouse, and what the files say.
#
# It leaves $bin, that folder; $scratch, which goes at the end; $folder, the program folder of the
# test, which is not made yet; $user, the user's folder in it; and $zones, the clocks' in that.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../../tools/tally.sh"
bin=$(cd "$1" && pwd)
export TZ=UTC LC_ALL=C.UTF-8 QT_SCALE_FACTOR=1

scratch=$(mktemp -d)
trap 'StopProgram; StopOthers; rm -rf "$scratch"' EXIT
folder=$scratch/app
user=$folder/$(id -un)
zones=$user/TimeZones

# What a test has started beside the program; one that does has its own.
StopOthers() { :; }

# WaitFor SECONDS COMMAND...: until the command succeeds; fails when it never does.
WaitFor() {
    local tries=$(($1 * 20))
    shift
    for ((try = 0; try < tries; try++)); do
        "$@" && return 0
        sleep 0.05
    done
    return 1
}

# While a clock is maximised, its name stands in brackets behind the shell's.
ShellWindow() {
    xdotool search --onlyvisible --name '^Tempolark Central( - \[.*\])?$' 2>/dev/null | head -n 1
}
HasShell() { [[ -n "$(ShellWindow)" ]]; }
HasNoShell() { [[ -z "$(ShellWindow)" ]]; }

# Box WINDOW: its inner place and size on the screen, as "x y width height".
Box() {
    xwininfo -id "$1" | awk '/Absolute upper-left X/{x=$NF} /Absolute upper-left Y/{y=$NF}
        /Width:/{w=$NF} /Height:/{h=$NF} END{print x, y, w, h}'
}

# The pop-up menus on the screen, oldest first: every window of the program but the shell.
Popups() {
    local shell
    shell=$(ShellWindow)
    xdotool search --onlyvisible --class '^Tempolark' 2>/dev/null | grep -vx "$shell" | sort -n
}
HasPopups() { [[ $(Popups | wc -l) -eq $1 ]]; }

# ClickAt X Y: a real press and release of the left button.
ClickAt() { xdotool mousemove "$1" "$2" sleep 0.1 click 1; }

# Heights in the shell's window: the menu bar, and what stands above the clocks.
MenuBar=20
AreaTop=79 # with the toolbar at its large size, and the border of the area

# PressButton NUMBER: a button of the toolbar by its number, separators counted.
PressButton() {
    local x y along=$(($1 * 54 - 27))
    (($1 > 13)) && along=$((along - 45))
    (($1 > 17)) && along=$((along - 54)) # the 17th is never there
    (($1 > 18)) && along=$((along - 45))
    read -r x y _ < <(Box "$(ShellWindow)")
    ClickAt $((x + along)) $((y + MenuBar + 28))
}

# PopUp NUMBER: presses a button that opens a menu, and waits for it.
PopUp() { PressButton "$1" && WaitFor 5 HasPopups 1 && sleep 0.1; }

# NoTips: the program folder's default says that no balloons show; they would count as pop-ups.
NoTips() {
    sed -i 's/Auto Show Balloon Tips=Yes/Auto Show Balloon Tips=No/' "$folder/ini/TempolarkCentral.ini"
}

# Keys KEY...: one after the other, as fast as a person.
Keys() {
    local key
    for key in "$@"; do
        xdotool key "$key" sleep 0.1
    done
}

# Times COUNT KEY: the key that many times, as words for Keys.
Times() { for ((time = 0; time < $1; time++)); do echo "$2"; done; }

# PointAtRow MENU ROW ROWS: moves the mouse onto a row of a menu with that many equal rows.
PointAtRow() {
    local x y w h
    read -r x y w h < <(Box "$1")
    xdotool mousemove $((x + w / 2)) $((y + h * (2 * $2 - 1) / (2 * $3)))
}

Pixel() { import -window root -crop "1x1+$1+$2" -depth 8 txt:- | grep -o '#[0-9A-F]\{6\}' | head -n 1; }

# Value FILE NAME: what a property file says.
Value() { tr -d '\r' <"$1" | sed -n "s/^\([^=:]*:\)\?$2=\(.*\)$/\2/p" | head -n 1; }

# Start: the program of $bin with the program folder $folder; its process, its output and in the end
# its exit status are kept in $scratch.
Start() {
    rm -f "$scratch/status"
    { "$bin/TempolarkCentral" --app-folder "$folder" >>"$scratch/output" 2>&1 &
      echo $! >"$scratch/pid"
      wait $! && echo 0 >"$scratch/status" || echo $? >"$scratch/status"; } >/dev/null 2>&1 &
    WaitFor 20 HasShell && sleep 0.5
}

StopProgram() {
    [[ -s "$scratch/pid" ]] && kill -9 "$(<"$scratch/pid")" 2>/dev/null || true
}

# Timer ZONE SETTINGS TEXT: a line for the present minute of a zone, as a dial of twelve hours has it.
Timer() {
    local hour minute
    read -r hour minute < <(TZ=$1 date '+%-H %-M')
    echo "$2#$((hour % 12 + 12)):$minute@$3"
}

# A minute that ends while the program starts would take its timers with it.
WaitForAMinute() { while (($(date +%-S) > 45)); do sleep 0.5; done; }

CloseWithMouse() {
    local frame x y w
    read -r x y w _ < <(Box "$(ShellWindow)")
    ClickAt $((x + w - 10)) $((y - 10)) # the window manager's close button
    WaitFor 10 test -s "$scratch/status" && [[ "$(<"$scratch/status")" == 0 ]]
}
