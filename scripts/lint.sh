#!/usr/bin/env bash
# scripts/lint.sh [PATTERN]
#
# Runs clang-tidy over the sources of the dev build whose path matches the pattern, by default all of them.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

install_packages build test lint
# The sources include what the build generates.
step configure-dev "Configuring (dev)" cmake --preset dev
step build-dev "Building (dev)" cmake --build --preset dev
step_shown lint "Running clang-tidy" \
    run-clang-tidy -quiet -p build/dev -extra-arg=-Wno-unknown-warning-option -j "$(nproc)" "^$root/(?!build/).*${1-}"
