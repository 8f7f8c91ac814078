#!/usr/bin/env bash
# scripts/mutants.sh [--closest] [--list FILE] [PATTERN]
#
# Puts faults into a copy of the project, one at a time, and sees whether a test turns red: those of tests/mutants/, or of
# another list, whose heading matches the pattern. Prints each as caught or survived and the score of each folder. Ends with 1
# when fewer than 95 % were caught.
#   --closest  runs the tests that look at a fault's folder alone: quicker, and what survives may be caught by others
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

case ${1-} in
    --help) sed -n '2,7s/^# \{0,1\}//p' "$0"; exit 0 ;;
esac
install_packages build test
exec /usr/bin/python3 -B "$root/scripts/mutants.py" "$root" "$@"
