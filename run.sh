#!/bin/sh
# Builds Varnholt and starts it: the window where there is a display, else a walk through its main
# job in the terminal. `./run.sh FILE` opens a file; `./run.sh --terminal` always takes the walk.
set -eu
cd "$(dirname "$0")"
. scripts/pakete.sh

pakete_sichern g++ cmake ninja-build libfmt-dev libcli11-dev nlohmann-json3-dev \
    qt6-base-dev qt6-svg-dev libqt6svg6 fonts-dejavu-core

echo "Building (the first time takes a few minutes) ..."
cmake --preset release >/dev/null
cmake --build --preset release -- --quiet || cmake --build --preset release

if [ "${1:-}" = "--terminal" ] || [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec sh scripts/rundgang.sh
fi
exec build/release/bin/varnholt "$@"
