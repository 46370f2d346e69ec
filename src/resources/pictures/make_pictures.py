#!/usr/bin/env python3
"""Draws the two picture strips of the configuration dialogs.

TreeImages.bmp (bitmap 132): 16 by 16 pictures side by side, for the page
tree. Index:
   0  plain leaf: a sheet of paper
   1  Easy Configuration: a slider on its track
   2  scan: a magnifier
   3  Security: a padlock
   4  System Scan/Monitoring: a magnifier over a disk
   5  E-mail: an envelope
   6  policy: a document with a check mark
   7  Other Configurations: a gear
   8  alarm mail: a bell
   9  Block Network: a brick wall
  10  schedule: a clock
  11  protection: a shield

PageIcons.bmp (bitmap 1022): 42 by 42 pictures side by side, for the icon
statics of the pages. Index:
   0  scan settings: a magnifier over a document
   1  records and their disk space: a storage cylinder
   2  password: a key
   3  protected actions: a padlock
   4  real-time monitoring: a screen with a pulse line
   5  repair: a wrench
   6  compressed files: a carton with a zipper
   7  system areas (memory, boot sector, processes): a chip
   8  e-mail scan: an envelope under a magnifier
   9  macro viruses: a document with a gear
  10  schedule: a clock
  11  internet: a globe
  12  instant messengers: two speech bubbles
  13  protection level: a gauge
  14  self protection: a shield with a check mark
  15  startup programs: a power button
  16  exclusions: a folder with a no-entry sign
  17  alerts: a bell
  18  alarm e-mail: an envelope with an exclamation mark
  19  virus found: a virus
  20  update: two circular arrows
  21  e-mail account: an envelope and a person
  22  period: a calendar
  23  ports and protocols: a network plug
  24  access permission: a traffic light
  25  mail text: an envelope and a pencil

Where nothing is drawn the colour is 0xFF00FF, which the program makes
transparent. Every shape is a signed distance function; each pixel averages
SUBSAMPLES x SUBSAMPLES samples, and edge pixels are blended towards a light
window grey rather than towards the transparent colour, so that no pink
fringe shows. Pixels that are mostly empty stay transparent.

The files are plain uncompressed 24-bit device-independent bitmaps: a 14-byte
file header, a 40-byte info header, then the rows bottom-up, each padded to
four bytes.

Standard library only. Run it again to rewrite both strips:

    python3 src/resources/pictures/make_pictures.py [output folder]

The output folder defaults to the folder of this script.
"""

import math
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "..", "tools", "python"))
from bitmap_file import bitmap_bytes  # noqa: E402

SUBSAMPLES = 4
TRANSPARENT = (255, 0, 255)
HALO = (236, 236, 236)     # edge pixels fade towards this window grey
MIN_COVERAGE = 0.3         # pixels covered less than this stay transparent

# ------------------------------------------------------------------ colours

INK = (44, 54, 66)
WHITE = (255, 255, 255)
PAPER = ((255, 255, 255), (222, 230, 238), (108, 122, 138))
BLUE = ((128, 184, 238), (36, 102, 184), (22, 66, 124))
GREEN = ((140, 214, 128), (44, 146, 70), (26, 94, 42))
RED = ((246, 124, 104), (196, 48, 38), (124, 26, 22))
GOLD = ((255, 226, 112), (224, 160, 26), (140, 92, 8))
METAL = ((226, 232, 238), (140, 152, 166), (68, 80, 94))
TAN = ((232, 194, 138), (184, 130, 66), (110, 72, 30))
ORANGE = ((255, 190, 96), (226, 112, 28), (136, 64, 12))
DARK = ((92, 104, 118), (40, 48, 58), (24, 30, 38))
LIME = ((176, 226, 92), (84, 158, 40), (44, 96, 20))
SCREEN = ((40, 76, 122), (18, 36, 66), (18, 36, 66))


def mix(a, b, t):
    """Colour between a and b; t = 0 gives a, t = 1 gives b."""
    t = min(max(t, 0.0), 1.0)
    return tuple(a[i] + (b[i] - a[i]) * t for i in range(3))


def gradient(scheme, top, bottom):
    """Fill that runs from the scheme's light colour at top to its dark one."""
    light, dark = scheme[0], scheme[1]
    return lambda x, y: mix(light, dark, (y - top) / max(bottom - top, 1e-6))


# --------------------------------------------------------- distance shapes
# Each shape is a function (x, y) -> signed distance: negative inside.

