#!/usr/bin/env bash
# update-translations.sh [FILE...]: takes the texts of the window that are new into translations/*.ts, or
# into these files, and those that are gone out of them. LUPDATE is the toolkit's program for it.
set -euo pipefail
cd "$(dirname "$0")/.."
[[ $# -gt 0 ]] || set -- translations/*.ts
for file in "$@"; do
    # It does not know the namespaces of our functions, and says so.
    "${LUPDATE:-/usr/lib/qt6/bin/lupdate}" -silent -locations none -no-obsolete -no-ui-lines \
        -I src src/app src/widgets -ts "$file" 2> >(grep -v 'unknown namespace/class' >&2 || true)
done
