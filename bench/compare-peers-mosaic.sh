#!/usr/bin/env bash
# The photo mosaic side by side with `metapixel` (Debian package metapixel, installed by hand;
# without it only our times are printed): 1000 tiles of 50 x 50 pixels from the 45 photos of
# the shared test data, duplicates on.
#
#   ours:   tarvelle-forge paint PIC-Mosaik --size 2000x1250 (40 x 25 equal frames), the whole
#           process: scan, decode, scale, paste, write the PNG; and the run alone in the
#           process from bench_picmosaik_bench (every core and one thread).
#   theirs: metapixel-prepare (scans and scales the photos into its library), then
#           metapixel --metapixel on a 2000 x 1250 picture with 50 x 50 tiles (matches each
#           tile against the library and writes the mosaic).
#
# metapixel chooses its photos by likeness to a picture, we lay them at random: the work
# that both share is reading, decoding and scaling the photos and writing the result. The
# ratio is theirs / ours: above 1 means we are faster. Needs a build (default build/;
# BUILD=folder to change). Times are the median of three runs.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${BUILD:-build}
exe=$build/src/tarvelle-forge
bench=$build/bench/bench_picmosaik_bench
photos=${PHOTOS:-$(cd .. && pwd)/shared/testdata/photos}
[ -d "$photos" ] || photos=${TF_TESTDATA_DIR:-}/photos
if [ ! -d "$photos" ]; then echo "no photos at $photos" >&2; exit 1; fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

now() { date +%s.%N; }
seconds() { local t0; t0=$(now); "$@" >/dev/null 2>&1; echo "$(now) - $t0" | bc -l; }
median3() { local ts=(); for _ in 1 2 3; do ts+=("$(seconds "$@")"); done; printf '%s\n' "${ts[@]}" | sort -g | sed -n 2p; }

ours_cli() {
  "$exe" paint PIC-Mosaik --size 2000x1250 --seed 7 --random-values off --source "$photos" \
    --set XPicMosaikSubDirs=1 --set 'XPicMosaik(0)=1' --set 'XPicMosaik(1)=1' \
    --set 'XPicMosaik(2)=0' --set 'txtPMKachel(0)=40' --set 'txtPMKachel(1)=25' \
    --set XPicMosaik_Duplikate=1 --set XPicMosaik_MixSlots=1 --set XBorders=0 \
    -o "$work/ours.png"
}
ours=$(median3 ours_cli)
printf '%-34s %8.3f s\n' "tarvelle-forge paint PIC-Mosaik" "$ours"
if [ -x "$bench" ]; then
  "$bench" --benchmark_filter='Mosaic/threads:[01]/frame:50' --benchmark_format=console 2>/dev/null |
    sed -n 's#^\(Mosaic/threads:[01]/frame:50[^ ]*\) *\([0-9.]*\) ms.*#  in the process: \1 \2 ms#p'
fi

if ! command -v metapixel >/dev/null || ! command -v metapixel-prepare >/dev/null; then
  echo "metapixel is not installed: no comparison (apt-get install metapixel)"
  exit 0
fi
# The picture metapixel rebuilds: one of the photos at 2000 x 1250, made by our own command.
first=$(find "$photos" -name '*.jpg' | sort | head -1)
"$exe" transform size 2000x1250 "$first" -o "$work/in.png" >/dev/null 2>&1 ||
  "$exe" paint Backgroundcolor --size 2000x1250 --seed 1 -o "$work/in.png" >/dev/null
theirs_prepare() { rm -rf "$work/lib"; mkdir -p "$work/lib"; metapixel-prepare -r --width=50 --height=50 "$photos" "$work/lib"; }
theirs_mosaic() { metapixel --width=50 --height=50 --distance=0 --library "$work/lib" --metapixel "$work/in.png" "$work/theirs.png"; }
prepare=$(median3 theirs_prepare)
theirs_prepare >/dev/null 2>&1
mosaic=$(median3 theirs_mosaic)
total=$(echo "$prepare + $mosaic" | bc -l)
printf '%-34s %8.3f s\n' "metapixel-prepare" "$prepare"
printf '%-34s %8.3f s\n' "metapixel --metapixel" "$mosaic"
printf '%-34s %8.3f s   ratio theirs/ours %.2f\n' "metapixel, both steps" "$total" "$(echo "$total / $ours" | bc -l)"
