#!/usr/bin/python3
"""Render the program's pictures into pictures/.

Run:   /usr/bin/python3 assets/make_pictures.py
Needs: Python 3 with python3-cairo and the font Lato (Debian: apt-get install
       python3-cairo fonts-lato).

toolbar/  icons of the tool bar, 16 by 16, enabled and disabled
grid/     marks of the program grid, 19 by 18, opaque
icon/     the application icon in its sizes, the small ones drawn simpler, and scalable
splash.png, 544 by 355; the program writes its version, in a light colour, into
          the dark area at the lower left, below the name
options.png, tool_library.png
          along the left side and the top of these dialogs
sample_tool.png
          the tool in the sample of the options

Pictures named @2x have twice the size, for dense screens. What they show is
drawn in icon_drawing.py, brand_drawing.py and dialog_drawing.py.
"""

import subprocess
import sys
from pathlib import Path

import cairo

from brand_drawing import (draw_large_icon, draw_medium_icon, draw_small_icon,
                           draw_splash)
from dialog_drawing import DIALOG_PICTURES
from icon_drawing import GRID_MARKS, TOOL_BAR, disabled, picture

PICTURES = Path(__file__).parent / "pictures"
SCALES = ((1, ""), (2, "@2x"))

# Drawing, the size it is drawn at, and the sizes to render.
APPLICATION_ICON = (
    (draw_small_icon, 16, (16,)),
    (draw_medium_icon, 24, (24, 32)),
    (draw_large_icon, 256, (48, 64, 128, 256)),
)


def write(surface, name):
    path = PICTURES / name
    path.parent.mkdir(parents=True, exist_ok=True)
    surface.write_to_png(str(path))


def make_tool_bar():
    for name, draw in TOOL_BAR.items():
        for scale, suffix in SCALES:
            icon = picture(draw, 16, 16, scale)
            write(icon, f"toolbar/{name}{suffix}.png")
            write(disabled(icon), f"toolbar/{name}_disabled{suffix}.png")


def make_grid_marks():
    for name, draw in GRID_MARKS.items():
        for scale, suffix in SCALES:
            mark = picture(draw, 19, 18, scale, opaque=True)
            write(mark, f"grid/{name}{suffix}.png")


def make_splash():
    for scale, suffix in SCALES:
        write(picture(lambda ctx, _: draw_splash(ctx), 544, 355, scale,
                      opaque=True), f"splash{suffix}.png")


def make_dialog_pictures():
    for name, draw, (width, height), opaque in DIALOG_PICTURES:
        for scale, suffix in SCALES:
            write(picture(lambda ctx, _: draw(ctx), width, height, scale,
                          opaque), f"{name}{suffix}.png")


def make_application_icon():
    for draw, drawn, sizes in APPLICATION_ICON:
        for size in sizes:
            surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, size, size)
            ctx = cairo.Context(surface)
            ctx.scale(size / drawn, size / drawn)
            draw(ctx)
            write(surface, f"icon/turnbay_{size}.png")
    # For desktops that ask for any size.
    with cairo.SVGSurface(str(PICTURES / "icon/turnbay.svg"), 256, 256) as scalable:
        draw_large_icon(cairo.Context(scalable))


def check_font():
    """cairo would take another font without a word."""
    found = subprocess.run(["fc-match", "-f", "%{family}", "Lato:bold"],
                           capture_output=True, text=True, check=True).stdout
    if "Lato" not in found:
        sys.exit("The font Lato is missing; see the head of this file.")


def main():
    check_font()
    make_tool_bar()
    make_grid_marks()
    make_splash()
    make_dialog_pictures()
    make_application_icon()


if __name__ == "__main__":
    main()
