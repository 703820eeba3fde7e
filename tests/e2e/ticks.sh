#!/bin/bash
# Drives the real program with a real mouse while its clocks have something to wait for: a voice that
# talks for a minute, a box that tells of a program that is not there, a lock that is refused, a
# voice that fails. Time goes on meanwhile, and the program can be closed at any moment. Needs a
# display with a window manager.
#
#   tests/e2e/ticks.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"
data=$bin
# Whatever is asked of the login service is refused: there is none.
export DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent
bin=$scratch/bin
zones=("UTC" "India Standard Time") # on the left and on the right
iana=(UTC Asia/Kolkata)
places=(20 340) # the left edges of the two
script=$scratch/tools/note.sh
other=$scratch/tools/other.sh

# Voice COMMAND: what the program's voice does with each text; $text holds it. Each process leaves a
# line in "begun".
Voice() {
    cat >"$bin/tempolark-voice" <<END
#!/bin/bash
cd "$scratch"
echo >>begun
echo "voices \$(printf Ann | base64)"
while read -r word text; do
    [[ \$word == say ]] || continue
    base64 -d <<<"\$text" >>said
    echo >>said
    $1
done
END
    chmod +x "$bin/tempolark-voice"
}
talks='echo $$ >talking; echo speaking; sleep 60 >/dev/null; echo ready'
fails='exit 1'

# Clock NUMBER: its file. It stands at its place and opens from its middle.
Clock() {
    sed "s/Window Left=-1/Window Left=$((${places[$1]} * 15))/; s/Window Top=-1/Window Top=300/
        s/Window Width=-1/Window Width=4500/; s/Window Height=-1/Window Height=4500/
        s/Animation Rate=[^,]*/Animation Rate=300/" "$folder/ini/Tempolark.ini" \
        >"$user/TimeZones/${zones[$1]}.ini"
}

Prepare() {
    mkdir -p "$bin" "$folder" "$user/TimeZones" "$user/Timers" "$(dirname "$script")"
    cp "$data/TempolarkCentral" "$data/tempolark-player" "$bin"
    cp -rp "$data/ini" "$folder"
    NoTips
    Clock 0
    Clock 1
    printf '%s=%s\r\n' "${zones[0]}" "${zones[0]}" "${zones[1]}" "${zones[1]}" >"$user/AutoStart.txt"
    printf '#!/bin/sh\necho >ran\n' >"$script"
    printf '#!/bin/sh\necho >other\n' >"$other"
    chmod +x "$script" "$other"
}

# Timers NUMBER LINE...: those of a clock, each as "SETTINGS@TEXT" for the present minute.
Timers() {
    local number=$1 line
    shift
    for line; do
        Timer "${iana[$number]}" "${line%%@*}" "${line#*@}"
    done >"$user/Timers/${zones[$number]}Timer.txt"
}

# Begin VOICE: the program with that voice; what was left by the last one is gone.
Begin() {
    rm -f "$scratch/said" "$scratch/begun" "$scratch/tools/"{ran,other}
    Voice "$1"
    Start
}
Said() { grep -qxF "$1" "$scratch/said" 2>/dev/null; }

# At NUMBER X Y: a point of a clock's window, on the screen.
At() {
    local x y
    read -r x y _ < <(Box "$(ShellWindow)")
    echo $((x + ${places[$1]} + $2)) $((y + AreaTop + 20 + $3))
}
Picture() {
    local x y
    read -r x y < <(At "$1" 20 60)
    import -window root -crop "250x200+$x+$y" +repage -depth 8 "$scratch/$2.png"
}
# Within two seconds a second hand has moved.
GoesOn() {
    Picture "$1" before
    sleep 2
    Picture "$1" after
    ! compare -metric AE "$scratch/before.png" "$scratch/after.png" null: 2>/dev/null
}

