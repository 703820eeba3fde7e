#!/bin/bash
# Measures the running program: CPU time and memory with 1, 10 and 100 clocks, each in a shell that
# fills the screen. Needs a display (see tools/with_display.sh).
#
#   tools/measure_running.sh FOLDER [SECONDS]     FOLDER holds TempolarkCentral and its data
#
# CPU is user and system time over the seconds given (60 unless told), scaled to a minute; memory is
# the proportional set size above that of the same shell with no clock, for each clock.
set -euo pipefail
bin=$(cd "$1" && pwd)
seconds=${2:-60}
columns=10 # of clocks
read -r screenWidth screenHeight < <(xdpyinfo | awk '/dimensions:/{split($2, s, "x"); print s[1], s[2]}')
width=$(((screenWidth - 20) / columns * 15)) height=$(((screenHeight - 110) / columns * 15))

CpuTicks() { awk '{print $14 + $15}' "/proc/$1/stat"; }
Memory() { awk '/^Pss:/{print $2}' "/proc/$1/smaps_rollup"; }

# Run COUNT: a shell with that many clocks; prints "milliseconds-a-minute kilobytes".
Run() {
    local folder user i before after program memory
    folder=$(mktemp -d)
    user=$folder/$(id -un)
    mkdir -p "$user/TimeZones"
    cp -rp "$bin/ini" "$folder"
    sed -e 's/Window State=Normal/Window State=Maximized/' "$bin/ini/TempolarkCentral.ini" \
        >"$user/TempolarkCentral.ini"
    touch "$user/AutoStart.txt"
    for ((i = 0; i < $1; i++)); do
        sed -e "s/Window Left=-1/Window Left=$((i % columns * width))/" \
            -e "s/Window Top=-1/Window Top=$((i / columns * height))/" \
            -e "s/Window Width=-1/Window Width=$width/" \
            -e "s/Window Height=-1/Window Height=$height/" \
            "$folder/ini/Tempolark.ini" >"$user/TimeZones/Clock $i.ini"
        echo "Clock $i=Clock $i" >>"$user/AutoStart.txt"
    done
    "$bin/TempolarkCentral" --app-folder "$folder" >/dev/null 2>&1 &
    program=$!
    sleep 5
    before=$(CpuTicks "$program")
    sleep "$seconds"
    after=$(CpuTicks "$program")
    memory=$(Memory "$program")
    kill "$program"
    wait "$program" || true
    rm -rf "$folder"
    echo "$(((after - before) * 1000 / $(getconf CLK_TCK) * 60 / seconds)) $memory"
}

read -r idle base < <(Run 0)
echo "no clock: $idle ms of CPU a minute, $base KB"
for count in 1 10 100; do
    read -r cpu memory < <(Run "$count")
    echo "$count: $cpu ms of CPU a minute, $(((memory - base) / count)) KB a clock"
done
