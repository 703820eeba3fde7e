#!/bin/bash
# Drives the real program with a real mouse: a right click on each part of a clock opens that part's
# menu, and what is chosen there is in the clock's file at once. Needs a display with a window
# manager.
#
#   tests/e2e/parts.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

names=("UTC" "India Standard Time" "Tokyo Standard Time")
places=(20 340 660) # the left edges of a dial, of digits and of a calculator
kinds=(Analogue Digital Calculator)

# Each is 300 by 300 and silent; the dial has painted numbers and a flag.
Prepare() {
    local number
    mkdir -p "$zones" "$folder/Images"
    cp -rp "$bin/ini" "$folder"
    NoTips
    convert -size 30x20 xc:red "$folder/Images/Flag.png"
    for number in 0 1 2; do
        sed "s/Window Left=-1/Window Left=$((${places[$number]} * 15))/; s/Window Top=-1/Window Top=300/
            s/Window Width=-1/Window Width=4500/; s/Window Height=-1/Window Height=4500/
            s/Animation Rate=[^,]*/Animation Rate=0/; s/Speaker Volume=8/Speaker Volume=0/
            s/Hour Number Style=[^,]*/Hour Number Style=3D 12/
            s/Flag File=/&.\\\\Images\\\\Flag.png/; s/Clocks=[^,]*/Clocks=${kinds[$number]}/" \
            "$folder/ini/Tempolark.ini" >"$zones/${names[$number]}.ini"
        printf '%s=%s\r\n' "${names[$number]}" "${names[$number]}" >>"$user/AutoStart.txt"
    done
}

# Choose NUMBER X Y KEY...: opens the menu at a point of a clock's window, and goes through it.
Choose() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    xdotool mousemove $((x + ${places[$1]} + $2)) $((y + AreaTop + 20 + $3)) sleep 0.1 click 3
    WaitFor 5 HasPopups 1 && sleep 0.2
    shift 3
    Keys "$@"
    WaitFor 5 HasPopups 0
}

# Is NUMBER KEY VALUE: what the file of a clock says.
Is() { [[ "$(Value "$zones/${names[$1]}.ini" "$2" | cut -d, -f1)" == "$3" ]]; }
# Sets NUMBER KEY VALUE X Y KEY...: the menu at that point does it.
Sets() {
    local number=$1 key=$2 value=$3
    shift 3
    Choose "$number" "$@" && WaitFor 5 Is "$number" "$key" "$value"
}

Prepare
Check "the shell appears" Start
sleep 2
Check "the hub: a colour of the hour hand" \
    Sets 0 "Hour Hand Colour" Blue 150 157 Down Right Right Down Return
Check "the hub: a style of the minute hand" \
    Sets 0 "Minute Hand Style" Line 150 157 Down Down Right Down Right Return
Check "the hub: a length of the second hand" \
    Sets 0 "Second Hand Length(%)" 10 150 157 Down Down Down Right Down Down Right Return
Check "the hub: a width of the hour hand" \
    Sets 0 "Hour Hand Line Width" 2 150 157 Up Right Right Down Return
Check "a painted number: the spots" \
    Sets 0 "Minute Spot Style" "No Spots" 253 155 Up Up Up Right Return
Check "a painted number: the style" \
    Sets 0 "Hour Number Style" "Number Cross 4" 150 45 Up Up Up Up Up Up Up Up Right Down Return
Check "the name of the zone: its colour" \
    Sets 0 "Time Zone Colour" Red 150 213 Down Right Down Down Down Down Down Return
Check "the flag: its corner" Sets 0 "Flag Position" "Top left" 270 40 Down Down Return
Check "the flag stands there" Sets 0 "Flag Position" "Top right" 40 40 Down Return
Check "the speaker: its message" Sets 0 "Speak Timer Message" No 16 283 Down Down Down Down Down Down Return
Check "the digits: their format" Sets 1 "Digital Clock Format" "hh:mm" 150 150 Down Right Return
Check "the local time: its colour" \
    Sets 2 "Calculator Local Time Font Colour" Black 150 147 Down Right Return
Check "the calculated time: its size" \
    Sets 2 "Calculator Time Font Size" 4 150 170 Up Right Down Return
Check "the mouse closes the program" CloseWithMouse
Check "what was chosen has stayed" Is 0 "Hour Hand Colour" Blue
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
