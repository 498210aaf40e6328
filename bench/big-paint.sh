#!/usr/bin/env bash
# Time and peak memory of command-line paints at the largest size, 14000 x 14000 (a 32-bit
# picture of 784 MB), against the targets: at most 2.5 x the picture's bytes for any paint,
# and "Backgroundcolor" written as BMP in under 3 s. The plasma, which holds a grid of heights
# beside the picture, is measured at PLASMA_SIDE (default 6000), opaque and transparent.
#
#   bench/big-paint.sh [BUILD_DIR]      (default: build)
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-$here/build}"
exe="$build/src/tarvelle-forge"
[ -x "$exe" ] || { echo "build $exe first" >&2; exit 2; }
[ -x /usr/bin/time ] || { echo "needs /usr/bin/time (package time)" >&2; exit 2; }
out="$(mktemp -d)"
trap 'rm -rf "$out"' EXIT
side=${SIDE:-14000}
picture=$(( side * side * 4 ))

run() {
  local label=$1; shift
  local log="$out/time.log"
  QT_QPA_PLATFORM=offscreen /usr/bin/time -f '%e %M' -o "$log" "$exe" "$@" >/dev/null 2>&1 || {
    echo "$label: failed" >&2; return; }
  read -r seconds kb <"$log"
  printf '%-40s %7.2f s %8.0f MB  %4.2f x the picture\n' "$label" "$seconds" "$(( kb / 1024 ))" \
    "$(echo "$kb * 1024 / $picture" | bc -l)"
}

printf 'paint at %d x %d (the picture: %d MB)\n' "$side" "$side" "$(( picture / 1048576 ))"
run "Backgroundcolor -> BMP" paint Backgroundcolor --size "${side}x${side}" --seed 1 -o "$out/a.bmp"
run "Backgroundcolor 50 % transparent -> BMP" paint Backgroundcolor --size "${side}x${side}" \
  --seed 1 --transparency 50 -o "$out/b.bmp"
run "Backgroundcolor -> PNG" paint Backgroundcolor --size "${side}x${side}" --seed 1 -o "$out/c.png"

side=${PLASMA_SIDE:-6000}
picture=$(( side * side * 4 ))
printf 'plasma at %d x %d (the picture: %d MB)\n' "$side" "$side" "$(( picture / 1048576 ))"
run "Plasma -> BMP" paint Plasma --size "${side}x${side}" --seed 3 -o "$out/d.bmp"
run "Plasma 50 % transparent -> BMP" paint Plasma --size "${side}x${side}" --seed 3 \
  --transparency 50 -o "$out/e.bmp"
