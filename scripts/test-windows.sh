#!/usr/bin/env bash
# test-windows.sh BUILD LINUX [ZIP]: runs the tests of a build for Windows under Wine, compares what
# its orbelle-cli makes with what the one in the folder LINUX does, and tries the programs of the zip.
set -euo pipefail
build=$(cd "$1" && pwd)
linux=$2
zip=${3:-}
scripts=$(cd "$(dirname "$0")" && pwd)

work=$(mktemp -d)
# Wine takes this system's names by its locale.
export LC_ALL=C.UTF-8
export WINEPREFIX=$work/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='
trap 'wineserver -k || true; rm -rf "$work"' EXIT
# It is made once, before several programs want it.
wine wineboot --init

ctest --test-dir "$build" --output-on-failure -j"$(nproc)"
"$scripts/compare-windows.py" "$linux" "$build/bin"

[[ -n $zip ]] || exit 0
# From a folder with a name that is nothing special on Windows.
place="$work/Bjørn & søn (ikoner)"
mkdir "$place"
unzip -q "$zip" -d "$place"
cd "$place"/*/
wine orbelle-cli.exe --version | tr -d '\r'
wine orbelle.exe --version | tr -d '\r'
wine orbelle-cli.exe --script samples/speech-bubble.txt
wine cmd /c 'register.cmd' > /dev/null
wine reg query 'HKCU\Software\Classes\VarnelOrbelle.Document\shell\open\command' /ve | grep -q 'orbelle.exe.*%1'
wine cmd /c 'register.cmd /undo' > /dev/null
! wine reg query 'HKCU\Software\Classes\VarnelOrbelle.Document' > /dev/null 2>&1
# The window, which uses all of the toolkit; a program that crashes asks what to do.
xvfb-run -a timeout -k 5 60 wine "$build/bin/orbelle-screenshot.exe" window.png samples/envelope.volf
[[ -s window.png ]]
