#!/usr/bin/env bash
# Times the distortions side by side with ImageMagick's `convert`, whole process each (load a
# 4096 x 4096 BMP, distort, save BMP), and prints the ratios (theirs / ours: above 1 means we
# are faster): rotation by 30 degrees, swirl, wave, and the implode pair (our lens magnifies
# like a negative implode, our fisheye squeezes the rows like a positive one).
# Needs a build (default build/; BUILD=folder to change) and `convert` (package imagemagick);
# without it only our times are printed.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${BUILD:-build}
exe=$build/src/tarvelle-forge
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# ImageMagick's own convert, before any stand-in on the path that would pass calls on to it.
convert=
for c in /usr/bin/convert $(type -ap convert); do
  if [ -x "$c" ] && "$c" -version 2>/dev/null | grep -q ImageMagick; then convert=$c; break; fi
done

# The test picture: 4096 x 4096 with smooth gradients and fine detail, written by our own
# canvas command from a painted picture, so nothing but the program is needed.
"$exe" paint Backgroundcolor --size 64x64 --seed 1 --back '#808080' -o "$work/small.bmp" >/dev/null
"$exe" transform size 4096x4096 "$work/small.bmp" -o "$work/grey.bmp" >/dev/null
"$exe" filter noise "$work/grey.bmp" --set Factor=200 --seed 3 --then waves --set Frequency=40 \
  --set Amplitude=60 --then blur -o "$work/in.bmp" >/dev/null

now() { date +%s.%N; }
seconds() { local t0; t0=$(now); "$@" >/dev/null 2>&1; echo "$(now) - $t0" | bc -l; }
best() { local b=999; for _ in 1 2 3; do local t; t=$(seconds "$@"); b=$(echo "if ($t < $b) $t else $b" | bc -l); done; echo "$b"; }

names=(rotate-30 swirl-90 wave implode-lens implode-fisheye)
ours=("rotate --set Angle=30 --set Anti-aliasing=1 --set resize=1"
      "twirl --set Angle=90"
      "waves --set Frequency=25 --set Amplitude=25"
      "lens --set Diameter=100 --set Scaling=60"
      "fisheye --set Factor=10")
magick=("-rotate 30" "-swirl 90" "-wave 25x150" "-implode -0.6" "-implode 0.5")

printf '%-18s %10s %10s %7s\n' distortion "ours s" convert ratio
for i in "${!names[@]}"; do
  # shellcheck disable=SC2086
  o=$(best "$exe" filter ${ours[$i]} "$work/in.bmp" -o "$work/ours.bmp")
  c=-; r=-
  if [ -n "$convert" ]; then
    # shellcheck disable=SC2086
    c=$(best "$convert" "$work/in.bmp" ${magick[$i]} "$work/theirs.bmp")
    r=$(printf '%.1f' "$(echo "$c / $o" | bc -l)")
    c=$(printf '%.3f' "$c")
  fi
  printf '%-18s %10.3f %10s %7s\n' "${names[$i]}" "$o" "$c" "$r"
done