def circle(cx, cy, r):
    return lambda x, y: math.hypot(x - cx, y - cy) - r


def ellipse(cx, cy, rx, ry):
    """Approximate distance, good enough for filling and thin outlines."""
    scale = min(rx, ry)
    return lambda x, y: (math.hypot((x - cx) / rx, (y - cy) / ry) - 1.0) * scale


def ring(cx, cy, r, thickness):
    return lambda x, y: abs(math.hypot(x - cx, y - cy) - r) - thickness / 2


def ellipse_ring(cx, cy, rx, ry, thickness):
    inner = ellipse(cx, cy, rx, ry)
    return lambda x, y: abs(inner(x, y)) - thickness / 2


def box(x0, y0, x1, y1, radius=0.0):
    """Rectangle with rounded corners."""
    cx, cy = (x0 + x1) / 2, (y0 + y1) / 2
    hw, hh = (x1 - x0) / 2 - radius, (y1 - y0) / 2 - radius

    def distance(x, y):
        qx, qy = abs(x - cx) - hw, abs(y - cy) - hh
        outside = math.hypot(max(qx, 0.0), max(qy, 0.0))
        return outside + min(max(qx, qy), 0.0) - radius
    return distance


def segment_distance(px, py, ax, ay, bx, by):
    dx, dy = bx - ax, by - ay
    length2 = dx * dx + dy * dy
    t = 0.0 if length2 == 0 else ((px - ax) * dx + (py - ay) * dy) / length2
    t = min(max(t, 0.0), 1.0)
    return math.hypot(px - (ax + t * dx), py - (ay + t * dy))


def line(points, r):
    """A stroke of half width r along the points."""
    pairs = list(zip(points, points[1:]))
    return lambda x, y: min(segment_distance(x, y, a[0], a[1], b[0], b[1])
                            for a, b in pairs) - r


def polygon(points):
    pairs = list(zip(points, points[1:] + points[:1]))

    def distance(x, y):
        d = min(segment_distance(x, y, a[0], a[1], b[0], b[1]) for a, b in pairs)
        inside = False
        for (ax, ay), (bx, by) in pairs:
            if (ay > y) != (by > y) and x < ax + (y - ay) * (bx - ax) / (by - ay):
                inside = not inside
        return -d if inside else d
    return distance


def below(y0):
    """Half plane y > y0."""
    return lambda x, y: y0 - y


def above(y0):
    """Half plane y < y0."""
    return lambda x, y: y - y0


def right_of(x0):
    return lambda x, y: x0 - x


def left_of(x0):
    return lambda x, y: x - x0


def union(*shapes):
    return lambda x, y: min(s(x, y) for s in shapes)


def intersect(*shapes):
    return lambda x, y: max(s(x, y) for s in shapes)


def minus(shape, cut):
    return lambda x, y: max(shape(x, y), -cut(x, y))


def rotated(shape, cx, cy, degrees):
    """The shape turned clockwise (on screen) by degrees around (cx, cy)."""
    a = math.radians(degrees)
    c, s = math.cos(a), math.sin(a)

    def distance(x, y):
        dx, dy = x - cx, y - cy
        return shape(cx + dx * c + dy * s, cy - dx * s + dy * c)
    return distance


def at_angle(cx, cy, r, degrees):
    """Point at distance r from the centre; 0 degrees points up, clockwise."""
    a = math.radians(degrees)
    return cx + r * math.sin(a), cy - r * math.cos(a)


# ------------------------------------------------------------------ canvas

class Picture:
    """Layers of shapes, painted bottom first; the last layer is on top."""

    def __init__(self, size, outline_width):
        self.size = size
        self.width = outline_width
        self.layers = []

    def fill(self, shape, colour):
        """Shape filled with a colour or a fill function, no outline."""
        self.layers.append((shape, colour, None, 0.0))

    def add(self, shape, scheme, top, bottom, outline=None):
        """Shape with a gradient of the scheme and the scheme's outline."""
        self.layers.append((shape, gradient(scheme, top, bottom),
                            outline or scheme[2], self.width))

    def sample(self, x, y):
        for shape, colour, outline, width in reversed(self.layers):
            d = shape(x, y)
            if d < 0:
                if outline is not None and d > -width:
                    return outline
                return colour(x, y) if callable(colour) else colour
        return None

    def pixel(self, px, py):
        step = 1.0 / SUBSAMPLES
        total = [0.0, 0.0, 0.0]
        hits = 0
        for sy in range(SUBSAMPLES):
            for sx in range(SUBSAMPLES):
                c = self.sample(px + (sx + 0.5) * step, py + (sy + 0.5) * step)
                if c is not None:
                    hits += 1
                    for i in range(3):
                        total[i] += c[i]
        coverage = hits / (SUBSAMPLES * SUBSAMPLES)
        if coverage < MIN_COVERAGE:
            return TRANSPARENT
        colour = mix(HALO, tuple(v / hits for v in total), coverage)
        colour = tuple(int(round(v)) for v in colour)
        # An opaque pixel must never take the transparent colour by chance.
        return (254, 0, 255) if colour == TRANSPARENT else colour

    def rows(self):
        return [[self.pixel(px, py) for px in range(self.size)]
                for py in range(self.size)]


