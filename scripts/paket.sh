#!/bin/sh
# Builds the Debian package in build/release and prints its path.
set -eu
cd "$(dirname "$0")/.."
. scripts/pakete.sh

pakete_sichern g++ cmake ninja-build dpkg-dev file libfmt-dev libcli11-dev nlohmann-json3-dev \
    qt6-base-dev qt6-svg-dev >&2

cmake --preset release >/dev/null
cmake --build --preset release >&2
rm -f build/release/varnholt_*.deb
(cd build/release && cpack -G DEB >&2)
ls "$PWD"/build/release/varnholt_*.deb
