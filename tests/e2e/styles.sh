#!/bin/bash
# Drives the real program with a real mouse and keyboard: puts a style on a clock from its pop-up
# menu, saves it, types into the calculator, and finds the look again at the next start. Needs a
# display with a window manager.
#
#   tests/e2e/styles.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

zone="Nepal Standard Time"
file=$zones/$zone.ini

# Two styles, "Blue" and "Red"; the clock stands at the upper left of the shell and opens from its
# middle.
Prepare() {
    mkdir -p "$(dirname "$file")" "$folder/Styles"
    cp -rp "$bin/ini" "$folder"
    local place='s/Window Left=-1/Window Left=300/; s/Window Top=-1/Window Top=300/
        s/Window Width=-1/Window Width=4500/; s/Window Height=-1/Window Height=4500/'
    sed "$place; s/Animation Rate=[^,]*/Animation Rate=300/" "$folder/ini/Tempolark.ini" >"$file"
    for style in Blue Red; do
        sed "$place; s/Window Background Colour=[^,]*/Window Background Colour=$style/" \
            "$folder/ini/Tempolark.ini" >"$folder/Styles/$style.ini"
    done
    touch -d "2 days ago" "$folder/Styles/Red.ini" # the one used last stands first
    touch -d "1 day ago" "$folder/Styles/Blue.ini"
    echo "$zone=$zone" >"$user/AutoStart.txt"
}

# ClockAt X Y: a point of the clock's window, on the screen.
ClockPoint() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    echo $((x + 20 + $1)) $((y + AreaTop + 20 + $2))
}
Shows() { [[ "$(Pixel $(ClockPoint 20 60))" == "$1" ]]; }

# Choose KEYS...: opens the clock's menu and goes through it with the keyboard.
Choose() {
    xdotool mousemove $(ClockPoint 100 122) sleep 0.1 click 3
    WaitFor 5 HasPopups 1 && sleep 0.2
    local key
    for key in "$@"; do
        xdotool key "$key" sleep 0.2
    done
    WaitFor 5 HasPopups 0
}

# The shell's title tells of a maximised clock.
Windowed() { [[ "$(xdotool getwindowname "$(ShellWindow)")" != *"["* ]]; }
Maximised() { ! Windowed; }
DoubleClick() {
    xdotool mousemove $(ClockPoint 60 260) sleep 0.1 click --repeat 2 --delay 80 1
    WaitFor 5 Maximised
}
# Key NAME COMMAND: presses a key, and waits until the command succeeds.
Key() { xdotool key "$1" && WaitFor 5 "$2"; }
Is() { [[ "$(Value "$file" "$1" | cut -d, -f1)" == "$2" ]]; }
Save() { Choose Up Up Up Return; }
Differ() { ! cmp -s "$@"; }
Picture() { import -window "$(ShellWindow)" -crop "290x250+25+$((AreaTop + 53))" "$scratch/$1.png"; }
Type() { xdotool key Tab sleep 0.2 && xdotool type --delay 30 "x" && sleep 0.3; }

Prepare
Check "the shell appears" Start
Check "the clock shows the default look" WaitFor 10 Shows "#F2F0EA"
Check "the first style is highlighted" Choose Down Down Right Escape Escape
Check "the clock has its own look again" Shows "#F2F0EA"
Check "the second style is chosen" Choose Down Down Right Down Return
Check "the clock is red at once" WaitFor 2 Shows "#FF0000"
Check "the file waits for the save" Is "Window Background Colour" 15397106
Check "the look is saved" Save
Check "now the file says red" WaitFor 5 Is "Window Background Colour" Red
Check "the zone stayed" Is "Time Zone Standard Name" "$zone"
Check "the other style is chosen, which stands second now" Choose Down Down Right Down Return
Check "the clock is blue" WaitFor 2 Shows "#0000FF"
Check "it becomes a calculator" Choose Down Right Down Down Return
sleep 1.2
Check "Tab and a key go to its line" Type
Picture typed
sleep 2.2
Picture later
Check "the lines stand still while typing" cmp "$scratch/typed.png" "$scratch/later.png"
Check "Esc gives them back to the time" xdotool key Escape
sleep 2.2
Picture running
Check "the lines run again" Differ "$scratch/typed.png" "$scratch/running.png"
Check "a double click maximises it" DoubleClick
Check "Ctrl+W brings it back" Key ctrl+w Windowed
Check "a calculator is saved" Save
Check "the file says so" WaitFor 5 Is "Clocks" Calculator
Check "the mouse closes the program" CloseWithMouse
Check "the shell starts again" Start
Check "the clock is blue again" WaitFor 10 Shows "#0000FF"
Check "the mouse closes the program again" CloseWithMouse
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