# ------------------------------------------------------ shared motifs

def add_page(p, x0, y0, x1, y1, fold, lines=0, line_r=0.9):
    """A sheet of paper with a folded top right corner and text lines."""
    p.add(polygon([(x0, y0), (x1 - fold, y0), (x1, y0 + fold), (x1, y1), (x0, y1)]),
          PAPER, y0, y1)
    p.add(polygon([(x1 - fold, y0), (x1 - fold, y0 + fold), (x1, y0 + fold)]),
          ((236, 240, 244), (196, 206, 216), PAPER[2]), y0, y0 + fold)
    gap = (y1 - y0 - fold) / (lines + 1) if lines else 0
    for i in range(lines):
        y = y0 + fold + gap * (i + 0.5)
        x_end = x1 - (x1 - x0) * (0.22 if i % 2 else 0.12)
        p.fill(line([(x0 + (x1 - x0) * 0.2, y), (x_end, y)], line_r), (150, 162, 176))


def add_envelope(p, x0, y0, x1, y1):
    r = max(p.width, 1.0)
    p.add(box(x0, y0, x1, y1, r), PAPER, y0, y1)
    inset = p.width * 0.9
    mid = (x0 + x1) / 2
    flap_y = y0 + (y1 - y0) * 0.58
    p.fill(line([(x0 + inset, y0 + inset), (mid, flap_y), (x1 - inset, y0 + inset)],
                p.width * 0.55), PAPER[2])


def add_magnifier(p, cx, cy, r, thickness, handle_to, handle_r):
    p.add(line([(cx + (r + thickness / 2) * 0.7, cy + (r + thickness / 2) * 0.7), handle_to],
               handle_r), DARK, cy, handle_to[1])
    p.fill(circle(cx, cy, r), gradient(((232, 244, 255), (176, 212, 240)), cy - r, cy + r))
    p.add(ring(cx, cy, r + thickness / 2 - p.width / 2, thickness), METAL, cy - r, cy + r)
    # A glint on the glass.
    p.fill(intersect(ring(cx, cy, r * 0.62, r * 0.16 + 0.4), above(cy - r * 0.1),
                     left_of(cx + r * 0.1)), WHITE)


def gear_shape(cx, cy, body, tooth_length, tooth_width, teeth, hole):
    parts = [circle(cx, cy, body)]
    for k in range(teeth):
        tooth = box(cx - tooth_width / 2, cy - body - tooth_length,
                    cx + tooth_width / 2, cy - body + 1, tooth_width * 0.2)
        parts.append(rotated(tooth, cx, cy, k * 360.0 / teeth))
    return minus(union(*parts), circle(cx, cy, hole))


def clock(p, cx, cy, r, rim):
    p.add(circle(cx, cy, r), BLUE, cy - r, cy + r)
    face = r - rim
    p.add(circle(cx, cy, face), PAPER, cy - face, cy + face, outline=BLUE[2])
    if face > 8:
        for hour in range(12):
            inner = face * (0.72 if hour % 3 == 0 else 0.8)
            p.fill(line([at_angle(cx, cy, inner, hour * 30), at_angle(cx, cy, face * 0.9, hour * 30)],
                        0.9 if hour % 3 == 0 else 0.45), INK)
        p.fill(line([(cx, cy), at_angle(cx, cy, face * 0.5, 300)], face * 0.09), INK)
        p.fill(line([(cx, cy), at_angle(cx, cy, face * 0.78, 60)], face * 0.065), INK)
        p.fill(circle(cx, cy, face * 0.12), RED[1])
    else:  # small: bold hands, no ticks
        p.fill(line([(cx, cy - face * 0.75), (cx, cy), (cx + face * 0.55, cy)], 0.75), INK)


