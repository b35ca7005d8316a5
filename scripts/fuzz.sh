#!/bin/sh
# Builds the fuzz targets and runs each for the given number of seconds (default 60), starting from
# its corpus. New inputs stay in build/fuzz; a finding is kept there and makes the script fail.
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-60}

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
for target in build/fuzz/fuzz/fuzz_*; do
    [ -x "$target" ] && [ -f "$target" ] || continue
    name=$(basename "$target")
    mkdir -p "build/fuzz/found/$name"
    echo "Fuzzing $name for $seconds s"
    log=build/fuzz/found/$name.log
    "$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -verbosity=0 \
        -artifact_prefix="build/fuzz/found/$name-" \
        "build/fuzz/found/$name" "fuzz/corpus/$name" >"$log" 2>&1 ||
        { tail -n 60 "$log"; echo "$name: a finding, kept in build/fuzz/found" >&2; exit 1; }
done
echo "No findings."
