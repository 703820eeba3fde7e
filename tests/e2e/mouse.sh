#!/bin/bash
# Drives the real program with a real mouse: each entry of a clock's own menu, each thing that can
# be dragged, and a timer that is set on the dial and fires. Needs a display with a window manager.
#
#   tests/e2e/mouse.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

zone="UTC"
other="India Standard Time"
file=$zones/$zone.ini

# The clock is 400 by 400, stands at 20, 20 of the area, and is silent; beside it there are another
# zone's file and two styles.
Prepare() {
    local style
    mkdir -p "$zones" "$folder/Styles" "$folder/Images"
    cp -rp "$bin/ini" "$folder"
    NoTips
    convert -size 30x20 xc:red "$folder/Images/Flag.png"
    local look='s/Window Left=-1/Window Left=300/; s/Window Top=-1/Window Top=300/
        s/Window Width=-1/Window Width=6000/; s/Window Height=-1/Window Height=6000/
        s/Animation Rate=[^,]*/Animation Rate=0/; s/Speaker Volume=8/Speaker Volume=0/
        s/Message Colour=[^,]*/Message Colour=Magenta/
        s/Flag File=/&.\\Images\\Flag.png/'
    sed "$look" "$folder/ini/Tempolark.ini" >"$file"
    sed "$look" "$folder/ini/Tempolark.ini" >"$zones/$other.ini"
    for style in Blue Red; do
        sed "$look; s/Window Background Colour=[^,]*/Window Background Colour=$style/" \
            "$folder/ini/Tempolark.ini" >"$folder/Styles/$style.ini"
    done
    echo "$zone=$zone" >"$user/AutoStart.txt"
}

# At X Y: a point of the area, on the screen. The clock begins at 20, 20 there.
At() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    echo $((x + $1)) $((y + AreaTop + $2))
}
Shows() { [[ "$(Pixel $(At "$1" "$2"))" == "$3" ]]; }
Is() { [[ "$(Value "$file" "$1" | cut -d, -f1)" == "$2" ]]; }
IsNot() { ! Is "$@"; }

