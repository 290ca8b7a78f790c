#!/usr/bin/env bash
# install-dependencies.sh programs|tests|ci|windows: installs the packages of Debian 12 that are
# missing to build the programs, to build and run the tests too, for all that .ci/run does, or to
# build the programs for Windows and test them.
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-l10n-tools libagg-dev libpixman-1-dev libpng-dev libjpeg62-turbo-dev libgif-dev libhwy-dev libdeflate-dev
    libwebp-dev liblcms2-dev librsvg2-dev zlib1g-dev
    libcli11-dev nlohmann-json3-dev
)
case ${1:-} in
    programs) ;;
    tests | ci) packages+=(libgtest-dev libgmock-dev libbenchmark-dev xvfb xdotool icnsutils icoutils python3
                        at-spi2-core dbus gir1.2-atspi-2.0 python3-gi qt6-translations-l10n) ;;
    windows) packages+=(g++-mingw-w64-x86-64-posix libz-mingw-w64-dev nasm make dpkg-dev googletest cmark-gfm
                        qt6-translations-l10n wine wine64 unzip python3 xvfb xauth) ;;
    *)
        echo "usage: install-dependencies.sh programs|tests|ci|windows" >&2
        exit 2
        ;;
esac
if [[ $1 == ci ]]; then
    packages+=(git clang libclang-rt-dev clang-format clang-tidy dpkg-dev file lintian)
fi

if ! command -v dpkg-query >/dev/null; then
    echo "No Debian package system here. Needed are what Debian calls: ${packages[*]}" >&2
    exit 0
fi

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
    [[ $status == installed ]] || missing+=("$package")
done
[[ ${#missing[@]} -gt 0 ]] || exit 0

echo "Installing ${missing[*]}" >&2
as_root=()
[[ $EUID -eq 0 ]] || as_root=(sudo)
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}"
