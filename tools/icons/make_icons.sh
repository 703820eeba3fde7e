#!/bin/bash
# Draws the pictures of the shell as SVG: the buttons of the toolbar, those of them that the menu of
# a clock has of its own, and the frames of the eye.
#
#   tools/icons/make_icons.sh [FOLDER]
#
# FOLDER is data/Images if none is given. They stand on a grid of 48 units with strokes 4 wide whose
# edges lie on even numbers, so that lines are sharp at 24 pixels too. The toolkit reads the plain
# profile of SVG: no masks, filters or clipping.
set -euo pipefail
cd "$(dirname "$0")/../.."
folder=${1:-data/Images}
mkdir -p "$folder/Toolbar" "$folder/Menu" "$folder/Shell"

# Of middling lightness, so that they stand out from a light desktop and from a dark one.
ink='#3f74be' paper='#eef4fc' amber='#de8000' green='#2b9c56' red='#d9453b'

# Frame PATH WIDTH HEIGHT STROKE: wraps the shapes on standard input.
Frame() {
    cat >"$1" <<END
<svg xmlns="http://www.w3.org/2000/svg" width="$2" height="$3" viewBox="0 0 $2 $3">
<g fill="none" stroke="$ink" stroke-width="$4" stroke-linecap="round" stroke-linejoin="round">
$(cat)
</g>
</svg>
END
}

# Button TAG SHAPE...
Button() {
    local tag=$1
    shift
    printf '%s\n' "$@" | Frame "$folder/Toolbar/$tag.svg" 48 48 4
}

# Entry NAME SHAPE...: for the menu of a clock, which takes its other pictures from the toolbar's.
Entry() {
    local name=$1
    shift
    printf '%s\n' "$@" | Frame "$folder/Menu/$name.svg" 48 48 4
}

# Stroke COLOUR PATH, Fill COLOUR PATH, Box FILL STROKE X Y WIDTH HEIGHT
Stroke() { echo "<path stroke=\"$1\" d=\"$2\"/>"; }
Fill() { echo "<path fill=\"$1\" stroke=\"none\" d=\"$2\"/>"; }
Box() { echo "<rect fill=\"$1\" stroke=\"$2\" x=\"$3\" y=\"$4\" width=\"$5\" height=\"$6\" rx=\"3\"/>"; }
Disc() { echo "<circle fill=\"$1\" stroke=\"$2\" cx=\"$3\" cy=\"$4\" r=\"$5\"/>"; }

# A window with its title bar: X Y WIDTH HEIGHT STROKE.
Window() {
    Box "$paper" "$5" "$1" "$2" "$3" "$4"
    Fill "$5" "M$1 $2h$3v8h-$3z"
}

# A clock that leaves room for a sign in its lower right corner.
cutClock=$(Fill "$paper" 'M22 35.9A16 16 0 1 1 35.9 22A14 14 0 0 0 22 35.9Z'
           Stroke "$ink" 'M22 35.9A16 16 0 1 1 35.9 22'
           Stroke "$ink" 'M20 12V20H26')

# Sign COLOUR PATH: what stands in that corner, half as heavy again as the rest.
Sign() { echo "<path stroke=\"$1\" stroke-width=\"6\" d=\"$2\"/>"; }

Button Launch "$cutClock" "$(Sign "$green" 'M37 30V44M30 37H44')"
Button Close "$cutClock" "$(Sign "$red" 'M30 30L44 44M44 30L30 44')"
Button Disable "$cutClock" "$(Sign "$amber" 'M31 29V43M41 29V43')"
Button Enable "$cutClock" "$(Sign "$green" 'M26 37L33 44L44 31')"

Button Maximize "$(Window 4 6 40 36 "$ink")" \
    "$(Stroke "$amber" 'M24 20H32V28M31 21L17 35M24 36H16V28')"
Button Minimize "$(Stroke "$amber" 'M24 4V24M14 16L24 26L34 16')" \
    "$(Box "$paper" "$ink" 4 34 40 8)"
