#!/usr/bin/env bash
# Times five filters side by side with ImageMagick's `convert` (whole process: load, filter,
# save BMP) and Python's Pillow (the filter alone, in the process), on the same 4096 x 4096
# picture, and prints the ratios (theirs / ours: above 1 means we are faster).
# Needs a build (default build/; BUILD=folder to change) and, for the columns, `convert`
# (package imagemagick) and Pillow (package python3-pil); a missing peer is left out.
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

# The test picture: a photo-like 4096 x 4096 from our own filters (a gradient paint blurred).
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

now() { date +%s.%N; }
seconds() { local t0; t0=$(now); "$@" >/dev/null 2>&1; echo "$(now) - $t0" | bc -l; }
best() { local b=999; for _ in 1 2 3; do local t; t=$(seconds "$@"); b=$(echo "if ($t < $b) $t else $b" | bc -l); done; echo "$b"; }

names=(negate greyscale sharpen dilate floyd-steinberg)
ours=(negative greyscale sharpen dilate floyd-steinberg)
numbers=(2 12 1 25 21)
magick=("-negate" "-grayscale Average" "-morphology Convolve 3x3:-1,-1,-1,-1,9,-1,-1,-1,-1"
        "-morphology Dilate Square:1" "-dither FloydSteinberg -monochrome")
pillow=("ImageOps.invert(im)" "im.convert('L')" "im.filter(ImageFilter.SHARPEN)"
        "im.filter(ImageFilter.MaxFilter(3))" "im.convert('1')")

# Our kernel times in the process, in milliseconds, from the benchmark.
declare -A kernel
if [ -x "$bench" ]; then
  while IFS=, read -r name _iter real _rest; do
    n=$(echo "$name" | sed -n 's#^"Kernel/\([0-9]*\)/.*#\1#p')
    [ -n "$n" ] && kernel[$n]=$real
  done < <("$bench" --benchmark_filter='Kernel/(2|12|1|25|21)/' --benchmark_format=csv 2>/dev/null | tail -n +2)
fi

printf '%-16s %10s %10s %7s | %10s %10s %7s\n' filter "ours s" convert ratio "ours ms" Pillow ratio
for i in "${!names[@]}"; do
  o=$(best "$exe" filter "${ours[$i]}" "$work/in.bmp" -o "$work/ours.bmp")
  c=-; cr=-
  if [ $have_convert = 1 ]; then
    # shellcheck disable=SC2086
    c=$(best "$convert" "$work/in.bmp" ${magick[$i]} "$work/theirs.bmp")
    cr=$(printf '%.1f' "$(echo "$c / $o" | bc -l)")
    c=$(printf '%.3f' "$c")
  fi
  k=${kernel[${numbers[$i]}]:--}
  p=-; pr=-
  if [ $have_pillow = 1 ]; then
    p=$("$py" - "$work/in.bmp" "${pillow[$i]}" <<'PY'
import sys, time
from PIL import Image, ImageOps, ImageFilter
im = Image.open(sys.argv[1]); im.load()
best = 1e9
for _ in range(3):
    t = time.perf_counter(); eval(sys.argv[2]); best = min(best, time.perf_counter() - t)
print(f"{best * 1000:.1f}")
PY
)
    [ "$k" != - ] && pr=$(printf '%.1f' "$(echo "$p / $k" | bc -l)")
  fi
  [ "$k" != - ] && k=$(printf '%.1f' "$k")
  printf '%-16s %10.3f %10s %7s | %10s %10s %7s\n' "${names[$i]}" "$o" "$c" "$cr" "$k" "$p" "$pr"
done
