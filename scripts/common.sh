# shellcheck shell=bash
# Shared by the scripts; sourced, not run. Wants `set -euo pipefail`.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
logs=$root/build/logs
mkdir -p "$logs"

say() {
    printf '== %s\n' "$*"
}

fail() {
    printf '!! %s\n' "$*" >&2
    exit 1
}

# step NAME WHAT COMMAND...
# Runs one step with its output in a log of that name; a failure names the step and the log and ends the script.
step() {
    local log=$logs/$1.log what=$2 begun=$SECONDS
    shift 2
    say "$what"
    if ! "$@" >"$log" 2>&1 </dev/null; then
        tail -n 40 "$log" >&2
        fail "failed: $what. The whole log is $log"
    fi
    printf '   done in %d s\n' $((SECONDS - begun))
}

# The same for a step whose output is worth watching.
step_shown() {
    local log=$logs/$1.log what=$2 begun=$SECONDS
    shift 2
    say "$what"
    if ! "$@" 2>&1 </dev/null | tee "$log"; then
        fail "failed: $what. The whole log is $log"
    fi
    printf '   done in %d s\n' $((SECONDS - begun))
}

is_installed() {
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif [ -t 0 ]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

apt() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 "$@"
}

# install_packages TAG...: installs what packages.txt lists under these tags and the system lacks.
install_packages() {
    local tags missing=() package
    if ! command -v apt-get >/dev/null; then
        say "No apt-get here: scripts/packages.txt lists what has to be installed"
        return
    fi
    tags=$(IFS='|'; echo "$*")
    for package in $(sed -nE "s/^($tags) //p" "$root/scripts/packages.txt" | sort -u); do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        fail "not root and no sudo; install these first: ${missing[*]}"
    fi
    if [ "$(id -u)" != 0 ] && [ -t 0 ]; then
        say "sudo may ask for a password"
        sudo -v || fail "these packages are missing: ${missing[*]}"
    fi
    step packages-update "Updating the list of packages" apt update
    step packages "Installing ${#missing[@]} packages: ${missing[*]}" \
        apt install --yes --no-install-recommends "${missing[@]}"
}
