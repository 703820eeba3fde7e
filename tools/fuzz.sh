#!/bin/bash
# Runs each fuzz target of build/fuzz for some seconds, from seeds that lie beside its source.
#
#   tools/fuzz.sh seconds
#
# What it finds stays in build/fuzz/findings. The last line counts the targets.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/tally.sh
seconds=$1
findings=build/fuzz/findings
mkdir -p "$findings"
export QT_QPA_PLATFORM=offscreen

# Fuzz TARGET: new inputs go to a corpus in the build folder, never beside its source.
Fuzz() {
    local name corpus
    name=$(basename "$1")
    corpus=build/fuzz/corpus/$name
    mkdir -p "$corpus"
    local folders=("$corpus")
    [[ -d fuzz/seeds/$name ]] && folders+=("fuzz/seeds/$name")
    "$1" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="$findings/$name-" "${folders[@]}"
}

mapfile -t targets < <(find build/fuzz/bin -maxdepth 1 -name 'fuzz_*' -type f -executable | sort)
for target in "${targets[@]}"; do
    Check "$(basename "$target"), $seconds s" Fuzz "$target"
done
Finish
