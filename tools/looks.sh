#!/usr/bin/env bash
# Draws every look in many sizes and random colours: the check must have nothing to say, and a load and save must
# change no byte. usage: [SIZES="640x480 1080x1920"] tools/looks.sh [SKINTOOL [TRIPLES [SEED]]]; without TRIPLES, the
# look's colours and 3 more.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
tool=${1:-build/release/src/skintool}
triples=${2:-3}
seed=${3:-1}
sizes=${SIZES:-640x480 800x600 1024x768 1080x1920 1920x1080 2560x1080 3840x2160}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export tool work

# The options of each Skin, a line each: every look in every size, in its own colours and in random ones.
wishes() {
  "$tool" new --look list | awk -v sizes="$sizes" -v triples="$triples" -v seed="$seed" '
    function colour() { return sprintf("#%06x", rand() * 16777215) }
    BEGIN { srand(seed); count = split(sizes, size, " ") }
    {
      for (s = 1; s <= count; ++s)
        for (i = 0; i <= triples; ++i) {
          printf "--look|%s|--size|%s", $0, size[s]
          if (i) printf "|--accent|%s|--ground|%s|--text|%s", colour(), colour(), colour()
          print ""
        }
    }'
}

# Draws one Skin and tells what is wrong with it.
try() {
  local options folder
  IFS='|' read -ra options <<<"$1"
  # Ended from outside, there is no folder any more: nothing must be written elsewhere.
  folder=$(mktemp -d "$work/XXXXXX") || exit 255
  "$tool" new "$folder/skin" "${options[@]}" 2>/dev/null || echo "not drawn" >"$folder/findings"
  "$tool" check --design "$folder/skin" >>"$folder/findings" || true
  cp -r "$folder/skin" "$folder/before"
  "$tool" save "$folder/skin" --to "$folder/skin" >/dev/null
  diff -r "$folder/before" "$folder/skin" >>"$folder/findings" || true
  if [[ -s "$folder/findings" ]]; then
    echo "BAD ${options[*]}"
    head -3 "$folder/findings"
  fi
  rm -rf "$folder"
}
export -f try

wishes >"$work/wishes"
xargs -P "$(nproc)" -d '\n' -I{} bash -c 'try "$1"' _ {} <"$work/wishes" | tee "$work/told"
bad=$(grep -c '^BAD' "$work/told" || true)
echo "$(wc -l <"$work/wishes") Skins, $bad with findings or changes"
((bad == 0))
