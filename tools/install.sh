#!/bin/bash
# Installs what is missing, from Debian 12. The only list of packages in the project.
#
#   tools/install.sh run      what building and running need
#   tools/install.sh test     that, and what the tests and the checks need
#   tools/install.sh package  what building and packaging need
#
# Says nothing and touches nothing when all is there. The apt-get used is ${APT_GET:-apt-get}.
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
    clang clang-format clang-tidy libbenchmark-dev libclang-rt-14-dev
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

installed=" $(dpkg-query -W -f='${db:Status-Status}=${Package} ' "${packages[@]}" 2>/dev/null || true)"
missing=()
for package in "${packages[@]}"; do
    [[ "$installed" == *" installed=$package "* ]] || missing+=("$package")
done
((${#missing[@]} == 0)) && exit 0

echo "Installing: ${missing[*]}"
asRoot=()
if (($(id -u) != 0)); then
    command -v sudo >/dev/null || { echo "Neither root nor sudo: can't install." >&2; exit 1; }
    asRoot=(sudo)
fi
apt=("${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive "${APT_GET:-apt-get}" -qq
     -o Dpkg::Use-Pty=0 -o Acquire::Retries=3 -o DPkg::Lock::Timeout=120)
"${apt[@]}" update
"${apt[@]}" install -y --no-install-recommends "${missing[@]}" </dev/null >/dev/null
