#!/usr/bin/env bash
# Makes the packages in build/packages: a Debian one, looked over by lintian, and a portable archive, to be
# unpacked anywhere and run there, on the Skins in it and with the libraries of the system.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" dpkg-dev file lintian appstream desktop-file-utils
build release veneerer skintool skinart

readonly TARGET=$PWD/build/packages
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
rm -rf "$TARGET"
mkdir -p "$TARGET"

version=$(build/release/src/skintool --version | awk '{ print $NF }')
said=$(dpkg-parsechangelog -l packaging/debian/changelog -S Version)
if [[ "$said" != "$version" ]]; then
  echo "The changelog tells of $said, the program is $version." >&2
  exit 1
fi
desktop-file-validate packaging/org.veneerer.Veneerer.desktop
appstreamcli validate --no-net build/release/packaging/org.veneerer.Veneerer.metainfo.xml

umask 022
cpack --config build/release/CPackConfig.cmake -G DEB -B "$folder/cpack"
cp "$folder"/cpack/*.deb "$TARGET"
lintian --fail-on error,warning "$TARGET"/*.deb

archive=veneerer-$version-$(uname -m)
cmake --install build/release --prefix "$folder/installed" --strip >/dev/null
mkdir "$folder/$archive"
cp -r "$folder"/installed/bin/* "$folder"/installed/share/veneerer/* LICENSE docs/manual "$folder/$archive"
tar --create --gzip --file "$TARGET/$archive.tar.gz" --directory "$folder" \
  --sort=name --owner=0 --group=0 --numeric-owner "$archive"
(cd "$TARGET" && sha256sum -- * | tee SHA256SUMS)
