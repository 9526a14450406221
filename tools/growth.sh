#!/usr/bin/env bash
# How the batch tool's time grows with the elements that a Skin places, with the size of its pictures and with the
# number of Skins, and the designer's memory with the size: docs/images/growth.svg.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need_packages "${BUILD_PACKAGES[@]}" python3 gnuplot-nox
cmake --preset release -DVENEERER_BENCH=ON >/dev/null
build release start skintool
tool=$PWD/build/release/src/skintool
measure=$PWD/tools/processes.py
start=$PWD/build/release/bench/start
picture=$PWD/docs/images/growth.svg
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -r "Skins/Black_and_Blue_gif_V8.0(800x600)" "$folder/whole"
mkdir "$folder/Skins"
cd "$folder"

screens='--only "Main Screen" --only "Track Listing Screen"'

# figure COLUMN COMMAND: the least of two runs: 2 processor time (ms), 5 clock (ms).
figure() {
  local column=$1
  shift
  "$measure" 2x1 it "$@" | awk -v column="$column" '$1 == "it" { line = $0 } END { split(line, w); print w[column] }'
}

# The record files behind the first so many are left out; the built-in design stands in for what it places.
for files in 0 10 20 30 40 50 60; do
  rm -rf Skins/part && cp -r whole Skins/part
  find Skins/part -maxdepth 1 -name '*.ini' | sort | awk -v keep="$files" '{ if (NR > keep) print }' | xargs -r -d '\n' rm
  lines=$(find Skins/part -maxdepth 1 -name '*.ini' -exec cat {} + | wc -l)
  echo "$lines $(figure 2 "$tool dump Skins/part") $(figure 2 "$tool check Skins/part")"
done >elements

for size in 800x600 1024x768 1280x1024 1920x1080 2560x1440 3840x2160; do
  "$tool" new "Skins/S($size)" --look "Black and Blue" --size "$size"
  pixels=$((${size%x*} * ${size#*x}))
  echo "$pixels $(figure 2 "$tool render 'Skins/S($size)' --to out $screens") $(
    VENEERER_STARTED=0 QT_QPA_PLATFORM=offscreen "$start" "Skins/S($size)" | awk '$1 == "rest" { print $4 }')"
done >pixels

for count in 1 2 4 8 16; do
  skins=()
  for ((i = 1; i <= count; i++)); do
    rm -rf "many/$i" && mkdir -p many && cp -r whole "many/$i"
    skins+=("many/$i")
  done
  echo "$count $(figure 5 "$tool check ${skins[*]}") $(figure 5 "$tool render ${skins[*]} --to out $screens")"
done >skins

gnuplot <<'END'
set terminal svg size 1100,380 font "sans-serif,11" background "white"
set output "growth.svg"
set multiplot layout 1,3
set key below
set grid
set yrange [0:*]
set xlabel "thousand lines of record files"
set ylabel "processor time, ms"
plot "elements" using ($1/1e3):2 with linespoints title "dump", "elements" using ($1/1e3):3 with linespoints title "check"
set xlabel "megapixels of a screen"
set ylabel "processor time, s"
set y2label "memory, MB"
set y2range [0:*]
set y2tics
set ytics nomirror
plot "pixels" using ($1/1e6):($2/1e3) with linespoints title "render, two screens", \
     "pixels" using ($1/1e6):3 axes x1y2 with linespoints title "designer's peak of memory"
unset y2label
unset y2tics
set ytics mirror
set xlabel "Skins"
set ylabel "time by the clock, s"
plot "skins" using 1:($2/1e3) with linespoints title "check", "skins" using 1:($3/1e3) with linespoints title "render"
unset multiplot
END
mv growth.svg "$picture"
for table in elements pixels skins; do
  echo "$table:"
  cat "$table"
done
