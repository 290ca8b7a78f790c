#!/usr/bin/env bash
# check-package.sh BUILD: makes the Debian package of a build folder and checks it: lintian has
# nothing to say, the programs are hardened, the one that draws SVG files is found, the manual page
# knows every verb.
set -euo pipefail
cd "$1"
fail() {
    echo "check-package: $*" >&2
    exit 1
}

rm -rf package
cpack -G DEB -B package >package.log || { cat package.log >&2; fail "cpack failed"; }
deb=$(ls package/*.deb)
lintian --allow-root --fail-on error,warning "$deb"

dpkg-deb -x "$deb" package/root
for program in package/root/usr/bin/* package/root/usr/libexec/orbelle/*; do
    facts=$(readelf --file-header --segments --dynamic --dyn-syms --wide "$program")
    for fact in 'DYN (Position-Independent' GNU_RELRO 'Flags: NOW PIE' __stack_chk_fail; do
        [[ $facts == *"$fact"* ]] || fail "$program lacks $fact"
    done
    # Of the calls that are checked this one stands in every program but the one that draws.
    [[ $facts == *__memcpy_chk* || $program == */orbelle-svg ]] || fail "$program lacks __memcpy_chk"
    [[ $facts =~ GNU_STACK[^R]*RW\  ]] || fail "the stack of $program can be executed"
done

# Not in the build folder, where a program of that name lies beside orbelle-cli.
echo '<svg xmlns="http://www.w3.org/2000/svg" width="3" height="2"><rect width="3" height="2" fill="#c02040"/></svg>' \
    >package/drawing.svg
drawn=$(cd / && "$OLDPWD/package/root/usr/bin/orbelle-cli" svg-size 3 open "$OLDPWD/package/drawing.svg" info) ||
    fail "the package's orbelle-cli draws no SVG file"
[[ $drawn == *'"width":3,"height":2'* ]] || fail "an SVG file became $drawn"

page=$(zcat package/root/usr/share/man/man1/orbelle-cli.1.gz)
for verb in $(package/root/usr/bin/orbelle-cli --help | awk '/^Verbs/ { verbs = 1; next } verbs && NF { print $1 }'); do
    [[ $page == *"\\fB${verb//-/\\-}\\fR"* ]] || fail "orbelle-cli(1) does not know $verb"
done

dpkg-deb -c "$deb" | awk '{ print $1, $6 }'
