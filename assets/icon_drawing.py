"""Drawing of the tool bar icons and of the marks of the program grid.

Coordinates are those of the small picture, x to the right and y downwards. The
context is scaled, so a picture of twice the size has the same design with more
detail; `fine` is the width of one pixel of the finished picture. Whole numbers
are pixel borders at both sizes: upright and level edges lie on them. Outlines
are drawn inside of their shape for the same reason.
Needs python3-cairo.
"""

import math

import cairo

from tool_drawing import gradient, rgb

# A paint is the fill's ramp from the top down, and the colour of the outline.
# Fills are light and outlines dark, so that each shape shows on any theme.
PAPER = (("#ffffff", "#f4f6f8", "#dbe1e7"), "#566270")
STEEL_PAINT = (("#eef1f4", "#b9c2cb", "#8d97a3"), "#414b57")
GOLD_PAINT = (("#ffe9a0", "#f3c64e", "#d9982a"), "#8a5c10")
GEAR_PAINT = (("#eef1f4", "#c2cad2", "#9aa5b0"), "#5a6672")
DEEP_GOLD_PAINT = (("#e6b548", "#c4882a"), "#7a4f0c")
GREEN_PAINT = (("#b5ec96", "#5cc152", "#2f9a3c"), "#1c6a2b")
RED_PAINT = (("#ffa28e", "#e4493a", "#c0271e"), "#7f1a14")
BLUE_PAINT = (("#8db8ee", "#4a84d2", "#2f63b0"), "#1d3f78")
TEXT_LINE = "#7f8a96"
YELLOW_PAINT = (("#fff27a", "#ffdf2e", "#f7bf08"), "#6b4a00")


def trace(ctx, points):
    ctx.new_path()
    for point in points:
        ctx.line_to(*point)
    ctx.close_path()


def box(left, top, right, bottom):
    return [(left, top), (right, top), (right, bottom), (left, bottom)]


def solid(ctx, fine, points, paint, outline=1.0):
    """A shape with a shaded fill, a bright rim of one pixel and an outline."""
    ramp, edge = paint
    tops = [y for _, y in points]
    ctx.save()
    trace(ctx, points)
    ctx.clip_preserve()
    ctx.set_source(gradient(ramp, (0, min(tops)), (0, max(tops))))
    ctx.fill_preserve()
    ctx.set_source_rgba(1, 1, 1, 0.65 - 0.5 * fine)  # fainter where it is wide
    ctx.set_line_width(2 * (outline + fine))
    ctx.stroke_preserve()
    ctx.set_source_rgb(*rgb(edge))
    ctx.set_line_width(2 * outline)
    ctx.stroke()
    ctx.restore()


def flat(ctx, points, colour):
    trace(ctx, points)
    ctx.set_source_rgb(*rgb(colour))
    ctx.fill()


def circle(x, y, radius, steps=72):
    return [(x + radius * math.cos(2 * math.pi * i / steps),
             y + radius * math.sin(2 * math.pi * i / steps))
            for i in range(steps)]


# --- Tool bar, 16 by 16 -------------------------------------------------------

def draw_new(ctx, fine):
    solid(ctx, fine, [(3, 1), (9, 1), (13, 5), (13, 15), (3, 15)], PAPER)
    solid(ctx, fine, [(8, 1), (9, 1), (13, 5), (13, 6), (8, 6)], GOLD_PAINT)


def draw_open(ctx, fine):
    solid(ctx, fine, [(1, 3), (2, 2), (6, 2), (8, 4), (13, 4), (14, 5),
                      (14, 14), (1, 14)], DEEP_GOLD_PAINT)
    solid(ctx, fine, box(3, 5, 12, 10), PAPER)
    solid(ctx, fine, [(3, 7), (16, 7), (14, 14), (1, 14)], GOLD_PAINT)


def draw_save(ctx, fine):
    solid(ctx, fine, [(1, 1), (13, 1), (15, 3), (15, 15), (1, 15)], BLUE_PAINT)
    solid(ctx, fine, box(4, 1, 12, 6), STEEL_PAINT)
    flat(ctx, box(8, 2, 10, 5), STEEL_PAINT[1])
    solid(ctx, fine, box(3, 8, 13, 15), PAPER)
    for row in (10, 12):
        flat(ctx, box(5, row, 11, row + 1), TEXT_LINE)


