#!/usr/bin/env bash
# Builds everything into build/release, after installing what that needs.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-dependencies.sh
cmake --preset release
cmake --build --preset release
