#!/usr/bin/env bash
# Installs what is missing, builds, and then runs the program or the tests.
#   scripts/dev.sh run    build and start the program
#   scripts/dev.sh test   build and run every test suite (no display needed)
#   scripts/dev.sh asan   the same under AddressSanitizer and UndefinedBehaviorSanitizer,
#                         in build-asan (several times slower, so CI leaves it out)
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build="$here/build"
mode=${1:-run}

packages=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-webengine-dev libgl-dev
          libqt6svg6 adwaita-icon-theme libgtest-dev libbenchmark-dev libhunspell-dev
          hunspell-en-us clang-format xvfb xdotool)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        echo "Run as root (or with sudo) to install the packages above." >&2
        exit 1
    fi
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq
    apt-get install -y -qq "${missing[@]}"
fi

launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)

if [ "$mode" = asan ]; then
    cd "$here"
    [ -f build-asan/build.ninja ] || cmake --preset asan "${launcher[@]}"
    cmake --build --preset asan -j "$(nproc)"
    exec ctest --preset asan
fi

if [ ! -f "$build/build.ninja" ]; then
    cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${launcher[@]}"
fi
# ccache, where the machine has it, finds its results again from any checkout.
export CCACHE_BASEDIR="$here"
cmake --build "$build" -j "$(nproc)"

case "$mode" in
run)
    exec "$build/bin/zelvo-tessara"
    ;;
test)
    cd "$build"
    QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j 1
    ;;
*)
    echo "usage: scripts/dev.sh run|test|asan" >&2
    exit 2
    ;;
esac
