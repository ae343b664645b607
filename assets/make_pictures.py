#!/usr/bin/python3
"""Render the program's pictures into pictures/.

Run:   /usr/bin/python3 assets/make_pictures.py
Needs: Python 3 with python3-cairo and the font Lato (Debian: apt-get install
       python3-cairo fonts-lato).

toolbar/  icons of the tool bar, 16 by 16, enabled and disabled
grid/     marks of the program grid, 19 by 18, opaque
icon/     the application icon in its sizes, and as a vector picture
splash.png
Pictures named @2x have twice the size, for dense screens. What they show is
drawn in icon_drawing.py and splash_drawing.py.
"""

from pathlib import Path

from icon_drawing import GRID_MARKS, TOOL_BAR, disabled, picture

PICTURES = Path(__file__).parent / "pictures"
SCALES = ((1, ""), (2, "@2x"))


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


def main():
    make_tool_bar()
    make_grid_marks()


if __name__ == "__main__":
    main()
