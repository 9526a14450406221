#!/usr/bin/env bash
# Makes the pictures of the manual anew from the real windows, on an X display of its own: docs/manual/images.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

if [[ "${PICTURES_DISPLAY:-}" != own ]]; then
  need_packages "${BUILD_PACKAGES[@]}" xvfb xauth imagemagick
  build release manualpictures skintool
  exec env PICTURES_DISPLAY=own xvfb-run -a -s "-screen 0 1366x768x24" "$0" "$@"
fi

readonly TARGET=docs/manual/images
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/pictures"
cp -r Skins images "$folder"
build/release/tests/manualpictures manual "$folder" "$folder/pictures"
build/release/src/skintool buttons --to "$folder/pictures/buttons.png"

# A palette makes them a third as large; nothing of when they were made is left in them.
for picture in "$folder"/pictures/*.png; do
  convert "$picture" -resize '1000x1000>' -strip -dither None -colors 64 -define png:compression-level=9 \
    -define png:exclude-chunks=date,time "png8:$TARGET/$(basename "$picture")"
done
ls -l "$TARGET"
