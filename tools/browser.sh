#!/usr/bin/env bash
# Visits the web page of a Skin in a headless browser: every menu button and the arrow keys lead where they say.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

# The smaller package where this release of the system has it.
browser=chromium
if apt-cache show chromium-headless-shell >/dev/null 2>&1; then browser=chromium-headless-shell; fi
need_packages "${BUILD_PACKAGES[@]}" "$browser"
build release skintool

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp tests/browser/preview.html "$folder/visit.html"
build/release/src/skintool preview 'Skins/Copper_Lounge(1024x768)' --to "$folder/preview.html"

# Without its protection the browser passes over what comes faster than a hand; the two switches behind that let
# the visiting page look into the frame. Both are files.
"$browser" --headless --no-sandbox --disable-dev-shm-usage \
  --disable-ipc-flooding-protection --allow-file-access-from-files --disable-web-security --user-data-dir="$folder/profile" \
  --virtual-time-budget=60000 --dump-dom "file://$folder/visit.html" \
  >"$folder/visited.html" 2>"$folder/messages" || { cat "$folder/messages" >&2; exit 1; }
if ! grep -q '<pre id="result">all is well</pre>' "$folder/visited.html"; then
  echo "The visit to the page went wrong:" >&2
  sed -n '/<pre id="result">/,$ { p; /<\/pre>/q }' "$folder/visited.html" >&2
  exit 1
fi
echo "Every button and key of the page leads to its screen."
