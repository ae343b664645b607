#!/usr/bin/python3
"""Make the pictures of the manual in help/pictures/.

Run:   /usr/bin/python3 assets/make_help_pictures.py build/release/bin/turnbay-play
Needs: Python 3 with python3-cairo, the font Lato (Debian: apt-get install
       python3-cairo fonts-lato), and a built turnbay-play.

Plays each program of samples/ and keeps its simulation area at 480 by 307,
compares the first of them with what a learner has made of it,
turns the tool bitmaps into pictures with a transparent ground, copies the icons
that the text names, and draws the diagrams of help_drawing.py.
"""

import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import cairo

from help_drawing import DIAGRAMS
from tool_drawing import KEY

ASSETS = Path(__file__).parent
HELP = ASSETS / "help" / "pictures"
SAMPLE_SIZE = (480, 307)
PLAY_SIZE = (1000, 640)
ICONS = ([f"toolbar/{name}.png" for name in
          ("New", "Open", "Save", "Print", "Step", "Start", "Pause", "Stop",
           "Options")] +
         [f"grid/{name}.png" for name in ("Break", "Step", "Both")])


def scaled_down(surface, width, height):
    result = cairo.ImageSurface(cairo.FORMAT_RGB24, width, height)
    ctx = cairo.Context(result)
    ctx.set_source_rgb(1, 1, 1)
    ctx.paint()
    ctx.scale(width / surface.get_width(), height / surface.get_height())
    ctx.set_source_surface(surface, 0, 0)
    ctx.get_source().set_filter(cairo.FILTER_BEST)
    ctx.paint()
    ctx.identity_matrix()
    ctx.rectangle(0.5, 0.5, width - 1, height - 1)
    ctx.set_source_rgb(0.8, 0.82, 0.84)
    ctx.set_line_width(1)
    ctx.stroke()
    return result


def make_samples(player):
    with tempfile.TemporaryDirectory() as folder:
        played = Path(folder) / "played.png"
        for program in sorted((ASSETS / "samples").glob("*.cnc")):
            subprocess.run([player, "--size", "{}x{}".format(*PLAY_SIZE),
                            "--picture", played, program], check=True,
                           stderr=subprocess.DEVNULL)
            surface = cairo.ImageSurface.create_from_png(str(played))
            picture = scaled_down(surface, *SAMPLE_SIZE)
            picture.write_to_png(str(HELP / f"{program.stem}.png"))


def make_difference(player):
    master = ASSETS / "samples" / "stepped_shaft.cnc"
    learner = (master.read_text("latin-1").replace("X20 Z-2", "X22 Z-2")
               .replace("G01 Z-21 ", "G01 Z-23 "))
    with tempfile.TemporaryDirectory() as folder:
        program, drawn = Path(folder) / "learner.cnc", Path(folder) / "drawn.png"
        program.write_text(learner, "latin-1")
        subprocess.run([player, "--compare", master, "--difference", drawn, program],
                       stderr=subprocess.DEVNULL)
        surface = cairo.ImageSurface.create_from_png(str(drawn))
    width, height = surface.get_width() // 2, surface.get_height() // 2
    scaled_down(surface, width, height).write_to_png(str(HELP / "difference.png"))


def make_tool(bitmap):
    """A 24-bit bitmap, bottom row first, with KEY made transparent."""
    data = bitmap.read_bytes()
    start, width, height = (int.from_bytes(data[i:i + 4], "little")
                            for i in (10, 18, 22))
    stride = (3 * width + 3) // 4 * 4
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, width, height)
    pixels = surface.get_data()
    for y in range(height):
        for x in range(width):
            i = start + (height - 1 - y) * stride + 3 * x
            blue, green, red = data[i:i + 3]
            if (red, green, blue) != KEY:
                j = y * surface.get_stride() + 4 * x
                pixels[j:j + 4] = bytes((blue, green, red, 255))
    surface.mark_dirty()
    surface.write_to_png(str(HELP / f"tool_{bitmap.stem}.png"))


def copy_icons():
    for name in ICONS:
        target = "icon_" + name.replace("toolbar/", "").replace("/", "_")
        shutil.copyfile(ASSETS / "pictures" / name, HELP / target)


def make_diagrams():
    for name, (draw, width, height) in DIAGRAMS.items():
        surface = cairo.ImageSurface(cairo.FORMAT_RGB24, width, height)
        ctx = cairo.Context(surface)
        ctx.set_source_rgb(1, 1, 1)
        ctx.paint()
        draw(ctx)
        surface.write_to_png(str(HELP / f"{name}.png"))


def main():
    if len(sys.argv) != 2:
        sys.exit("Usage: make_help_pictures.py TURNBAY-PLAY")
    HELP.mkdir(parents=True, exist_ok=True)
    make_samples(sys.argv[1])
    make_difference(sys.argv[1])
    for bitmap in sorted((ASSETS / "tools").glob("*.bmp")):
        make_tool(bitmap)
    copy_icons()
    make_diagrams()


if __name__ == "__main__":
    main()
