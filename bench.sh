#!/bin/sh
# Builds optimised and runs the benchmarks: the routines by themselves, and whole processes against
# the public tools that do the same job.
set -eu
cd "$(dirname "$0")"
. scripts/pakete.sh

pakete_sichern g++ cmake ninja-build libfmt-dev libcli11-dev nlohmann-json3-dev libbenchmark-dev \
    qt6-base-dev qt6-svg-dev as31 srecord sdcc-ucsim

cmake --preset bench >/dev/null
cmake --build --preset bench
build/bench/bench/bench_routines "$@"
build/bench/bench/bench_tools build/bench/bin/varnholt-cli
build/bench/bench/bench_simulator build/bench/bin/varnholt-cli bench/Simulator.asm
build/bench/bench/bench_windows build/bench/bin/varnholt
