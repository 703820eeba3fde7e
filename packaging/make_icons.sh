#!/bin/bash
# Renders the program's icon at the sizes of a desktop. Small ones come from a drawing without the
# fine lines.
#
#   packaging/make_icons.sh RENDERER
#
# RENDERER is the program tempolark_icons (the target of that name builds it).
set -euo pipefail
renderer=$(realpath "$1")
cd "$(dirname "$0")"

for side in 16 22 24 32 48 64 96 128 256 512; do
    drawing=hicolor/scalable/apps/tempolark.svg
    ((side > 32)) || drawing=tempolark-small.svg
    folder=hicolor/${side}x$side/apps
    mkdir -p "$folder"
    "$renderer" png "$drawing" "$folder/tempolark.png" "${side}x$side"
done
