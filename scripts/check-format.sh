#!/usr/bin/env bash
# check-format.sh: all sources stand as clang-format would put them. `clang-format -i FILE` mends one.
set -euo pipefail
cd "$(dirname "$0")/.."

git ls-files -z -- '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror
