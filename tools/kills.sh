#!/usr/bin/env bash
# Kills skintool at random moments of a save, a copy, a packing and an unpacking. Whatever it was doing, each file is
# wholly old or wholly new, what is left over bears a name that nothing takes for a file of the Skin, and the next
# run does all of it and clears up.
#   tools/kills.sh [HITS]    so many kills of each that leave something over; 5 without it
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}"
build release skintool
skintool=$PWD/build/release/src/skintool
hits_wanted=${1:-5}
most_rounds=400

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# left_over FOLDER: the hidden names of what a killed run was writing.
left_over() {
  find "$1" -name '.*.saving' -prune -print
}

# same_tree A B: whether both hold the same files, left over ones aside.
same_tree() {
  diff -r --exclude='.*.saving' "$1" "$2" >/dev/null
}

# What comes of runs that nobody kills.
cp -r "$OLDPWD/Skins/Copper_Lounge(1024x768)" old
"$skintool" save old --to old
printf 'click Form1.lvButtons_H1(2)\nset Form6.Text2 "12345"\nclick Form6.Command2(1)\n' >script
cp -r old new
"$skintool" save new --to new --script script
same_tree old new && fail "the script changes nothing"
"$skintool" copy new --to copied
"$skintool" pack old --to old.zip
"$skintool" pack new --to new.zip

# Of each command: its words, what it finds in the folder `made`, what must hold after a kill, and what it does.
save_words=(save made/S --to made/S --script script)
save_begin() { cp -r old made/S; }
save_whole() {
  local file name
  for file in old/*; do
    name=${file##*/}
    [[ -d $file ]] || cmp -s "made/S/$name" "old/$name" || cmp -s "made/S/$name" "new/$name" ||
      fail "$name is neither old nor new"
  done
  "$skintool" check made/S >/dev/null || fail "a Skin that was being saved is spoilt"
}
save_done() { same_tree made/S new; }

copy_words=(copy new --to made/S)
copy_begin() { :; }
copy_whole() { [[ ! -e made/S ]] || same_tree made/S copied || fail "half a copy stands under its name"; }
copy_done() { same_tree made/S copied; }

pack_words=(pack new --to made/S.zip)
pack_begin() { cp old.zip made/S.zip; }
pack_whole() {
  cmp -s made/S.zip old.zip || cmp -s made/S.zip new.zip || fail "the archive is neither old nor new"
}
pack_done() { cmp -s made/S.zip new.zip; }

unpack_words=(unpack new.zip --to made)
unpack_begin() { :; }
unpack_whole() { [[ ! -e made/new ]] || same_tree made/new new || fail "half a Skin stands under its name"; }
unpack_done() { same_tree made/new new; }

begin() {
  rm -rf made
  mkdir made
  "$1_begin"
}

# duration COMMAND...: microseconds.
duration() {
  local start
  start=$(date +%s%N)
  "$@" >&2
  echo $((($(date +%s%N) - start) / 1000))
}

# kill_at MICROSECONDS WORD...
kill_at() {
  local delay=$1
  shift
  "$skintool" "$@" >/dev/null 2>&1 &
  sleep "$((delay / 1000000)).$(printf '%06d' $((delay % 1000000)))"
  kill -KILL $! 2>/dev/null || true
  wait $! 2>/dev/null || true
}

# kill_rounds COMMAND: until enough kills have left something over.
kill_rounds() {
  local -n words=$1_words
  local command=$1 hits=0 rounds=0 most
  begin "$command"
  most=$(duration "$skintool" "${words[@]}")
  while ((hits < hits_wanted)); do
    ((++rounds <= most_rounds)) || fail "$command: no kill hits it while it writes"
    begin "$command"
    kill_at $(((RANDOM * 32768 + RANDOM) % most)) "${words[@]}"
    "${command}_whole"
    [[ -n $(left_over made) ]] || continue
    hits=$((hits + 1))
    "$skintool" "${words[@]}" || fail "$command: the next run fails"
    "${command}_done" || fail "$command: the next run doesn't do all of it"
    [[ -z $(left_over made) ]] || fail "$command: the next run leaves $(left_over made)"
  done
  echo "$command: $rounds kills, $hits of them while it wrote."
}

for command in save copy pack unpack; do kill_rounds "$command"; done
