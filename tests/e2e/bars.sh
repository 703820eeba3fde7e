#!/bin/bash
# Drives the bars of the real shell with a real mouse: right clicks and their menus, what is hidden
# and comes back, balloons at a vertical bar, a drag, saves that are answered, broken settings. Needs
# a display with a window manager.
#
#   tests/e2e/bars.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

settings=$user/TempolarkCentral.ini
ground='#3D5A80'

# A shell of 600 by 500 pixels at a place with room on all sides; eleven buttons and a gap of six
# pixels behind them.
Prepare() {
    mkdir -p "$folder"
    cp -rp "$bin/ini" "$bin/Images" "$bin/Styles" "$folder"
    NoTips
    sed -i -e 's/Heading Variation=Bend Up/Heading Variation=None/' \
        -e 's/\(Window Left\|Window Top\)=-1/\1=3000/' \
        -e 's/Window Width=[0-9]*/Window Width=9000/' \
        -e 's/Window Height=[0-9]*/Window Height=7500/' "$folder/ini/TempolarkCentral.ini"
}

Is() { [[ "$(Value "$settings" "$1" | cut -d, -f1)" == "$2" ]]; }

# In X Y: a point of the shell on the screen; negative ones count from its end.
In() {
    local x y w h
    read -r x y w h < <(Box "$(ShellWindow)")
    (($1 < 0)) && x=$((x + w))
    (($2 < 0)) && y=$((y + h))
    echo $((x + $1)) $((y + $2))
}
Shows() { [[ "$(Pixel $(In "$1" "$2"))" == "$ground" ]]; }
Hides() { [[ "$(Pixel $(In "$1" "$2"))" != "$ground" ]]; }

# RightClick X Y: opens a menu there.
RightClick() {
    xdotool mousemove $(In "$1" "$2") sleep 0.1 click 3
    WaitFor 5 HasPopups 1 && sleep 0.2
}
# Row LEVEL ROW ROWS: clicks a row of the menu that was opened as the LEVELth.
Row() {
    WaitFor 5 HasPopups "$1" || return 1
    sleep 0.2
    PointAtRow "$(Popups | sed -n "$1p")" "$2" "$3"
    xdotool sleep 0.2 click 1
    sleep 0.3
}
# The popups of a chain of menus are gone, and the window has settled.
Closed() { WaitFor 5 HasPopups 0 && sleep 0.4; }
Escape() {
    Keys Escape
    Closed
}
OpensMenu() { RightClick "$1" "$2" && Escape; }

# By the right click on the bar itself, and on the menu bar: each menu "Tool Bar" has five rows.
HideToolbar() { RightClick 300 48 && Row 1 2 5 && Row 2 5 5 && Closed; }
PlaceToolbar() { RightClick 400 10 && Row 1 2 2 && Row 2 2 5 && Row 3 "$1" 5 && Closed; }
HideStatusBar() { RightClick 200 -10 && Row 1 1 2 && Closed; }
ShowStatusBar() { RightClick 400 10 && Row 1 1 2 && Row 2 1 2 && Closed; }
# "View", "Status Bar", its first entry: the title stands third in the menu bar.
ShowStatusBarByView() {
    local x y
    ClickAt $(In 98 10)
    WaitFor 5 HasPopups 1 || return 1
    sleep 0.2
    read -r x y _ < <(Box "$(Popups | head -n 1)")
    ClickAt $((x + 20)) $((y + 12))
    Row 2 1 2 && Closed
}

StatusLine() {
    local x y
    read -r x y < <(In 30 -21)
    import -window root -crop "500x20+$x+$y" "$scratch/$1.png"
}
Differ() { ! compare -metric AE "$scratch/$1.png" "$scratch/$2.png" null: 2>/dev/null; }
SaveToolbar() {
    StatusLine before
    RightClick 300 48 && Row 1 5 5 && Closed || return 1
    StatusLine after
    Differ before after
}

# From the gap to the place of the fourth button before it, in one move.
Drag() {
    xdotool mousemove $(In 597 48) sleep 0.1 mousedown 1 mousemove $(In 420 48) sleep 0.1 mouseup 1
    sleep 0.3
}
# The menu of "Launch" has seven rows, those of the clocks have two while none is open.
FirstOpensAMenuBelow() {
    local h
    PressButton 1
    WaitFor 5 HasPopups 1 || return 1
    read -r _ _ _ h < <(Box "$(Popups)")
    Escape && ((h < $1))
}

# A balloon beside the second button of a bar at the left, clear of the column.
BalloonBeside() {
    local x y left
    xdotool mousemove $(In 28 100)
    WaitFor 5 HasPopups 1 || return 1
    read -r x y < <(In 56 100)
    read -r left _ < <(Box "$(Popups)")
    ((left >= x - 2))
}
# After a turn of the wheel the balloon of another button comes, though the pointer rests.
BalloonAfterTheWheel() {
    local first
    first=$(Popups)
    import -window "$first" "$scratch/first.png"
    xdotool click 5
    WaitFor 5 HasPopups 0 || return 1
    WaitFor 5 HasPopups 1 || return 1
    sleep 0.2
    import -window "$(Popups)" "$scratch/second.png"
    Differ first second
}

Prepare
Check "the shell appears" Start
sleep 2
Check "a right click on the header opens a menu" OpensMenu 20 100
Check "the toolbar is there" Hides 590 48
Check "its own menu hides it" HideToolbar
Check "the toolbar is gone" WaitFor 3 Shows 590 48
Check "the menu bar brings it back" PlaceToolbar 1
Check "the toolbar is there again" WaitFor 3 Hides 590 48
Check "a right click on the status bar hides it" HideStatusBar
Check "the status bar is gone" WaitFor 3 Shows 200 -10
Check "one click in the menu bar's menu brings it back" ShowStatusBar
Check "the status bar is there again" WaitFor 3 Hides 200 -10
Check "it is hidden once more" HideStatusBar
Check "one click in View brings it back, too" ShowStatusBarByView
Check "the status bar is there as well" WaitFor 3 Hides 200 -10
Check "the file has not heard of that" Is "Status Bar" Yes
Check "saving the toolbar is answered" SaveToolbar
Check "the first button opens a long menu" eval '! FirstOpensAMenuBelow 100'
Check "a fast drag brings other buttons in" Drag
Check "another button is the first" FirstOpensAMenuBelow 100
Check "the toolbar goes to the left" PlaceToolbar 3
Check "it is there" WaitFor 3 Hides 28 300
Check "the program is closed" CloseWithMouse
Check "the file says where the bar is" Is "Tool Bar" Left

sed -i 's/Auto Show Balloon Tips=No/Auto Show Balloon Tips=Yes/' "$settings"
printf 'UTC=UTC\r\n' >"$user/AutoStart.txt"
Check "the shell appears with a clock" Start
sleep 1
Check "a balloon stands beside the bar" BalloonBeside
Check "the wheel brings that of another button" BalloonAfterTheWheel
xdotool mousemove $(In 300 -40)
Check "the balloon goes with the pointer" WaitFor 5 HasPopups 0
Check "a right click on the ground opens a menu" OpensMenu 70 -40
Check "the program is closed again" CloseWithMouse

printf '\x89broken\r\n' >"$settings"
Check "the shell appears with broken settings" Start
sleep 1
Check "its toolbar is at the top again" Hides 590 48
Check "the program is closed at last" CloseWithMouse
Check "the broken file is kept" grep -q broken "$settings.broken"
Check "its place has whole settings" Is "Toolbar Size" "Large Size"
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
