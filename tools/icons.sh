#!/usr/bin/env bash
# Draws the icons of all sizes from the one that scales.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages librsvg2-bin
for size in 16 22 24 32 48 64 128 256 512; do
  rsvg-convert -w "$size" -h "$size" packaging/veneerer.svg -o "packaging/icons/$size.png"
done
