#!/usr/bin/env bash
# scripts/lint.sh [--changed] [PATTERN]
#
# Runs clang-tidy over the sources of the dev build whose path matches the pattern, by default all of them.
#   --changed  those alone that differ, or whose header does, from the last tag, or from ten commits ago where there is none
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

changed=no
case ${1-} in
    --changed) changed=yes; shift ;;
    --help) sed -n '2,5s/^# \{0,1\}//p' "$0"; exit 0 ;;
esac
pattern="^$root/(?!build/).*${1-}"

# What to lint of what changed, as one pattern; nothing when that is nothing.
changed_sources() {
    local since
    since=$(git describe --tags --abbrev=0 2>/dev/null) || since=$(git rev-list -n 11 HEAD | tail -n 1)
    git diff --name-only "$since" -- '*.cpp' '*.h' | sed -n 's/\.\(cpp\|h\)$//p' | sort -u | paste -s -d '|'
}

install_packages build test lint
# The sources include what the build generates.
step configure-dev "Configuring (dev)" cmake --preset dev
step build-dev "Building (dev)" cmake --build --preset dev
if [ $changed = yes ]; then
    names=$(changed_sources)
    [ -n "$names" ] || { say "No source has changed"; exit 0; }
    pattern="^$root/($names)\\.cpp$"
fi
lint() {
    local log=$logs/lint.log
    run-clang-tidy -quiet -p build/dev -extra-arg=-Wno-unknown-warning-option -j "$(nproc)" "$pattern" | tee "$log"
    # A pattern that matches nothing has not linted anything.
    say "$(grep -c '^clang-tidy' "$log") sources were linted"
}
step_shown lint-run "Running clang-tidy" lint
