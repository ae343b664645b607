"""Diagrams of the manual: coordinates, arcs, cycles, a tool.

Coordinates: x to the right, y downwards, pixels of the diagram. Each diagram
is a function of a cairo context and stands in DIAGRAMS with its size.
Needs python3-cairo and the font Lato.
"""

import math
from pathlib import Path

import cairo

from icon_drawing import box, circle, flat, trace
from tool_drawing import rgb

PICTURES = Path(__file__).parent / "pictures"
TEXT = "#1d2630"
QUIET = "#66717d"
PART = "#a9c6ee"
PART_EDGE = "#2f63b0"
STOCK = "#e3ecf8"
RAPID = "#d0601a"
FEED = "#1f7f3a"
MARK = "#c0271e"


# --- Strokes and labels -------------------------------------------------------

def stroke(ctx, points, colour, width=1.5, dash=()):
    ctx.new_path()
    for point in points:
        ctx.line_to(*point)
    ctx.set_source_rgb(*rgb(colour))
    ctx.set_line_width(width)
    ctx.set_dash(dash)
    ctx.stroke()
    ctx.set_dash([])


def head(ctx, start, end, colour, size=8):
    a = math.atan2(end[1] - start[1], end[0] - start[0])
    flat(ctx, [end] + [(end[0] - size * math.cos(a + turn),
                        end[1] - size * math.sin(a + turn))
                       for turn in (0.42, -0.42)], colour)


def arrow(ctx, start, end, colour, width=1.5, dash=(), both=False):
    stroke(ctx, [start, end], colour, width, dash)
    head(ctx, start, end, colour)
    if both:
        head(ctx, end, start, colour)


def label(ctx, text, x, y, colour=TEXT, size=13, align=0.0, bold=False):
    """Text on a base line; align is the part of its width left of x."""
    ctx.select_font_face("Lato", cairo.FONT_SLANT_NORMAL,
                         cairo.FONT_WEIGHT_BOLD if bold
                         else cairo.FONT_WEIGHT_NORMAL)
    ctx.set_font_size(size)
    ctx.set_source_rgb(*rgb(colour))
    ctx.move_to(x - align * ctx.text_extents(text).x_advance, y)
    ctx.show_text(text)


def dot(ctx, x, y, colour=MARK, radius=3.5):
    flat(ctx, circle(x, y, radius), colour)


def area(ctx, points, fill=PART, edge=PART_EDGE):
    flat(ctx, points, fill)
    trace(ctx, points)
    ctx.set_source_rgb(*rgb(edge))
    ctx.set_line_width(1)
    ctx.stroke()


def axis_line(ctx, left, right, y):
    stroke(ctx, [(left, y), (right, y)], QUIET, 1, (14, 4, 3, 4))


# --- The language -------------------------------------------------------------

def draw_coordinates(ctx):
    axis, face, radius = 150, 380, 80
    area(ctx, box(20, axis - radius, face, axis + radius), STOCK)
    area(ctx, box(20, axis - 40, face, axis + 40))
    axis_line(ctx, 4, 440, axis)
    arrow(ctx, (face, axis), (500, axis), TEXT, 2)
    arrow(ctx, (face, axis), (face, 20), TEXT, 2)
    label(ctx, "Z", 506, axis + 5, size=16, bold=True)
    label(ctx, "X", face - 5, 16, size=16, bold=True)
    dot(ctx, face, axis)
    label(ctx, "X0 Z0", face + 8, axis + 20, MARK)
    dot(ctx, 220, axis - 40)
    label(ctx, "X20 Z-40", 226, axis - 47, MARK, bold=True)
    arrow(ctx, (120, axis - 40), (120, axis + 40), TEXT, 1.2, both=True)
    label(ctx, "X20: a diameter", 128, axis + 16)
    stroke(ctx, [(220, axis - 38), (220, axis + 110)], QUIET, 1, (3, 3))
    stroke(ctx, [(face, axis), (face, axis + 110)], QUIET, 1, (3, 3))
    arrow(ctx, (220, axis + 102), (face, axis + 102), TEXT, 1.2, both=True)
    label(ctx, "Z-40", 300, axis + 97, align=0.5)
    label(ctx, "the billet, from the chuck", 28, axis - radius + 18, QUIET)
    label(ctx, "to its free end", face - 8, axis - radius + 18, QUIET,
          align=1)


