#!/usr/bin/env bash
# Kills a writer of the stores (codec presets, servers, accounts, the host's setup file) with
# SIGKILL the given number of times (default 1000) and checks the files after every kill.
# Usage: scripts/kill-test.sh [kills] ; BUILD_DIR picks the build folder (default build).
set -euo pipefail
cd "$(dirname "$0")/.."
kills=${1:-1000}
build=${BUILD_DIR:-build}
[ -f "$build/build.ninja" ] || cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" -j2 --target reliability_tst_storekill >/dev/null
echo "command: STREAMING_KILLS=$kills $build/tests/reliability_tst_storekill"
STREAMING_KILLS=$kills QT_QPA_PLATFORM=offscreen "$build/tests/reliability_tst_storekill" 2>&1 \
    | grep -v "Finished an interrupted change" | grep -E "kills [0-9]|FAIL|Totals"
