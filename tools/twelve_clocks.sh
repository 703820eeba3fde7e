#!/bin/bash
# Shows the shell with twelve clocks of different zones, side by side, and takes a picture of it.
# With a display at hand it uses that one; else call it through tools/with_display.sh.
#
#   tools/twelve_clocks.sh FOLDER PICTURE      FOLDER holds TempolarkCentral and its data
#
# The clocks are laid out through their property files, as a user's program finds them at a start.
set -euo pipefail
bin=$(cd "$1" && pwd)
picture=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
user=$folder/$(id -un)
mkdir -p "$user/TimeZones"
cp -rp "$bin/ini" "$folder"

zones=("Hawaiian Standard Time" "Pacific Standard Time" "Eastern Standard Time"
    "Newfoundland Standard Time" "GMT Standard Time" "W. Europe Standard Time"
    "Arabian Standard Time" "India Standard Time" "Nepal Standard Time"
    "Tokyo Standard Time" "AUS Eastern Standard Time" "Chatham Islands Standard Time")
width=3690 height=3075 # twips
for i in "${!zones[@]}"; do
    sed -e "s/Window Left=-1/Window Left=$((i % 4 * (width + 45)))/" \
        -e "s/Window Top=-1/Window Top=$((i / 4 * (height + 45)))/" \
        -e "s/Window Width=-1/Window Width=$width/" -e "s/Window Height=-1/Window Height=$height/" \
        "$folder/ini/Tempolark.ini" >"$user/TimeZones/${zones[i]}.ini"
    echo "${zones[i]}=${zones[i]}"
done >"$user/AutoStart.txt"

"$bin/TempolarkCentral" --app-folder "$folder" &
program=$!
sleep 4
import -window root "$picture"
kill "$program"
wait "$program"
"$bin/TempolarkCentral" --app-folder "$folder" &
program=$!
sleep 4
import -window root "${picture%.png}-again.png"
kill "$program"
wait "$program"