Button Restore "$(Fill "$paper" 'M16 12V6H44V28H38V12Z')" \
    "$(Stroke "$amber" 'M16 12V7A1 1 0 0 1 17 6H43A1 1 0 0 1 44 7V27A1 1 0 0 1 43 28H38')" \
    "$(Fill "$amber" 'M16 6H44V12H16Z')" "$(Window 4 18 28 24 "$ink")"

Button "Auto Start" "$cutClock" "$(Fill "$amber" 'M40 20L25 35H33L29 47L45 31H37Z')"
Button Property \
    "$(Stroke "$ink" 'M6 10H42M6 24H42M6 38H42')" \
    "$(Disc "$paper" "$amber" 32 10 5)" "$(Disc "$paper" "$amber" 14 24 5)" \
    "$(Disc "$paper" "$amber" 28 38 5)"
Button Shortcut "$(Box "$paper" "$ink" 4 10 40 28)" \
    "$(Stroke "$ink" 'M12 18h.1M20 18h.1M28 18h.1M36 18h.1M12 24h.1M20 24h.1M28 24h.1M36 24h.1')" \
    "$(Stroke "$amber" 'M16 31H32')"
Button Timezone "$(Disc "$paper" "$ink" 24 24 18)" \
    "<ellipse fill=\"$amber\" cx=\"24\" cy=\"24\" rx=\"8\" ry=\"18\"/>" \
    "$(Stroke "$ink" 'M6 24H42')"
Button "Clock Agent" "$(Disc "$paper" "$ink" 18 24 14)" "$(Stroke "$ink" 'M18 16V24H24')" \
    "$(Stroke "$amber" 'M36 15A20 20 0 0 1 36 33M39.6 9.5A26 26 0 0 1 39.6 38.5')"

# A wheel of eight teeth.
gear=$(awk 'BEGIN {
    degree = atan2(0, -1) / 180
    split("-13 15.5 -8 20 8 20 13 15.5", tooth, " ")
    for (i = 0; i < 8; i++)
        for (k = 1; k < 8; k += 2) {
            angle = (i * 45 + tooth[k]) * degree
            printf "%s%.1f %.1f", i + k == 1 ? "M" : "L", 24 + tooth[k + 1] * sin(angle),
                   24 - tooth[k + 1] * cos(angle)
        }
    print "Z"
}')
Button CProperty "<path fill=\"$paper\" d=\"$gear\"/>" "$(Disc none "$amber" 24 24 6)"
Button "Manage Clocks" "$(Stroke "$ink" 'M6.5 26A14 14 0 0 1 26 6.5')" \
    "$(Stroke "$amber" 'M12.5 32A14 14 0 0 1 32 12.5')" \
    "$(Disc "$paper" "$ink" 30 30 14)" "$(Stroke "$ink" 'M30 22V30H36')"
Button "Organize Windows" "$(Box "$paper" "$ink" 4 6 16 36)" "$(Box "$amber" "$ink" 28 6 16 14)" \
    "$(Box "$paper" "$ink" 28 28 16 14)"

Button Datebrook "$(Box "$paper" "$ink" 6 10 36 32)" "$(Fill "$ink" 'M6 10h36v10h-36z')" \
    "$(Stroke "$ink" 'M16 4V10M32 4V10')" \
    "$(Stroke "$amber" 'M13 32Q18.5 25 24 30.5T35 29')"
Button Help "$(Disc "$ink" "$ink" 24 24 18)" \
    "$(Stroke '#ffffff' 'M17 19A7 7 0 1 1 27.5 25C25 26.5 24 27.5 24 29.5M24 36h.1')"
Button Exit "$(Stroke "$ink" 'M26 6H8V42H26')" \
    "$(Stroke "$red" 'M20 24H42M34 15L43 24L34 33')"

