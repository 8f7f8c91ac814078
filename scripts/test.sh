#!/usr/bin/env bash
# scripts/test.sh [--asan] [CTEST-OPTION...]
#
# Installs what is missing, builds everything and runs every test; then sends more eyes over it: the tests that need no
# display under sanitizers, a build by clang, clang-tidy over what changed, the fuzzers for ten seconds each.
#   --asan   every test under the address and undefined-behaviour sanitizers, and no more
# Further options go to ctest, for example: -R tst_net; then the build and those tests are all.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

preset=dev
case ${1-} in
    --asan) preset=asan; shift ;;
    --help) sed -n '2,7s/^# \{0,1\}//p' "$0"; exit 0 ;;
esac

check_format() {
    find . -path ./build -prune -o -path ./.git -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 \
        | xargs -0 -r clang-format --dry-run -Werror
}

run_tests() {
    step configure-$preset "Configuring ($preset)" cmake --preset "$preset"
    step build-$preset "Building ($preset)" cmake --build --preset "$preset"
    step headers-$preset "Checking that every header stands alone" \
        cmake --build --preset "$preset" --target all_verify_interface_header_sets
    step_shown test-$preset "Running the tests" ctest --preset "$preset" --parallel "$(nproc)" "$@"
}

more_eyes() {
    install_packages lint fuzz
    step configure-asan "Configuring (asan)" cmake --preset asan
    step build-asan "Building the tests that need no display (asan)" cmake --build --preset asan --target headless_tests
    step_shown test-asan "Running them under the sanitizers" ctest --preset asan -L headless --parallel "$(nproc)"
    step configure-clang "Configuring (clang)" cmake --preset clang
    step build-clang "Building (clang)" cmake --build --preset clang
    scripts/lint.sh --changed
    scripts/fuzz.sh 10
}

install_packages build test
step format "Checking the formatting" check_format
run_tests "$@"
if [ $preset = dev ] && [ $# -eq 0 ]; then
    more_eyes
    # Once more, at the end: what was run, and that it passed.
    grep 'tests passed' "$logs/test-dev.log" "$logs/test-asan.log" | sed 's/^.*logs\///'
fi
say "All tests passed"
