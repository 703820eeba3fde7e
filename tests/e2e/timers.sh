#!/bin/bash
# Drives the real program with a real mouse while timers fire: a program is started, a message runs
# and is hidden, an action counts down in its colour, takes another one and is cancelled. Needs a
# display with a window manager.
#
#   tests/e2e/timers.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

message="UTC"                   # the clock on the left, whose message runs
action="India Standard Time"    # the clock on the right, whose action counts down
script=$scratch/tools/note.sh
places=(20 340)                 # the left edges of the two

# Clock NAME NUMBER: its file. It stands at that place, is silent, and opens from its middle.
Clock() {
    sed "s/Window Left=-1/Window Left=$((${places[$2]} * 15))/; s/Window Top=-1/Window Top=300/
        s/Window Width=-1/Window Width=4500/; s/Window Height=-1/Window Height=4500/
        s/Speaker Volume=8/Speaker Volume=0/; s/Animation Rate=[^,]*/Animation Rate=300/
        s|Message Action Colour=|&$script:Blue,|" "$folder/ini/Tempolark.ini" \
        >"$user/TimeZones/$1.ini"
}

Prepare() {
    mkdir -p "$user/TimeZones" "$user/Timers" "$(dirname "$script")"
    cp -rp "$bin/ini" "$folder"
    NoTips
    Clock "$message" 0
    Clock "$action" 1
    printf '%s=%s\r\n' "$message" "$message" "$action" "$action" >"$user/AutoStart.txt"
    printf '#!/bin/sh\npwd >ran\n' >"$script"
    chmod +x "$script"
    WaitForAMinute
    { Timer UTC "0,red,,$script,0" ""
      Timer UTC "5,magenta,,None,0" "A message that runs across the whole of the face, on and on"
    } >"$user/Timers/${message}Timer.txt"
    Timer Asia/Kolkata "5,red,,$script,0" "" >"$user/Timers/${action}Timer.txt"
}

# At NUMBER X Y: a point of a clock's window, on the screen.
At() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    echo $((x + ${places[$1]} + $2)) $((y + AreaTop + 20 + $3))
}

# Band NUMBER FILE: a picture of the band below the upper edge of a clock, where texts run.
Band() {
    local x y
    read -r x y < <(At "$1" 0 28)
    import -window root -crop "290x44+$x+$y" +repage -depth 8 "$2"
}

# Pixels NUMBER COLOUR: how many there are in a clock's band.
Pixels() {
    Band "$1" "$scratch/band.png"
    convert "$scratch/band.png" -fill black +opaque "$2" -fill white -opaque "$2" \
        -format '%[fx:int(mean*w*h+0.5)]' info:
}
Has() { (($(Pixels "$1" "$2") > 10)); }
HasNot() { (($(Pixels "$1" "$2") == 0)); }
# Extent NUMBER COLOUR: where they lie in the band.
Extent() {
    Band "$1" "$scratch/band.png"
    convert "$scratch/band.png" -fill black +opaque "$2" -format '%@' info:
}
Moves() {
    local before
    before=$(Extent 0 "#FF00FF")
    sleep 0.5
    [[ "$(Extent 0 "#FF00FF")" != "$before" ]]
}

# RightClick NUMBER X Y KEY...: opens a menu and goes through it with the keyboard.
RightClick() {
    xdotool mousemove $(At "$1" "$2" "$3") sleep 0.1 click 3
    WaitFor 5 HasPopups 1 && sleep 0.2
    shift 3
    Keys "$@"
    WaitFor 5 HasPopups 0
}
Ran() { [[ "$(cat "$scratch/tools/ran" 2>/dev/null)" == "$scratch/tools" ]]; }
ColourIs() { Value "$user/TimeZones/$action.ini" "Message Action Colour" | grep -q "^$script:$1,"; }
SpeakerIs() { [[ "$(Value "$user/TimeZones/$message.ini" "Speaker" | cut -d, -f1)" == "$1" ]]; }

Prepare
Check "the shell appears" Start
Check "the timer's program has run, in its own folder" WaitFor 10 Ran
Check "the message shows in its colour" WaitFor 10 Has 0 "#FF00FF"
Check "it moves" Moves
sleep 3 # until it reaches the point that is clicked
Check "its menu hides it" RightClick 0 230 42 Down Return
Check "it has gone" WaitFor 3 HasNot 0 "#FF00FF"
sleep 1
Check "it stays away" HasNot 0 "#FF00FF"
Check "the speaker is hidden from its menu" RightClick 0 16 281 Down Return
Check "its file says so" WaitFor 3 SpeakerIs No

# Six o'clock is at the lower end of the dial, where the left button opens the menu of the spot.
SetTimer() {
    ClickAt $(At 0 149 280)
    WaitFor 5 HasPopups 1 && sleep 0.2
    Keys Down Down Return
    WaitFor 5 HasPopups 0 && sleep 0.3
    xdotool type --delay 30 "Tea is ready"
    Keys Return
}
# DragMark X Y X Y: from one point of the clock to another, as a hand does.
DragMark() {
    xdotool mousemove $(At 0 "$1" "$2") sleep 0.1 mousedown 1 sleep 0.1 \
        mousemove $(At 0 $((($1 + $3) / 2)) $((($2 + $4) / 2))) sleep 0.1 \
        mousemove $(At 0 "$3" "$4") sleep 0.1 mouseup 1
}
Kept() { grep -Eq " $1=Tea is ready" "$user/Timers/${message}Timer.txt"; }
# About three and six, by day or by night, the timer would fire while it is made, and the marks of
# the timers of this minute would stand in its way.
IsInTheWay() { [[ $(date -u +%I%M) =~ ^(02[345]|03[012]|05[345]|06[0123]) ]]; }
if ! IsInTheWay; then
    Check "a timer is set on the dial" SetTimer
    Check "its file has it" WaitFor 3 Kept 18:1
    Check "its mark is dragged to three" DragMark 139 255 248 147
    Check "that is kept" WaitFor 3 Kept '(14:5|15:)[0-9]+'
    Check "its menu removes it" RightClick 0 248 147 Up Up Return
    Check "it has gone" WaitFor 3 eval '! Kept "[0-9:]+"'
fi

rm "$scratch/tools/ran"
Check "an action counts down in its colour" WaitFor 5 Has 1 "#0000FF"
Check "it takes another colour" RightClick 1 150 60 Down Down Down Right Down Down Down Return
Check "that shows" WaitFor 3 Has 1 "#00FF00"
Check "and is in the file" WaitFor 3 ColourIs Green
Check "the action is cancelled" RightClick 1 150 60 Down Down Return
Check "it has gone" WaitFor 3 HasNot 1 "#00FF00"
Check "the mouse closes the program" CloseWithMouse
Check "the cancelled program has not run" test ! -e "$scratch/tools/ran"
Check "the timers with a program are kept" grep -q "note.sh" "$user/Timers/${action}Timer.txt"
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
