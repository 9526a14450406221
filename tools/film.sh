#!/usr/bin/env bash
# Shoots the film of a minute's work anew from the real windows, on an X display of its own: docs/images/film.webp.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

if [[ "${PICTURES_DISPLAY:-}" != own ]]; then
  need_packages "${BUILD_PACKAGES[@]}" xvfb xauth imagemagick webp
  build release manualpictures
  exec env PICTURES_DISPLAY=own xvfb-run -a -s "-screen 0 1366x768x24" "$0" "$@"
fi

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/frames"
cp -r Skins images "$folder"
build/release/tests/manualpictures film "$folder" "$folder/frames"

frames=()
for frame in "$folder"/frames/*.png; do
  convert "$frame" -resize 960x "$frame"
  hundredths=${frame##*-}
  frames+=(-lossy -q 55 -m 6 -d "${hundredths%.png}0" "$frame")
done
img2webp -loop 0 "${frames[@]}" -o docs/images/film.webp >/dev/null
ls -l docs/images/film.webp
