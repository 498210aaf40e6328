#!/usr/bin/env bash
# Times five filters side by side with ImageMagick's `convert` (whole process: load, filter,
# save BMP) and Python's Pillow (the filter alone, in the process), on the same 4096 x 4096
# picture, and prints the ratios (theirs / ours: above 1 means we are faster); then the plasma
# against `convert -size 4096x4096 plasma:fractal` (`compare-peers.sh plasma`: that alone;
# `compare-peers.sh filters`: the filters alone).
# Needs a build (default build/; BUILD=folder to change) and, for the columns, `convert`
# (package imagemagick) and Pillow (package python3-pil); a missing peer is left out.
# The whole processes run in turns, RUNS rounds (default 9); PICTURE=file.bmp takes that
# 4096 x 4096 picture instead of making one.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${BUILD:-build}
exe=$build/src/tarvelle-forge
bench=$build/bench/bench_filters_bench
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
py=/usr/bin/python3
[ -x "$py" ] || py=python3

# The first `convert` that is ImageMagick's (a stand-in may come first on the path).
convert=
for c in $(type -ap convert) /usr/bin/convert; do
  if "$c" -version 2>/dev/null | grep -q ImageMagick; then convert=$c; break; fi
done
have_convert=0
[ -n "$convert" ] && have_convert=1
have_pillow=0
if "$py" -c 'import PIL' 2>/dev/null; then have_pillow=1; fi

# Rounds of the side-by-side runs (RUNS=n to change).
runs=${RUNS:-9}

# The wall time of one run in seconds, from the shell's own clock (no process started to read
# it, so both programs are timed alike).
elapsed=0
# A run that fails ends the comparison with its command: its time would say nothing.
timeOnce() {
  local t0=$EPOCHREALTIME
  if ! "$@" >/dev/null 2>&1; then echo "compare-peers.sh: failed: $*" >&2; exit 1; fi
  local t1=$EPOCHREALTIME
  elapsed=$(echo "$t1 - $t0" | bc -l)
}
median() { printf '%s\n' "$@" | sort -g | awk '{v[NR] = $1} END {print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2}'; }
seconds() { timeOnce "$@"; echo "$elapsed"; }
# The median of five runs: the machine may be shared, and one slow run says little.
best() { local ts=(); for _ in 1 2 3 4 5; do ts+=("$(seconds "$@")"); done; median "${ts[@]}"; }

# Two programs timed in turns on a machine others share: each round runs both, the one that
# went second in the last round first, so a load that comes and goes falls on both alike.
# `side A... -- B...` sets ours and theirs (the medians of A and B) and pairs (the median of
# the rounds' ratios B / A).
ours=0 theirs=0 pairs=0
side() {
  local a=() b=() ta=() tb=() rs=()
  while [ "$1" != -- ]; do a+=("$1"); shift; done
  shift
  b=("$@")
  timeOnce "${a[@]}"; timeOnce "${b[@]}" # the files into the page cache, the programs too
  local k
  for ((k = 0; k < runs; ++k)); do
    if ((k % 2 == 0)); then
      timeOnce "${a[@]}"; ta+=("$elapsed"); timeOnce "${b[@]}"; tb+=("$elapsed")
    else
      timeOnce "${b[@]}"; tb+=("$elapsed"); timeOnce "${a[@]}"; ta+=("$elapsed")
    fi
    rs+=("$(echo "${tb[$k]} / ${ta[$k]}" | bc -l)")
  done
  ours=$(median "${ta[@]}"); theirs=$(median "${tb[@]}"); pairs=$(median "${rs[@]}")
}

