#!/usr/bin/env bash
# fetch-sources.sh FOLDER PACKAGE...: unpacks Debian's source packages, with Debian's patches, each
# into FOLDER/PACKAGE. Neither the system's package lists nor its sources change.
set -euo pipefail
folder=$(mkdir -p "$1" && cd "$1" && pwd)
shift

# Where the system has its packages from, but the sources; and its lists in a place of their own.
mkdir -p "$folder/apt/sources" "$folder/apt/lists/partial" "$folder/packages"
for file in /etc/apt/sources.list.d/*.sources; do
    [[ -e $file ]] || continue
    awk 'BEGIN { RS = ""; ORS = "\n\n" }
         /Suites:[^\n]* bookworm/ { sub(/(^|\n)Types:[^\n]*/, "\nTypes: deb-src"); print }' "$file" \
        > "$folder/apt/sources/$(basename "$file")"
done
{ cat /etc/apt/sources.list /etc/apt/sources.list.d/*.list 2>/dev/null || true; } |
    sed -nE 's/^deb (.* bookworm)/deb-src \1/p' > "$folder/apt/sources/list.list"
apt=(-o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$folder/apt/sources"
    -o "Dir::State::lists=$folder/apt/lists" -o APT::Sandbox::User=)
apt-get "${apt[@]}" -qq update

cd "$folder/packages"
for package in "$@"; do
    # A mirror may not have the newest yet.
    versions=$(apt-cache "${apt[@]}" showsrc --only-source "$package" | sed -n 's/^Version: //p' |
        sort -ru --version-sort)
    for version in $versions; do
        apt-get "${apt[@]}" -qq source --download-only "$package=$version" && break
        echo "fetch-sources: there is no $package $version" >&2
    done
    file=$package\_${version#*:}
    rm -rf "${folder:?}/$package"
    if ! dpkg-source --no-check -x "$file.dsc" "$folder/$package" > "$file.log" 2>&1; then
        cat "$file.log" >&2
        rm -rf "${folder:?}/$package"
        echo "fetch-sources: $package is taken without Debian's patches" >&2
        mkdir "$folder/$package"
        tar -xf "$package"_*.orig.tar.?z -C "$folder/$package" --strip-components=1
    fi
done
