#!/usr/bin/env bash
# Record files end their lines in CR LF and the jukebox reads them byte by byte, so git must hand them out as
# they were put in; sources end theirs in LF.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

tracked() { git -c safe.directory="$PWD" ls-files --eol -- "$@"; }

status=0
# Columns: i/<ending in git> w/<ending on disk> attr/<attributes> <path>
if tracked Skins tests | grep -E $'\\.(ini|cov)$' | grep -v 'attr/-text'; then
  echo "These record files lack the attribute -text (.gitattributes)." >&2
  status=1
fi
if tracked Skins | awk '{ sub("i/", "", $1); sub("w/", "", $2) } $1 != $2' | grep .; then
  echo "The line endings of these files differ between git and the disk." >&2
  status=1
fi
if tracked src tests bench tools docs run test .ci '*.md' '*.txt' | grep -v 'attr/-text' | grep -E '^[iw]/(crlf|mixed)| w/(crlf|mixed)'; then
  echo "These sources hold CR LF." >&2
  status=1
fi
exit "$status"
