#!/bin/bash
# Shows the shell with eight clocks in as many styles and takes a picture of it, the one in README.md.
# Needs a display (see tools/with_display.sh).
#
#   tools/show_styles.sh FOLDER PICTURE      FOLDER holds TempolarkCentral and its data
set -euo pipefail
bin=$(cd "$1" && pwd)
picture=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
user=$folder/$(id -un)
mkdir -p "$user/TimeZones"
cp -rp "$bin/ini" "$bin/Images" "$bin/Styles" "$folder"

shows=("Pacific Standard Time:Pocket Watch" "Eastern Standard Time:Blue Sunburst"
    "GMT Standard Time:Polar World" "W. Europe Standard Time:Station Hall"
    "Arabian Standard Time:Marble Diamond" "India Standard Time:Walnut and Brass"
    "Tokyo Standard Time:Carbon Racer" "AUS Eastern Standard Time:Night Sky")
side=4350 gap=180 # twips
for i in "${!shows[@]}"; do
    zone=${shows[i]%%:*}
    sed -e "s/\(:Window Left\)=[^,\r]*/\1=$((gap + i % 4 * (side + gap)))/" \
        -e "s/\(:Window Top\)=[^,\r]*/\1=$((gap + i / 4 * (side + gap)))/" \
        -e "s/\(:Window Width\)=[^,\r]*/\1=$side/" -e "s/\(:Window Height\)=[^,\r]*/\1=$side/" \
        -e "s/\(:Window Border\)=[^,]*/\1=No Border/" -e "s/\(:Window Title Bar\)=[^,]*/\1=No/" \
        "$folder/Styles/${shows[i]#*:}.ini" >"$user/TimeZones/$zone.ini"
    echo "$zone=$zone"
done >"$user/AutoStart.txt"
width=$((4 * (side + gap) + gap + 60)) height=$((2 * (side + gap) + gap + 1620))
sed -e "s/\(:Window Width\)=[^,\r]*/\1=$width/" -e "s/\(:Window Height\)=[^,\r]*/\1=$height/" \
    -e "s/Window Top=-1/Window Top=600/" -e "s/Window Left=-1/Window Left=60/" \
    -e "s/Window Background Colour=[^,]*/Window Background Colour=4007459/" \
    "$folder/ini/TempolarkCentral.ini" >"$user/TempolarkCentral.ini"

"$bin/TempolarkCentral" --app-folder "$folder" >/dev/null 2>&1 &
program=$!
sleep "${SETTLE_SECONDS:-14}" # till the messages in the status bar have passed
window=$(xdotool search --onlyvisible --name '^Tempolark Central$' | head -n 1)
import -frame -window "$window" "$picture"
kill "$program"
wait "$program"
