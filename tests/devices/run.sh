#!/bin/bash
# Speech, sound and the login service for real: the test programs tst_Real* on a sound server, a
# system bus and a login service of their own. What the machine lacks is skipped, with the reason.
#
#   tests/devices/run.sh FOLDER      where FOLDER holds the test programs
#
# The recording of a spoken time is kept in TEMPOLARK_KEEP, as raw samples, where that is set.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../../tools/tally.sh"
tests=$(cd "$1" && pwd)

# Everything below runs on a session bus of its own, which ends with it.
if [[ -z "${TEMPOLARK_OWN_BUS:-}" ]]; then
    for program in dbus-run-session dbus-daemon; do
        command -v "$program" >/dev/null && continue
        echo "SKIP  speech, sound and the login service: there is no $program"
        echo "0 passed, 0 failed, 1 skipped"
        exit 0
    done
    TEMPOLARK_OWN_BUS=1 exec dbus-run-session -- "$0" "$@" 2> >(grep -v 'Failed to set fd limit' >&2)
fi

scratch=$(mktemp -d)
started=()
trap 'kill "${started[@]}" 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$scratch"' EXIT
mkdir -m 700 "$scratch/run" "$scratch/home"
export XDG_RUNTIME_DIR=$scratch/run HOME=$scratch/home LC_ALL=C.UTF-8 TZ=UTC
export TEMPOLARK_SOUNDS=$scratch
unset PULSE_SERVER XDG_SESSION_ID

# WaitFor COMMAND...: for half a minute at most.
WaitFor() {
    for ((try = 0; try < 300; try++)); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.1
    done
    return 1
}

Skip() {
    skipped=$((skipped + 1))
    echo "SKIP  $*"
}

# Lacks WHAT PROGRAM...: tells that WHAT is skipped when one of the programs is missing.
Lacks() {
    local what=$1 program
    shift
    for program; do
        command -v "$program" >/dev/null && continue
        Skip "$what: there is no $program"
        return 0
    done
    return 1
}

# RunTest NAME: counts what a test program says.
RunTest() {
    local status=0
    timeout 300 "$tests/$1" >"$scratch/$1.log" 2>&1 || status=$?
    grep -E '^(FAIL|QINFO|SKIP|   (Actual|Expected|Loc))' "$scratch/$1.log" || true
    sed -n 's/^Totals: \(.*\), [0-9]* blacklisted.*/\1/p' "$scratch/$1.log" >"$scratch/totals"
    AddTotals "$1" "$status" "$scratch/totals"
    if [[ -s "$scratch/totals" ]]; then
        echo "$1: $(<"$scratch/totals")"
    else
        tail -n 60 "$scratch/$1.log"
    fi
}

MakeSounds() {
    local kind
    for kind in wav mp3 ogg; do
        sox -q -n -r 44100 -c 2 "$scratch/tone.$kind" synth 1 sine 440 gain -6 2>/dev/null ||
            rm -f "$scratch/tone.$kind"
    done
    sox -q -n -r 16000 -c 1 "$scratch/long.wav" synth 30 sine 440 gain -6
}

StartSound() {
    pulseaudio -n --load=module-native-protocol-unix --load="module-null-sink sink_name=null" \
        --exit-idle-time=-1 >"$scratch/pulseaudio.log" 2>&1 &
    started+=($!)
    WaitFor pactl info
}

StartLogin() {
    local address
    dbus-daemon --session --nofork --print-address=3 3>"$scratch/address" 2>/dev/null &
    started+=($!)
    WaitFor test -s "$scratch/address"
    address=$(<"$scratch/address")
    export DBUS_SYSTEM_BUS_ADDRESS=$address
    /usr/bin/python3 -m dbusmock --template logind --logfile "$scratch/login.log" &
    started+=($!)
    WaitFor dbus-send --bus="$address" --print-reply --dest=org.freedesktop.login1 \
        /org/freedesktop/login1 org.freedesktop.DBus.Peer.Ping
}

Say "The login service"
if ! /usr/bin/python3 -c 'import dbusmock' 2>/dev/null; then
    Skip "the login service: there is no python3-dbusmock"
elif ! Lacks "the login service" dbus-send; then
    StartLogin || { echo "FAIL  the login service does not start"; failed=$((failed + 1)); }
    RunTest tst_RealLogin
fi

Say "Sound"
if ! Lacks "sound" sox; then
    MakeSounds
    RunTest tst_RealSilence
    if ! Lacks "sound that is heard" pulseaudio pactl parec; then
        StartSound || { echo "FAIL  the sound server does not start"; failed=$((failed + 1)); }
        RunTest tst_RealPlayers
        RunTest tst_RealVoices
        RunTest tst_RealSoundLoss
    fi
fi
Finish || ((failed == 0 && skipped > 0))
