#!/bin/sh
# Draws every look in many sizes and random colours: the check must have nothing to say, and a load and save must
# change no byte. usage: tools/looks.sh [SKINTOOL [TRIPLES [SEED]]]; without TRIPLES, the look's colours and 3 more.
set -eu
cd "$(dirname "$0")/.."
tool=${1:-build/release/src/skintool}
triples=${2:-3}
seed=${3:-1}
sizes="640x480 800x600 1024x768 1080x1920 1920x1080 2560x1080 3840x2160"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# One line of options for each triple, the look's own colours first.
colours() {
  echo
  awk -v n="$triples" -v seed="$1" 'BEGIN {
    srand(seed)
    for (i = 0; i < n; ++i)
      printf "--accent #%06x --ground #%06x --text #%06x\n", rand() * 16777215, rand() * 16777215, rand() * 16777215
  }'
}

bad=0
count=0
"$tool" new --look list >"$work/looks"
while read -r look; do
  for size in $sizes; do
    seed=$((seed + 1))
    colours "$seed" >"$work/colours"
    while read -r options; do
      rm -rf "$work/skin" "$work/before"
      # shellcheck disable=SC2086
      "$tool" new "$work/skin" --look "$look" --size "$size" $options 2>/dev/null
      "$tool" check --design "$work/skin" >"$work/findings" || true
      cp -r "$work/skin" "$work/before"
      "$tool" save "$work/skin" --to "$work/skin" >/dev/null
      count=$((count + 1))
      if [ -s "$work/findings" ] || ! diff -r "$work/before" "$work/skin" >"$work/changed"; then
        bad=$((bad + 1))
        echo "$look $size $options"
        head -3 "$work/findings" "$work/changed"
      fi
    done <"$work/colours"
  done
done <"$work/looks"
echo "$count Skins, $bad with findings or changes"
[ "$bad" -eq 0 ]
