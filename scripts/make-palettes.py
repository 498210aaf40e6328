#!/usr/bin/env python3
"""Writes the system palettes: src/paint/palettes/*.pal and their table in
src/paint/systempalettes_table.cpp.

Every palette is computed here from a formula (gradients through key colours, hue sweeps), so
the library is ours and can be rebuilt at will. This list is the one place that names the
palettes: the program's table (file, German name) is generated from it.

  scripts/make-palettes.py                 write the palettes and the table
  scripts/make-palettes.py --translations  print "German<TAB>English" lines of the names, for
                                           scripts/translate-en.py
"""
import colorsys
import math
import os
import sys

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
PAL_DIR = os.path.join(ROOT, "src", "paint", "palettes")
TABLE = os.path.join(ROOT, "src", "paint", "systempalettes_table.cpp")
N = 256


def clamp(v):
    return max(0, min(255, int(round(v))))


def hexrgb(h):
    return tuple(int(h[i:i + 2], 16) for i in (0, 2, 4))


def gradient(*stops, cyclic=False):
    """Piecewise-linear through colours spaced evenly; cyclic: the last entry leads back
    towards the first, so that the palette repeats without a seam."""
    pts = [hexrgb(s) for s in stops] + ([hexrgb(stops[0])] if cyclic else [])
    span = N if cyclic else N - 1
    out = []
    for i in range(N):
        x = i / span * (len(pts) - 1)
        k = min(int(x), len(pts) - 2)
        f = x - k
        out.append(tuple(pts[k][j] + (pts[k + 1][j] - pts[k][j]) * f for j in range(3)))
    return out


def hues(sat, val, turns=1.0, start=0.0):
    return [tuple(255 * c for c in colorsys.hsv_to_rgb((start + turns * i / N) % 1.0, sat, val))
            for i in range(N)]


