#!/usr/bin/env bash
# Makes the icons of the program and of its documents for Windows again, from their drawings.
set -euo pipefail
resources=$(cd "$(dirname "$0")/../resources" && pwd)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for name in orbelle document; do
    pictures=()
    for size in 256 64 48 32 24 20 16; do
        pictures+=("$work/$name-$size.png")
        "$resources/../build/release/bin/orbelle-cli" \
            svg-size $size open "$resources/$name.svg" export "${pictures[-1]}"
    done
    "$resources/../build/release/bin/orbelle-cli" icon-format png256 combine "$resources/$name.ico" "${pictures[@]}"
done
