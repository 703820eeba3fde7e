#!/bin/bash
# Runs clang-tidy over the sources, with the list of checks in .clang-tidy.
#
#   tools/lint.sh
#
# Most of the time goes into Qt's headers, so the sources are read several to a unit, as CMake's
# unity build puts them together. Where two of them can't stand in one unit (two helpers of one
# name), the unit is halved. What moc makes is taken from build/debug, so that is built beforehand.
set -euo pipefail
cd "$(dirname "$0")/.."

export build=build/lint results=build/lint/results
mkdir -p build
rm -rf "$results"
cmake --preset lint >build/lint.log 2>&1 || { cat build/lint.log; exit 1; }

# Database UNIT COPY: how UNIT is compiled, told of COPY; with the generated code of build/debug.
Database() {
    local entry
    entry=$(awk -v RS='{' -v file="\"file\": \"$1\"" 'index($0, file)' "$build/compile_commands.json")
    entry=${entry//"$1"/"$2"}
    entry=${entry//build\/lint\/tempolark/build\/debug\/tempolark}
    echo "[{${entry%\}*}}]"
}

# Tidy FOLDER UNIT SOURCE...: leaves in FOLDER the sources, what clang-tidy says of them, and a
# mark when it is content. To the analyzer a source of several in a unit is a header; it goes into
# these too, and in return not quite as deep as it can, which would take longer than the build.
Tidy() {
    local folder=$1 unit=$2 copy=$PWD/$1/unit.cpp option analyzer=()
    for option in -analyzer-opt-analyze-headers -analyzer-config mode=shallow; do
        analyzer+=(--extra-arg=-Xclang "--extra-arg=$option")
    done
    shift 2
    mkdir -p "$folder"
    printf '#include "%s"  // NOLINT(bugprone-suspicious-include)\n' "$@" >"$copy"
    Database "$unit" "$copy" >"$folder/compile_commands.json"
    if (($# > 1)) && ! clang-tidy -p "$folder" --quiet --checks='-*,misc-unused-alias-decls' \
            "$copy" >/dev/null 2>&1; then
        Tidy "$folder/a" "$unit" "${@:1:$#/2}"
        Tidy "$folder/b" "$unit" "${@:$#/2+1}"
        return
    fi
    printf '%s\n' "$@" >"$folder/sources"
    if clang-tidy -p "$folder" --quiet "${analyzer[@]}" "$copy" >"$folder/said" 2>/dev/null; then
        touch "$folder/content"
    fi
}

# TidyUnit UNIT: one of those that CMake put together.
TidyUnit() {
    local sources
    mapfile -t sources < <(sed -n 's/^#include "\(.*\)"$/\1/p' "$1")
    Tidy "$results/$(basename "$(dirname "$(dirname "$1")")")-$(basename "$1")" "$1" "${sources[@]}"
}
export -f Database Tidy TidyUnit

find "$PWD/$build" -name 'unity_*_cxx.cxx' -print0 |
    xargs -0 -P "$(nproc)" -I{} bash -euo pipefail -c 'TidyUnit "$1"' lint {}

good=0 bad=0
while read -r folder; do
    if [[ -e "$folder/content" ]]; then
        good=$((good + 1))
    else
        bad=$((bad + 1))
        cat "$folder/said"
    fi
done < <(find "$results" -name sources -printf '%h\n' | LC_ALL=C sort)
echo "$(cat $(find "$results" -name sources) </dev/null | wc -l) sources read"
((bad == 0 && good > 0))
