#!/usr/bin/env bash
# Brings the texts of the sources into the translations; with --check it changes nothing and fails where a
# translation isn't what that would make of it, or where a text waits for its translator.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}"

# The files stay alike as long as the texts do: no lines of the sources stand in them, and no text that is gone.
update() {
  /usr/lib/qt6/bin/lupdate -silent -locations none -no-obsolete -no-ui-lines \
    -disable-heuristic sametext -disable-heuristic similartext -I src src -ts "$@"
}

if [[ "${1:-}" != --check ]]; then
  update translations/*.ts
  exit
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp translations/*.ts "$folder"
update "$folder"/*.ts
failed=0
for file in translations/*.ts; do
  diff -u "$file" "$folder/${file##*/}" || failed=1
  if grep -n 'type="' "$file"; then failed=1; fi
done
((failed == 0)) || echo "Run tools/translations.sh and finish what it leaves unfinished." >&2
exit "$failed"
