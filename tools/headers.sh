#!/usr/bin/env bash
# Compiles every header of src alone, so that none leans on what its users happen to include before it. Each
# becomes an object of its own, which ccache knows again when nothing of it has changed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}"
qt=$(qmake6 -query QT_INSTALL_HEADERS)
options=(-std=c++20 -O0 -c -fPIC -DQT_NO_KEYWORDS -DQT_NO_CAST_TO_ASCII -Isrc -isystem "$qt")
for module in QtCore QtGui QtWidgets QtConcurrent; do options+=(-isystem "$qt/$module"); done
# Its folder bears its version.
for folder in /usr/include/QuaZip-Qt6-*; do options+=(-isystem "$folder"); done
work=build/headers
mkdir -p "$work"
# A source for each, written only when it is new, and the same in every checkout.
while read -r header; do
  source=$work/${header//\//_}.cpp
  [[ -f "$source" ]] || echo "#include \"${header#src/}\"" >"$source"
done < <(find src -name '*.h')
find src -name '*.h' | sed "s|/|_|g; s|.*|$work/&.cpp|" |
  xargs -P "$(nproc)" -I{} ccache g++ "${options[@]}" {} -o {}.o
