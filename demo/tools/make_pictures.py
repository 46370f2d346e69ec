#!/usr/bin/env python3
"""Draws the two wizard pictures of the demo installation.

Wizard.bmp (the configuration wizard) shows a shield with a check mark,
Schedule_Wizard.bmp (the schedule wizard) a clock. Both are calm vertical
gradients, 164 by 314 pixels, the size of the wizards' picture area, written
as plain uncompressed 24-bit device-independent bitmaps: a 14-byte file
header, a 40-byte info header, then the rows bottom-up, each padded to four
bytes. The wizards read exactly that layout.

Standard library only. Run it again to rewrite the pictures:

    python3 demo/tools/make_pictures.py [output folder]

The output folder defaults to demo/data/Resource beside this script.
"""

import math
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools", "python"))
from bitmap_file import bitmap_bytes  # noqa: E402

WIDTH = 164
HEIGHT = 314
SUBSAMPLES = 3  # per axis: each pixel averages 3 x 3 samples for smooth edges


def mix(a, b, t):
    """Colour between a and b; t = 0 gives a, t = 1 gives b."""
    t = min(max(t, 0.0), 1.0)
    return tuple(a[i] + (b[i] - a[i]) * t for i in range(3))


def segment_distance(px, py, ax, ay, bx, by):
    """Distance from point p to the segment a-b."""
    dx, dy = bx - ax, by - ay
    t = ((px - ax) * dx + (py - ay) * dy) / (dx * dx + dy * dy)
    t = min(max(t, 0.0), 1.0)
    return math.hypot(px - (ax + t * dx), py - (ay + t * dy))


def background(x, y, top, bottom):
    """Vertical gradient with three faint waves near the bottom."""
    colour = mix(top, bottom, y / HEIGHT)
    for k in range(3):
        wave = 262 + 12 * k + 5 * math.sin(x / 19.0 + 1.3 * k)
        if abs(y - wave) < 1.2:
            colour = mix(colour, (255, 255, 255), 0.18)
    return colour


# ---------------------------------------------------------------- shield

SHIELD_CX = 82.0
SHIELD_TOP = 70.0
SHIELD_HALF = 50.0
SHIELD_SHOULDER = 52.0  # sides run straight this far down
SHIELD_HEIGHT = 128.0


def inside_shield(x, y, scale):
    """True if (x, y) lies in the shield shrunk by scale around its middle."""
    cy = SHIELD_TOP + SHIELD_HEIGHT / 2
    ux = (x - SHIELD_CX) / scale
    uy = (y - cy) / scale + cy
    half = SHIELD_HALF
    edge = abs(ux) / half
    if edge > 1.0:
        return False
    top = SHIELD_TOP + 7.0 * (1.0 - edge * edge)  # the top dips in the middle
    if uy < top:
        return False
    shoulder = SHIELD_TOP + SHIELD_SHOULDER
    point = SHIELD_TOP + SHIELD_HEIGHT
    if uy <= shoulder:
        return True
    if uy >= point:
        return False
    t = (uy - shoulder) / (point - shoulder)
    return abs(ux) <= half * math.cos(t * math.pi / 2) ** 0.85


def wizard_sample(x, y):
    colour = background(x, y, (22, 56, 102), (86, 152, 198))
    if inside_shield(x - 3, y - 4, 1.0):
        colour = mix(colour, (8, 20, 40), 0.35)  # soft shadow
    if inside_shield(x, y, 1.0):
        colour = mix((222, 232, 242), (168, 186, 206), (y - SHIELD_TOP) / SHIELD_HEIGHT)
        if inside_shield(x, y, 0.84):
            colour = mix((238, 246, 252), (176, 208, 234), (y - SHIELD_TOP) / SHIELD_HEIGHT)
            mark = min(segment_distance(x, y, 58, 136, 76, 154),
                       segment_distance(x, y, 76, 154, 108, 112))
            if mark < 6.5:
                colour = (40, 138, 92)
    return colour


# ---------------------------------------------------------------- clock

CLOCK_CX = 82.0
CLOCK_CY = 132.0
CLOCK_RADIUS = 54.0


def hand_distance(x, y, minutes_of_60, length):
    """Distance to a hand pointing at the given position on a 60-step dial."""
    angle = minutes_of_60 / 60.0 * 2 * math.pi
    ex = CLOCK_CX + length * math.sin(angle)
    ey = CLOCK_CY - length * math.cos(angle)
    return segment_distance(x, y, CLOCK_CX, CLOCK_CY, ex, ey)


def tick_distance(x, y, hour, inner, outer):
    angle = hour / 12.0 * 2 * math.pi
    s, c = math.sin(angle), math.cos(angle)
    return segment_distance(x, y, CLOCK_CX + inner * s, CLOCK_CY - inner * c,
                            CLOCK_CX + outer * s, CLOCK_CY - outer * c)


def schedule_sample(x, y):
    colour = background(x, y, (18, 66, 84), (84, 164, 168))
    shadow = math.hypot(x - CLOCK_CX - 3, y - CLOCK_CY - 4)
    if shadow <= CLOCK_RADIUS:
        colour = mix(colour, (6, 24, 30), 0.35)
    r = math.hypot(x - CLOCK_CX, y - CLOCK_CY)
    if r > CLOCK_RADIUS:
        return colour
    if r > CLOCK_RADIUS - 7:
        return mix((214, 226, 230), (150, 172, 180), (y - CLOCK_CY + CLOCK_RADIUS) / (2 * CLOCK_RADIUS))
    colour = mix((250, 252, 250), (214, 232, 230), (y - CLOCK_CY + CLOCK_RADIUS) / (2 * CLOCK_RADIUS))
    ink = (34, 58, 66)
    for hour in range(12):
        major = hour % 3 == 0
        width = 2.2 if major else 1.1
        if tick_distance(x, y, hour, 36 if major else 39, 43) < width:
            return ink
    if hand_distance(x, y, 50, 26) < 3.0:   # hour hand near ten
        return ink
    if hand_distance(x, y, 10, 37) < 1.9:   # minute hand at two
        return ink
    if r < 4.0:
        return (200, 80, 52)
    return colour


# ---------------------------------------------------------------- files

def render(sample):
    """Rows of (r, g, b) pixels, top row first."""
    step = 1.0 / SUBSAMPLES
    count = SUBSAMPLES * SUBSAMPLES
    rows = []
    for py in range(HEIGHT):
        row = []
        for px in range(WIDTH):
            total = [0.0, 0.0, 0.0]
            for sy in range(SUBSAMPLES):
                for sx in range(SUBSAMPLES):
                    c = sample(px + (sx + 0.5) * step, py + (sy + 0.5) * step)
                    total[0] += c[0]
                    total[1] += c[1]
                    total[2] += c[2]
            row.append(tuple(int(round(v / count)) for v in total))
        rows.append(row)
    return rows


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "..", "data", "Resource")
    os.makedirs(folder, exist_ok=True)
    for name, sample in (("Wizard.bmp", wizard_sample),
                         ("Schedule_Wizard.bmp", schedule_sample)):
        path = os.path.join(folder, name)
        with open(path, "wb") as out:
            out.write(bitmap_bytes(render(sample)))
        print("wrote", os.path.normpath(path))


if __name__ == "__main__":
    main()
