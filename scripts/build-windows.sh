#!/usr/bin/env bash
# build-windows.sh [--core] [--test [FOLDER]]: builds the programs for Windows on Debian 12, static,
# and the zip of all that a user gets. With --test the tests run under Wine, the zip is tried, and
# results are compared with those of this system's orbelle-cli, in FOLDER or built for it. With
# --core there is no window and no zip.
#
# What the programs are linked with is built once and kept in ~/.cache/orbelle, or in
# $ORBELLE_WINDOWS_CACHE.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

preset=windows
test=
linux=
while [[ $# -gt 0 ]]; do
    case $1 in
        --core) preset=windows-core ;;
        --test)
            test=yes
            if [[ -n ${2:-} && $2 != --* ]]; then
                linux=$(cd "$2" && pwd)
                shift
            fi
            ;;
        *)
            echo "usage: build-windows.sh [--core] [--test [FOLDER]]" >&2
            exit 2
            ;;
    esac
    shift
done

scripts/install-dependencies.sh windows

# The libraries, anew when the way they are built changes, or what they are built of.
key=$({
    cat scripts/windows/* cmake/windows_toolchain.cmake
    x86_64-w64-mingw32-g++-posix -dumpfullversion
    dpkg-query -W libpng-dev libjpeg62-turbo-dev libwebp-dev liblcms2-dev libpixman-1-dev libdeflate-dev \
        libgif-dev libagg-dev libhwy-dev libcli11-dev nlohmann-json3-dev googletest libz-mingw-w64-dev \
        qt6-base-dev 2>/dev/null || true
} | sha256sum | head -c 12)
export ORBELLE_WINDOWS_PREFIX=${ORBELLE_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/orbelle}/windows-$key
sources=$root/build/windows-sources

provide() { # NAME PACKAGE...: builds scripts/windows/build-NAME.sh's part of the prefix if it is not there
    [[ ! -e $ORBELLE_WINDOWS_PREFIX/$1.done ]] || return 0
    rm -rf "$sources"
    scripts/windows/fetch-sources.sh "$sources" "${@:2}"
    "scripts/windows/build-$1.sh" "$sources" "$ORBELLE_WINDOWS_PREFIX"
    rm -rf "$sources"
    touch "$ORBELLE_WINDOWS_PREFIX/$1.done"
}

provide libraries libpng1.6 libjpeg-turbo libwebp googletest pixman lcms2 libdeflate giflib mapnik
[[ $preset == windows-core ]] || provide qt qt6-base

targets=()
if [[ -z $test ]]; then
    targets=(--target orbelle-cli)
    [[ $preset == windows-core ]] || targets+=(orbelle guide)
fi
# A build of before the libraries changed finds the old ones.
grep -qs "$ORBELLE_WINDOWS_PREFIX/" "build/$preset/CMakeCache.txt" || rm -rf "build/$preset"
cmake --preset $preset
cmake --build --preset $preset "${targets[@]}"

# On Windows the C locale would say what such a name is (src/graphics/path_text.h).
narrow=$(find "build/$preset/src" -name '*.obj' -print0 |
    xargs -0 x86_64-w64-mingw32-nm -A --defined-only | grep 'path10_S_convertIcE' || true)
if [[ -n $narrow ]]; then
    printf 'build-windows: here bytes become the name of a file:\n%s\n' "$narrow" >&2
    exit 1
fi

if [[ $preset == windows ]]; then
    cpack -G ZIP -B "build/$preset/package" --config "build/$preset/CPackConfig.cmake" > /dev/null
    zip=$(ls "$root/build/$preset"/package/*.zip)
fi

if [[ -n $test ]]; then
    if [[ -z $linux ]]; then
        cmake --preset programs
        cmake --build --preset programs --target orbelle-cli orbelle-svg
        linux=$root/build/release/bin
    fi
    scripts/test-windows.sh "build/$preset" "$linux" "${zip:-}"
fi
[[ -z ${zip:-} ]] || echo "$zip"
