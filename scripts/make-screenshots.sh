#!/usr/bin/env bash
# make-screenshots.sh states FOLDER [LOCALE]: pictures of everything that the program shows, light and
# dark, at 100, 150 and 200 %, to be looked at: FOLDER/LOOKS-SCALE/STATE.png, and a sheet of each. In
# English, or the language of the locale ("de"). Without a display.
#
# make-screenshots.sh: takes the pictures of docs/pictures from the real window, on a display of its
# own, at 100 % and 200 %. Needs a built tree, Xvfb, xdotool and ImageMagick.
set -euo pipefail
cd "$(dirname "$0")/.."
bin=$PWD/build/release/bin
pictures=$PWD/docs/pictures
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$work"' EXIT

if [[ ${1-} == states ]]; then
    for looks in light dark; do
        for scale in 1 1.5 2; do
            folder=$2/$looks-$scale
            mkdir -p "$folder" "$work/$looks-$scale"
            env HOME="$work/$looks-$scale" XDG_CONFIG_HOME="$work/$looks-$scale" \
                QT_SCALE_FACTOR=$scale QT_LOGGING_RULES='*.debug=false' \
                "$bin/window_pictures" "$folder" "$PWD/samples" $looks "${3:-en}" 2>/dev/null
            montage "$folder/*.png[360x280]" -background '#777' -geometry 360x280+6+6 -tile 6x \
                "$folder-sheet.png"
        done
    done
    exit
fi

for tool in Xvfb xdotool import mogrify; do
    command -v "$tool" >/dev/null || { echo "make-screenshots: $tool is missing" >&2; exit 1; }
done

# Pixels of the window at 100 %.
width=1100 height=760

export XDG_RUNTIME_DIR=$work/run DBUS_SESSION_BUS_ADDRESS=disabled: QT_QPA_PLATFORM=xcb LANGUAGE=en
mkdir -m 700 "$work/run"

start_display() { # SCALE
    scale=$1
    export QT_SCALE_FACTOR=$scale
    Xvfb -displayfd 3 -screen 0 $((width * scale))x$(((height + 40) * scale))x24 -nolisten tcp \
        3>"$work/display" 2>/dev/null &
    display=$!
    until [[ -s $work/display ]]; do sleep 0.1; done
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
}

# A home whose user has all panels open, tips on and two colours.
make_home() { # FIRST|USED
    home=$work/home-$RANDOM
    mkdir "$home"
    export HOME=$home XDG_CONFIG_HOME=$home XDG_CACHE_HOME=$home
    printf '%s\n' '[General]' MainTop=1 "MainWidth=$width" "MainHeight=$height" \
        >"$home/OrbelleWork.conf"
    [[ $1 == USED ]] || return 0
    printf '%s\n' isQuick=-1 CtlTitle1=-1 CtlTitle2=-1 CtlTitle3=-1 CtlTitle5=-1 \
        CtlTitle6=-1 "TipsControl=${2:-0}" 'ForeColor0="255,208,48,48"' \
        'ForeColor1="255,40,90,200"' CtlScroll22=100 CtlScroll23=20 SizesClosed=1 Width=256 Height=256 \
        >>"$home/OrbelleWork.conf"
}

start_program() { # [FILE]
    "$bin/orbelle" "$@" &
    program=$!
    sleep 2.2
    focus 'Varnel Orbelle'
}

focus() { # TITLE
    xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -1 |
        xargs -r xdotool windowfocus --sync 2>/dev/null || true
}

stop_program() {
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
}

at() { echo $(($1 * scale)) $(($2 * scale)); }
click() { xdotool mousemove $(at "$1" "$2") click "${3:-1}"; sleep 0.3; }
take() { # NAME
    sleep 0.5
    local suffix=
    [[ $scale == 1 ]] || suffix=-200
    taken=$pictures/$1$suffix.png
    import -window root -crop $((width * scale))x$(((height - 2) * scale))+0+"$scale" +repage "$taken"
}

menu() { # LETTER...
    xdotool key "alt+$1"
    for letter in "${@:2}"; do
        sleep 0.3
        xdotool key "$letter"
    done
    sleep 0.8
}

