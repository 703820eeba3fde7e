#!/bin/bash
# Writes the styles into a folder, which holds nothing else: each is the default clock file with the values that styles.txt
# gives it, so that all have the default's rows, in its order, with its choices.
#
#   tools/stock/make_styles.sh FOLDER
#
# A colour may be given as #RRGGBB; the file then holds its number. An unknown key is refused.
set -euo pipefail
cd "$(dirname "$0")/../.."
folder=${1:?usage: tools/stock/make_styles.sh FOLDER}
mkdir -p "$folder"
rm -f "$folder"/*.ini

awk -v folder="$folder" '
function Hex(digits,    value, i) {
    for (i = 1; i <= length(digits); i++)
        value = value * 16 + index("0123456789abcdef", tolower(substr(digits, i, 1))) - 1
    return value
}
function Plain(value) {
    if (value !~ /^#[0-9A-Fa-f]+$/ || length(value) != 7)
        return value
    return Hex(substr(value, 2, 2)) + 256 * Hex(substr(value, 4, 2)) + 65536 * Hex(substr(value, 6, 2))
}
function Write(    i, path, key) {
    path = folder "/" style ".ini"
    for (i = 1; i <= rows; i++) {
        key = names[i]
        printf "%s\r\n", key in values ? heads[i] values[key] choices[i] : lines[i] > path
        delete values[key]
    }
    close(path)
    for (key in values) {
        printf "%s: no key \"%s\"\n", style, key > "/dev/stderr"
        failed = 1
    }
    delete values
}
{ sub(/\r$/, "") }
FNR == NR {
    equals = index($0, "=")
    comma = index(substr($0, equals + 1), ",")
    lines[++rows] = $0
    heads[rows] = substr($0, 1, equals)
    names[rows] = substr($0, index($0, ":") + 1, equals - index($0, ":") - 1)
    choices[rows] = comma ? substr($0, equals + comma) : ""
    next
}
/^#/ || /^[ \t]*$/ { next }
/^\[.*\]$/ { if (style != "") Write(); style = substr($0, 2, length($0) - 2); next }
{
    equals = index($0, " = ")
    values[substr($0, 1, equals - 1)] = Plain(substr($0, equals + 3))
}
END { Write(); exit failed }
' data/ini/Tempolark.ini tools/stock/styles.txt
