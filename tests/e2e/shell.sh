#!/bin/bash
# Drives the real shell with a real mouse and keyboard: the first minute of somebody who has no clock
# yet, every button of the toolbar, the settings that outlast a restart, the removal of a zone. Needs
# a display with a window manager.
#
#   tests/e2e/shell.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"

settings=$user/TempolarkCentral.ini

# A browser that only notes what it is to show.
Prepare() {
    mkdir -p "$folder" "$scratch/bin"
    cp -rp "$bin/ini" "$bin/Images" "$bin/Styles" "$folder"
    [[ ! -d "$bin/Help" ]] || cp -rp "$bin/Help" "$folder"
    NoTips
    sed -i 's/Heading Variation=Bend Up/Heading Variation=None/' "$folder/ini/TempolarkCentral.ini"
    printf '#!/bin/sh\necho "$1" >>"%s/shown"\n' "$scratch" >"$scratch/bin/xdg-open"
    chmod +x "$scratch/bin/xdg-open"
    export PATH=$scratch/bin:$PATH
}

Has() { [[ -e "$zones/$1.ini" ]]; }
HasNot() { [[ ! -e "$zones/$1.ini" ]]; }
Is() { [[ "$(Value "$settings" "$1" | cut -d, -f1)" == "$2" ]]; }

# InArea X Y: a point of the area of the clocks, on the screen; negative ones count from its end.
InArea() {
    local x y w h
    read -r x y w h < <(Box "$(ShellWindow)")
    (($1 < 0)) && x=$((x + w))
    (($2 < 0)) && y=$((y + h - 24)) || y=$((y + AreaTop))
    echo $((x + $1)) $((y + $2))
}
Ground() { Pixel $(InArea 8 -30); }
Shows() { [[ "$(Ground)" == "$1" ]]; }

# The invitation stands in the middle, below the letters: about a third down and 130 pixels more.
ClickInvitation() {
    local x y w h
    read -r x y w h < <(Box "$(ShellWindow)")
    ClickAt $((x + w / 2)) $((y + AreaTop + (h - AreaTop - 24) * 36 / 100 + 130))
    sleep 1
}
# Types into the search field, goes down to the one row, checks it, and launches it.
ChooseNepal() {
    xdotool type --delay 40 "nepal"
    sleep 0.5
    Keys Tab Tab space
    WaitFor 5 Has "Nepal Standard Time"
}
LaunchChosen() {
    Keys Return
    WaitFor 5 HasKeys
}
HasKeys() { [[ -n "$(Value "$zones/Nepal Standard Time.ini" "Time Zone Standard Name")" ]]; }

PopsUp() {
    PopUp "$1" || return 1
    Keys Escape
    WaitFor 5 HasPopups 0
}
# Opens BUTTON: a window covers much of the ground, and Escape closes it.
AreaPicture() {
    local x y w h
    read -r x y w h < <(Box "$(ShellWindow)")
    import -window root -crop "${w}x$((h - AreaTop - 24))+$x+$((y + AreaTop))" "$scratch/$1.png"
}
Changed() { compare -metric AE "$scratch/$1.png" "$scratch/$2.png" null: 2>&1 || true; }
Opens() {
    AreaPicture before
    PressButton "$1"
    sleep 1
    AreaPicture open
    Keys Escape
    sleep 0.5
    AreaPicture closed
    (($(Changed before open) > 50000 && $(Changed before closed) < 20000))
}
HelpShown() { PressButton 19 && WaitFor 5 grep -qs "Help/TempolarkCentral/100.html" "$scratch/shown"; }

# Central KEYS...: the menu of the shell's own settings.
Central() {
    PopUp 14 || return 1
    Keys "$@"
    WaitFor 5 HasPopups 0
    sleep 0.3
}
# Remove ANSWER: asks for the removal of the first zone, and answers with that key.
Remove() {
    PopUp 1 || return 1
    Keys $(Times 5 Down) Right
    WaitFor 5 HasPopups 2 || return 1
    Keys Return
    WaitFor 5 HasPopups 1 || return 1 # the question
    sleep 0.3
    Keys "$1"
    WaitFor 5 HasPopups 0
}
Exit() { PressButton 20 && WaitFor 10 test -s "$scratch/status" && [[ "$(<"$scratch/status")" == 0 ]]; }

CloseByKey() {
    xdotool key --clearmodifiers alt+F4
    WaitFor 10 test -s "$scratch/status"
}

Prepare
Check "the shell appears" Start
sleep 2.5
Check "the invitation opens the zone window" ClickInvitation
Check "a zone is found and checked" ChooseNepal
Check "its clock is launched at once" LaunchChosen
Check "the program is closed" Exit

Check "the shell appears again" Start
sleep 2.5
for button in 1 2 3 4 5 6 7 8 12 14 15 16; do
    Check "button $button opens its menu" PopsUp "$button"
done
Check "button 9 opens the properties" Opens 9
Check "button 10 opens the shortcuts" Opens 10
Check "button 19 shows the help" HelpShown
Check "the ground becomes red" Central Down Right $(Times 5 Down) Return
Check "it is red" WaitFor 3 Shows "#FF0000"
Check "the file says so at once" Is "Window Background Colour" Red
Check "the title bar goes" Central Down Down Return
Check "the file says so, too" Is "Window Title Bar" No
Check "the title bar comes back" Central Down Down Return
Check "the toolbar becomes small" Central $(Times 3 Down) Right Right Return
Check "removing asks; no keeps the zone" Remove n
Check "it is still there" Has "Nepal Standard Time"
Check "the window manager closes the program" CloseByKey
Check "the small toolbar is kept" Is "Toolbar Size" "Small Size"
sed -i 's/Toolbar Size=Small Size/Toolbar Size=Large Size/' "$settings"

Check "the shell appears a third time" Start
sleep 2.5
Check "it is red still" Shows "#FF0000"
Check "removing asks; yes removes the zone" Remove y
Check "the zone is gone" WaitFor 3 HasNot "Nepal Standard Time"
Check "button 20 ends the program" Exit
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Finish
