#!/bin/bash
# Installs what is missing, builds Tempolark and starts its shell.
#
#   ./run.sh [options] [zone name]        ./run.sh --help tells the options
#
# Without a display it runs on a screen of its own and leaves build/screenshot.png.
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
program=$root/build/release/bin/TempolarkCentral

build() {
    cd "$root"
    tools/install.sh run
    command -v ccache >/dev/null && export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    mkdir -p build
    echo "Building in build/release"
    { cmake --preset release && cmake --build --preset release --parallel "$(nproc)" \
        --target TempolarkCentral tempolarkctl tempolark_data; } >build/release.log 2>&1 && return
    cat build/release.log >&2
    echo "The build failed; its log is build/release.log" >&2
    exit 1
}

(build)
if [[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" || "${QT_QPA_PLATFORM:-xcb}" != xcb ]]; then
    echo "Starting build/release/bin/TempolarkCentral"
    exec "$program" "$@"
fi
echo "There is no display: starting build/release/bin/TempolarkCentral on a screen of its own"
exec "$root/tools/with_display.sh" "$root/tools/take_screenshot.sh" \
    "$root/build/screenshot.png" "$program" "$@"
