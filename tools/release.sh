#!/usr/bin/env bash
# Makes in build/releases/VERSION all that is given away of what is committed: the source archive, the packages, what
# the programs are linked with and under which licences, and the check sums of it all.
#   tools/release.sh
# The version stands in CMakeLists.txt. The changelog of the Debian package must begin with it, and tells the day.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

if [[ -n "$(git status --porcelain)" ]]; then
  echo "There are changes that are not committed:" >&2
  git status --short >&2
  exit 1
fi
need_packages git python3 dpkg-dev
version=$(sed -n 's/^project(Veneerer VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
readonly TARGET=$PWD/build/releases/$version
rm -rf "$TARGET"
mkdir -p "$TARGET"

# package.sh holds the changelog against the version.
tools/package.sh >/dev/null
cp build/packages/*.deb build/packages/*.tar.gz "$TARGET"
git archive --prefix="veneerer-$version/" HEAD | gzip --no-name --best >"$TARGET/veneerer-$version-source.tar.gz"
dpkg-parsechangelog -l packaging/debian/changelog -S Changes | sed '1,3d; s/^ *//' >"$TARGET/CHANGES"
python3 tools/linked.py build/release/src/veneerer build/release/src/skintool >"$TARGET/LINKED"
(cd "$TARGET" && sha256sum -- * >SHA256SUMS)
echo "Release $version of $(git rev-parse --short HEAD) is in $TARGET:"
cat "$TARGET/SHA256SUMS"