def draw_one_arc(ctx, clockwise):
    """The same two ends, joined both ways with a radius of 10 mm."""
    start, end, r = (200, 170), (80, 50), 120
    centre = (200, 50) if clockwise else (80, 170)
    axis_line(ctx, 10, 250, 215)
    ctx.new_path()
    ctx.move_to(*start)
    if clockwise:
        ctx.arc(*centre, r, math.pi / 2, math.pi)
    else:
        ctx.arc_negative(*centre, r, 0, -math.pi / 2)
    ctx.set_source_rgb(*rgb(FEED))
    ctx.set_line_width(2.5)
    ctx.stroke()
    before = (84, 70) if clockwise else (100, 51.5)
    head(ctx, before, end, FEED, 11)
    stroke(ctx, [start, centre], QUIET, 1, (4, 3))
    stroke(ctx, [centre, end], QUIET, 1, (4, 3))
    dot(ctx, *start)
    dot(ctx, *end)
    dot(ctx, *centre, QUIET, 3)
    name = "G02" if clockwise else "G03"
    turn = "clockwise" if clockwise else "counter-clockwise"
    label(ctx, f"{name}, {turn}", 128, 20, bold=True, size=14, align=0.5)
    label(ctx, "start", start[0] + 7, start[1] + 15, MARK)
    label(ctx, "end", end[0] - 7, end[1] - 6, MARK, align=1)
    label(ctx, "centre", centre[0] + (8 if clockwise else -8), centre[1] + 4,
          QUIET, align=0 if clockwise else 1)
    if clockwise:
        label(ctx, "I10, K0", 206, 115, QUIET)
    else:
        label(ctx, "I0, K-10", 140, 186, QUIET, align=0.5)


def draw_arcs(ctx):
    draw_one_arc(ctx, True)
    ctx.translate(280, 0)
    draw_one_arc(ctx, False)


def steps(ctx, corners, names):
    """A closed tour; each step is a rapid (dashed) or a feed move."""
    for i, (rapid, x, y) in enumerate(names):
        start, end = corners[i], corners[(i + 1) % len(corners)]
        arrow(ctx, start, end, RAPID if rapid else FEED, 2,
              (6, 4) if rapid else ())
        flat(ctx, circle(x, y, 9), "#ffffff")
        label(ctx, str(i + 1), x, y + 5, RAPID if rapid else FEED,
              align=0.5, bold=True)


def draw_cycle_g90(ctx):
    axis = 200
    area(ctx, box(10, 70, 190, axis), STOCK)
    area(ctx, [(10, 70), (70, 70), (70, 110), (190, 110), (190, axis),
               (10, axis)])
    axis_line(ctx, 4, 262, axis)
    steps(ctx, [(220, 50), (220, 110), (70, 110), (70, 50)],
          [(True, 236, 82), (False, 130, 124), (False, 56, 84),
           (True, 140, 38)])
    dot(ctx, 220, 50, TEXT)
    dot(ctx, 70, 110)
    label(ctx, "start", 228, 46)
    label(ctx, "X Z", 40, 132, MARK, bold=True)
    label(ctx, "G90", 130, 20, bold=True, size=14, align=0.5)


