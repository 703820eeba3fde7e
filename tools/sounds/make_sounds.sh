#!/bin/bash
# Makes the sounds and the music of data/ anew and tells their levels.
#
#   tools/sounds/make_sounds.sh [BUILD]
#
# BUILD is a configured build folder, build/release if none is given. Needs sox with its mp3 format
# (packages sox and libsox-fmt-mp3). Music is kept as mp3, which the picker of music files offers.
set -euo pipefail
cd "$(dirname "$0")/../.."
build=${1:-build/release}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
ninja -C "$build" tempolark_sounds
"$build/tools/tempolark_sounds" "$work"

mkdir -p data/SoundFiles data/Music
cp "$work"/SoundFiles/*.wav data/SoundFiles
for piece in "$work"/Music/*.wav; do
    name=$(basename "$piece" .wav)
    # 96 kbit/s; without a comment, which would carry the time of making.
    sox -R "$piece" -C 96.2 --comment "" "data/Music/$name.mp3"
done

for file in data/SoundFiles/*.wav data/Music/*.mp3; do
    echo "== $file"
    sox "$file" -n stats 2>&1 | grep -E 'DC offset|Pk lev|RMS Pk|Length'
done
