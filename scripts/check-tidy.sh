#!/usr/bin/env bash
# check-tidy.sh [--last COMMITS | FOLDER...]: clang-tidy over the sources that so many commits
# touched, by a header too, or over those in the folders, or all of src/; but for those of Windows,
# whose headers it has not. Any warning is an error. All of src/ takes half an hour on two cores.
set -euo pipefail
cd "$(dirname "$0")/.."

own='^src/.*[.]cpp$' windows='_windows[.]cpp$'
if [[ ${1:-} == --last ]]; then
    # In a clone that is not so deep all that it has.
    first=$(git rev-list --first-parent --max-count="$(($2 + 1))" HEAD | tail -1)
    touched=$(git diff --name-only --diff-filter=d "$first" -- src)
    sources=$(grep -E "$own" <<< "$touched" || true)
    # A header is read with the first source that includes it.
    for header in $(grep -E '[.]h$' <<< "$touched"); do
        sources+=$'\n'$(git grep -l -F "#include \"${header#src/}\"" -- 'src/*.cpp' | grep -v "$windows" | head -1 || true)
    done
else
    [[ $# -gt 0 ]] || set -- src
    sources=$(git ls-files -- "${@/%/\/*.cpp}")
fi

cmake --preset tidy > /dev/null
{ grep -v -e "$windows" -e '^$' <<< "$sources" || true; } | sort -u |
    xargs -r -n 1 -P "$(nproc)" clang-tidy -p build/tidy --quiet \
        2> >(grep -v ' warnings generated' >&2 || true)