def draw_print(ctx, fine):
    solid(ctx, fine, box(4, 1, 12, 8), PAPER)
    solid(ctx, fine, [(1, 6), (2, 5), (14, 5), (15, 6), (15, 12), (1, 12)],
          STEEL_PAINT)
    flat(ctx, box(12, 7, 14, 8), GOLD_PAINT[0][2])
    solid(ctx, fine, box(4, 9, 12, 15), PAPER)
    flat(ctx, box(3, 9, 13, 10), STEEL_PAINT[1])
    for row in (11, 13):
        flat(ctx, box(6, row, 10, row + 1), TEXT_LINE)


def draw_step(ctx, fine):
    """The grid's mark in front of the rows of a program."""
    for left, top in ((8, 2), (12, 7), (8, 12)):
        flat(ctx, box(left, top, 16, top + 2), TEXT_LINE)
    solid(ctx, fine, [(0, 6), (4, 6), (4, 3), (5, 3), (10, 8), (5, 13),
                      (4, 13), (4, 10), (0, 10)], GOLD_PAINT)


def draw_start(ctx, fine):
    solid(ctx, fine, [(3, 1), (4, 1), (14, 7), (14, 9), (4, 15), (3, 15)],
          GREEN_PAINT)


def draw_pause(ctx, fine):
    solid(ctx, fine, box(2, 2, 7, 14), GOLD_PAINT)
    solid(ctx, fine, box(9, 2, 14, 14), GOLD_PAINT)


def draw_stop(ctx, fine):
    solid(ctx, fine, [(2, 3), (3, 2), (13, 2), (14, 3), (14, 13), (13, 14),
                      (3, 14), (2, 13)], RED_PAINT)


def gear(x, y, outer, inner, teeth):
    points = []
    for i in range(teeth):
        for turn, radius in ((-0.3, inner), (-0.21, outer), (0.21, outer),
                             (0.3, inner)):
            a = 2 * math.pi * (i + turn) / teeth
            points.append((x + radius * math.cos(a), y + radius * math.sin(a)))
    return points


def draw_options(ctx, fine):
    solid(ctx, fine, gear(8, 8, 7.1, 5.1, 8), GEAR_PAINT)
    solid(ctx, fine, circle(8, 8, 3), GOLD_PAINT)


TOOL_BAR = {
    "New": draw_new, "Open": draw_open, "Save": draw_save,
    "Print": draw_print, "Step": draw_step, "Start": draw_start,
    "Pause": draw_pause, "Stop": draw_stop, "Options": draw_options,
}


# --- Program grid, 19 by 18 on the colour of the marks' column ----------------

GRID_BACK = "#f7f7f7"


def draw_disc(ctx, fine):
    solid(ctx, fine, circle(9.5, 9, 8), RED_PAINT)


def draw_arrow(ctx, fine):
    solid(ctx, fine, [(2, 6), (9, 6), (9, 3), (10, 3), (16, 8.5), (16, 9.5),
                      (10, 15), (9, 15), (9, 12), (2, 12)], YELLOW_PAINT)


def draw_break_mark(ctx, fine):
    flat(ctx, box(0, 0, 19, 18), GRID_BACK)
    draw_disc(ctx, fine)


def draw_step_mark(ctx, fine):
    flat(ctx, box(0, 0, 19, 18), GRID_BACK)
    draw_arrow(ctx, fine)


def draw_both_mark(ctx, fine):
    draw_break_mark(ctx, fine)
    draw_arrow(ctx, fine)


GRID_MARKS = {
    "Break": draw_break_mark, "Step": draw_step_mark, "Both": draw_both_mark,
}


# --- Finished pictures --------------------------------------------------------

def picture(draw, width, height, scale, opaque=False):
    """A cairo surface with the drawing at a whole-numbered scale."""
    form = cairo.FORMAT_RGB24 if opaque else cairo.FORMAT_ARGB32
    surface = cairo.ImageSurface(form, width * scale, height * scale)
    ctx = cairo.Context(surface)
    ctx.scale(scale, scale)
    draw(ctx, 1 / scale)
    surface.flush()
    return surface


def disabled(surface):
    """The picture in greys near the middle, partly transparent, in place."""
    data, stride = surface.get_data(), surface.get_stride()
    for y in range(surface.get_height()):
        for x in range(surface.get_width()):
            i = y * stride + 4 * x
            blue, green, red, alpha = data[i:i + 4]
            if alpha == 0:
                continue
            light = (0.3 * red + 0.59 * green + 0.11 * blue) / alpha
            grey = round((0.38 + 0.27 * light) * alpha * 0.6)
            data[i:i + 4] = bytes((grey, grey, grey, round(alpha * 0.6)))
    surface.mark_dirty()
    return surface
