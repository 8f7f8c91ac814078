#!/usr/bin/env bash
# scripts/faults.sh
#
# Runs the long form of the tests of faults: 1,000 restarts of the Dispatcher, 1,000,000 events in bursts, 200 requests to
# end at any moment, disks that are full or read-only, a session bus that dies. Prints what each measured and ends with 1
# when one fails.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

case ${1-} in
    --help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
esac

build=$root/build/faults
faults=$root/tests/faults

isolated() {
    "$root/scripts/isolated.sh" --display -- "$@"
}

on_client() {
    local script=$1
    shift
    PYTHONPATH=$root/tests/program isolated /usr/bin/python3 -B "$faults/test_$script.py" "$build/bin/tarrow-alertor" "$build/bin/tarrow-demofarm" "$@"
}

install_packages build test
step configure-faults "Configuring" cmake --preset dev -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo
step build-faults "Building" cmake --build "$build" --target tst_endurance tarrow-alertor tarrow-demofarm
step_shown endurance "Restarts and bursts" \
    env TARROW_ENDURANCE=1 QTEST_FUNCTION_TIMEOUT=3600000 "$root/scripts/isolated.sh" --display -- \
    "$build/tests/tst_endurance"
step_shown signals "Requests to end at any moment" on_client signals 200
step_shown full-disk "Settings on disks that are full or read-only" on_client full_disk
step_shown session-bus "A session bus that dies" on_client session_bus
say "All held"
