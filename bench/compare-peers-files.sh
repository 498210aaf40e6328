#!/usr/bin/env bash
# The load pipeline and the encoders against ImageMagick's convert, on the same files:
# a 24-megapixel JPEG brought into the 1600 box, a 4096 x 4096 picture written as PNG and as
# JPEG (quality 100). Prints each time and the ratio peer / ours (above 1: ours is faster).
#
#   bench/compare-peers-files.sh [BUILD_DIR]      (default: build)
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
build="${1:-$here/build}"
bench="$build/bench/bench_files_bench"
[ -x "$bench" ] || { echo "build $bench first" >&2; exit 2; }
export TF_BENCH_DIR="${TF_BENCH_DIR:-/tmp/tf-bench-files}"

# Our times in milliseconds (this also makes the input files).
json="$(QT_QPA_PLATFORM=offscreen "$bench" --benchmark_format=json --benchmark_repetitions=3 \
        --benchmark_report_aggregates_only=true 2>/dev/null)"
ours() {
  python3 -c 'import json,sys; d=json.loads(sys.stdin.read()); print(next(b["real_time"] for b in d["benchmarks"] if b["name"]==sys.argv[1]+"_median"))' "$1" <<<"$json"
}
load=$(ours BM_LoadJpeg24MegapixelsIntoBox)
png=$(ours BM_EncodePng4096)
jpg=$(ours BM_EncodeJpeg4096)

convert_bin="$(command -v convert || true)"
if [ -z "$convert_bin" ]; then
  printf 'ours (ms): load %.1f  png %.1f  jpeg %.1f\nconvert is not installed: no ratio\n' "$load" "$png" "$jpg"
  exit 0
fi
# The median of three runs of a command, in milliseconds.
peer() {
  local times=()
  for _ in 1 2 3; do
    local t0 t1
    t0=$(date +%s%N); "$@" >/dev/null 2>&1; t1=$(date +%s%N)
    times+=($(( (t1 - t0) / 1000000 )))
  done
  printf '%s\n' "${times[@]}" | sort -n | sed -n 2p
}
out="$(mktemp -d)"
p_load=$(peer "$convert_bin" "$TF_BENCH_DIR/photo-6000x4000.jpg" -resize 1600x1600 "$out/small.bmp")
p_png=$(peer "$convert_bin" "$TF_BENCH_DIR/picture-4096.bmp" "$out/big.png")
p_jpg=$(peer "$convert_bin" "$TF_BENCH_DIR/picture-4096.bmp" -quality 100 "$out/big.jpg")
rm -rf "$out"
python3 - "$load" "$p_load" "$png" "$p_png" "$jpg" "$p_jpg" <<'PY'
import sys
v = list(map(float, sys.argv[1:]))
for name, o, p in (("JPEG 24 MP into the 1600 box", v[0], v[1]),
                   ("PNG encode 4096 x 4096", v[2], v[3]),
                   ("JPEG encode 4096 x 4096", v[4], v[5])):
    print(f"{name:32s} ours {o:8.1f} ms   convert {p:8.1f} ms   ratio {p / o:5.2f}")
PY
