#!/usr/bin/env bash
# check-package.sh BUILD: makes the Debian package of a build folder and checks it: lintian has
# nothing to say, the programs are hardened, the manual page knows every verb.
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
for program in package/root/usr/bin/*; do
    facts=$(readelf --file-header --segments --dynamic --dyn-syms --wide "$program")
    for fact in 'DYN (Position-Independent' GNU_RELRO 'Flags: NOW PIE' __stack_chk_fail __memcpy_chk; do
        [[ $facts == *"$fact"* ]] || fail "$program lacks $fact"
    done
    [[ $facts =~ GNU_STACK[^R]*RW\  ]] || fail "the stack of $program can be executed"
done

page=$(zcat package/root/usr/share/man/man1/orbelle-cli.1.gz)
for verb in $(package/root/usr/bin/orbelle-cli --help | awk '/^Verbs/ { verbs = 1; next } verbs && NF { print $1 }'); do
    [[ $page == *"\\fB${verb//-/\\-}\\fR"* ]] || fail "orbelle-cli(1) does not know $verb"
done

dpkg-deb -c "$deb" | awk '{ print $1, $6 }'
