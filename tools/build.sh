#!/bin/bash
# Builds a preset, through ccache where there is one. Warnings are errors unless it is told to be
# lenient.
#
#   tools/build.sh [--lenient] preset [-DOPTION=VALUE...] [target...]
#
# The compiler's words are shown only when it fails; what can be built is built even so.
set -euo pipefail
cd "$(dirname "$0")/.."

options=(-DTEMPOLARK_WERROR=ON)
if [[ "$1" == --lenient ]]; then
    options=(-DTEMPOLARK_WERROR=OFF)
    shift
fi
preset=$1
shift
while [[ "${1:-}" == -D* ]]; do
    options+=("$1")
    shift
done
log=build/$preset.log
mkdir -p build

if command -v ccache >/dev/null; then
    # Another clone of the same sources finds the same objects.
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
fi
if ! { cmake --preset "$preset" "${options[@]}" &&
       cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"} -- -k 0; } \
        >"$log" 2>&1; then
    grep -vE '^\[[0-9]+/[0-9]+\] (Building|Linking|Automatic|Placing)|^-- ' "$log" | head -n 200
    echo "The build of $preset failed; the whole log is $log"
    exit 1
fi