def draw_cycle_g94(ctx):
    axis = 200
    area(ctx, box(10, 70, 190, axis), STOCK)
    area(ctx, [(10, 70), (130, 70), (130, 160), (190, 160), (190, axis),
               (10, axis)])
    axis_line(ctx, 4, 262, axis)
    steps(ctx, [(220, 50), (130, 50), (130, 160), (220, 160)],
          [(True, 176, 38), (False, 116, 112), (False, 204, 174),
           (True, 236, 104)])
    dot(ctx, 220, 50, TEXT)
    dot(ctx, 130, 160)
    label(ctx, "start", 228, 46)
    label(ctx, "X Z", 98, 178, MARK, bold=True)
    label(ctx, "G94", 130, 20, bold=True, size=14, align=0.5)


def draw_cycles(ctx):
    draw_cycle_g90(ctx)
    ctx.translate(280, 0)
    draw_cycle_g94(ctx)


def draw_pattern(ctx):
    """Three passes over one contour, and the finishing cut behind them."""
    axis = 200
    contour = [(460, 170), (440, 160), (340, 160), (300, 120), (200, 120),
               (200, 100), (120, 100)]
    area(ctx, box(10, 60, 430, axis), STOCK)
    part = [(10, 60), (120, 60)] + contour[::-1][:-2]
    area(ctx, part + [(430, 160), (430, axis), (10, axis)])
    axis_line(ctx, 4, 556, axis)
    for number, shift in ((1, 60), (2, 30), (3, 0)):
        points = [(x + shift / 6, y - shift) for x, y in contour]
        last = number == 3
        stroke(ctx, points, FEED, 2.5 if last else 1.5)
        head(ctx, points[-2], points[-1], FEED)
        label(ctx, f"pass {number}", points[0][0] + 8, points[0][1] + 4, FEED,
              bold=last)
    arrow(ctx, (400, 160), (400, 100), MARK, 1.2, both=True)
    label(ctx, "relief", 406, 121, MARK)
    label(ctx, "P: first row", 470, 190, TEXT)
    label(ctx, "Q: last row", 112, 92, TEXT, align=1)


# --- Tools -------------------------------------------------------------------

def draw_tool(ctx):
    """A tool bitmap, enlarged, on its transparent colour."""
    name = PICTURES.parent / "help" / "pictures" / "tool_finishing.png"
    tool = cairo.ImageSurface.create_from_png(str(name))
    left, top, scale = 190, 16, 2
    width, height = tool.get_width() * scale, tool.get_height() * scale
    flat(ctx, box(left, top, left + width, top + height), "#ff00ff")
    ctx.save()
    ctx.translate(left, top)
    ctx.scale(scale, scale)
    ctx.set_source_surface(tool, 0, 0)
    ctx.get_source().set_filter(cairo.FILTER_NEAREST)
    ctx.paint()
    ctx.restore()
    bottom, right = top + height, left + width
    arrow(ctx, (left, bottom + 14), (right, bottom + 14), TEXT, 1.2, both=True)
    label(ctx, "TOOLWIDTH=57", left + width / 2, bottom + 32, align=0.5)
    arrow(ctx, (right + 14, top), (right + 14, bottom), TEXT, 1.2, both=True)
    label(ctx, "TOOLHEIGHT=136", right + 24, top + height / 2)
    arrow(ctx, (left - 40, bottom - 24), (left - 3, bottom - 2), MARK, 2)
    label(ctx, "cutting point:", left - 46, bottom - 34, MARK, align=1,
          bold=True)
    label(ctx, "the lower left corner", left - 46, bottom - 17, MARK, align=1)
    label(ctx, "red 255, green 0, blue 255", left - 16, top + 24, QUIET,
          align=1)
    label(ctx, "is transparent", left - 16, top + 41, QUIET, align=1)


DIAGRAMS = {
    "coordinates": (draw_coordinates, 530, 268),
    "arcs": (draw_arcs, 560, 226),
    "cycles": (draw_cycles, 560, 210),
    "pattern": (draw_pattern, 560, 210),
    "tool": (draw_tool, 470, 330),
}
