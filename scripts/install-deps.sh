#!/usr/bin/env bash
# Installs the Debian 12 packages the project builds, runs and tests with. Idempotent.
# --browser (or STREAMING_WITH_BROWSER=1) adds Qt WebEngine for the reference host's
# browser engine (host/webbrowser): 27 more packages, about 170 MiB installed.
# --fuzz (or STREAMING_WITH_FUZZ=1) adds clang 14 with its libFuzzer and sanitizer runtimes
# and llvm-symbolizer for scripts/fuzz.sh; the normal build needs no clang.
set -euo pipefail
packages=(cmake ninja-build g++ ccache qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev
          qttranslations5-l10n libbenchmark-dev xauth xvfb fonts-dejavu-core
          ffmpeg nginx libnginx-mod-rtmp srt-tools qtmultimedia5-dev libqt5multimedia5-plugins
          qt5-image-formats-plugins libcommuni-dev)
for arg in "$@"; do
    case "$arg" in
        --browser) STREAMING_WITH_BROWSER=1 ;;
        --fuzz) STREAMING_WITH_FUZZ=1 ;;
        *) echo "usage: $0 [--browser] [--fuzz]" >&2; exit 2 ;;
    esac
done
if [ "${STREAMING_WITH_BROWSER:-0}" = 1 ]; then
    packages+=(qtwebengine5-dev)
fi
if [ "${STREAMING_WITH_FUZZ:-0}" = 1 ]; then
    packages+=(clang-14 libclang-rt-14-dev llvm-14)
fi
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    SUDO=""
    [ "$(id -u)" -eq 0 ] || SUDO="sudo"
    export DEBIAN_FRONTEND=noninteractive
    $SUDO apt-get update -qq
    $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
