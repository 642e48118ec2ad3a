#!/usr/bin/env bash
# Installs what is needed, builds everything and runs every test: once plainly,
# once under AddressSanitizer and UndefinedBehaviorSanitizer with leak checks at every exit
# (tests/CMakeLists.txt, tests/lsan-suppressions.txt).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
jobs=$(nproc)

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j "$jobs"
ctest --test-dir build --output-on-failure -j "$jobs"

if [ "${STREAMING_SKIP_SANITIZE:-0}" != 1 ]; then
    cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DSTREAMING_SANITIZE=ON \
          -DSTREAMING_BUILD_BENCH=OFF -DSTREAMING_BUILD_APP=ON >/dev/null
    cmake --build build-sanitize -j "$jobs"
    ctest --test-dir build-sanitize --output-on-failure -j "$jobs"
fi