BoxWindow() { xdotool search --onlyvisible --name '^ExecuteLink$' 2>/dev/null | head -n 1; }
HasBox() { [[ -n "$(BoxWindow)" ]]; }
HasNoBox() { [[ -z "$(BoxWindow)" ]]; }
# Its one button stands at the right of its lower edge.
PressOk() {
    local x y w h
    read -r x y w h < <(Box "$(BoxWindow)")
    ClickAt $((x + w - 50)) $((y + h - 25))
}

Ended() { [[ -s "$scratch/status" && "$(<"$scratch/status")" == 0 ]]; }
# Quit: the session ends and tells its programs so.
Quit() { kill -TERM "$(<"$scratch/pid")" && WaitFor 5 Ended; }
# IsSilenced: the process that talked last has gone; others may have their turn.
IsSilenced() { ! kill -0 "$talking" 2>/dev/null; }
HasNoVoice() { ! pgrep -f "$bin/tempolark-voice" >/dev/null; }
# Close NUMBER: the clock's own button at the end of its title.
Close() { ClickAt $(At "$1" 284 10); }
BegunAtMost() { (($(wc -l <"$scratch/begun") <= $1)); }
Told() { grep -q "$1" "$scratch/output"; }
long="A message that takes the voice a while: it goes on and on, and then it goes on for a little longer, so that"
long+=" whoever listens to it has the time to do a lot of other things"

Prepare
# The first clock talks, and a program is to follow in a minute; the second one's program is missing.
WaitForAMinute
Timers 0 "5,magenta,,,0@$long" "1,red,,$script,0@"
Timers 1 "0,red,,/nonexistent/program,0@" "0,red,,$other,0@"
Check "the shell appears" Begin "$talks"
Check "a clock speaks" WaitFor 10 Said "$long"
Check "its time goes on meanwhile" GoesOn 0
Check "a box tells that a program is missing" WaitFor 10 HasBox
Check "the next program runs while it stands" WaitFor 5 test -e "$scratch/tools/other"
Check "the box is clicked away" PressOk
Check "it has gone" WaitFor 5 HasNoBox
Check "the time of its clock goes on" GoesOn 1
talking=$(<"$scratch/talking")
Check "the clock that speaks is closed" Close 0
Check "it falls silent" WaitFor 5 IsSilenced
Check "the other clock's time goes on" GoesOn 1
minute=$(date +%s)
while (($(date +%s) < minute + 63)); do sleep 1; done
Check "the closed clock's program has not run" test ! -e "$scratch/tools/ran"
Check "the mouse closes the program" CloseWithMouse

# Both talk: one is heard, the other has its turn behind it.
WaitForAMinute
Timers 0 "5,magenta,,None,0@$long"
Timers 1 "5,magenta,,None,0@$long"
Check "two clocks speak" Begin "$talks"
Check "one of them is heard" WaitFor 10 Said "$long"
Check "the mouse closes the program while they speak" CloseWithMouse
Check "no voice is left" WaitFor 5 HasNoVoice

WaitForAMinute
Timers 0 "5,magenta,,None,0@$long"
Timers 1 "5,magenta,,None,0@$long"
Check "two clocks speak again" Begin "$talks"
Check "one of them is heard again" WaitFor 10 Said "$long"
Check "the program quits while they speak" Quit

# One box stands, the other waits behind it.
WaitForAMinute
Timers 0 "0,red,,/nonexistent/program,0@"
Timers 1 "0,red,,/nonexistent/other,0@"
Check "two programs are missing" Begin "$talks"
Check "a box stands" WaitFor 10 HasBox
Check "the program quits while it stands" Quit

# A countdown of a minute without a voice, and a lock that is refused.
WaitForAMinute
Timers 0 "0,red,,Lock Workstation,0@"
Timers 1 "1,red,,$script,0@"
rm -f "$scratch/output"
Check "the voice fails" Begin "$fails"
Check "a refused lock is told of" WaitFor 10 Told "Lock Workstation was refused"
sleep 8
Check "no box tells of it" HasNoBox
Check "the failing voice is left in peace" BegunAtMost 4
Check "the mouse closes the program once more" CloseWithMouse
Check "the counted program has not run" test ! -e "$scratch/tools/ran"
Finish
