#!/usr/bin/env bash
# Makes the sample documents again: runs each samples/*.txt and keeps the .volf that it saves.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$root"/samples/*.png "$work"
cd "$work"
for script in "$root"/samples/*.txt; do
    "$root/build/release/bin/orbelle-cli" --script "$script"
done
mv -- *.volf "$root/samples"
