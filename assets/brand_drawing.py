"""Drawing of the splash picture and the application icon.

Both show a turned part with a gold insert at work, in the colours of the tool
bitmaps. Coordinates: x to the right, y downwards, the pixels of the picture at
its plain size (the application icon: of its size of 256).
Needs python3-cairo; the lettering needs the font Lato.
"""

import math

import cairo

from icon_drawing import GOLD_PAINT, flat, solid, trace
from make_tools import draw_finishing
from tool_drawing import (DARK_STEEL, GOLD, INK, STEEL, body, gradient, rgb,
                          rhombus, rounded, screw, with_point)

NIGHT = ("#38475a", "#232d3a", "#161d27")
RAW_STEEL = ("#2c343e", "#5b6672", "#8d97a3", "#66717d", "#414a55", "#20262e")
TURNED_STEEL = ("#454e59", "#9aa5b0", "#ffffff", "#c9d0d7", "#7f8a96",
                "#3c444f")
CAST_STEEL = ("#1f262f", "#414b57", "#66717d", "#4a535e", "#2d353f", "#151a21")


# --- Parts of the scene -------------------------------------------------------

def radius_at(profile, x):
    """Radius of a profile, a list of (x, radius) in growing x."""
    for (x0, r0), (x1, r1) in zip(profile, profile[1:]):
        if x0 <= x <= x1 and x1 > x0:
            return r0 + (r1 - r0) * (x - x0) / (x1 - x0)
    return 0


def turned(ctx, profile, axis, ramp, step=0.5):
    """A solid of revolution about a level axis, lit from above."""
    outline = [(x, axis - r) for x, r in profile]
    outline += [(x, axis + r) for x, r in reversed(profile)]
    ctx.save()
    trace(ctx, outline)
    ctx.clip()
    for (x0, r0), (x1, r1) in zip(profile, profile[1:]):
        width = step if r0 != r1 else x1 - x0
        x = x0
        while x < x1:
            r = max(radius_at(profile, min(x + width / 2, x1)), 1)
            ctx.rectangle(x, axis - r - 1, min(width, x1 - x) + 0.5,
                          2 * r + 2)
            ctx.set_source(gradient(ramp, (0, axis - r), (0, axis + r)))
            ctx.fill()
            x += width
    ctx.restore()


def ring(ctx, x, axis, radius, colour, alpha, width=1):
    """An edge turned around the part."""
    ctx.rectangle(x, axis - radius, width, 2 * radius)
    ctx.set_source_rgba(*rgb(colour), alpha)
    ctx.fill()


def tool_at(ctx, draw, x, y, scale):
    """A tool of the library with its cutting point at a place."""
    ctx.push_group()
    ctx.translate(x, y)
    ctx.scale(scale, -scale)
    draw(ctx)
    ctx.pop_group_to_source()
    ctx.paint()


def curve(profile, x0, r0, x1, r1, bow, steps=48):
    """Adds a smooth bend; bow is its depth in the middle."""
    for i in range(1, steps + 1):
        t = i / steps
        ease = t * t * (3 - 2 * t)
        profile.append((x0 + (x1 - x0) * t,
                        r0 + (r1 - r0) * ease - bow * math.sin(math.pi * t)))


def ball(ctx, x, radius, left):
    """The end of the part, from where it leaves its neck."""
    ctx.save()
    ctx.rectangle(left, AXIS - radius, 2 * radius, 2 * radius)
    ctx.clip()
    light = cairo.RadialGradient(x - radius * 0.2, AXIS - radius * 0.35, 1,
                                 x, AXIS, radius)
    ramp = ("#ffffff", "#e3e8ed", "#b7c0ca", "#848e9a", "#4c555f", "#343c46")
    for i, colour in enumerate(ramp):
        light.add_color_stop_rgb(i / (len(ramp) - 1), *rgb(colour))
    ctx.arc(x, AXIS, radius, 0, 2 * math.pi)
    ctx.set_source(light)
    ctx.fill()
    ctx.restore()


def lettering(ctx, text, x, y, size, colour, bold=False, spread=0.0, alpha=1):
    """Text as outlines; spread is added between letters."""
    ctx.select_font_face("Lato", cairo.FONT_SLANT_NORMAL,
                         cairo.FONT_WEIGHT_BOLD if bold
                         else cairo.FONT_WEIGHT_NORMAL)
    ctx.set_font_size(size)
    ctx.set_source_rgba(*rgb(colour), alpha)
    for letter in text:
        ctx.move_to(x, y)
        ctx.text_path(letter)
        ctx.fill()
        x += ctx.text_extents(letter).x_advance + spread
    return x


# --- Splash picture, 544 by 355 -----------------------------------------------

AXIS = 132
CUT = (286, 34)  # where the tool stands: x, radius
BAND = 248  # below it is the name


