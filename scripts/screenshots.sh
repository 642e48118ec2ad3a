#!/usr/bin/env bash
# Redraws the README's pictures: every window and dialog of the reference host, in English
# in docs/screenshots/ and in each shipped language in docs/screenshots/<lang>/, each from
# a fresh data folder. Run it after adding or changing a dialog.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh

build=build-app
if [ ! -f "$build/build.ninja" ]; then
    cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
          -DSTREAMING_BUILD_TESTS=OFF -DSTREAMING_BUILD_BENCH=OFF -DSTREAMING_BUILD_APP=ON >/dev/null
fi
cmake --build "$build" --target quillon -j "$(nproc)"

# A fixed, readable data folder: its path is shown in the console's window.
data=/tmp/quillon-demo
languages="en $(ls translations/libstreaming_*.ts | sed 's/.*_\(.*\)\.ts/\1/' | tr '\n' ' ')"
for lang in $languages; do
    out=docs/screenshots
    [ "$lang" = en ] || out="docs/screenshots/$lang"
    mkdir -p "$out"
    rm -rf "$data" "$out"/*.png
    QT_QPA_PLATFORM=offscreen "$build/apps/quillon/quillon" --lang "$lang" --data "$data" --screenshots "$out" \
        2>/dev/null
    echo "$out: $(ls "$out"/*.png | wc -l) pictures"
done
rm -rf "$data"