def shield_points(cx, top, half, shoulder, bottom, steps=24):
    """Outline of a shield: a dipped top, straight sides, a curved point."""
    points = []
    for i in range(steps + 1):             # top edge, left to right
        t = i / steps
        x = cx - half + 2 * half * t
        points.append((x, top + (half * 0.22) * (1 - (2 * t - 1) ** 2)))
    for i in range(steps + 1):             # right side down to the point
        t = i / steps
        points.append((cx + half * math.cos(t * math.pi / 2) ** 0.8,
                       shoulder + (bottom - shoulder) * t))
    for i in range(1, steps):              # left side back up
        t = 1 - i / steps
        points.append((cx - half * math.cos(t * math.pi / 2) ** 0.8,
                       shoulder + (bottom - shoulder) * t))
    return points


def bell(p, cx, top, bottom, half):
    dome_r = half * 0.62
    dome_cy = top + dome_r + half * 0.15
    rim_y = bottom - half * 0.42
    body = union(circle(cx, dome_cy, dome_r),
                 polygon([(cx - dome_r, dome_cy), (cx + dome_r, dome_cy),
                          (cx + half * 0.92, rim_y), (cx - half * 0.92, rim_y)]),
                 box(cx - half, rim_y - half * 0.12, cx + half, rim_y + half * 0.18, half * 0.1))
    p.add(circle(cx, bottom - half * 0.22, half * 0.22), GOLD, rim_y, bottom)
    p.add(circle(cx, top + half * 0.12, half * 0.16), GOLD, top, top + half * 0.3)
    p.add(body, GOLD, top, rim_y)


def padlock(p, cx, top, bottom, half):
    shackle_r = half * 0.62
    body_top = top + (bottom - top) * 0.42
    shackle_cy = top + shackle_r + half * 0.12
    thickness = half * 0.3
    shackle = union(intersect(ring(cx, shackle_cy, shackle_r, thickness), above(shackle_cy)),
                    box(cx - shackle_r - thickness / 2, shackle_cy - 0.1,
                        cx - shackle_r + thickness / 2, body_top + 1),
                    box(cx + shackle_r - thickness / 2, shackle_cy - 0.1,
                        cx + shackle_r + thickness / 2, body_top + 1))
    p.add(shackle, METAL, top, body_top)
    p.add(box(cx - half, body_top, cx + half, bottom, half * 0.2), GOLD, body_top, bottom)
    hole_y = body_top + (bottom - body_top) * 0.4
    p.fill(union(circle(cx, hole_y, half * 0.2),
                 polygon([(cx - half * 0.08, hole_y), (cx + half * 0.08, hole_y),
                          (cx + half * 0.15, hole_y + half * 0.5),
                          (cx - half * 0.15, hole_y + half * 0.5)])), INK)


# ------------------------------------------------------ tree pictures

def tree_picture():
    return Picture(16, 1.0)


def tree_leaf():
    p = tree_picture()
    add_page(p, 3, 1.5, 13, 14.5, 3.5, lines=3, line_r=0.5)
    return p


def tree_slider():
    p = tree_picture()
    for y in (3.5, 6.5, 9.5, 12.5):
        p.fill(line([(2.5, y), (4.5, y)], 0.45), (120, 132, 146))
    p.add(box(7, 1, 10, 15, 1.5), DARK, 1, 15)
    p.add(box(4.5, 6, 14.5, 10.5, 1.5), BLUE, 6, 10.5)
    p.fill(line([(7, 8.25), (12, 8.25)], 0.45), WHITE)
    return p


def tree_magnifier():
    p = tree_picture()
    add_magnifier(p, 6.5, 6.5, 3.8, 2.0, (13.4, 13.4), 1.7)
    return p


def tree_lock():
    p = tree_picture()
    padlock(p, 8, 1, 15, 5.8)
    return p


def tree_scan():
    p = tree_picture()
    p.add(box(1, 9.5, 15, 15, 1.5), METAL, 9.5, 15)
    p.fill(circle(12.4, 12.3, 1.0), GREEN[1])
    add_magnifier(p, 6, 5.3, 3.0, 1.7, (10.6, 10.2), 1.4)
    return p


def tree_envelope():
    p = tree_picture()
    add_envelope(p, 1, 3, 15, 13)
    return p


