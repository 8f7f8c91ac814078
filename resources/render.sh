#!/bin/sh
# Draws the PNG pictures from the SVG files beside them, each at its own size and, as "@2x", at twice that size for
# dense screens, and the program's icon at the sizes that desktops ask for. Run it after editing a picture and commit what it writes. Needs rsvg-convert (package librsvg2-bin)
# and, for the lettering of the splash, the package fonts-lato.
set -eu
cd "$(dirname "$0")/pictures"
find . -name '*.svg' | while IFS= read -r svg; do
    name=${svg%.svg}
    rsvg-convert --zoom 1 --output "$name.png" "$svg"
    rsvg-convert --zoom 2 --output "$name@2x.png" "$svg"
done
cd ../../packaging/icons
for size in 16 22 24 32 48 64 128 256; do
    rsvg-convert --width $size --height $size --output tarrow-alertor-$size.png ../../resources/icons/mainIcon.svg
done
