#!/usr/bin/env bash
# Starts the designer on an X display of its own, answers its question with OK and waits for its window: no
# offscreen test can tell that the real one comes up.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

if [[ "${SMOKE_DISPLAY:-}" != own ]]; then
  need_packages "${BUILD_PACKAGES[@]}" xvfb xauth xdotool
  build release veneerer
  exec env SMOKE_DISPLAY=own xvfb-run -a -s "-screen 0 1600x1200x24" "$0" "$@"
fi

# The id of the first window of that title, waited for.
wait_for() { timeout 60 xdotool search --sync --onlyvisible --name "$1" | head -n 1; }

folder=$(mktemp -d)
trap 'kill "$designer" 2>/dev/null || true; rm -rf "$folder"' EXIT
cp -r Skins images "$folder"
XDG_CONFIG_HOME=$folder build/release/src/veneerer --program-folder "$folder" &
designer=$!

xdotool windowfocus --sync "$(wait_for 'Load Current Skin')" key Return
wait_for '. Veneerer$' >/dev/null
kill -0 "$designer"
echo "The Skin stands on the canvas"
