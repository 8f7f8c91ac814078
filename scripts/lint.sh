#!/usr/bin/env bash
# scripts/lint.sh [PATTERN]
#
# Runs clang-tidy over the sources of the dev build whose path matches the pattern, by default all of them, and lets a
# Windows compiler read the library that has code for Windows.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

install_packages build test lint
step windows "Reading platform/framework for Windows" \
    x86_64-w64-mingw32-g++-posix -std=c++20 -Wall -Wextra -Werror -fsyntax-only platform/framework/*.cpp
# The sources include what the build generates.
step configure-dev "Configuring (dev)" cmake --preset dev
step build-dev "Building (dev)" cmake --build --preset dev
step_shown lint "Running clang-tidy" \
    run-clang-tidy -quiet -p build/dev -extra-arg=-Wno-unknown-warning-option -j "$(nproc)" "^$root/(?!build/).*${1-}"
