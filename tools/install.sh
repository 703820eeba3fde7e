#!/bin/bash
# Installs what is missing, from Debian 12. The only list of packages in the project.
#
#   tools/install.sh run      what building and running need
#   tools/install.sh test     that, and what the tests and the checks need
#   tools/install.sh package  what building and packaging need
#
# Says nothing and touches nothing when all is there and the zone database is up to date. The
# commands used are ${APT_GET:-apt-get} and ${APT_CACHE:-apt-cache}.
set -euo pipefail

packages=(
    # Building. qt6-declarative-dev and libgl1-mesa-dev are there because CMake looks for them on
    # its way to TextToSpeech and Gui.
    ca-certificates ccache cmake g++ git libgl1-mesa-dev ninja-build
    qt6-base-dev qt6-declarative-dev qt6-multimedia-dev qt6-speech-dev qt6-svg-dev
    # Running: platforms, the zone database, flags, fonts and those that the styles are set in.
    fonts-dejavu-core fonts-liberation iso-flags-svg libqt6gui6 libqt6svg6 qt6-qpa-plugins tzdata
    # Running: speech, and opening what a timer names. The sound server is the desktop's own.
    qt6-speech-flite-plugin qt6-speech-speechd-plugin xdg-utils
    fonts-bebas-neue fonts-cantarell fonts-comfortaa fonts-dseg fonts-lato
    fonts-league-spartan fonts-oldstandard
    # Running without a display: a screen, a window manager, and a camera.
    imagemagick openbox x11-utils xdotool xvfb
)
testPackages=(
    clang clang-format clang-tidy libbenchmark-dev libclang-rt-14-dev lld
    # A sound server, a system bus and a login service for the tests of devices.
    dbus-bin dbus-daemon libsox-fmt-mp3 pulseaudio pulseaudio-utils python3-dbusmock sox
)
packagePackages=(appstream desktop-file-utils dpkg-dev file)

case "${1:-run}" in
    run) ;;
    package) packages+=("${packagePackages[@]}") ;;
    test) packages+=("${testPackages[@]}") ;;
    *) echo "usage: tools/install.sh [run|test|package]" >&2; exit 2 ;;
esac

if ! command -v dpkg-query >/dev/null; then
    echo "No dpkg here: please install the equivalents of: ${packages[*]}" >&2
    exit 0
fi

asRoot=()
(($(id -u) == 0)) || asRoot=(sudo)
MayInstall() { ((${#asRoot[@]} == 0)) || command -v sudo >/dev/null; }
Apt() {
    "${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive "${APT_GET:-apt-get}" -qq \
        -o Dpkg::Use-Pty=0 -o Acquire::Retries=3 -o DPkg::Lock::Timeout=120 "$@" </dev/null
}
Install() { Apt install -y --no-install-recommends "$@" >/dev/null; }

installed=" $(dpkg-query -W -f='${db:Status-Status}=${Package} ' "${packages[@]}" 2>/dev/null || true)"
missing=()
for package in "${packages[@]}"; do
    [[ "$installed" == *" installed=$package "* ]] || missing+=("$package")
done
if ((${#missing[@]})); then
    echo "Installing: ${missing[*]}"
    MayInstall || { echo "Neither root nor sudo: can't install." >&2; exit 1; }
    Apt update
    Install "${missing[@]}"
fi

# The zone database is on most machines, but old: it is asked for anew once a week, and on the next
# day where that failed. A machine that can't get another goes on with the one that it has.
asked=${ZONES_ASKED:-$(dirname "$0")/../build/tzdata.asked}
[[ -z "$(find "$asked" -mtime -7 2>/dev/null)" ]] || exit 0
mkdir -p "$(dirname "$asked")" && [[ -w "$(dirname "$asked")" ]] && MayInstall || exit 0

# ZoneVersions: the installed version of tzdata, and the newest that apt knows of.
ZoneVersions() {
    LC_ALL=C "${APT_CACHE:-apt-cache}" policy tzdata 2>/dev/null |
        awk '/^ *Installed:/ {installed = $2} /^ *Candidate:/ {print installed, $2}'
}
# Without a network an update would take its time and succeed.
Ask() {
    Apt -o APT::Update::Error-Mode=any -o Acquire::Retries=0 -o Acquire::http::Timeout=10 \
        -o Acquire::https::Timeout=10 update >/dev/null 2>&1
}
TryTomorrow() { touch -d '6 days ago' "$asked"; exit 0; }

read -r has candidate < <(ZoneVersions) || exit 0
# What apt knows may be as old, unless it has just been asked.
if [[ "$has" == "$candidate" ]] && ((${#missing[@]} == 0)); then
    Ask || TryTomorrow
    read -r has candidate < <(ZoneVersions) || exit 0
fi
if [[ "$has" != "$candidate" ]]; then
    echo "Bringing the zone database up to date: $has to $candidate"
    Install tzdata 2>/dev/null || { Ask && Install tzdata 2>/dev/null; } || {
        echo "That failed: clocks go by the zone database $has." >&2
        TryTomorrow
    }
fi
touch "$asked"