def backdrop(ctx):
    ctx.set_source(gradient(NIGHT, (0, 0), (0, 355)))
    ctx.paint()
    glow = cairo.RadialGradient(330, 110, 10, 330, 110, 330)
    glow.add_color_stop_rgba(0, *rgb("#6f93bd"), 0.55)
    glow.add_color_stop_rgba(1, *rgb("#6f93bd"), 0)
    ctx.set_source(glow)
    ctx.rectangle(0, 0, 544, BAND)
    ctx.fill()
    ctx.set_source_rgba(1, 1, 1, 0.045)
    for x in range(4, 544, 20):
        ctx.rectangle(x, 0, 1, BAND)
    for y in range(AXIS % 20, BAND, 20):
        ctx.rectangle(0, y, 544, 1)
    ctx.fill()


def centre_line(ctx):
    ctx.set_source_rgba(*rgb(GOLD[1]), 0.6)
    ctx.set_line_width(1)
    ctx.set_dash([16, 4, 3, 4])
    ctx.move_to(490, AXIS + 0.5)
    ctx.line_to(544, AXIS + 0.5)
    ctx.stroke()
    ctx.set_dash([])


def chuck(ctx):
    turned(ctx, [(0, 106), (26, 106), (30, 102)], AXIS, CAST_STEEL)
    turned(ctx, [(30, 60), (38, 60)], AXIS, CAST_STEEL)
    turned(ctx, [(38, 90), (42, 94), (92, 94), (98, 88)], AXIS, RAW_STEEL)
    for x in (54, 58):
        ring(ctx, x, AXIS, 94, INK, 0.45)
        ring(ctx, x + 1, AXIS, 94, "#ffffff", 0.18)
    for side in (-1, 1):
        jaw = [(98, AXIS + side * 84), (116, AXIS + side * 84),
               (116, AXIS + side * 66), (136, AXIS + side * 66),
               (136, AXIS + side * 45), (98, AXIS + side * 45)]
        trace(ctx, rounded(jaw, 2))
        ramp = DARK_STEEL if side < 0 else CAST_STEEL[1:]
        ctx.set_source(gradient(ramp, (0, AXIS + side * 84 - 10 * (side > 0)),
                                (0, AXIS + side * 45)))
        ctx.fill_preserve()
        ctx.set_source_rgba(*rgb(INK), 0.8)
        ctx.set_line_width(1)
        ctx.stroke()


def part(ctx):
    """Right of the tool the finished contour, left of it the raw bar."""
    x, r = CUT
    turned(ctx, [(98, 46), (x - 12, 46)], AXIS, RAW_STEEL)
    for mark in range(104, x - 14, 5):
        ring(ctx, mark, AXIS, 46, INK, 0.10)
    contour = [(x - 12, 46), (x, r), (x + 26, r), (x + 26, 27)]
    curve(contour, x + 26, 27, x + 122, 21, 8)
    contour += [(x + 122, 30), (x + 125, 33), (x + 137, 33), (x + 140, 30),
                (x + 140, 17)]
    neck = math.asin(17 / 29)
    centre = x + 140 + 29 * math.cos(neck)
    turned(ctx, contour, AXIS, TURNED_STEEL)
    ball(ctx, centre, 29, x + 140)
    for edge, radius in ((x - 12, 46), (x, r), (x + 26, r), (x + 122, 30),
                         (x + 140, 30)):
        ring(ctx, edge - 1, AXIS, radius, INK, 0.35)
        ring(ctx, edge, AXIS, radius, "#ffffff", 0.35)


def coming_cut(ctx):
    """The programmed contour that still lies in the raw bar."""
    x, r = CUT
    ctx.set_line_width(1.2)
    ctx.set_dash([5, 3])
    for side, alpha in ((-1, 0.95), (1, 0.55)):
        ctx.set_source_rgba(*rgb(GOLD[1]), alpha)
        ctx.new_path()
        ctx.move_to(x - 2, AXIS + side * r)
        ctx.line_to(172, AXIS + side * r)
        ctx.line_to(160, AXIS + side * 48)
        ctx.stroke()
    ctx.set_dash([])


def chip(ctx):
    """A helix that runs off the cutting point, wider as it goes."""
    x, y = CUT[0], AXIS - CUT[1]
    points = []
    for i in range(160):
        t = i / 159
        a = 0.45 * math.pi + t * 6.2 * math.pi
        radius = 5 + 7 * t
        along = 62 * t
        points.append((x - 3 - 0.82 * along + radius * math.cos(a),
                       y - 4 - 0.72 * along + radius * math.sin(a)))
    for width, colour in ((4.6, INK), (3.4, "#7f8a96"), (1.3, "#f4f6f8")):
        ctx.new_path()
        for point in points:
            ctx.line_to(*point)
        ctx.set_source_rgb(*rgb(colour))
        ctx.set_line_width(width)
        ctx.set_line_cap(cairo.LINE_CAP_ROUND)
        ctx.set_line_join(cairo.LINE_JOIN_ROUND)
        ctx.stroke()


def shade_under(ctx):
    """The part's shadow on the bed, and the bed's edge."""
    ctx.save()
    ctx.translate(260, 222)
    ctx.scale(1, 0.07)
    dark = cairo.RadialGradient(0, 0, 20, 0, 0, 230)
    dark.add_color_stop_rgba(0, 0, 0, 0, 0.5)
    dark.add_color_stop_rgba(1, 0, 0, 0, 0)
    ctx.set_source(dark)
    ctx.rectangle(-260, -260, 544, 520)
    ctx.fill()
    ctx.restore()


