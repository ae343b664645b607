"""Drawing helpers and the bitmap writer for make_tools.py.

Coordinates are pixels of the finished bitmap (10 px = 1 mm) with the cutting
point at (0, 0), x to the right and y upwards. Light comes from the upper left.
Needs python3-cairo.
"""

import math
import struct

import cairo

SCALE = 8  # samples per pixel along each axis
KEY = (255, 0, 255)  # transparent colour of a tool bitmap

# A ramp is the colours of a gradient from its first to its second point.
INK = "#181d26"
STEEL = ("#c9d0d7", "#b1bac3", "#ccd3d9", "#9aa5b0", "#7f8a96")
ROUND_STEEL = ("#5d6772", "#b4bdc6", "#f4f6f8", "#bcc4cc", "#848e9a", "#4a535e")
ROUND_GOLD = ("#8a5c10", "#dca637", "#fff0b4", "#f0c652", "#b67c1a", "#6e470c")
DARK_STEEL = ("#4a535e", "#8d97a3", "#aab3bd", "#717b87", "#4d5661", "#363e48")
GOLD = ("#fff0b4", "#f3cc5e", "#d9a02f", "#a87015")
GOLD_RIM = ("#fff8d8", "#f9dc84", "#e6b548")


def rgb(colour):
    """Fractions of red, green and blue from "#rrggbb"."""
    return tuple(int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5))


def gradient(ramp, start, end):
    pattern = cairo.LinearGradient(*start, *end)
    for i, colour in enumerate(ramp):
        pattern.add_color_stop_rgb(i / (len(ramp) - 1), *rgb(colour))
    return pattern


# --- Geometry: outlines are lists of points, counter-clockwise ---------------

def along(degrees, length, start=(0, 0)):
    """The point at a length from start, the angle counted clockwise from +y."""
    a = math.radians(degrees)
    return (start[0] + length * math.sin(a), start[1] + length * math.cos(a))


def rhombus(angle, lead, edge):
    """Insert corners; the leading edge leans right of the vertical by lead."""
    right, left = along(lead + angle, edge), along(lead, edge)
    return [(0, 0), right, (right[0] + left[0], right[1] + left[1]), left]


def triangle(lead, edge):
    return [(0, 0), along(lead + 60, edge), along(lead, edge)]


def arc(centre, radius, first, last, steps=40):
    """Points on a circle, angles counted counter-clockwise from +x."""
    points = []
    for i in range(steps + 1):
        a = math.radians(first + (last - first) * i / steps)
        points.append((centre[0] + radius * math.cos(a),
                       centre[1] + radius * math.sin(a)))
    return points


def middle(points):
    """Centroid of an outline's area."""
    area = sx = sy = 0
    for (x0, y0), (x1, y1) in edges(points):
        cross = x0 * y1 - x1 * y0
        area += cross
        sx += (x0 + x1) * cross
        sy += (y0 + y1) * cross
    return (sx / (3 * area), sy / (3 * area))


def inset(points, distance):
    """A convex outline moved inwards (or outwards: negative) by a distance."""
    lines = []
    for (x0, y0), (x1, y1) in edges(points):
        length = math.hypot(x1 - x0, y1 - y0)
        dx, dy = (x1 - x0) / length, (y1 - y0) / length
        lines.append((x0 - dy * distance, y0 + dx * distance, dx, dy))
    result = []
    for (px, py, pdx, pdy), (x, y, dx, dy) in zip([lines[-1]] + lines, lines):
        t = ((x - px) * dy - (y - py) * dx) / (pdx * dy - pdy * dx)
        result.append((px + pdx * t, py + pdy * t))
    return result


def rounded(points, radius, keep=()):
    """Corners cut back by radius and rounded, but for the indices in keep."""
    result = []
    for i, (x, y) in enumerate(points):
        if i in keep:
            result.append((x, y))
            continue
        ends = []
        for nx, ny in (points[i - 1], points[(i + 1) % len(points)]):
            length = math.hypot(nx - x, ny - y)
            t = min(radius / length, 0.5)
            ends.append((x + (nx - x) * t, y + (ny - y) * t))
        (ax, ay), (bx, by) = ends
        for step in range(7):
            t = step / 6
            u = 1 - t
            result.append((u * u * ax + 2 * u * t * x + t * t * bx,
                           u * u * ay + 2 * u * t * y + t * t * by))
    return result


