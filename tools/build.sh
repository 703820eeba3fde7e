#!/bin/bash
# Builds a preset with warnings as errors, through ccache where there is one.
#
#   tools/build.sh preset [targets...]
#
# The compiler's words are shown only when it complains. What can be built is built even so.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=$1
shift
log=build/$preset.log
mkdir -p build

command -v ccache >/dev/null && export CMAKE_CXX_COMPILER_LAUNCHER=ccache
if ! cmake --preset "$preset" -DTEMPOLARK_WERROR=ON >"$log" 2>&1; then
    cat "$log"
    exit 1
fi
if ! cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"} -- -k 0 \
        >"$log" 2>&1; then
    grep -vE '^\[[0-9]+/[0-9]+\] (Building|Linking|Automatic)' "$log" | head -n 200
    echo "the whole log is $log"
    exit 1
fi
