#!/usr/bin/env bash
# What the programs take as processes, each beside the least program that has an application and measures a font.
#   tools/processes.sh [RUNS]    so many runs of each in each of three series; 15 without it
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" python3
cmake --preset release -DVENEERER_BENCH=ON >/dev/null
build release least start skintool
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

tool=build/release/src/skintool
default="'Skins/Black_and_Blue_gif_V8.0(800x600)'"
wide="'Skins/Daylight_Wide(1920x1080)'"
mkdir "$folder/Skins"
"$tool" new "$folder/Skins/Huge(3840x2160)" --look "Black and Blue" --size 3840x2160
echo "load of the machine: $(cut -d ' ' -f 1-3 /proc/loadavg)"
tools/processes.py "${1:-15}" \
  "least program" build/release/bench/least \
  "skintool --version" "$tool --version" \
  "skintool dump" "$tool dump $default" \
  "skintool check" "$tool check $default" \
  "designer" "build/release/bench/start $default" \
  "designer, 3840x2160" "build/release/bench/start '$folder/Skins/Huge(3840x2160)'"
tools/processes.py 3 \
  "least program" build/release/bench/least \
  "skintool render, 32 screens of 1920x1080" "$tool render $wide --to $folder/screens"
