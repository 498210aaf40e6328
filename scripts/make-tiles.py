#!/usr/bin/python3
"""Draws the program's own tile set for "Interne Kacheln": grey, seamless 128 x 128 tiles made
from periodic formulas (every term repeats after 128 pixels, so the tiles join without a seam).
The painter lays them between two colours. Run from the repository's root; writes
src/generators/tiles/*.png. Needs python3-pil."""
import math
import os
from PIL import Image

N = 128
TAU = 2 * math.pi
OUT = os.path.join("src", "generators", "tiles")


def wave(f):
    return lambda x, y: f(x / N, y / N)


def waves(u, v):
    return 0.5 + 0.5 * math.sin(TAU * (3 * u + 0.35 * math.sin(TAU * 2 * v)))


def diamonds(u, v):
    a = abs(((u + v) * 4) % 2 - 1)
    b = abs(((u - v) * 4) % 2 - 1)
    return min(1.0, 0.25 + 0.75 * abs(a - b))


def scales(u, v):
    best = 9.0
    for cx, cy in ((0, 0), (0.5, 0.5), (1, 0), (0, 1), (1, 1), (0.5, -0.5), (1.5, 0.5), (-0.5, 0.5), (0.5, 1.5)):
        dx = (u * 2 - math.floor(u * 2)) - cx
        dy = (v * 2 - math.floor(v * 2)) - cy
        best = min(best, math.hypot(dx, dy))
    return 0.5 + 0.5 * math.cos(best * TAU * 1.5)


def bricks(u, v):
    rows = 4
    r = v * rows
    row = math.floor(r)
    shift = 0.25 if row % 2 else 0.0
    c = (u * 2 + shift) % 1
    fy = r - row
    mortar = min(fy, 1 - fy) < 0.08 or min(c, 1 - c) < 0.04
    grain = 0.08 * math.sin(TAU * (7 * u + 3 * v)) + 0.06 * math.sin(TAU * (11 * v - 5 * u))
    return 0.92 if mortar else 0.35 + grain + 0.1 * (row % 2)


def marble(u, v):
    t = (math.sin(TAU * (u + 2 * v)) + 0.5 * math.sin(TAU * (3 * u - v)) + 0.25 * math.sin(TAU * (5 * u + 4 * v))) * 1.6
    return 0.5 + 0.5 * math.sin(TAU * 2 * u + t)


def linen(u, v):
    a = 0.5 + 0.5 * math.sin(TAU * 16 * u)
    b = 0.5 + 0.5 * math.sin(TAU * 16 * v)
    over = (math.floor(u * 16) + math.floor(v * 16)) % 2
    noise = 0.1 * math.sin(TAU * (13 * u + 7 * v)) * math.sin(TAU * (5 * u - 9 * v))
    return 0.3 + 0.6 * (a if over else b) + noise


def rings(u, v):
    du = ((u + 0.5) % 1) - 0.5
    dv = ((v + 0.5) % 1) - 0.5
    d = math.hypot(du, dv)
    return 0.5 + 0.5 * math.cos(TAU * 6 * d)


def basket(u, v):
    cu, cv = math.floor(u * 4), math.floor(v * 4)
    fu, fv = u * 4 - cu, v * 4 - cv
    horizontal = (cu + cv) % 2 == 0
    f = fv if horizontal else fu
    strands = 0.5 + 0.5 * math.cos(TAU * 3 * f)
    edge = min(fu, 1 - fu, fv, 1 - fv)
    return max(0.0, 0.2 + 0.6 * strands - (0.3 if edge < 0.04 else 0.0))


def stars(u, v):
    best = 0.0
    for cx, cy, s in ((0.25, 0.25, 1.0), (0.75, 0.75, 0.7)):
        du = ((u - cx + 0.5) % 1) - 0.5
        dv = ((v - cy + 0.5) % 1) - 0.5
        r = math.hypot(du, dv)
        a = math.atan2(dv, du)
        edge = 0.12 * s * (0.55 + 0.45 * math.cos(5 * a))
        best = max(best, 1.0 if r < edge else max(0.0, 1 - (r - edge) * 14))
    return 0.15 + 0.85 * best


def wood(u, v):
    t = 0.12 * math.sin(TAU * (v + 0.3 * math.sin(TAU * u)))
    return 0.5 + 0.5 * math.sin(TAU * 9 * (u + t) + 2 * math.sin(TAU * 2 * v))


def hexes(u, v):
    # A honeycomb that repeats twice across: the distance to the nearest centre of a
    # hexagonal lattice scaled to fit 128 pixels (rows of 2, height stretched a little).
    x, y = u * 2, v * 2 * 1.0
    best = 9.0
    for i in range(-1, 4):
        for j in range(-1, 6):
            cx = i + (0.5 if j % 2 else 0.0)
            cy = j * 0.5
            best = min(best, math.hypot(x - cx, (y - cy) * 1.15))
    return 0.2 + 0.8 * min(1.0, best * 2.2) ** 3


TILES = [
    ("01-wellen", waves), ("02-rauten", diamonds), ("03-schuppen", scales), ("04-ziegel", bricks),
    ("05-marmor", marble), ("06-leinen", linen), ("07-ringe", rings), ("08-flechtwerk", basket),
    ("09-sterne", stars), ("10-holz", wood), ("11-waben", hexes),
]


def main():
    os.makedirs(OUT, exist_ok=True)
    for name, f in TILES:
        img = Image.new("L", (N, N))
        px = img.load()
        for y in range(N):
            for x in range(N):
                px[x, y] = max(0, min(255, round(255 * f(x / N, y / N))))
        img.save(os.path.join(OUT, name + ".png"), optimize=True)


if __name__ == "__main__":
    main()