def with_point(corners, radius=1.5):
    """An insert whose first corner is the cutting point, one full pixel."""
    shape = rounded(corners, radius, keep=(0,))[1:]
    (rx, ry), (lx, ly) = corners[1], corners[-1]
    right, left = math.hypot(rx, ry), math.hypot(lx, ly)
    return [(0, 0), (1, 0), (1 + rx / right, ry / right)] + shape + \
        [(lx / left, 1 + ly / left), (0, 1)]


def edges(points):
    return zip(points, points[1:] + points[:1])


# --- Parts of a tool ----------------------------------------------------------

def path(ctx, points):
    ctx.new_path()
    for point in points:
        ctx.line_to(*point)
    ctx.close_path()


def line(ctx, points, width, colour, alpha=1.0):
    ctx.new_path()
    for point in points:
        ctx.line_to(*point)
    ctx.set_line_width(width)
    ctx.set_source_rgba(*rgb(colour), alpha)
    ctx.stroke()


def bevel(ctx, points, width, strength):
    """Edges towards the light bright, edges away from it dark."""
    for (x0, y0), (x1, y1) in edges(points):
        length = math.hypot(x1 - x0, y1 - y0)
        if length == 0:
            continue
        light = (-0.6 * (y1 - y0) - 0.8 * (x1 - x0)) / length
        line(ctx, [(x0, y0), (x1, y1)], 2 * width,
             "#ffffff" if light > 0 else "#0b1018", abs(light) * strength)


def body(ctx, points, ramp, start, end, strength=0.6, ink=1.0, facet=1.1):
    """A solid: gradient, bevelled edge, dark outline, all inside the points."""
    ctx.save()
    path(ctx, points)
    ctx.clip_preserve()
    ctx.set_source(gradient(ramp, start, end))
    ctx.fill()
    bevel(ctx, points, ink + facet, strength)
    path(ctx, points)
    ctx.set_line_width(2 * ink)
    ctx.set_source_rgb(*rgb(INK))
    ctx.stroke()
    ctx.restore()


def across(points):
    """Gradient ends over an outline's width, at half its height."""
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    y = (min(ys) + max(ys)) / 2
    return (min(xs), y), (max(xs), y)


def downwards(points):
    """Gradient ends over an outline's height, from the top."""
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    x = (min(xs) + max(xs)) / 2
    return (x, max(ys)), (x, min(ys))


def shadow(ctx, points, width, alpha=0.3):
    """Soft dark rim around an outline, only where something is drawn already."""
    ctx.save()
    ctx.set_operator(cairo.OPERATOR_ATOP)
    ctx.translate(0.6, -0.8)
    for step in (1.0, 0.6, 0.3):
        path(ctx, points)
        ctx.set_line_width(2 * width * step)
        ctx.set_source_rgba(*rgb("#0b1018"), alpha)
        ctx.stroke()
    ctx.restore()


def disc(ctx, x, y, radius, ramp):
    points = arc((x, y), radius, 0, 360, 48)[:-1]
    path(ctx, points)
    ctx.set_source(gradient(ramp, (x - 0.6 * radius, y + 0.8 * radius),
                            (x + 0.6 * radius, y - 0.8 * radius)))
    ctx.fill()


def screw(ctx, x, y, radius):
    """A countersunk screw with a six-lobed recess."""
    disc(ctx, x, y, radius, (INK, INK))
    disc(ctx, x, y, radius - 0.9, ("#ffffff", "#aeb7c0", "#5d6772"))
    disc(ctx, x, y, radius - 2.0, ("#8f99a4", "#c9d0d7", "#eef1f4"))
    lobes = []
    for i in range(48):
        a = math.radians(i * 7.5)
        r = radius * (0.43 + 0.1 * math.cos(6 * a))
        lobes.append((x + r * math.cos(a), y + r * math.sin(a)))
    path(ctx, lobes)
    ctx.set_source_rgb(*rgb("#11151c"))
    ctx.fill()


def dish(ctx, points):
    """A hollow in an insert: shaded on the side towards the light."""
    body(ctx, points, GOLD[1:], *downwards(points)[::-1], strength=-0.5, ink=0)
    line(ctx, points + points[:2], 0.7, "#8a5a10", 0.8)


def chip_breaker(ctx, corners, groove):
    """A sunk groove all around, at a distance from the edge, and a plateau."""
    dish(ctx, rounded(inset(corners, groove), 3))
    plateau = rounded(inset(corners, groove + 2.6), 3)
    body(ctx, plateau, GOLD, *downwards(plateau), strength=0.5, ink=0,
         facet=0.9)


