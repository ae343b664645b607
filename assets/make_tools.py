#!/usr/bin/python3
"""Make the tool bitmaps, their description files and ToolList.ini in tools/.

Run:   /usr/bin/python3 assets/make_tools.py
Needs: Python 3 with python3-cairo (Debian: apt-get install python3-cairo).

Every bitmap has its cutting point in the lower left corner, since the
simulator places that corner at the tool position. The opaque pixels are the
shape that cuts: nothing lies left of the cutting point, and behind it the
lower edge rises, so that only the point touches the turned surface.
Coordinates: see tool_drawing.py. 10 px = 1 mm.
"""

import math
from pathlib import Path

from tool_drawing import (
    DARK_STEEL, GOLD, GOLD_RIM, INK, ROUND_GOLD, ROUND_STEEL, STEEL, arc, bar,
    body, disc, dish, gradient, holder, insert, inset, line, marking, path,
    render, rhombus, ring, rounded, screw, shadow, triangle, with_point,
    write_bmp)

LIST_LENGTH = 21  # tool numbers 0 to 20


def clamp(ctx, points, x, y, radius):
    """A clamp that holds the insert from above, with its screw."""
    shape = rounded(points, 4)
    shadow(ctx, shape, 3)
    body(ctx, shape, DARK_STEEL, (x - 14, y + 14), (x + 16, y - 30))
    screw(ctx, x, y, radius)


def draw_default(ctx):
    holder(ctx, rounded([(6, 12), (36, 30), (67, 63), (67, 101), (6, 101)], 2))
    marking(ctx, 52, 68)
    insert(ctx, rhombus(55, 3, 41), 6)


def draw_roughing(ctx):
    holder(ctx, rounded([(7, 7), (46, 11), (87, 48), (87, 128), (7, 128)], 2))
    marking(ctx, 72, 86)
    insert(ctx, rhombus(80, 5, 46), 0)
    clamp(ctx, [(20, 23), (31, 19), (60, 46), (60, 78), (36, 78), (28, 48)],
          47, 63, 8)


def draw_finishing(ctx):
    holder(ctx, rounded([(5, 14), (34, 48), (57, 82), (57, 136), (5, 136)], 2))
    marking(ctx, 43, 98)
    insert(ctx, rhombus(35, 3, 50), 5, groove=3)


def draw_left_hand(ctx):
    holder(ctx, rounded([(6, 10), (42, 26), (78, 60), (78, 118), (30, 118),
                         (30, 86), (5, 46)], 2))
    marking(ctx, 63, 82)
    insert(ctx, triangle(3, 50), 5.5)


def draw_threading(ctx):
    """A laydown insert: a 60 degree tooth in each corner of a triangle."""
    edge = 54
    corners = triangle(3, edge)
    teeth = []
    for (x0, y0), (x1, y1) in zip(corners, corners[1:] + corners[:1]):
        dx, dy = (x1 - x0) / edge, (y1 - y0) / edge
        for run, depth in ((0, 0), (10, 0), (12, 1.8), (42, 1.8), (44, 0)):
            teeth.append((x0 + run * dx - depth * dy,
                          y0 + run * dy + depth * dx))
    holder(ctx, rounded([(7, 14), (44, 29), (63, 52), (63, 110), (7, 110)], 2))
    marking(ctx, 48, 76)
    insert(ctx, inset(corners, 1), 5.5,
           outline=[(0, 0), (1, 0)] + teeth[1:] + [(0, 1)], groove=5)


def blade_insert(ctx, width, height):
    """An insert with a straight front edge, for grooving and parting-off."""
    front = [(0, 0), (width, 0), (width, height), (0, height)]
    shadow(ctx, front, 3)
    body(ctx, with_point(front), GOLD_RIM, (0, height), (0, 0), strength=0.35)
    dish(ctx, rounded([(4, 3.5), (width - 4, 3.5), (width - 6, 14),
                       (6, 14)], 4))


def draw_grooving(ctx):
    blade = [(1, 22), (29, 22), (29, 70), (32, 78), (38, 82), (64, 84),
             (64, 146), (1, 146)]
    holder(ctx, blade)
    blade_insert(ctx, 30, 38)
    clamp(ctx, [(8, 20), (22, 20), (24, 74), (54, 92), (54, 118), (14, 118),
                (6, 74)], 35, 103, 8)


def draw_parting(ctx):
    """The blade reaches the centre of a 40 mm bar below its clamping block."""
    blade = [(1, 20), (24, 20), (24, 244), (1, 244)]
    body(ctx, blade, STEEL, (1, 100), (24, 100), strength=0.38, facet=4)
    marking(ctx, 10, 120)
    blade_insert(ctx, 25, 36)
    jaw = [(6, 19), (19, 19)] + arc((12.5, 64), 7.5, 0, 180, 16)
    shadow(ctx, jaw, 2)
    body(ctx, jaw, DARK_STEEL, (2, 70), (19, 19))
    block = [(0, 205), (25, 205), (25, 244), (0, 244)]
    shadow(ctx, block, 2)
    body(ctx, block, DARK_STEEL, (0, 244), (25, 205))
    screw(ctx, 12.5, 225, 8)


