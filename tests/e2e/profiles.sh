#!/bin/bash
# Starts the real program over profiles of cities that are a year old, with a clock that opens by
# itself, and reads in the files whether it shows the days of this year. Needs a display with a
# window manager.
#
#   tests/e2e/profiles.sh FOLDER      where FOLDER holds TempolarkCentral and its data
. "$(dirname "$0")/lib.sh"
# The tests' own zone database, in which Berlin keeps daylight time in every year.
TZDIR=$(cd "$bin/../zoneinfo" && pwd)
export TZDIR

profile=$folder/Timezones/Berlin.ini
clock=$zones/Berlin.ini
year=$(date +%Y)
start="Time Zone Standard Start Time"

Prepare() {
    mkdir -p "$(dirname "$clock")"
    cp -rp "$bin/ini" "$folder"
    NoTips
    "$bin/tempolark-profiles" "$folder" --date "$((year - 1))-07-01"
    cp "$profile" "$clock"
    sed -i 's/Flag File=.*/Flag File=mine.png\r/' "$profile"
    printf 'Berlin=Berlin\r\n' >"$user/AutoStart.txt"
}

# The last Sunday of October: what an exact clock keeps beside its identifier.
HoldsRule() { [[ "$(Value "$1" "$start")" == "5.0.10 3:00:00" ]]; }
IsOf() { [[ "$(Value "$2" "$start")" == ??"/10/$1 3:00:00" ]]; }

Check "the profiles of the last year are made" Prepare
Check "they hold its days" IsOf "$((year - 1))" "$profile"
Check "the shell appears with the clock" Start
Check "the profile holds this year's days" IsOf "$year" "$profile"
Check "the clock that opened by itself holds the rule of any year" WaitFor 5 HoldsRule "$clock"
Check "the user's flag is left in the profile" test "$(Value "$profile" 'Flag File')" = mine.png
Check "the mouse closes the program" CloseWithMouse
Check "nothing was complained about" test ! -s <(grep -v XDG_RUNTIME_DIR "$scratch/output")

# StartNamed NAME: as Start does, with a name on the command line.
StartNamed() {
    { "$bin/TempolarkCentral" --app-folder "$folder" "$1" >"$scratch/output" 2>&1 &
      echo $! >"$scratch/pid"; } >/dev/null 2>&1
    WaitFor 20 HasShell
}
Says() { grep -qxF "$1" "$scratch/output"; }
Check "the shell appears with a mistyped zone" StartNamed tokyo
Check "standard error names the nearest" WaitFor 5 Says \
    'No time zone is called "tokyo": it counts as GMT. The nearest is "Tokyo Standard Time"'
Finish
