#!/bin/bash
# Draws sheets of clocks to be looked at: all styles, all hands, all numbers, all specials.
#
#   tools/contact_sheets.sh OUTDIR [FOLDER]
#
# FOLDER holds tempolarkctl, build/release/bin if none is given. The clocks are drawn with the data
# of the sources, the flags aside, at 10:08:42 where the sheet tells no other time.
set -euo pipefail
cd "$(dirname "$0")/.."
out=${1:?usage: tools/contact_sheets.sh OUTDIR [FOLDER]}
ctl=${2:-build/release/bin}/tempolarkctl
work=$(mktemp -d)
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work
trap 'rm -rf "$work"' EXIT
mkdir -p "$out" "$work/app" "$work/tiles"
cp -r data/. "$work/app"
tools/stock/make_styles.sh "$work/app/Styles"

# Draw FILE TILE TIME SIZE: TILE is shown under the picture.
Draw() {
    "$ctl" --app-folder "$work/app" --now "2026-11-21T$3" --local-zone Europe/London --seed 7 \
        clock render "$1" "$work/tiles/$2.png" --size "$4" --ticks 1 >/dev/null
}

# With NAME FILE KEY=VALUE...: a style's file with other values, as $work/NAME.ini.
With() {
    local name=$1 file=$2 pair
    shift 2
    cp "$file" "$work/$name.ini"
    for pair in "$@"; do
        "$ctl" properties put "$work/$name.ini" "${pair%%=*}" "${pair#*=}" >/dev/null
    done
}

# Choices KEY: one a line.
Choices() {
    sed -n "s/^[^=]*:$1=[^,]*,//p" data/ini/Tempolark.ini | tr -d '\r' | tr , '\n'
}

# Sheet NAME COLUMNS POINTS: puts the tiles together, in the order of their names, which begin with
# a number that is not shown; the rest stands below them in letters of that size.
Sheet() {
    local tile arguments=()
    for tile in "$work"/tiles/*.png; do
        name=$(basename "$tile" .png)
        arguments+=(-label "${name#*~}" "$tile")
    done
    montage -font DejaVu-Sans -pointsize "$3" -background '#f4f4f2' -fill '#222222' \
        "${arguments[@]}" -tile "$2x" -geometry +8+6 "$out/$1.png"
    rm -f "$work"/tiles/*.png
    echo "$out/$1.png"
}

number=100
for file in "$work"/app/Styles/*.ini; do
    Draw "$file" "$((number += 1))~$(basename "$file" .ini)" 10:08:42 300x300
done
Sheet styles 6 14

number=100
while read -r style; do
    width=(9 6 3)
    [[ "$style" == *Simple ]] && width=(4 3 1)
    [[ "$style" == Frame ]] && width=(2 2 1)
    With hands data/ini/Tempolark.ini "Hour Hand Style=$style" "Minute Hand Style=$style" \
        "Second Hand Style=$style" "Hour Hand Line Width=${width[0]}" \
        "Minute Hand Line Width=${width[1]}" "Second Hand Line Width=${width[2]}" \
        "Window Background Colour=15132390" "Hour Hand Colour=7876139" \
        "Minute Hand Colour=7876139" "Time Zone Label Size=0" "Sun Moon Size=0" \
        "Hour Number Style=No Numbers" "Speaker=No"
    for hour in {00..11}; do
        Draw "$work/hands.ini" "$((number += 1))~$style $hour:24:41" "$hour:24:41" 180x180
    done
done < <(Choices 'Hour Hand Style')
Sheet hands 12 11

number=100
while read -r style; do
    With numbers "$work/app/Styles/Marble Roman.ini" "Hour Number Style=$style"
    Draw "$work/numbers.ini" "$((number += 1))~$style" 10:08:42 300x300
done < <(Choices 'Hour Number Style')
Sheet numbers 6 14

number=100
while read -r special; do
    file=data/ini/Tempolark.ini kind=Analogue
    [[ "$special" == Digital* ]] && kind=Digital
    [[ "$special" == "World Map" ]] && file="$work/app/Styles/World Map.ini" kind=Digital
    With special "$file" "Clock Special=$special" "Clocks=$kind" \
        "Time Zone Label Size=0"
    for time in 00:00:00 03:07:20 06:30:45 10:08:42 15:15:15 21:52:36; do
        Draw "$work/special.ini" "$((number += 1))~${special} $time" "$time" 200x200
    done
done < <(Choices 'Clock Special')
Sheet specials 6 9
