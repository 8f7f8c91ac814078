#!/usr/bin/env bash
# scripts/pictures.sh [--all]
#
# Takes a picture of every window, menu and box of the program: on light, dark and high-contrast desktops, in several
# languages, scales and sizes of screen; with --all in every combination of them. The pictures come under build/pictures/,
# all of them on one sheet, sheet.png.
set -euo pipefail
. "$(dirname "$0")/common.sh"
cd "$root"

out=$root/build/pictures
thumbnail=300x225

# take SCREEN SCALE DESKTOP LANGUAGE
take() {
    local name=$3-$4-$1-x$2
    mkdir -p "$out/$name"
    "$root/scripts/isolated.sh" --screen "$1" -- env QT_SCALE_FACTOR="$2" \
        "$root/build/dev/tests/tarrow-picturebook" "$out/$name" "$3" "$4"
}

take_some() {
    local desktop language
    for desktop in light dark contrast-light contrast-dark; do
        take 1920x1080 1 "$desktop" en
    done
    for language in $languages; do
        take 1366x768 1 light "$language"
    done
    take 1366x768 1.5 dark de
    take 1366x768 2 light de
    take 1920x1080 2 dark ja
}

take_all() {
    local desktop screen scale language
    for desktop in light dark contrast-light contrast-dark; do
        for screen in 1366x768 1920x1080; do
            for scale in 1 1.5 2; do
                for language in en $languages; do
                    take "$screen" "$scale" "$desktop" "$language"
                done
            done
        done
    done
}

# One row for each run, one column for each window.
lay_out_sheet() {
    local run count
    count=$(find "$out" -mindepth 2 -name '*.png' | sed 's|.*/||' | sort -u | wc -l)
    for run in "$out"/*/; do
        montage -label '%t' "$run"*.png -tile "${count}x1" -geometry "$thumbnail+4+4" -title "$(basename "$run")" \
            "${run%/}.row.png"
    done
    convert "$out"/*.row.png -append "$out/sheet.png"
    rm "$out"/*.row.png
}

case ${1-} in
    --all) which=take_all ;;
    '') which=take_some ;;
    --help) sed -n '2,6s/^# \{0,1\}//p' "$0"; exit 0 ;;
    *) fail "nothing is known of $1" ;;
esac
languages=$(find translations -name 'tarrow_*.ts' | sed 's/.*tarrow_\(.*\)\.ts/\1/' | sort)
install_packages build test demo
step configure-dev "Configuring (dev)" cmake --preset dev
step build-dev "Building the picture book" cmake --build --preset dev --target tarrow-picturebook
rm -rf "$out"
say "Taking pictures"
$which
lay_out_sheet
say "$(find "$out" -mindepth 2 -name '*.png' | wc -l) pictures, on one sheet in $out/sheet.png"
