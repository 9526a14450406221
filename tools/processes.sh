#!/usr/bin/env bash
# What the programs take as processes, each beside the least program that has an application and measures a font.
#   tools/processes.sh [RUNS]    so many runs of each in each of three series; 15 without it
# Behind that 200 Skins, or SKINS of them, one after the other and at once.
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

# Beside each other 200 Skins should take by the clock what they take one after the other, by the cores, and a tenth.
mkdir "$folder/many"
for ((i = 1; i <= ${SKINS:-200}; i++)); do cp -r "${default//\'/}" "$folder/many/$i"; done
cd "$folder/many"
tool=$OLDPWD/$tool
screens='--only \"Main Screen\" --only \"Track Listing Screen\"'
echo "cores: $(nproc)"
"$OLDPWD/tools/processes.py" 1x3 \
  "least program" "$OLDPWD/build/release/bench/least" \
  "skintool check, 200 Skins one by one" "sh -c \"for skin in *; do $tool check \$skin; done\"" \
  "skintool check, 200 Skins at once" "sh -c \"$tool check *\"" \
  "skintool render, 2 screens each, one by one" "sh -c \"for skin in *; do $tool render \$skin --to ../out $screens; done\"" \
  "skintool render, 2 screens each, at once" "sh -c \"$tool render * --to ../out $screens\""
