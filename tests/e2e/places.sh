#!/bin/bash
# Where clocks stand, with a real mouse: through every state, in a shell that is scrolled, side by
# side. Needs a display with a window manager.
#
#   tests/e2e/places.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

# Clock ZONE COLOUR [KEY=VALUE...]: a plain clock of one colour, which starts by itself.
Clock() {
    local file="$zones/$1.ini" line
    sed "s/\(Window Background Colour\)=[^,]*/\1=$2/
        s/\(Window Title Bar\)=[^,]*/\1=Yes/; s/\(Window Border\)=[^,]*/\1=3D Border/
        s/\(Window Shape\)=[^,]*/\1=Normal/" "$folder/ini/Tempolark.ini" >"$file"
    echo "$1=$1" >>"$user/AutoStart.txt"
    shift 2
    for line in "$@"; do
        sed -i "s/\(${line%%=*}\)=[^,]*/\1=${line#*=}/" "$file"
    done
}
Prepare() {
    mkdir -p "$zones"
    cp -rp "$bin/ini" "$bin/Images" "$folder"
    NoTips
    sed -i 's/Heading Variation=Bend Up/Heading Variation=None/
        s/^\([^:]*:\)\?Window Width=[^,]*/\1Window Width=12000/
        s/^\([^:]*:\)\?Window Height=[^,]*/\1Window Height=9000/
        s/^\([^:]*:\)\?Window Background Colour=[^,]*/\1Window Background Colour=Black/' \
        "$folder/ini/TempolarkCentral.ini"
    # Bare faces: what a clock shows is its colour.
    sed -i 's/^\(Clock:Clocks\)=[^,]*/\1=Digital/' "$folder/ini/Tempolark.ini"
}

Place() {
    echo "$(Value "$zones/$1.ini" "Window Left" | cut -d, -f1)" \
        "$(Value "$zones/$1.ini" "Window Top" | cut -d, -f1)" \
        "$(Value "$zones/$1.ini" "Window Width" | cut -d, -f1)" \
        "$(Value "$zones/$1.ini" "Window Height" | cut -d, -f1)"
}
IsAt() { [[ "$(Place "$1")" == "$2" ]]; }

# OnScreen X Y: a point of the area of the clocks, on the screen.
OnScreen() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    echo $((x + $1)) $((y + AreaTop + $2))
}
Colour() { Pixel $(OnScreen "$1" "$2"); }
Shows() { [[ "$(Colour "$1" "$2")" == "$3" ]]; }
ShowsNot() { ! Shows "$@"; }

# Command BUTTON ENTRY ENTRIES: an entry of the pop-up of a button, by a click. The first row is the
# button's own name.
Command() {
    PopUp "$1" || return 1
    PointAtRow "$(Popups)" "$2" "$3"
    sleep 0.2
    xdotool click 1
    WaitFor 5 HasPopups 0
    sleep 0.5
}

# The bar of a minimised clock stands at the lower left of the area.
BarAt() { # X
    local x y h
    read -r x y _ h < <(Box "$(ShellWindow)")
    echo $((x + $1)) $((y + h - 24 - 14))
}
DoubleClickBar() {
    xdotool mousemove $(BarAt 80) sleep 0.1 click --repeat 2 --delay 80 1
    sleep 0.5
}
# The left one of its buttons brings it back.
ClickRestore() {
    ClickAt $(BarAt 143)
    sleep 0.5
}
# Drag X Y DX DY: from a point of the area.
Drag() {
    xdotool mousemove $(OnScreen "$1" "$2") sleep 0.2 mousedown 1 sleep 0.2
    xdotool mousemove_relative -- $(($3 / 2)) $(($4 / 2)) sleep 0.2
    xdotool mousemove_relative -- $(($3 - $3 / 2)) $(($4 - $4 / 2)) sleep 0.2 mouseup 1
    sleep 0.5
}
# A page along the horizontal scroll bar, which is below the clocks once one stands outside.
ScrollOn() {
    local x y w h
    read -r x y w h < <(Box "$(ShellWindow)")
    ClickAt $((x + w - 60)) $((y + h - 24 - 10))
    sleep 0.5
}
# Seen COLOUR PIXELS: so much of a colour can be seen among the clocks, or more.
Seen() {
    local x y w h
    read -r x y w h < <(Box "$(ShellWindow)")
    import -window root -crop "$((w - 4))x$((h - AreaTop - 28))+$((x + 2))+$((y + AreaTop))" \
        +repage -depth 8 "$scratch/area.png"
    (($(convert "$scratch/area.png" -fill black +opaque "$1" -fill white -opaque "$1" \
        -format '%[fx:int(mean*w*h+0.5)]' info:) >= $2))
}

Prepare
home="600 450 4500 3000"
Clock UTC Red "Window Title Bar=No" \
    "Window Left=600" "Window Top=450" "Window Width=4500" "Window Height=3000"
Check "the shell appears with its clock" Start
Check "it stands where its file says" WaitFor 5 Shows 60 200 "#FF0000"
for way in "Command 7 2 3" DoubleClickBar ClickRestore; do
    Check "maximise it" Command 5 2 3
    Check "it takes the whole area" Shows 700 400 "#FF0000"
    Check "minimise it" Command 6 2 3
    Check "it is its bar" ShowsNot 60 200 "#FF0000"
    Check "$way brings it back" $way
    Check "it is where it was" Shows 60 200 "#FF0000"
    Check "and as large" ShowsNot 400 200 "#FF0000"
done
Check "maximise it once more" Command 5 2 3
Check "and minimise it" Command 6 2 3
Check "close the shell" CloseWithMouse
Check "the file keeps its place" IsAt UTC "$home"

Clock "Tokyo Standard Time" Blue "Window Left=6000" "Window Top=3000" "Window Width=3000" \
    "Window Height=2250"
Check "the shell appears with two clocks" Start
Check "the first can be seen" WaitFor 5 Shows 60 200 "#FF0000"
Check "the second, too" Shows 420 300 "#0000FF"
Check "drag it to the right, half outside" Drag 470 212 300 0
Check "it has gone there" Shows 720 300 "#0000FF"
Check "scroll to it" ScrollOn
Check "the first has moved aside" ShowsNot 330 200 "#FF0000"
Check "close the scrolled shell" CloseWithMouse
Check "the first keeps its place" IsAt UTC "$home"
Check "the second has its new one" IsAt "Tokyo Standard Time" "10500 3000 3000 2250"

Clock "Nepal Standard Time" Green
Clock "India Standard Time" Yellow
Clock "Egypt Standard Time" Magenta "Window Left=60000" "Window Top=45000" "Window Width=3000" \
    "Window Height=2250"
Check "the shell appears with five clocks" Start
Check "a new clock is seen whole" WaitFor 5 Seen "#00FF00" 15000
Check "another new clock, too" WaitFor 5 Seen "#FFFF00" 15000
Check "one from outside the shell is seen" WaitFor 5 Seen "#FF00FF" 10000
Check "close the shell with five clocks" CloseWithMouse
Check "what was outside keeps its place" IsAt "Egypt Standard Time" "60000 45000 3000 2250"
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
