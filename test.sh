#!/bin/sh
# Builds the developers' preset (sanitizers, warnings are errors) and runs every test, then each fuzz
# target for a short time. FUZZ_SECONDS sets how long (default 5 for each target, 0 leaves them out).
set -eu
cd "$(dirname "$0")"
. scripts/pakete.sh

pakete_sichern g++ cmake ninja-build libfmt-dev libcli11-dev nlohmann-json3-dev \
    qt6-base-dev qt6-svg-dev fonts-dejavu-core desktop-file-utils appstream mandoc poppler-utils \
    libgtest-dev librapidcheck-dev clang libclang-rt-14-dev

cmake --preset dev
cmake --build --preset dev
ctest --preset dev -j "$(nproc)" --no-tests=error

if [ "${FUZZ_SECONDS:=5}" -gt 0 ]; then
    sh scripts/fuzz.sh "$FUZZ_SECONDS"
fi