def draw_round(ctx):
    """A button insert whose leading flank is ground flat at the point."""
    button = arc((4, 39.8), 40, -95.7, 95.7)
    holder(ctx, rounded([(1, 20), (42, 30), (75, 66), (75, 128), (1, 128)], 2))
    marking(ctx, 58, 88)
    insert(ctx, button, 8, outline=[(0, 0)] + button)


def draw_boring_bar(ctx):
    """For the far side of a bore: the bar is clear of the wall below it."""
    bar(ctx, [(4, 7), (26, 8), (46, 13), (194, 13), (196, 15), (196, 50),
              (194, 52), (14, 52), (4, 42)], ROUND_STEEL, 52, 13)
    for x in (*range(90, 171, 20), 191):
        ring(ctx, x, 14, 51)
    face = [(4, 24), (30, 12)] + rounded([(48, 20), (68, 40), (68, 52)], 4,
                                         keep=(0, 2)) + [(14, 52), (4, 42)]
    body(ctx, face, STEEL, (6, 52), (66, 12), strength=0.3)
    disc(ctx, 46, 35, 3.6, (INK, "#3a434e"))
    insert(ctx, rhombus(80, 5, 28), 5, groove=3)


def draw_drill(ctx):
    """The half above the drill's axis, which lies along the lower edge."""
    radius, point, neck = 40, 24, 164  # 118 degree point: 40 / tan(59)
    lead = 322  # of the two flutes, for one turn

    def edge(x):
        """A flute's edge: a helix that meets the axis at x."""
        return [(x - lead * a / 360, radius * math.sin(math.radians(a)))
                for a in range(0, 91, 5)]

    def band(first, last, colours):
        path(ctx, edge(first) + edge(last)[::-1])
        ctx.set_source(gradient(colours, (0, radius), (0, 0)))
        ctx.fill()

    bar(ctx, [(neck, 0), (210, 0), (210, 37), (207, 40), (neck, 40)],
        ROUND_STEEL, 40, -20)
    ring(ctx, 204, 1, 39)
    fluted = [(0, 0), (neck, 0), (neck, 36), (neck - 6, 40), (point, 40)]
    bar(ctx, fluted, ROUND_GOLD, 40, -20)
    ctx.save()
    path(ctx, fluted)
    ctx.clip()
    body(ctx, [(0, 0), (point, 0), (point, 40)], GOLD, (0, 24), (24, 0),
         strength=0.4, ink=0.5)
    for x in (48, 48 + lead / 2):
        band(x, x + 80, ("#4a300a", "#76500f", "#a87420", "#d8a63c"))
        band(x - 8, x, ("#c89a3a", "#fff4c8", "#fff8d8", "#f3cc5e"))
        line(ctx, edge(x), 1, INK, 0.8)
        line(ctx, edge(x - 8), 0.8, "#6e470c", 0.8)
        line(ctx, edge(x + 80), 1, "#fff0b4", 0.9)
    line(ctx, [(3, 0), (point + 3, 40)], 1.6, "#fff4c8", 0.8)
    ctx.restore()


# Bitmap name, size, drawing routine, name shown to the user. The order is the
# tool number.
TOOLS = (
    ("tool", 67, 101, draw_default, "General turning, 55 degree insert"),
    ("roughing", 87, 128, draw_roughing, "Roughing, 80 degree insert"),
    ("finishing", 57, 136, draw_finishing, "Finishing, 35 degree insert"),
    ("grooving", 64, 146, draw_grooving, "Grooving, 3 mm"),
    ("threading", 63, 110, draw_threading, "Threading, 60 degrees"),
    ("parting", 25, 244, draw_parting, "Parting-off, 2.5 mm"),
    ("round", 75, 128, draw_round, "Round insert, radius 4 mm"),
    ("lefthand", 78, 118, draw_left_hand, "Left hand turning, 60 degree insert"),
    ("boring", 196, 52, draw_boring_bar, "Boring bar, 80 degree insert"),
    ("drill", 210, 40, draw_drill, "Twist drill, 8 mm"),
)


def write_lines(name, lines):
    name.write_bytes("".join(f"{text}\r\n" for text in lines).encode("cp1252"))


def main():
    folder = Path(__file__).resolve().parent / "tools"
    folder.mkdir(exist_ok=True)
    for name, width, height, draw, title in TOOLS:
        write_bmp(folder / f"{name}.bmp", render(draw, width, height))
        write_lines(folder / f"{name}.ini", (
            f"TOOLNAME={title}", f"TOOLWIDTH={width}", f"TOOLHEIGHT={height}",
            "CUTTINGPOINT=lower left corner"))
    names = [f"{tool[0]}.bmp" for tool in TOOLS]
    names += [""] * (LIST_LENGTH - len(names))
    write_lines(folder / "ToolList.ini",
                (f"{number}={name}" for number, name in enumerate(names)))


if __name__ == "__main__":
    main()
