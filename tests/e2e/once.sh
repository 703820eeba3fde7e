#!/bin/bash
# Starts the real program again and again: on folders that it has to fill and on such that it can't
# use, and a second time where it runs already, however the folder is spelt, after a crash, while it
# hangs, and twice at the same moment. Needs a display with a window manager.
#
#   tests/e2e/once.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"
folder=$scratch/clocks
user=$folder/$(id -un)
zones=$user/TimeZones
others=()
StopOthers() { ((${#others[@]} == 0)) || kill -9 "${others[@]}" 2>/dev/null || true; }

HasKeys() { [[ -n "$(Value "$zones/$1.ini" "Time Zone Standard Name")" ]]; }
Shells() { xdotool search --name '^Tempolark Central$' 2>/dev/null | wc -l; }
OneShell() { [[ $(Shells) -eq 1 ]]; }

# Again FOLDER WORDS...: a start that is to end by itself; its words for people are in "$scratch/told".
Again() {
    local status=0 where=$1
    shift
    timeout 60 "$bin/TempolarkCentral" --app-folder "$where" "$@" >"$scratch/told" 2>&1 || status=$?
    sed -i '/XDG_RUNTIME_DIR/d' "$scratch/told"
    return "$status"
}
Refuses() { local status=0; Again "$@" || status=$?; [[ $status -eq 1 ]]; }
Told() { grep -qF "$1" "$scratch/told"; }
HandsOver() { Again "$@" && [[ ! -s "$scratch/told" ]] && OneShell; }

# Opens SPELLING ZONE: another start hands the zone over; its clock appears where the shell is.
Opens() { HandsOver "$1" "$2" && WaitFor 10 HasKeys "$2"; }
OpensFrom() { cd "$1" && Opens "$2" "$3"; }

IsInFront() { [[ "$(xdotool getactivewindow 2>/dev/null)" == "$(ShellWindow)" ]]; }
IsBehind() { ! IsInFront; }
Cover() {
    xev -geometry 900x700+50+50 >/dev/null 2>&1 &
    others+=($!)
    WaitFor 10 IsBehind
}
Minimise() { xdotool windowminimize "$(ShellWindow)" && WaitFor 5 HasNoShell; }
ComesBack() { HandsOver "$folder" && WaitFor 5 IsInFront; }

Hang() { kill -STOP "$(<"$scratch/pid")"; }
GoOn() { kill -CONT "$(<"$scratch/pid")"; }
Answers() { timeout 5 "$bin/TempolarkCentral" --app-folder "$folder" "$1" >/dev/null; }
Crash() { StopProgram; WaitFor 5 HasNoShell; }

# BothStart: two starts at the same moment on a new folder; one goes on, the other one ends well.
BothStart() {
    local both=$scratch/both one two status=0
    "$bin/TempolarkCentral" --app-folder "$both" "UTC" >>"$scratch/output" 2>&1 &
    one=$!
    "$bin/TempolarkCentral" --app-folder "$both/." "UTC" >>"$scratch/output" 2>&1 &
    two=$!
    others+=("$one" "$two")
    wait -n "$one" "$two" || status=$?
    [[ $status -eq 0 ]] && WaitFor 20 OneShell && sleep 1 && OneShell &&
        [[ $(jobs -rp | grep -cx "$one\|$two") -eq 1 ]]
}

Check "a new folder is filled and the shell appears" Start
Check "it holds the styles" test -f "$folder/Styles/Pocket Watch.ini"
Check "it is whole" test ! -e "$folder/.filling"
Check "a second start opens a zone there" Opens "$folder" "Tokyo Standard Time"
Check "a trailing slash is the same folder" Opens "$folder/" "Nepal Standard Time"
ln -s "$folder" "$scratch/link"
Check "so is a symbolic link" Opens "$scratch/link" "India Standard Time"
Check "so is a relative path" OpensFrom "$scratch" clocks "Arabian Standard Time"
Check "another window covers the shell" Cover
Check "a second start brings it to the front" ComesBack
Check "the shell is minimised" Minimise
Check "a second start brings it back" ComesBack
Check "the screen saver's start is handed over" HandsOver "$folder" /s

Check "the shell hangs" Hang
Check "the version asks nobody" Answers --version
Check "nor does help" Answers --help
Check "a second start gives up" Refuses "$folder" "Fiji Standard Time"
Check "and says why" Told "Tempolark runs already with the folder $folder, and does not answer"
Check "it has opened nothing" test ! -e "$zones/Fiji Standard Time.ini"
Check "the shell goes on" GoOn
Check "and answers again" Opens "$folder" "Fiji Standard Time"
Check "the shell crashes" Crash
Check "the next start is not held up" Start
Check "and can be called" Opens "$folder" "Samoa Standard Time"
Check "it is ended" CloseWithMouse
Check "nothing of it stays" test -z "$(find "$folder" -name '.running*')"

echo notes >"$scratch/notes.txt"
Check "a file is no folder" Refuses "$scratch/notes.txt"
Check "that is said" Told "$scratch/notes.txt is not a folder"
mkdir "$scratch/documents"
echo letter >"$scratch/documents/letter.txt"
Check "other people's files are no program folder" Refuses "$scratch/documents"
Check "that is said, too" Told "holds other files"
Check "nothing was added to them" test "$(ls -A "$scratch/documents")" == letter.txt
Check "a folder that can't be made is refused" Refuses /proc/tempolark
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")
Check "of two starts at once one runs" BothStart
Finish
