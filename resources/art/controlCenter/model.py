#!/usr/bin/env python3
"""Writes a chess pawn as a shaded triangle mesh in SVG: model.py SEGMENTS RINGS.

SEGMENTS divides the turn around the axis, RINGS the outline from foot to head. The fewer, the coarser.
"""

import math
import sys

SIZE = 64
TILT, TURN = math.radians(20), -0.45
LIGHT = (-0.48, 0.60, 0.64)
DARK, BRIGHT = (46, 60, 92), (255, 255, 255)

# The pawn's outline as (radius, height) corners; the mesh takes points evenly along it.
OUTLINE = [(0.66, 0.00), (0.70, 0.06), (0.68, 0.20), (0.52, 0.30), (0.36, 0.48), (0.27, 0.74), (0.25, 0.98),
           (0.44, 1.06), (0.45, 1.13), (0.27, 1.19)]
HEAD_CENTRE, HEAD_RADIUS, HEAD_STEPS = 1.48, 0.40, 24


def outline():
    start = math.asin((OUTLINE[-1][1] - HEAD_CENTRE) / HEAD_RADIUS)
    turns = [start + (math.pi / 2 - start) * i / HEAD_STEPS for i in range(HEAD_STEPS + 1)]
    return OUTLINE + [(HEAD_RADIUS * math.cos(t), HEAD_CENTRE + HEAD_RADIUS * math.sin(t)) for t in turns]


def sample(points, count):
    """Returns count + 1 points at even distances along the polyline."""
    lengths = [math.dist(a, b) for a, b in zip(points, points[1:])]
    step = sum(lengths) / count
    result, done, k = [points[0]], 0.0, 0
    for i in range(1, count):
        while done + lengths[k] < i * step:
            done += lengths[k]
            k += 1
        t = (i * step - done) / lengths[k]
        result.append(tuple(a + (b - a) * t for a, b in zip(points[k], points[k + 1])))
    return result + [points[-1]]


def view(radius, height, angle):
    """Places a point of the lathe before the camera: x right, y up, z towards the viewer."""
    x, y, z = radius * math.sin(angle), height, radius * math.cos(angle)
    return x, y * math.cos(TILT) - z * math.sin(TILT), y * math.sin(TILT) + z * math.cos(TILT)


def triangles(segments, rings):
    profile = sample(outline(), rings)
    for i in range(segments):
        a, b = (2 * math.pi * (i + k) / segments + TURN for k in (0, 1))
        for low, high in zip(profile, profile[1:]):
            p, q, r, s = view(*low, a), view(*low, b), view(*high, b), view(*high, a)
            yield p, q, r
            if high[0] > 1e-6:
                yield p, r, s


def normal(p, q, r):
    u, v = [b - a for a, b in zip(p, q)], [b - a for a, b in zip(p, r)]
    n = (u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0])
    length = math.hypot(*n) or 1.0
    return [c / length for c in n]


def shade(light):
    return "#%02x%02x%02x" % tuple(round(d + (b - d) * light) for d, b in zip(DARK, BRIGHT))


def main():
    segments, rings = int(sys.argv[1]), int(sys.argv[2])
    scale = SIZE * 0.455
    print(f'<svg xmlns="http://www.w3.org/2000/svg" width="{SIZE}" height="{SIZE}" viewBox="0 0 {SIZE} {SIZE}"'
          f' stroke-width="{min(0.35, 6 / segments):.3f}" stroke-linejoin="round">')
    for corners in sorted(triangles(segments, rings), key=lambda t: sum(p[2] for p in t)):
        n = normal(*corners)
        if n[2] <= 0:
            continue
        light = 0.12 + 0.88 * max(0.0, sum(a * b for a, b in zip(n, LIGHT)))
        points = " ".join(f"{SIZE / 2 + x * scale:.2f},{SIZE * 0.86 - y * scale:.2f}" for x, y, _ in corners)
        print(f'<polygon points="{points}" fill="{shade(light)}" stroke="{shade(light * 0.72)}"/>')
    print("</svg>")


main()