def insert(ctx, corners, hole, outline=None, groove=3.6):
    """A coated carbide insert with rim, chip breaker and clamp screw.

    corners: the plain outline that the chip breaker follows; outline: the
    shape with its nose, by default made from the corners; hole: the screw's
    radius, 0 for an insert that is clamped from above.
    """
    outline = outline or with_point(corners)
    shadow(ctx, outline, 3)
    body(ctx, outline, GOLD_RIM, *downwards(outline), strength=0.35)
    chip_breaker(ctx, corners, groove)
    if hole:
        x, y = middle(corners)
        disc(ctx, x, y, hole + 1.6, GOLD)
        screw(ctx, x, y, hole)


def holder(ctx, points):
    """A square steel shank with its head: flat faces, chamfered edges."""
    (left, _), (right, _) = across(points)
    (_, top), (_, bottom) = downwards(points)
    body(ctx, points, STEEL, (left, top), (right + 10, bottom + 20),
         strength=0.38, facet=3.4)


def ring(ctx, x, bottom, top):
    """A line turned around a bar."""
    line(ctx, [(x, bottom), (x, top)], 1, INK, 0.55)
    line(ctx, [(x + 1, bottom), (x + 1, top)], 1, "#ffffff", 0.4)


def marking(ctx, x, y):
    """Lettering of the maker, read along the shank; only a hint at 1:1."""
    for column, marks in ((0, (5, 2, 6, 3, 4)), (5, (3, 6, 2, 4))):
        for mark in marks:
            line(ctx, [(x + column, y), (x + column, y + mark)], 2, INK, 0.32)
            y += mark + 2
        y -= sum(marks) + 2 * len(marks)


def bar(ctx, points, ramp, top, bottom):
    """A round bar lying along x."""
    body(ctx, points, ramp, (0, top), (0, bottom), strength=0.3)


# --- Finished bitmap ----------------------------------------------------------

def render(draw, width, height):
    """Rows from the bottom up, each a list of (r, g, b), KEY outside the tool."""
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, width * SCALE,
                                 height * SCALE)
    ctx = cairo.Context(surface)
    ctx.translate(0, height * SCALE)
    ctx.scale(SCALE, -SCALE)
    draw(ctx)
    surface.flush()
    data, stride = bytes(surface.get_data()), surface.get_stride()
    return outlined([[pixel(data, stride, x, y) for x in range(width)]
                     for y in reversed(range(height))])


def pixel(data, stride, x, y):
    """Mean colour of a pixel's samples, or KEY if most of it is empty."""
    sums = [0, 0, 0, 0]  # blue, green, red, alpha; colours hold alpha already
    for row in range(y * SCALE, (y + 1) * SCALE):
        start = row * stride + x * SCALE * 4
        samples = data[start:start + SCALE * 4]
        for channel in range(4):
            sums[channel] += sum(samples[channel::4])
    alpha = sums[3]
    if 2 * alpha < 255 * SCALE * SCALE:
        return KEY
    colour = tuple(min(255, round(255 * sums[c] / alpha)) for c in (2, 1, 0))
    return (254, 0, 255) if colour == KEY else colour


def outlined(rows):
    """The tool with its outermost pixels darkened, a crisp edge at 1:1."""
    ink = [round(255 * c) for c in rgb(INK)]
    height, width = len(rows), len(rows[0])

    def outside(x, y):
        return not (0 <= x < width and 0 <= y < height) or rows[y][x] == KEY

    result = [list(row) for row in rows]
    for y in range(height):
        for x in range(width):
            if rows[y][x] != KEY and any(outside(x + dx, y + dy) for dx, dy in
                                         ((1, 0), (-1, 0), (0, 1), (0, -1))):
                result[y][x] = tuple((c + 3 * i) // 4
                                     for c, i in zip(rows[y][x], ink))
    return result


def write_bmp(name, rows):
    """A 24-bit bitmap, bottom row first, each row filled up to 4 bytes."""
    width, height = len(rows[0]), len(rows)
    padding = bytes(-width * 3 % 4)
    image = b"".join(bytes(c for r, g, b in row for c in (b, g, r)) + padding
                     for row in rows)
    with open(name, "wb") as file:
        file.write(struct.pack("<2sIHHI", b"BM", 54 + len(image), 0, 0, 54))
        file.write(struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0,
                               len(image), 2835, 2835, 0, 0))
        file.write(image)
