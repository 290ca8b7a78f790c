#!/usr/bin/env bash
# Prints the peak memory and the time of opening large and hostile files of each kind: at most 500 MB (488281 KiB) and, on a
# machine that has nothing else to do, two seconds each; drawings, which their program draws for five seconds of the processor at
# most, six. Usage: memory-of-open.sh [BUILD FOLDER, build/release if not said]; needs cwebp and 4 GB in the temporary folder.
set -euo pipefail
cd "$(dirname "$0")/.."
program=$PWD/${1:-build/release}/bin/orbelle-cli

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cc -O1 -o "$folder/make" scripts/make-big-jpegs.c -ljpeg -lgif
mkdir "$folder/files"
"$folder/make" "$folder/files"
scripts/make-big-files.py "$folder/files"
cwebp -quiet -m 0 -q 80 "$folder/files/camera.png" -o "$folder/files/camera.webp"
cwebp -quiet -z 0 "$folder/files/camera.png" -o "$folder/files/lossless.webp"
cwebp -quiet -m 0 -q 80 "$folder/files/speckles.png" -o "$folder/files/alpha.webp"

failures=0
printf '%-28s %8s %6s %6s %7s  %s\n' file KiB s CPU status told
for file in "$folder"/files/*; do
    status=0
    # Read once before, so that the disk does not count.
    cat "$file" >/dev/null
    /usr/bin/time -f '%M %e %U %S' -o "$folder/measured" "$program" open "$file" 2>"$folder/told" || status=$?
    read -r peak seconds user system < <(tail -n 1 "$folder/measured")
    cpu=$(awk "BEGIN { print $user + $system }")
    told=$(sed "s|^orbelle-cli: open $file: ||" "$folder/told" | cut -c 1-70)
    printf '%-28s %8s %6s %6s %7s  %s\n' "${file##*/}" "$peak" "$seconds" "$cpu" "$status" "$told"
    most=2
    [[ $file != *.svg ]] || most=6
    if [ "$peak" -gt 488281 ] || [ "${seconds%.*}" -ge "$most" ]; then
        failures=$((failures + 1))
    fi
done
echo "$failures above the bounds"
[ "$failures" -eq 0 ]
