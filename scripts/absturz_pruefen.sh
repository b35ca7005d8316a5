#!/bin/sh
# Kills sessions of the desktop program at random moments and looks at what each leaves behind:
#   scripts/absturz_pruefen.sh [KILLS [SEED [PROGRAM]]]
# A failure tells its seed and keeps its folder. PROGRAM is the test program `absturz` of a build.
set -eu
cd "$(dirname "$0")/.."

kills=${1:-300}
seed=${2:-$(date +%s)}
program=${3:-build/dev/tests/ui/absturz}

export QT_QPA_PLATFORM=offscreen QT_STYLE_OVERRIDE=Fusion
export LSAN_OPTIONS="suppressions=$PWD/tests/ui/leaks.txt:print_suppressions=0"
echo "$kills kills, seed $seed"
exec "$program" --kills "$kills" --seed "$seed"
