#!/usr/bin/env bash
# Installs what is needed, builds the reference host application (Release) and runs it.
# Without a display it writes the screenshots of every window and dialog instead.
# Arguments are passed to the application (for example --data DIR).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh

build=build-app
if [ ! -f "$build/build.ninja" ]; then
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
          -DSTREAMING_BUILD_TESTS=OFF -DSTREAMING_BUILD_BENCH=OFF -DSTREAMING_BUILD_APP=ON >/dev/null
fi
cmake --build "$build" --target quillon -j "$(nproc)"
app="$build/apps/quillon/quillon"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    shots="${QUILLON_SCREENSHOTS:-$PWD/$build/screenshots}"
    echo "No display found (DISPLAY and WAYLAND_DISPLAY are empty): writing the screenshots to $shots instead."
    "$app" --screenshots "$shots" "$@"
    exit 0
fi
exec "$app" "$@"