def bands(count, sat, val):
    """Hue steps of equal width: a poster-like palette."""
    return [tuple(255 * c for c in colorsys.hsv_to_rgb((i * count // N) / count, sat, val))
            for i in range(N)]


def waves(fr, fg, fb, phase=(0.0, 0.0, 0.0)):
    """Three cosine waves, one per channel, of the given number of periods."""
    out = []
    for i in range(N):
        t = 2 * math.pi * i / N
        out.append(tuple(127.5 - 127.5 * math.cos(f * t + p)
                         for f, p in zip((fr, fg, fb), phase)))
    return out


# (file, German name, English name, the 256 colours)
PALETTES = [
    ("regenbogen", "Regenbogen", "Rainbow", hues(1.0, 1.0)),
    ("regenbogen-pastell", "Pastell", "Pastels", hues(0.35, 1.0)),
    ("regenbogen-doppelt", "Doppelter Regenbogen", "Double rainbow", hues(0.9, 1.0, turns=2.0)),
    ("farbbaender", "Farbbänder", "Colour bands", bands(12, 0.85, 1.0)),
    ("graustufen", "Graustufen", "Greys", [(i, i, i) for i in range(N)]),
    ("grau-zyklisch", "Graue Wellen", "Grey waves", gradient("000000", "ffffff", cyclic=True)),
    ("sepia", "Sepia", "Sepia", gradient("000000", "3c2814", "a0703c", "e6cda5", "ffffff")),
    ("cyanotypie", "Cyanotypie", "Cyanotype", gradient("000000", "0f1e46", "2c5a9a", "b4cde6", "ffffff")),
    ("feuer", "Feuer", "Fire", gradient("000000", "5a0000", "c81e00", "ff7800", "ffd23c", "ffffff")),
    ("lava", "Lava", "Lava", gradient("140000", "8c0a00", "ff5000", "ffc800", "8c0a00", cyclic=True)),
    ("eis", "Eis", "Ice", gradient("000010", "0a2878", "3c8cdc", "a0e6ff", "ffffff")),
    ("gletscher", "Gletscher", "Glacier", gradient("dcf5ff", "78c8e6", "2878a0", "78c8e6", cyclic=True)),
    ("meer", "Meer", "Sea", gradient("000a28", "003c78", "0082a0", "3cc8be", "e6fff5")),
    ("tiefsee", "Tiefsee", "Deep sea", gradient("00000a", "001e46", "005a6e", "001e46", cyclic=True)),
    ("erde", "Erde", "Earth", gradient("1e0f05", "5a3214", "966428", "c8a064", "f0dcb4")),
    ("wueste", "Wüste", "Desert", gradient("78461e", "c88c46", "f0c882", "ffebc8", "c88c46", cyclic=True)),
    ("wald", "Wald", "Forest", gradient("051405", "145014", "3c8c28", "96c850", "e6f5b4")),
    ("herbst", "Herbst", "Autumn", gradient("3c0a00", "a02800", "e67814", "f0c83c", "6e5014", cyclic=True)),
    ("fruehling", "Frühling", "Spring", gradient("b4e678", "ffff96", "ffb4c8", "c8a0ff", "96e6c8", cyclic=True)),
    ("sonnenuntergang", "Sonnenuntergang", "Sunset", gradient("1e0a3c", "6e1464", "dc3c50", "ff8c28", "ffe678")),
    ("nordlicht", "Nordlicht", "Northern lights", gradient("000814", "00643c", "28dc8c", "3cb4dc", "8c3cc8", "000814", cyclic=True)),
    ("nacht", "Nacht", "Night", gradient("000000", "140a32", "282878", "5a78aa", "b4c8dc")),
    ("waerme", "Wärmebild", "Thermal", gradient("000000", "1e0096", "a000a0", "ff0000", "ffc800", "ffffff")),
    ("kupfer", "Kupfer", "Copper", gradient("1e0a00", "8c3c14", "e68c50", "ffd2aa", "8c3c14", cyclic=True)),
    ("gold", "Gold", "Gold", gradient("281400", "96640a", "f0c83c", "fff5c8", "96640a", cyclic=True)),
    ("silber", "Silber", "Silver", gradient("3c4146", "a0a5aa", "f5f5fa", "787d82", cyclic=True)),
    ("neon", "Neon", "Neon", gradient("ff00c8", "00ffff", "c8ff00", "ff5000", cyclic=True)),
    ("bonbon", "Bonbon", "Candy", gradient("ff9ebe", "fff0f5", "a0f0d2", "fff0f5", cyclic=True)),
    ("blau-orange", "Blau und Orange", "Blue and orange", gradient("0032a0", "f0f0f0", "ff7800")),
    ("rot-cyan", "Rot und Cyan", "Red and cyan", gradient("c80000", "787878", "00c8c8")),
    ("violett-gelb", "Violett und Gelb", "Violet and yellow", gradient("5a0096", "ffffff", "ffdc00", "ffffff", cyclic=True)),
    ("gruen-magenta", "Grün und Magenta", "Green and magenta", gradient("00a03c", "000000", "d2008c", "000000", cyclic=True)),
    ("psychedelisch", "Psychedelisch", "Psychedelic", waves(3, 5, 7)),
    ("interferenz", "Interferenz", "Interference", waves(2, 3, 4, phase=(0.0, 2.1, 4.2))),
]


def jasc(colours):
    lines = ["JASC-PAL", "0100", str(len(colours))]
    lines += ["%d %d %d" % tuple(clamp(v) for v in c) for c in colours]
    return "\r\n".join(lines) + "\r\n"


def cpp_text(s):
    return '"' + s.replace("\\", "\\\\").replace('"', '\\"') + '"'


def write_table():
    rows = "\n".join("        {%s, QT_TRANSLATE_NOOP(\"SystemPalettes\", %s)},"
                     % (cpp_text(f + ".pal"), cpp_text(de)) for f, de, _, _ in PALETTES)
    text = f"""// Generated by scripts/make-palettes.py from its list of palettes; edit the script, not this.
#include "paint/systempalettes_table.h"

#include <QtGlobal>

namespace tf {{

std::span<const SystemPaletteFile> systemPaletteFiles()
{{
    static constexpr SystemPaletteFile files[] = {{
{rows}
    }};
    return files;
}}

}} // namespace tf
"""
    with open(TABLE, "w", encoding="utf-8") as f:
        f.write(text)


def main():
    if "--translations" in sys.argv[1:]:
        for _, de, en, _ in PALETTES:
            print("%s\t%s" % (de, en))
        return
    for _, _, _, colours in PALETTES:
        assert len(colours) == N
    os.makedirs(PAL_DIR, exist_ok=True)
    for name in os.listdir(PAL_DIR):
        if name.endswith(".pal"):
            os.remove(os.path.join(PAL_DIR, name))
    for f, _, _, colours in PALETTES:
        with open(os.path.join(PAL_DIR, f + ".pal"), "w", encoding="ascii", newline="") as out:
            out.write(jasc(colours))
    write_table()
    print("%d palettes written to %s" % (len(PALETTES), os.path.relpath(PAL_DIR, ROOT)))


if __name__ == "__main__":
    main()
