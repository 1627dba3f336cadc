#!/usr/bin/env python3
"""Writes a large part program: a rolling surface milled in a zigzag, circles around its hills and
a plate of drilled holes. The same seed gives the same program.

usage: make_large_program.py [--blocks 100000] [--seed 1] [FILE]
"""

import argparse
import math
import random
import sys

WIDTH, DEPTH = 300.0, 240.0  # of the surface, millimetres
HEADER, FOOTER = 6, 3  # blocks
HOLES = 62


def surface(hills, x, y):
    """The height at a place, at most 0."""
    waves = 1.5 * math.sin(x / 11.0) * math.cos(y / 17.0) - 22.0
    return waves + sum(
        height * math.exp(-((x - cx) ** 2 + (y - cy) ** 2) / (2.0 * radius**2))
        for cx, cy, radius, height in hills
    )


def zigzag(hills, count):
    """`count` blocks that run over the surface line by line."""
    lines = max(1, round(math.sqrt(count * DEPTH / WIDTH)))
    each = math.ceil(count / lines)
    for i in range(count):
        line, step = divmod(i, each)
        part = step / max(1, each - 1)
        x = WIDTH * (part if line % 2 == 0 else 1.0 - part)
        y = DEPTH * line / max(1, lines - 1)
        yield f"X{x:.3f} Y{y:.3f} Z{surface(hills, x, y):.3f}"


def circles(hills, count):
    """`count` blocks, four to a circle: around the hills at growing distance."""
    for i in range(count):
        cx, cy, radius, _ = hills[i // 4 % len(hills)]
        r = radius * (0.1 + 0.02 * (i // 4 // len(hills) % 30))
        z = surface(hills, cx + r, cy)
        yield (
            f"G0 X{cx + r:.3f} Y{cy:.3f}",
            f"G0 Z{z:.3f}",
            f"G3 X{cx + r:.3f} Y{cy:.3f} I{-r:.3f} J0",
            "G0 Z10",
        )[i % 4]


def holes(count):
    """`count` blocks: a drilling cycle, its holes along two edges, and its end."""
    edge = (count - 1) // 2
    for i in range(count - 1):
        side, place = divmod(i, edge)
        part = min(place / (edge - 1), 1.0)
        x = (WIDTH + 24) * (part if side == 0 else 1.0 - part) - 12
        y = -12 if side == 0 else DEPTH + 12
        yield ("G99 G81 Z-24 R-18 " if i == 0 else "") + f"X{x:.3f} Y{y:.3f}"
    yield "G80"


def blocks(count, seed):
    """Exactly `count` blocks, at least 1000."""
    rng = random.Random(seed)
    hills = [
        (rng.uniform(30, WIDTH - 30), rng.uniform(30, DEPTH - 30), rng.uniform(14, 34), rng.uniform(4, 14))
        for _ in range(9)
    ]
    body = count - HEADER - FOOTER - HOLES
    circled = body // 50 // 4 * 4
    yield from ("G17 G21 G90 G80", "T1 M6", "S16000 M3", "G0 Z10", "G0 X0 Y0", "G1 Z-22 F800")
    yield from zigzag(hills, body - circled)
    yield from circles(hills, circled)
    yield from holes(HOLES)
    yield from ("G0 Z50", "M5", "M30")


def main():
    parser = argparse.ArgumentParser(description="Writes a large part program.")
    parser.add_argument("--blocks", type=int, default=100_000)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("file", nargs="?", help="where to write it; the standard output by default")
    arguments = parser.parse_args()
    if arguments.blocks < 1000:
        parser.error("--blocks must be 1000 or more")
    text = "".join(f"N{n} {b}\n" for n, b in enumerate(blocks(arguments.blocks, arguments.seed), 1))
    if arguments.file is None:
        sys.stdout.write(text)
    else:
        with open(arguments.file, "w", encoding="ascii") as out:
            out.write(text)


if __name__ == "__main__":
    main()
