#!/bin/bash
# Measures the start of the program, from the command to its first painted clock, in milliseconds:
# several runs with all files in memory, and one after the kernel has dropped them where that is
# allowed. Needs a display (see tools/with_display.sh).
#
#   tools/measure_start.sh FOLDER [RUNS]      FOLDER holds TempolarkCentral and its data
set -euo pipefail
bin=$(cd "$1" && pwd)
runs=${2:-15}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -p "$folder/$(id -un)"
cp -rp "$bin/ini" "$bin/Images" "$folder"
echo "Tokyo Standard Time=Tokyo Standard Time" >"$folder/$(id -un)/AutoStart.txt"

Start() {
    local begin=$EPOCHREALTIME end
    "$bin/TempolarkCentral" --quit-when-painted --app-folder "$folder" >/dev/null 2>&1
    end=$EPOCHREALTIME
    echo $(((${end/./} - ${begin/./}) / 1000))
}

# Warm TITLE: the median of the runs.
Warm() {
    Start >/dev/null
    echo "$1, median of $runs: $(for ((i = 0; i < runs; i++)); do Start; done | sort -n |
        sed -n "$(((runs + 1) / 2))p") ms"
}

Warm warm
sed -i 's/Tool Bar:Tool Bar=Top/Tool Bar:Tool Bar=None/' "$folder/ini/TempolarkCentral.ini"
rm -f "$folder/$(id -un)/TempolarkCentral.ini"
Warm "without the toolbar"
if sync && echo 3 2>/dev/null >/proc/sys/vm/drop_caches; then
    echo "cold: $(Start) ms"
fi
