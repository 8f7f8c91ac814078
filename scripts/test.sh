#!/usr/bin/env bash
# scripts/test.sh [--asan] [CTEST-OPTION...]
#
# Installs what is missing, builds everything and runs every test.
#   --asan   with the address and undefined-behaviour sanitizers
# Further options go to ctest, for example: -R tst_net
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

preset=dev
case ${1-} in
    --asan) preset=asan; shift ;;
    --help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
esac

check_format() {
    find . -path ./build -prune -o -path ./.git -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 \
        | xargs -0 -r clang-format --dry-run -Werror
}

install_packages build test
step format "Checking the formatting" check_format
step configure-$preset "Configuring ($preset)" cmake --preset "$preset"
step build-$preset "Building ($preset)" cmake --build --preset "$preset"
step headers-$preset "Checking that every header stands alone" \
    cmake --build --preset "$preset" --target all_verify_interface_header_sets
step_shown test-$preset "Running the tests" ctest --preset "$preset" --parallel "$(nproc)" "$@"
say "All tests passed"