def tree_policy():
    p = tree_picture()
    add_page(p, 2, 1, 12, 14.5, 3, lines=3, line_r=0.5)
    p.add(line([(7.5, 11), (9.8, 13.5), (14.2, 8)], 1.4), GREEN, 8, 14)
    p.fill(line([(7.5, 11), (9.8, 13.5), (14.2, 8)], 0.55), (196, 244, 190))
    return p


def tree_gear():
    p = tree_picture()
    p.add(gear_shape(8, 8, 4.8, 2.4, 3.4, 6, 2.0), METAL, 1, 15)
    return p


def tree_bell():
    p = tree_picture()
    bell(p, 8, 0.8, 15.5, 6.8)
    return p


def brick_fill(x0, y0, rows, row_h, brick_w, mortar):
    def colour(x, y):
        row = int((y - y0) // row_h)
        offset = brick_w / 2 if row % 2 else 0.0
        in_row = (y - y0) - row * row_h
        in_brick = (x - x0 + offset) % brick_w
        if in_row < mortar or in_brick < mortar:
            return (226, 214, 200)
        shade = 0.5 * in_row / row_h
        return mix((222, 92, 64), (160, 48, 32), shade + (0.15 if row % 2 else 0))
    return colour


def tree_wall():
    p = tree_picture()
    p.layers.append((box(1, 2, 15, 14.5, 0.6), brick_fill(1, 2, 4, 3.125, 5.0, 0.8),
                     (110, 36, 24), 0.8))
    return p


def tree_clock():
    p = tree_picture()
    clock(p, 8, 8, 7.2, 1.6)
    return p


def tree_shield():
    p = tree_picture()
    p.add(polygon(shield_points(8, 1, 6.5, 7, 15.2)), BLUE, 1, 15)
    p.fill(line([(5, 8), (7.3, 10.5), (11.3, 5.3)], 0.9), WHITE)
    return p


TREE_PICTURES = [tree_leaf, tree_slider, tree_magnifier, tree_lock, tree_scan,
                 tree_envelope, tree_policy, tree_gear, tree_bell, tree_wall,
                 tree_clock, tree_shield]


# ------------------------------------------------------ page pictures

def page_picture():
    return Picture(42, 1.5)


def icon_scan():
    p = page_picture()
    add_page(p, 5, 3, 28, 37, 7, lines=5, line_r=1.0)
    add_magnifier(p, 25, 23, 8, 3.5, (37.5, 37.5), 3.0)
    return p


def icon_storage():
    p = page_picture()
    cx, rx, ry = 21, 14, 5
    top, bottom = 9, 33
    p.add(union(box(cx - rx, top, cx + rx, bottom), ellipse(cx, bottom, rx, ry)),
          METAL, top - ry, bottom + ry)
    for y in (17, 25):
        p.fill(intersect(ellipse_ring(cx, y, rx, ry, 1.5), below(y)), METAL[2])
    p.add(ellipse(cx, top, rx, ry), ((236, 242, 248), (188, 200, 214), METAL[2]), top - ry, top + ry)
    p.fill(circle(cx + rx * 0.62, 30, 1.4), GREEN[1])
    return p


def icon_key():
    p = page_picture()
    key = union(circle(12, 21, 9),
                box(18, 18, 38, 24, 1),
                box(28, 22, 31.5, 30, 0.8),
                box(33.5, 22, 37, 28, 0.8))
    p.add(minus(key, circle(9.5, 21, 3.2)), GOLD, 12, 30)
    p.fill(intersect(ring(12, 21, 6.5, 1.2), above(18), left_of(16)), (255, 244, 190))
    return p


def icon_padlock():
    p = page_picture()
    padlock(p, 21, 3, 39, 14)
    return p


def icon_monitor():
    p = page_picture()
    p.add(polygon([(17, 29), (25, 29), (27.5, 35), (14.5, 35)]), METAL, 29, 35)
    p.add(box(10, 34, 32, 38.5, 1.8), METAL, 34, 38.5)
    p.add(box(3, 5, 39, 31, 3), DARK, 5, 31)
    p.fill(box(6.5, 8.5, 35.5, 27.5, 1), gradient(SCREEN, 8.5, 27.5))
    p.fill(line([(8.5, 19), (15, 19), (18, 12), (22.5, 25), (25.5, 16), (27.5, 19), (33.5, 19)],
                1.2), (120, 236, 132))
    return p


def icon_wrench():
    p = page_picture()
    head = circle(28, 14, 9.5)
    handle = line([(10, 32), (25, 17)], 4.5)
    slot = union(line([(29.5, 12.5), (42, 0)], 3.4), circle(29, 13, 3.4))
    wrench = minus(minus(union(head, handle), slot), circle(10.5, 31.5, 1.7))
    p.add(wrench, METAL, 4, 38)
    p.fill(intersect(line([(13, 33), (27, 19)], 0.8), right_of(13)), (246, 248, 250))
    return p


def icon_carton():
    p = page_picture()
    p.add(box(6, 13, 36, 38, 2), TAN, 13, 38)
    p.add(box(4, 7, 38, 15, 2), ((240, 210, 160), (204, 152, 88), TAN[2]), 7, 15)
    p.fill(box(19, 7.8, 23, 30), (108, 118, 130))
    for i in range(8):
        y = 9 + i * 2.6
        x0, x1 = (17.6, 21) if i % 2 else (21, 24.4)
        p.fill(box(x0, y, x1, y + 1.5, 0.4), (196, 204, 214))
    p.add(box(18, 28, 24, 35, 1.5), METAL, 28, 35)
    p.fill(box(20, 30.5, 22, 33, 0.6), METAL[2])
    return p


def icon_chip():
    p = page_picture()
    pins = []
    for c in (14.5, 19, 23, 27.5):
        pins += [box(c - 1.3, 4, c + 1.3, 12), box(c - 1.3, 30, c + 1.3, 38),
                 box(4, c - 1.3, 12, c + 1.3), box(30, c - 1.3, 38, c + 1.3)]
    p.add(union(*pins), METAL, 4, 38)
    p.add(box(10, 10, 32, 32, 2.5), DARK, 10, 32)
    p.fill(box(14, 14, 28, 28, 1.5), gradient(((80, 92, 108), (58, 68, 82)), 14, 28))
    p.fill(circle(16.5, 16.5, 1.3), (150, 162, 176))
    return p


def icon_mail_scan():
    p = page_picture()
    add_envelope(p, 2, 6, 34, 29)
    add_magnifier(p, 28, 27, 6.5, 3, (38.5, 38.5), 2.6)
    return p


def icon_macro():
    p = page_picture()
    add_page(p, 4, 3, 27, 37, 7, lines=5, line_r=1.0)
    p.add(gear_shape(28, 28, 7.5, 3.5, 4, 8, 3), ORANGE, 17, 39)
    return p


def icon_clock():
    p = page_picture()
    clock(p, 21, 21, 17.5, 3.2)
    return p


def icon_globe():
    p = page_picture()
    cx, cy, r = 21, 21, 17
    p.add(circle(cx, cy, r), BLUE, cy - r, cy + r)
    grid = (198, 228, 252)
    inside = circle(cx, cy, r - 1.2)
    p.fill(intersect(union(ellipse_ring(cx, cy, 7.5, r, 1.4),
                           line([(cx, cy - r), (cx, cy + r)], 0.7),
                           line([(cx - r, cy), (cx + r, cy)], 0.7),
                           line([(cx - r, cy - 8.5), (cx + r, cy - 8.5)], 0.7),
                           line([(cx - r, cy + 8.5), (cx + r, cy + 8.5)], 0.7)),
                     inside), grid)
    p.fill(intersect(ring(cx, cy, r - 4.5, 2.2), above(cy - 6), left_of(cx - 3)),
           (220, 240, 255))
    return p


def icon_messenger():
    p = page_picture()
    back = union(box(15, 13, 39, 31, 6), polygon([(29, 29), (37, 37.5), (34, 29)]))
    p.add(back, GREEN, 13, 37)
    front = union(box(3, 5, 28, 24, 6), polygon([(8, 22), (5, 31), (14, 22)]))
    p.add(front, BLUE, 5, 31)
    for x in (9.5, 15.5, 21.5):
        p.fill(circle(x, 14.5, 2), WHITE)
    return p


def icon_gauge():
    p = page_picture()
    cx, cy, r = 21, 28, 18
    p.add(union(intersect(circle(cx, cy, r), above(cy)), box(cx - r, cy - 1, cx + r, cy + 7, 2.5)),
          PAPER, cy - r, cy + 7)

    def band(x, y):
        angle = math.degrees(math.atan2(x - cx, cy - y))   # -90 left .. 90 right
        if angle < -30:
            return (62, 176, 84)
        if angle < 30:
            return (244, 196, 40)
        return (222, 64, 48)
    p.fill(intersect(ring(cx, cy, r - 6, 5), above(cy - 0.5)), band)
    tip = at_angle(cx, cy, r - 4, -48)
    p.fill(line([(cx, cy), tip], 1.6), INK)
    p.fill(circle(cx, cy, 3.5), INK)
    p.fill(circle(cx - 1, cy - 1, 1.1), (150, 162, 176))
    return p


def icon_shield():
    p = page_picture()
    p.add(polygon(shield_points(21, 3, 16, 17, 39.5)), BLUE, 3, 39)
    p.fill(intersect(polygon(shield_points(21, 6, 12.5, 17, 35)), left_of(21)),
           gradient(((152, 200, 244), (64, 128, 204)), 6, 35))
    p.fill(line([(12.5, 21), (18.5, 27.5), (30, 13)], 2.6), WHITE)
    return p


def icon_power():
    p = page_picture()
    cx, cy = 21, 21
    p.add(circle(cx, cy, 17.5), GREEN, cy - 17.5, cy + 17.5)
    p.fill(circle(cx, cy, 14.5), gradient(((120, 204, 110), (56, 156, 70)), cy - 14.5, cy + 14.5))
    arc = minus(ring(cx, cy, 8.5, 3.4), polygon([(cx, cy), (cx - 9, cy - 14), (cx + 9, cy - 14)]))
    p.fill(union(arc, line([(cx, cy - 11), (cx, cy - 2)], 1.8)), WHITE)
    return p


def icon_folder_excluded():
    p = page_picture()
    p.add(polygon([(3, 9), (4.5, 6), (14, 6), (16.5, 9), (35, 9), (35, 33), (3, 33)]),
          ((246, 210, 110), (214, 160, 40), (140, 96, 16)), 6, 33)
    p.add(box(3, 13, 35, 33, 1.5), GOLD, 13, 33, outline=(140, 96, 16))
    p.add(circle(29.5, 29.5, 10), RED, 19.5, 39.5)
    p.fill(box(23.5, 27.6, 35.5, 31.4, 1), WHITE)
    return p


def icon_bell():
    p = page_picture()
    bell(p, 21, 3, 39, 15)
    waves = intersect(union(ring(21, 19, 19, 1.6), ring(21, 19, 15, 1.6)),
                      union(left_of(7), right_of(35)), above(25), below(12))
    p.fill(waves, GOLD[2])
    return p


def add_badge(p, cx, cy, r):
    p.add(circle(cx, cy, r), RED, cy - r, cy + r)
    p.fill(line([(cx, cy - r * 0.55), (cx, cy + r * 0.12)], r * 0.16), WHITE)
    p.fill(circle(cx, cy + r * 0.5, r * 0.17), WHITE)


def icon_alarm_mail():
    p = page_picture()
    add_envelope(p, 2, 11, 33, 35)
    add_badge(p, 30.5, 11.5, 9.5)
    return p


def icon_virus():
    p = page_picture()
    cx, cy = 21, 21
    spikes = []
    for k in range(10):
        a = k * 36 + 10
        spikes.append(line([at_angle(cx, cy, 9, a), at_angle(cx, cy, 15.5, a)], 1.3))
        spikes.append(circle(*at_angle(cx, cy, 16, a), 2.6))
    p.add(union(*spikes), LIME, 3, 39)
    p.add(circle(cx, cy, 12), LIME, cy - 12, cy + 12)
    for (x, y, r) in ((17, 17, 2.8), (25.5, 20, 2.2), (19.5, 26, 2.0), (26, 27, 1.3)):
        p.fill(circle(x, y, r), (78, 140, 36))
    return p


def icon_update():
    p = page_picture()
    cx, cy, r = 21, 21, 12.5
    upper = union(intersect(ring(cx, cy, r, 5), above(cy - 1.5)),
                  polygon([(cx + r - 7.5, cy - 2.5), (cx + r + 7.5, cy - 2.5), (cx + r, cy + 6)]))
    lower = union(intersect(ring(cx, cy, r, 5), below(cy + 1.5)),
                  polygon([(cx - r - 7.5, cy + 2.5), (cx - r + 7.5, cy + 2.5), (cx - r, cy - 6)]))
    p.add(upper, GREEN, cy - r - 3, cy + 6)
    p.add(lower, GREEN, cy - 6, cy + r + 3)
    return p


def icon_account():
    p = page_picture()
    add_envelope(p, 2, 5, 31, 27)
    p.add(intersect(box(19, 28, 40, 44, 8), above(39.5)), BLUE, 28, 40)
    p.add(circle(29.5, 22, 6.5), ((252, 226, 196), (226, 178, 136), (128, 86, 52)), 15, 29)
    return p


def icon_calendar():
    p = page_picture()
    p.add(box(5, 8, 37, 38, 3), PAPER, 8, 38)
    inside = box(5 + p.width, 8 + p.width, 37 - p.width, 38 - p.width, 3 - p.width)
    p.fill(intersect(inside, above(16)), gradient(RED, 8, 16))
    for x in (13, 29):
        p.add(box(x - 1.6, 4, x + 1.6, 12, 1.6), METAL, 4, 12)
    for row in range(3):
        for col in range(4):
            x = 9.5 + col * 6.6
            y = 19.5 + row * 5.8
            colour = RED[1] if (row, col) == (1, 2) else (170, 180, 192)
            p.fill(box(x, y, x + 4.2, y + 3.8, 0.7), colour)
    return p


def icon_plug():
    p = page_picture()
    p.add(line([(21, 34), (21, 42)], 3.2), BLUE, 34, 42)
    p.add(box(15, 27, 27, 35, 2), BLUE, 27, 35)
    p.add(polygon([(11, 7), (31, 7), (31, 28), (11, 28)]), METAL, 7, 28)
    for i in range(6):
        x = 13.6 + i * 3.0
        p.fill(box(x, 8.8, x + 1.6, 15, 0.3), GOLD[1])
    p.add(box(16, 20, 26, 24, 1), DARK, 20, 24)
    return p


def icon_traffic_light():
    p = page_picture()
    p.add(box(12, 2, 30, 40, 5), DARK, 2, 40)
    for y, scheme in ((10, RED), (21, GOLD), (32, GREEN)):
        p.add(circle(21, y, 4.6), scheme, y - 4.6, y + 4.6, outline=(20, 24, 30))
        p.fill(circle(19.6, y - 1.6, 1.3), (255, 255, 255))
    return p


def icon_mail_text():
    p = page_picture()
    add_envelope(p, 2, 12, 32, 35)

    def pencil_part(shape):
        return rotated(shape, 21, 21, -45)
    # The pencil lies along a line through the centre, tip at the lower left.
    tip = polygon([(3, 21), (10, 17.5), (10, 24.5)])
    lead = polygon([(3, 21), (5.6, 19.7), (5.6, 22.3)])
    body = box(10, 17.5, 32, 24.5)
    ferrule = box(32, 17.5, 35, 24.5)
    eraser = box(35, 17.5, 39.5, 24.5, 1.5)
    p.add(pencil_part(eraser), ((250, 170, 176), (220, 110, 120), (120, 44, 52)), 10, 30)
    p.add(pencil_part(ferrule), METAL, 10, 30)
    p.add(pencil_part(body), ORANGE, 0, 30)
    p.fill(pencil_part(box(10, 20.2, 32, 21.8)), (255, 214, 140))
    p.add(pencil_part(tip), ((250, 226, 190), (220, 180, 130), (120, 90, 50)), 14, 30)
    p.fill(pencil_part(lead), INK)
    return p


PAGE_PICTURES = [icon_scan, icon_storage, icon_key, icon_padlock, icon_monitor,
                 icon_wrench, icon_carton, icon_chip, icon_mail_scan, icon_macro,
                 icon_clock, icon_globe, icon_messenger, icon_gauge, icon_shield,
                 icon_power, icon_folder_excluded, icon_bell, icon_alarm_mail,
                 icon_virus, icon_update, icon_account, icon_calendar, icon_plug,
                 icon_traffic_light, icon_mail_text]


# ------------------------------------------------------------------ files

def strip(pictures):
    """The pictures side by side, as rows of (r, g, b), top row first."""
    cells = [make().rows() for make in pictures]
    height = len(cells[0])
    return [[pixel for cell in cells for pixel in cell[y]] for y in range(height)]


def main():
    folder = sys.argv[1] if len(sys.argv) > 1 else os.path.dirname(os.path.abspath(__file__))
    os.makedirs(folder, exist_ok=True)
    for name, pictures in (("TreeImages.bmp", TREE_PICTURES),
                           ("PageIcons.bmp", PAGE_PICTURES)):
        path = os.path.join(folder, name)
        with open(path, "wb") as out:
            out.write(bitmap_bytes(strip(pictures)))
        print("wrote", os.path.normpath(path))


if __name__ == "__main__":
    main()
