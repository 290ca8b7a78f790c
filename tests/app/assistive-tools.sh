#!/usr/bin/env bash
# assistive-tools.sh PROGRAM SAMPLE: runs the window on a display and a bus of its own, and asks it
# what a screen reader would. Ends with 77 where the machine has not what it takes.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
python=/usr/bin/python3
launcher=/usr/libexec/at-spi-bus-launcher

if [[ ${ORBELLE_OWN_BUS-} != yes ]]; then
    for tool in Xvfb dbus-run-session "$launcher" "$python"; do
        command -v "$tool" >/dev/null || { echo "$tool is missing"; exit 77; }
    done
    "$python" -c 'import gi; gi.require_version("Atspi", "2.0")' || exit 77
    ORBELLE_OWN_BUS=yes exec dbus-run-session -- "$0" "$@"
fi

home=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; wait; rm -rf "$home"' EXIT
mkdir -m 700 "$home/run"
export HOME=$home XDG_CONFIG_HOME=$home XDG_CACHE_HOME=$home XDG_STATE_HOME=$home XDG_DATA_HOME=$home
export XDG_RUNTIME_DIR=$home/run QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 LANGUAGE=en
Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp 3>"$home/display" 2>/dev/null &
until [[ -s $home/display ]]; do sleep 0.05; done
DISPLAY=:$(cat "$home/display")
export DISPLAY
"$launcher" --launch-immediately 2>/dev/null &
"$1" "$2" &
"$python" "$here/assistive_tools.py" "$(basename "$2")"
