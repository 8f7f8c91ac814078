#!/usr/bin/env bash
# scripts/format.sh: formats every C++ file in place.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

install_packages test
find . -path ./build -prune -o -path ./.git -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 \
    | xargs -0 -r clang-format -i
