#!/bin/bash
# Installs what is missing, builds Tempolark and starts its shell.
#
#   ./run.sh [options] [zone name]        ./run.sh --help tells the options
#
# Without a display it runs on a screen of its own and leaves build/screenshot.png.
set -euo pipefail
root=$(cd "$(dirname "$0")" && pwd)
program=$root/build/release/bin/TempolarkCentral

"$root/tools/install.sh" run
echo "Building in build/release"
"$root/tools/build.sh" --lenient release TempolarkCentral tempolarkctl tempolark_data >&2

if [[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" || "${QT_QPA_PLATFORM:-xcb}" != xcb ]]; then
    echo "Starting build/release/bin/TempolarkCentral"
    exec "$program" "$@"
fi
echo "There is no display: starting build/release/bin/TempolarkCentral on a screen of its own"
exec "$root/tools/with_display.sh" "$root/tools/take_screenshot.sh" \
    "$root/build/screenshot.png" "$program" "$@"
