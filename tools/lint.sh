#!/bin/bash
# Runs clang-tidy over the sources, with the list of checks in .clang-tidy.
#
#   tools/lint.sh preset [file...]
#
# The preset must be built: its generated code is included. The last line counts the files.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/tally.sh
preset=$1
shift
files=("$@")
((${#files[@]})) || mapfile -t files < <(find src -name '*.cpp' | LC_ALL=C sort)

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# Each file leaves what it was told, and a mark when that was nothing.
Lint() {
    local result=$2/${1//\//@}
    clang-tidy -p "build/$3" --quiet "$1" >"$result" 2>&1 && touch "$result.good"
    true
}
export -f Lint
printf '%s\0' "${files[@]}" |
    xargs -0 -P "$(nproc)" -I{} bash -c 'Lint "$@"' lint {} "$scratch" "$preset"

for file in "${files[@]}"; do
    result=$scratch/${file//\//@}
    if [[ -e "$result.good" ]]; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAIL  $file"
        grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -' "$result" || true
    fi
done
Finish