Entry Clocks "$(Disc "$paper" "$ink" 24 24 18)" "$(Stroke "$ink" 'M24 14V24')" \
    "$(Stroke "$amber" 'M24 24L33 29')"
Entry Style "$(Fill "$paper" 'M20 28L28 34L18 44H6Q12 40 12 34Q14 28 20 28Z')" \
    "$(Stroke "$ink" 'M20 28L40 6L44 10L28 34')" \
    "$(Stroke "$amber" 'M20 28Q14 28 12 34Q12 40 6 44H18L28 34Z')"
Entry Window "$(Window 4 8 40 32 "$ink")"
Entry Position "$(Window 14 16 20 18 "$ink")" \
    "$(Stroke "$amber" 'M4 14V4H14M34 4H44V14M44 34V44H34M14 44H4V34')"
Entry Colour "$(Disc "$paper" "$ink" 24 24 18)" "$(Disc "$red" "$red" 17 19 3)" \
    "$(Disc "$green" "$green" 30 17 3)" "$(Disc "$amber" "$amber" 32 29 3)"
Entry Country "$(Fill "$amber" 'M12 8H42L34 18L42 28H12Z')" \
    "$(Stroke "$amber" 'M12 8H42L34 18L42 28H12')" "$(Stroke "$ink" 'M10 4V44')"
Entry Details "$(Box "$paper" "$ink" 8 4 32 40)" "$(Stroke "$ink" 'M16 14H32M16 24H32')" \
    "$(Stroke "$amber" 'M16 34H26')"
Entry "Screen Saver" "$(Box "$paper" "$ink" 4 6 40 28)" "$(Stroke "$ink" 'M24 34V42M14 42H34')" \
    "$(Fill "$amber" 'M27 12A8 8 0 1 0 32 25A9 9 0 0 1 27 12Z')"
Entry About "$(Disc "$paper" "$ink" 24 24 18)" "$(Stroke "$amber" 'M24 23V33')" \
    "$(Stroke "$amber" 'M24 15h.1')"
Entry Save "$(Box "$paper" "$ink" 6 6 36 36)" "$(Fill "$ink" 'M14 6H32V18H14Z')" \
    "$(Stroke "$amber" 'M15 31H33')"
Entry "Save As" "$(Box "$paper" "$ink" 6 6 36 36)" "$(Fill "$ink" 'M14 6H32V18H14Z')" \
    "$(Sign "$green" 'M24 26V38M18 32H30')"
Entry Hidden "$(Fill "$paper" 'M4 24Q24 4 44 24Q24 44 4 24Z')" \
    "$(Stroke "$ink" 'M4 24Q24 4 44 24Q24 44 4 24Z')" "$(Disc "$amber" "$amber" 24 24 4)"

# The eye looks to the left, to the right, and blinks.
Eye() { Frame "$folder/Shell/eye-$1.svg" 24 16 1.8; }
OpenEye() {
    { echo "<path fill=\"$paper\" d=\"M2 8Q12-3 22 8Q12 19 2 8Z\"/>"
      Disc "$ink" none "$2" 8 3.4
      Disc '#ffffff' none "$(awk -v x="$2" 'BEGIN { print x + 1 }')" 6.8 1; } | Eye "$1"
}
HalfEye() {
    { echo "<path fill=\"$paper\" d=\"M2 8Q12 4.5 22 8Q12 19 2 8Z\"/>"
      Fill "$ink" 'M8.6 7A3.4 3.4 0 0 0 15.4 7Z'; } | Eye "$1"
}
ClosedEye() { Stroke "$ink" 'M2 8Q12 17 22 8M6 11.5L4.8 13.3M12 12.6V14.6M18 11.5L19.2 13.3' | Eye "$1"; }

frame=0
for place in 12 9.5 8 10.5 13.5 16 14; do
    frame=$((frame + 1))
    OpenEye "0$frame" "$place"
done
HalfEye 08
ClosedEye 09
HalfEye 10
