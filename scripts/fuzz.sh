#!/usr/bin/env bash
# Builds the decoders' fuzz targets with clang (libFuzzer, AddressSanitizer and
# UndefinedBehaviorSanitizer) in build-fuzz/ and runs each for the given time, one job each,
# seeded from the shared test data.
#
#   scripts/fuzz.sh SECONDS [TARGET ...]     TARGET: png jpeg bmp gif jasc (default: all)
#
# A crashing input is written to fuzz/crashes/TARGET/; copy it to
# tests/files/regressions/ (by its kind) so that the normal tests replay it.
set -euo pipefail
here="$(cd "$(dirname "$0")/.." && pwd)"
seconds="${1:?usage: scripts/fuzz.sh SECONDS [TARGET ...]}"
shift
targets=("$@")
[ ${#targets[@]} -eq 0 ] && targets=(png jpeg bmp gif jasc)
build="${TF_FUZZ_BUILD:-$here/build-fuzz}"
testdata="${TF_TESTDATA_DIR:-$here/../shared/testdata}"

command -v clang++ >/dev/null || { echo "fuzz.sh: clang++ is needed (apt-get install clang)" >&2; exit 2; }
if [ ! -f "$build/build.ninja" ]; then
  CC=clang CXX=clang++ cmake -S "$here" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DTF_BUILD_FUZZ=ON -DTF_BUILD_TESTS=OFF -DTF_BUILD_BENCH=OFF >/dev/null
fi
cmake --build "$build" -j"${TF_FUZZ_JOBS:-1}" --target "${targets[@]/#/fuzz_}"

# The seeds: the test files of the target's kind (small ones; big seeds slow the search) and
# the regression cases.
seed() {
  local target="$1" dir="$build/corpus/$1"
  mkdir -p "$dir"
  local from=()
  case "$target" in
    png) from=("$testdata/images/png") ;;
    jpeg) from=("$testdata/images/jpeg") ;;
    bmp) from=("$testdata/images/bmp") ;;
    gif) from=("$testdata/images/gif") ;;
    jasc) from=("$testdata/palettes") ;;
  esac
  [ -d "$here/tests/files/regressions/$target" ] && from+=("$here/tests/files/regressions/$target")
  find "${from[@]}" -type f -size -64k ! -name '*.md' -exec cp -n {} "$dir/" \; 2>/dev/null || true
}

for t in "${targets[@]}"; do
  seed "$t"
  mkdir -p "$here/fuzz/crashes/$t"
  echo "== fuzz_$t for ${seconds}s"
  "$build/fuzz/fuzz_$t" "$build/corpus/$t" -max_total_time="$seconds" \
    -rss_limit_mb=3072 -timeout=20 -max_len=65536 -print_final_stats=1 \
    -artifact_prefix="$here/fuzz/crashes/$t/" 2>&1 | tee "$build/fuzz_$t.log" | grep -E '^(#[0-9]+ +DONE|stat::|==[0-9]+==ERROR|SUMMARY|artifact_prefix|Test unit written)' || true
done
