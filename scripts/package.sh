#!/usr/bin/env bash
# scripts/package.sh
#
# Installs what is missing, builds the release, makes the Debian package of it under build/packages/ and checks that package.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

[ "${1-}" != --help ] || { sed -n '2,4s/^# \{0,1\}//p' "$0"; exit 0; }

# Its programs and modules are hardened, and nothing offends the rules of Debian. The module of the sounds makes no copies
# that could be checked.
check_package() {
    local tree=$root/build/packages/tree hardening="python3 -B $root/tests/packaging/test_hardening.py"
    # shellcheck disable=SC2086
    rm -rf "$tree" && dpkg-deb --extract "$1" "$tree" \
        && find "$tree/usr" -type f -name 'tarrow-*' -perm -u+x -exec $hardening --fortified {} + \
        && find "$tree/usr" -type f -name '*.so' -exec $hardening {} + \
        && lintian --allow-root --fail-on error,warning "$1"
}

install_packages build package
step configure-release "Configuring (release)" cmake --preset release
step build-release "Building (release)" cmake --build --preset release
rm -f build/packages/*.deb
step package "Packaging" cpack --config build/release/CPackConfig.cmake -B build/packages
package=$(echo "$root"/build/packages/*.deb)
step package-check "Checking the package" check_package "$package"
say "$package"
