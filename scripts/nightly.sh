#!/usr/bin/env bash
# scripts/nightly.sh
#
# What takes too long for each change: every test under the sanitizers, clang-tidy over everything, the fuzzers for an hour,
# the long tests of faults, the mutants. Goes on after a part that failed; prints a line for each and ends with 1 when one did.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

case ${1-} in
    --help) sed -n '2,5s/^# \{0,1\}//p' "$0"; exit 0 ;;
esac
failed=0
verdicts=()

part() {
    local what=$1 begun=$SECONDS verdict=held
    shift
    say "$what"
    "$@" || { verdict=FAILED; failed=1; }
    verdicts+=("$(printf '%-32s %6d s  %s' "$what" $((SECONDS - begun)) "$verdict")")
}

part "Tests under sanitizers" scripts/test.sh --asan
part "Linter over everything" scripts/lint.sh
part "Fuzzers, 450 s each" scripts/fuzz.sh 450
part "Long tests of faults" scripts/faults.sh
part "Mutants" scripts/mutants.sh
printf '%s\n' "${verdicts[@]}"
exit $failed