only=${1:-all}
if [ "$only" != plasma ]; then
# The test picture: a photo-like 4096 x 4096 from our own filters (a gradient paint blurred).
if [ -n "${PICTURE:-}" ]; then
cp "$PICTURE" "$work/in.bmp"
else
"$exe" paint Backgroundcolor --size 4096x4096 --seed 1 --back '#808080' -o "$work/flat.bmp" >/dev/null
"$py" - "$work/in.bmp" <<'PY' 2>/dev/null || cp "$work/flat.bmp" "$work/in.bmp"
import sys, struct, math
w = h = 4096
row = bytearray()
rows = []
for y in range(h):
    r = bytearray(w * 3)
    for x in range(w):
        v = (x * 255 // w, y * 255 // h, ((x ^ y) * 2654435761 >> 24) & 255)
        r[x*3:x*3+3] = bytes((v[2], v[1], v[0]))
    rows.append(bytes(r))
size = 54 + w * h * 3
with open(sys.argv[1], "wb") as f:
    f.write(b"BM" + struct.pack("<IHHI", size, 0, 0, 54))
    f.write(struct.pack("<IiiHHIIiiII", 40, w, h, 1, 24, 0, w * h * 3, 2835, 2835, 0, 0))
    for r in reversed(rows):
        f.write(r)
PY
fi
# The picture on disk before the clocks start: the system writing it out in the background
# would fall on whichever program runs first.
sync "$work/in.bmp"

names=(negate greyscale sharpen dilate floyd-steinberg)
ours_cmd=(negative greyscale sharpen dilate floyd-steinberg)
numbers=(2 12 1 25 21)
magick=("-negate" "-grayscale Average" "-morphology Convolve 3x3:-1,-1,-1,-1,9,-1,-1,-1,-1"
        "-morphology Dilate Square:1" "-dither FloydSteinberg -monochrome")
pillow=("ImageOps.invert(im)" "im.convert('L')" "im.filter(ImageFilter.SHARPEN)"
        "im.filter(ImageFilter.MaxFilter(3))" "im.convert('1')")

# Our kernel times in the process, in milliseconds, from the benchmark: the median of five
# runs on every core (kernel) and on one thread (single), as Pillow works on one.
declare -A kernel single
if [ -x "$bench" ]; then
  while IFS=, read -r name _iter real _rest; do
    n=$(echo "$name" | sed -n 's#^"Kernel/\([0-9]*\)/[^/]*/threads:\([01]\).*_median"$#\1 \2#p')
    [ -z "$n" ] && continue
    set -- $n
    if [ "$2" = 0 ]; then kernel[$1]=$real; else single[$1]=$real; fi
  done < <("$bench" --benchmark_filter='Kernel/(2|12|1|25|21)/' --benchmark_repetitions=5 \
             --benchmark_report_aggregates_only=true --benchmark_format=csv 2>/dev/null | tail -n +2)
fi

# "files" is the share of our whole process that is not the filter: reading, converting and
# writing the picture. "ratio" compares the medians, "rounds" is the median of the rounds'
# own ratios.
printf '%-16s %10s %10s %7s %7s %6s | %10s %10s %10s %7s %7s\n' filter "ours s" convert ratio rounds files "ours ms" "1 thread" Pillow ratio "ratio 1"
for i in "${!names[@]}"; do
  c=-; cr=-; rr=-
  if [ $have_convert = 1 ]; then
    # shellcheck disable=SC2086
    side "$exe" filter "${ours_cmd[$i]}" "$work/in.bmp" -o "$work/ours.bmp" -- \
         "$convert" "$work/in.bmp" ${magick[$i]} "$work/theirs.bmp"
    o=$ours
    cr=$(printf '%.1f' "$(echo "$theirs / $ours" | bc -l)")
    rr=$(printf '%.1f' "$pairs")
    c=$(printf '%.3f' "$theirs")
  else
    o=$(best "$exe" filter "${ours_cmd[$i]}" "$work/in.bmp" -o "$work/ours.bmp")
  fi
  k=${kernel[${numbers[$i]}]:--}
  k1=${single[${numbers[$i]}]:--}
  p=-; pr=-; pr1=-
  if [ $have_pillow = 1 ]; then
    p=$("$py" - "$work/in.bmp" "${pillow[$i]}" <<'PY'
import sys, time
from PIL import Image, ImageOps, ImageFilter
im = Image.open(sys.argv[1]); im.load()
import statistics
ts = []
for _ in range(5):
    t = time.perf_counter(); eval(sys.argv[2]); ts.append(time.perf_counter() - t)
print(f"{statistics.median(ts) * 1000:.1f}")
PY
)
    [ "$k" != - ] && pr=$(printf '%.1f' "$(echo "$p / $k" | bc -l)")
    [ "$k1" != - ] && pr1=$(printf '%.1f' "$(echo "$p / $k1" | bc -l)")
  fi
  [ "$k" != - ] && k=$(printf '%.1f' "$k")
  [ "$k1" != - ] && k1=$(printf '%.1f' "$k1")
  files=-
  [ "$k" != - ] && files=$(printf '%.0f%%' "$(echo "100 * ($o - $k / 1000) / $o" | bc -l)")
  printf '%-16s %10.3f %10s %7s %7s %6s | %10s %10s %10s %7s %7s\n' "${names[$i]}" "$o" "$c" "$cr" "$rr" "$files" "$k" "$k1" "$p" "$pr" "$pr1"
done
fi

# The plasma at 4096 x 4096 beside ImageMagick's `convert -size 4096x4096 plasma:fractal`:
# whole processes writing a BMP each (median of five), and our fill with its colours in the
# process (the benchmark's median).
[ "$only" = filters ] && exit 0
echo
if [ $have_convert = 1 ]; then
  o=$(best "$exe" paint Plasma --size 4096x4096 --seed 1 -o "$work/plasma.bmp")
  c=$(best "$convert" -size 4096x4096 plasma:fractal "$work/plasma-im.bmp")
  k=-
  pbench=$build/bench/bench_plasma_bench
  if [ -x "$pbench" ]; then
    k=$("$pbench" --benchmark_filter='plasmaPicture/0' --benchmark_repetitions=5 \
          --benchmark_report_aggregates_only=true --benchmark_format=csv 2>/dev/null |
        sed -n 's#^"plasmaPicture/0/real_time_median",[^,]*,\([^,]*\),.*#\1#p')
  fi
  printf '%-16s %10s %10s %7s | %12s %7s\n' plasma "ours s" convert ratio "ours fill ms" ratio
  kr=-
  [ -n "$k" ] && [ "$k" != - ] && kr=$(printf '%.1f' "$(echo "$c * 1000 / $k" | bc -l)") && k=$(printf '%.1f' "$k")
  printf '%-16s %10.3f %10.3f %7.1f | %12s %7s\n' "4096x4096" "$o" "$c" "$(echo "$c / $o" | bc -l)" "${k:--}" "$kr"
else
  echo "plasma: ImageMagick's convert is not installed; no comparison"
fi