# The panel of sizes on each of its grounds, below each other.
take_grounds() { # FILE
    local ground strips=()
    for ground in 0 1 2 3 4; do
        make_home USED
        sed -i /SizesClosed/d "$home/OrbelleWork.conf"
        printf '%s\n' "SizesGround=$ground" >>"$home/OrbelleWork.conf"
        start_program "$1"
        xdotool mousemove $(at 500 200)
        take sizes-grounds
        mogrify -crop $((796 * scale))x$((196 * scale))+$((40 * scale))+$((453 * scale)) +repage "$taken"
        strips+=("$work/ground-$ground.png")
        mv "$taken" "${strips[-1]}"
        stop_program
    done
    convert "${strips[@]}" -append "$taken"
}

pictures_at() { # SCALE
    start_display "$1"

    make_home FIRST
    "$bin/orbelle" &
    program=$!
    take welcome
    # Only the small window, not the black around it.
    mogrify -trim +repage "$taken"
    sleep 1
    take first-start
    stop_program

    make_home USED
    start_program "$PWD/samples/ok-badge.volf"
    xdotool mousemove $(at 500 700)
    take layers
    click 19 216
    take fill-kinds
    click 19 104
    take selection-kinds
    click 19 326
    click 58 326
    sleep 1.2
    xdotool mousemove $(at 420 330) mousemove $(at 424 334)
    take brush-eraser
    focus 'Varnel Orbelle|ok-badge'
    xdotool key ctrl+n
    take new-icon
    xdotool key Escape
    focus 'Varnel Orbelle|ok-badge'
    xdotool mousemove $(at 367 714) click --repeat 2 --delay 60 1
    sleep 0.5
    focus 'Foreground Color'
    take color-dialog
    xdotool key Escape
    focus 'Varnel Orbelle|ok-badge'
    xdotool key v
    click 430 380
    xdotool key Right
    xdotool key ctrl+q
    take save-prompt
    stop_program

    make_home USED 1
    start_program "$PWD/samples/glass-folder.volf"
    click 19 241
    take tips
    stop_program

    # An icon with images to choose from.
    "$bin/orbelle-cli" open samples/ok-badge.volf \
        icon-sizes 256 128 96 64 48 32 24 16 export "$work/badge.ico"
    make_home USED
    start_program "$work/badge.ico"
    take icon-images
    stop_program

    make_home USED
    sed -i /SizesClosed/d "$home/OrbelleWork.conf"
    start_program "$PWD/samples/ok-badge.volf"
    click 428 612
    xdotool mousemove $(at 500 200)
    take sizes
    click 428 612 3
    xdotool key s
    sleep 1
    take suggest
    stop_program
    take_grounds "$PWD/samples/ok-badge.volf"

    make_home USED
    sed -i /SizesClosed/d "$home/OrbelleWork.conf"
    start_program "$PWD/samples/ok-badge.volf"
    menu t c
    take check
    stop_program

    make_home USED
    printf '%s\n' 'IconSets="windows,macos,linux,web,android,ios"' "IconSetsFolder=/home/ann/icons" \
        >>"$home/OrbelleWork.conf"
    start_program "$PWD/samples/ok-badge.volf"
    menu f e s
    take icon-set
    stop_program

    "$bin/orbelle-cli" svg-size 32 open "$work/arrow.svg" save "$work/arrow.volf"
    make_home USED
    start_program "$work/arrow.volf"
    menu f e c
    xdotool type --delay 5 "$work/arrow.cur"
    xdotool key Return
    sleep 0.5
    focus 'Hot Spot'
    xdotool key --repeat 4 Right
    xdotool key --repeat 2 Down
    take hot-spot
    stop_program

    make_home USED
    start_program "$PWD/samples/leaf.png"
    menu f e g
    xdotool type --delay 5 "$work/leaf.gif"
    xdotool key Return
    take gif-optimizer
    stop_program

    kill "$display"
    wait "$display" 2>/dev/null || true
    rm "$work/display"
}

mkdir -p "$pictures"
cat >"$work/arrow.svg" <<'EOF'
<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32"><path
 d="M4.5 2.5v22l5.5-5 4 9.5 4-1.7-4-9.3h7.5z" fill="#282c34" stroke="#fff" stroke-width="1.6"/></svg>
EOF
pictures_at 1
pictures_at 2
cp "$pictures/layers.png" docs/screenshot.png
