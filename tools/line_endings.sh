#!/usr/bin/env bash
# Record files end their lines in CR LF and the jukebox reads them byte by byte, so git must hand them out as
# they were put in; sources end theirs in LF.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages git
# A line reads: i/<ending in git> w/<ending on disk> attr/<attributes> <tab> <path>
listing=$(git -c safe.directory="$PWD" ls-files --eol)
status=0

# forbid WHAT CONDITION: lists the files for which the awk condition holds.
forbid() {
  local found
  found=$(awk "$2" <<<"$listing")
  [[ -z "$found" ]] && return
  printf '%s:\n%s\n' "$1" "$found" >&2
  status=1
}

forbid "Record files without the attribute -text (.gitattributes)" '/\.(ini|cov)$/ && !/attr\/-text/'
forbid "Files of a Skin that git changed" '/\t(Skins|images)\// && substr($1, 3) != substr($2, 3)'
forbid "Sources with CR LF" '!/attr\/-text/ && /[iw]\/(crlf|mixed)/'
exit "$status"