# Open X Y: the menu at a point.
Open() {
    xdotool mousemove $(At "$1" "$2") sleep 0.1 click 3
    WaitFor 5 HasPopups 1 && sleep 0.2
}
# Choose KEY...: opens the clock's own menu, on its ground, and goes through it with the keyboard.
ground=(40 80)
Choose() {
    Open "${ground[@]}" || return 1
    Keys "$@"
    WaitFor 5 HasPopups 0 && sleep 0.3
}
# Entry NUMBER [MEMBER]: the keys to an entry of the menu, and to a member of its sub-menu.
Entry() {
    Times "$1" Down
    if (($# == 2)); then
        echo Right
        Times $(($2 - 1)) Down
    fi
    echo Return
}
Pick() { Choose $(Entry "$@"); }
# Ask NUMBER: an entry that opens a box.
Ask() { Open "${ground[@]}" && Keys $(Entry "$1"); }
Save() { Pick 15; }

# Drag X Y X Y [KEY]: as a hand does, with a key held.
Drag() {
    [[ -n "${5:-}" ]] && xdotool keydown "$5"
    xdotool mousemove $(At "$1" "$2") sleep 0.1 mousedown 1 sleep 0.1 \
        mousemove $(At $((($1 + $3) / 2)) $((($2 + $4) / 2))) sleep 0.1 \
        mousemove $(At "$3" "$4") sleep 0.1 mouseup 1
    [[ -n "${5:-}" ]] && xdotool keyup "$5"
    sleep 0.4
}

HasWindow() { [[ -n "$(xdotool search --onlyvisible --name "$1" 2>/dev/null)" ]]; }
HasNoWindow() { ! HasWindow "$1"; }
# Answer TITLE KEY: to a box that has appeared.
Answer() {
    WaitFor 5 HasWindow "$1" && sleep 0.3
    Keys "$2"
    WaitFor 5 HasNoWindow "$1"
}

Prepare
Check "the shell appears" Start
Check "the clock shows the default look" WaitFor 10 Shows 405 405 "#F2F0EA"

echo "-- its menu"
Check "another kind of clock" Pick 1 2
Check "is saved" Save
Check "and in the file" WaitFor 3 Is Clocks Digital
Check "the dial comes back" Pick 1 1
Preview() {
    Open "${ground[@]}" && Keys Down Down Right && sleep 0.5
}
Check "a style is pointed at" Preview
Check "the clock shows it" WaitFor 2 eval 'Shows 405 405 "#0000FF" || Shows 405 405 "#FF0000"'
Keys Escape Escape
Check "and goes back" WaitFor 2 Shows 405 405 "#F2F0EA"
Check "a style is chosen" Pick 2 1
Check "it stays" WaitFor 2 eval 'Shows 405 405 "#0000FF" || Shows 405 405 "#FF0000"'
Check "a colour is chosen" Pick 5 4
Check "it shows" WaitFor 2 Shows 405 405 "#00FF00"
Check "another zone is chosen" Pick 6 2
Check "its own is chosen again" Pick 6 2
Check "it goes to the corner" Pick 4 1
Check "it is there" WaitFor 2 Shows 10 200 "#00FF00"
Check "that is not stored yet" Is "Window Left" 300
Check "it goes to the middle" Pick 4 5
Check "it has left the corner" WaitFor 2 eval '! Shows 10 200 "#00FF00"'
ground=(340 150)
Check "it goes back" Pick 4 1
ground=(40 80)
Check "it starts by itself no more" Pick 9
Check "the list says so" WaitFor 3 eval '! grep -q "^$zone=$zone" "$user/AutoStart.txt"'
Check "it starts by itself again" Pick 9
Check "the list says that" WaitFor 3 grep -q "^$zone=$zone" "$user/AutoStart.txt"
Check "the details of its zone" Ask 8
Check "are shown in a box" Answer "$zone" Return
Check "the screen saver is set" Pick 10 2
Check "the settings hold it" WaitFor 3 grep -rq "ScreenSave" "$folder"
Check "about" Ask 13
Check "shows its box" Answer "About" Escape
ground_colour=$(Pixel $(At 600 100))
Check "the time zones" Ask 7
Check "show their window" WaitFor 5 eval '! Shows 600 100 "$ground_colour"'
Check "save the style as" Ask 16
Check "asks for a name" Answer "Save" Escape
Check "it is disabled" Ask 11
Check "after a question" Answer "Set Clock Disabled" alt+y
Check "the file says so" WaitFor 3 Is Enable No
Check "its menu has one entry" Choose Down Return
Check "it is enabled" WaitFor 3 Is Enable Yes
Check "it is minimised" Pick 3 2
Check "only its bar is left" WaitFor 3 eval '! Shows 10 200 "#00FF00"'
DoubleClick() { xdotool mousemove $(At "$1" "$2") sleep 0.1 click --repeat 2 --delay 80 1 && sleep 0.5; }
DoubleClickBar() {
    local x y h
    read -r x y _ h < <(Box "$(ShellWindow)")
    xdotool mousemove $((x + 80)) $((y + h - 38)) sleep 0.1 click --repeat 2 --delay 80 1
}
Check "its bar brings it back" DoubleClickBar
Check "it is there again" WaitFor 3 Shows 10 200 "#00FF00"
Check "a double click on the ground" DoubleClick 40 80
Check "maximises it" WaitFor 3 Shows 700 200 "#00FF00"
Check "its menu restores it" Pick 6
Check "it is as large as before" WaitFor 3 eval '! Shows 700 200 "#00FF00"'

echo "-- a timer for the next minute"
# Spot NUMBER: where it stands. The dial has five for each hour, each for twelve minutes.
Spot() { awk -v a="$1" 'BEGIN { a *= atan2(0, -1) / 30; print int(195.5 + 170 * sin(a)), int(205 - 170 * cos(a)) }'; }
SetTimer() {
    local hour minute
    WaitForAMinute
    read -r hour minute < <(date -u -d '+1 minute' '+%-I %-M')
    ClickAt $(At $(Spot $((hour % 12 * 5 + minute / 12))))
    WaitFor 5 HasPopups 1 && sleep 0.2
    Keys $(Times $((minute % 12 + 1)) Down) Return
    WaitFor 5 HasPopups 0 && sleep 0.3
    xdotool type --delay 30 "Tea is ready"
    Keys Return
}
Check "is set on the dial" SetTimer
Check "its file has it" WaitFor 3 grep -q "=Tea is ready" "$user/Timers/${zone}Timer.txt"

echo "-- dragging"
Check "the name of the zone" Drag 200 275 200 320
Check "stays where it was dropped" IsNot "Time Zone Name Top" -1
Check "the flag" Drag 370 50 60 370
Check "goes to the nearest corner" Is "Flag Position" "Bottom left"
Check "the speaker, with Ctrl" Drag 16 380 100 380 ctrl
Check "stays there" IsNot "Speaker Image Left" -1
Check "the dial, by its disc" Drag 230 150 250 170
Check "is kept in percent" IsNot "Clock CentralX(%)" -1
Check "Esc takes a drag back" eval 'xdotool mousemove $(At 250 150) mousedown 1 sleep 0.1 \
    mousemove $(At 300 250) sleep 0.1 mousemove $(At 310 260) sleep 0.1 key Escape sleep 0.1 mouseup 1'
Check "the digits" eval 'Pick 1 2 && sleep 0.3 && Drag 250 160 200 250'
Check "are kept in percent" IsNot "Digital Clock CentralX(%)" -1

# The colour of the text is seen only while the message runs.
Magenta() {
    local x y
    read -r x y < <(At 0 24)
    import -window root -crop "396x370+$x+$y" +repage -depth 8 "$scratch/face.png"
    (($(convert "$scratch/face.png" -fill black +opaque "#FF00FF" -fill white -opaque "#FF00FF" \
        -format '%[fx:int(mean*w*h+0.5)]' info:) > 10))
}
Check "the message of the timer scrolls" WaitFor 80 Magenta
Check "the mouse closes the program" CloseWithMouse
Check "what was dropped has stayed" Is "Flag Position" "Bottom left"
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
