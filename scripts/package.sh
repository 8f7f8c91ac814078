#!/usr/bin/env bash
# scripts/package.sh
#
# Installs what is missing, builds the release and makes the Debian package of it under build/packages/.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

[ "${1-}" != --help ] || { sed -n '2,4s/^# \{0,1\}//p' "$0"; exit 0; }
install_packages build package
step configure-release "Configuring (release)" cmake --preset release
step build-release "Building (release)" cmake --build --preset release
step package "Packaging" cpack --config build/release/CPackConfig.cmake -B build/packages
say "$(ls "$root"/build/packages/*.deb)"
