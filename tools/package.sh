#!/bin/bash
# Makes the Debian package from a build of its own and tells where it is.
#
#   tools/package.sh
set -euo pipefail
cd "$(dirname "$0")/.."
tools/install.sh package

if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
fi
desktop-file-validate packaging/*.desktop
cmake -S . -B build/package -G Ninja -DCMAKE_BUILD_TYPE=Release -DTEMPOLARK_TESTS=OFF >/dev/null
appstreamcli validate --no-net build/package/*.metainfo.xml
cmake --build build/package --parallel "$(nproc)"
rm -f build/package/*.deb
cpack --config build/package/CPackConfig.cmake -B build/package >/dev/null
ls build/package/*.deb