def name_band(ctx):
    ctx.set_source(gradient(("#1a222d", "#121820"), (0, BAND), (0, 355)))
    ctx.rectangle(0, BAND, 544, 355 - BAND)
    ctx.fill()
    ctx.set_source(gradient(GOLD[::-1], (0, 0), (544, 0)))
    ctx.rectangle(0, BAND, 544, 2)
    ctx.fill()
    x = lettering(ctx, "Orvane's ", 30, 298, 36, "#c9d3de")
    lettering(ctx, "Turnbay", x, 298, 36, "#ffffff", bold=True)


def draw_splash(ctx):
    """The version is written later, light, at the lower left of the band."""
    backdrop(ctx)
    shade_under(ctx)
    centre_line(ctx)
    part(ctx)
    coming_cut(ctx)
    chuck(ctx)
    chip(ctx)
    tool_at(ctx, draw_finishing, CUT[0], AXIS - CUT[1], 1.15)
    name_band(ctx)


# --- Application icon, drawn at 256 by 256 ------------------------------------

ICON_NIGHT = ("#4b6076", "#2c3a4a", "#1b2531")


def tile(ctx, size, radius, border):
    """The icon's ground, clipped to; the caller restores the context."""
    def outline(inset):
        edge, r = size - inset, radius - inset
        ctx.new_path()
        for x, y, first in ((edge - r, inset + r, -90), (edge - r, edge - r, 0),
                            (inset + r, edge - r, 90),
                            (inset + r, inset + r, 180)):
            ctx.arc(x, y, r, math.radians(first), math.radians(first + 90))
        ctx.close_path()
    outline(0)
    ctx.set_source_rgb(*rgb("#5a6c80"))
    ctx.fill()
    outline(border)
    ctx.clip_preserve()
    ctx.set_source(gradient(ICON_NIGHT, (0, 0), (0, size)))
    ctx.fill()


def icon_insert(ctx, x, y, edge, hole):
    """A gold insert whose cutting point is at a place."""
    ctx.save()
    ctx.translate(x, y)
    ctx.scale(1, -1)
    corners = rhombus(74, 8, edge)
    body(ctx, with_point(corners, edge * 0.06), GOLD[:3], (0, 1.2 * edge),
         (0, 0), strength=0.5, ink=edge * 0.035, facet=edge * 0.05)
    if hole:
        cx = (corners[1][0] + corners[3][0]) / 2
        cy = (corners[1][1] + corners[3][1]) / 2
        screw(ctx, cx, cy, hole)
    ctx.restore()


def draw_large_icon(ctx):
    """From 48 pixels up."""
    ctx.save()
    tile(ctx, 256, 54, 5)
    axis = 166
    ctx.push_group()
    ctx.translate(131, axis - 36)
    holder_shape = [(30, -14), (62, -22), (130, -62), (130, -160),
                    (30, -160)]
    trace(ctx, holder_shape)
    ctx.set_source(gradient(STEEL, (30, -160), (130, -40)))
    ctx.fill_preserve()
    ctx.set_source_rgb(*rgb(INK))
    ctx.set_line_width(4)
    ctx.stroke()
    ctx.pop_group_to_source()
    ctx.paint()
    profile = [(0, 74), (66, 74), (72, 68), (72, 56), (124, 56), (130, 50),
               (130, 36), (206, 36), (214, 28)]
    turned(ctx, profile, axis, TURNED_STEEL)
    for x, r in ((66, 74), (72, 56), (124, 56), (130, 36), (206, 36)):
        ring(ctx, x - 2, axis, r, INK, 0.45, 2)
        ring(ctx, x, axis, r, "#ffffff", 0.35, 2)
    icon_insert(ctx, 131, axis - 36, 84, 15)
    ctx.restore()


def draw_medium_icon(ctx):
    """For 24 and 32 pixels: no holder, no screw. Drawn at 24 by 24."""
    ctx.save()
    tile(ctx, 24, 5, 1)
    turned(ctx, [(0, 7), (10, 7)], 15, TURNED_STEEL)
    turned(ctx, [(10, 3), (20, 3)], 15, TURNED_STEEL)
    flat(ctx, [(9, 8), (10, 8), (10, 22), (9, 22)], "#2d353f")
    solid(ctx, 1, [(10, 12), (12, 4), (21, 3), (19, 11)], GOLD_PAINT,
          outline=0.75)
    ctx.restore()


def draw_small_icon(ctx):
    """For 16 pixels, drawn at 16 by 16."""
    ctx.save()
    tile(ctx, 16, 3, 1)
    turned(ctx, [(1, 4), (6, 4)], 10, TURNED_STEEL)
    turned(ctx, [(7, 2), (13, 2)], 10, TURNED_STEEL)
    flat(ctx, [(7, 7), (8, 2), (14, 2), (13, 7)], GOLD[2])
    flat(ctx, [(8, 6), (9, 3), (13, 3), (12, 6)], GOLD[1])
    ctx.restore()
