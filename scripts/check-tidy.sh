#!/usr/bin/env bash
# check-tidy.sh [FOLDER...]: clang-tidy over the sources in these folders, or all of src/ if none is
# given, but for those of Windows, whose headers it has not. Any warning is an error.
set -euo pipefail
cd "$(dirname "$0")/.."
[[ $# -gt 0 ]] || set -- src

cmake --preset tidy >/dev/null
git ls-files -z -- "${@/%/\/*.cpp}" ':!*_windows.cpp' |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy -p build/tidy --quiet \
        2> >(grep -v ' warnings generated' >&2 || true)
