"""Drawing of the pictures in the dialogs.

Coordinates: x to the right, y downwards, the pixels of the picture at its plain
size. The colours and the scene are those of brand_drawing.py.
Needs python3-cairo.
"""

import math

import cairo

from brand_drawing import (AXIS, CUT, NIGHT, chip, chuck, coming_cut, part,
                           tool_at)
from make_tools import (draw_default, draw_finishing, draw_grooving,
                        draw_left_hand, draw_parting, draw_roughing, draw_round,
                        draw_threading)
from tool_drawing import GOLD, gradient, rgb

# Where a window is longer than its strip the last pixels go on, so the ends are
# plain.
STRIP = (132, 480)
BANNER = (392, 64)
SAMPLE_TOOL = (34, 51)


def ground(ctx, width, height, glow_x, glow_y, glow_radius):
    ctx.set_source(gradient(NIGHT, (0, 0), (0, height)))
    ctx.paint()
    glow = cairo.RadialGradient(glow_x, glow_y, 4, glow_x, glow_y, glow_radius)
    glow.add_color_stop_rgba(0, *rgb("#6f93bd"), 0.55)
    glow.add_color_stop_rgba(1, *rgb("#6f93bd"), 0)
    ctx.set_source(glow)
    ctx.paint()
    lines = cairo.LinearGradient(0, 0, 0, height)
    for place, alpha in ((0, 0.045), (0.7, 0.045), (0.9, 0)):
        lines.add_color_stop_rgba(place, 1, 1, 1, alpha)
    ctx.set_source(lines)
    for x in range(11, width, 20):
        ctx.rectangle(x, 0, 1, height)
    for y in range(11, height, 20):
        ctx.rectangle(0, y, width, 1)
    ctx.fill()


def draw_options_strip(ctx):
    """The scene of the splash picture, turned upright."""
    width, height = STRIP
    ground(ctx, width, height - 1, 70, 190, 240)
    ctx.save()
    ctx.translate(54, -34)
    ctx.rotate(math.pi / 2)
    ctx.scale(0.78, 0.78)
    ctx.translate(0, -AXIS)
    part(ctx)
    coming_cut(ctx)
    chuck(ctx)
    chip(ctx)
    tool_at(ctx, draw_finishing, CUT[0], AXIS - CUT[1], 1.15)
    ctx.restore()
    ctx.set_source(gradient(GOLD[::-1], (0, 0), (0, height)))
    ctx.rectangle(width - 2, 0, 2, height)
    ctx.fill()


def draw_tool_banner(ctx):
    """Tools of the library in a row, their cutting points on one line."""
    width, height = BANNER
    ground(ctx, width - 1, height, 200, 20, 230)
    for i, draw in enumerate((draw_roughing, draw_default, draw_finishing,
                              draw_left_hand, draw_grooving, draw_threading,
                              draw_parting, draw_round)):
        tool_at(ctx, draw, 20 + 47 * i, height - 7, 0.5)
    ctx.set_source_rgb(*rgb(GOLD[2]))
    ctx.rectangle(0, height - 2, width, 2)
    ctx.fill()


def draw_sample_tool(ctx):
    """The tool of every start at half its size."""
    tool_at(ctx, draw_default, 0, SAMPLE_TOOL[1], 0.5)


# Name, drawing, size, and whether nothing shows through.
DIALOG_PICTURES = (
    ("options", draw_options_strip, STRIP, True),
    ("tool_library", draw_tool_banner, BANNER, True),
    ("sample_tool", draw_sample_tool, SAMPLE_TOOL, False),
)
