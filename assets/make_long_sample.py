#!/usr/bin/env python3
"""Make samples/contour_passes.cnc: a vase in more than 1,000 blocks.

Run:   python3 assets/make_long_sample.py
Needs: Python 3 alone. The result is the same at every run.

The program follows the vase in small straight steps, as a drawing program
would write it: roughing passes that keep a distance from the contour, then a
fine finishing pass. Lengths in mm; R is a radius, X a diameter.
"""

import math
import textwrap
from pathlib import Path

BILLET_X, BILLET_Z = 50, 80
# Places where the vase is thickest or thinnest: (depth behind the face, R).
# Between them it flows as a cosine; it falls by less than 40 degrees, so that
# the slim finishing insert clears it.
KNOTS = ((0, 15), (3, 16), (16, 10), (44, 22), (65, 12), (72, 18), (76, 18))
END = KNOTS[-1][0]
ROUGH_DISTANCES = (13, 11.5, 10, 8.5, 7, 5.5, 4, 2.5, 1, 0.4)
ROUGH_STEP, FINE_STEP = 0.5, 0.2
CLEAR_R = BILLET_X / 2 + 1  # where the tool passes over the billet
PANE = 34  # characters of a row that the editor shows
MAX_CHARACTERS = 32_766  # the most that the editor takes


def radius(depth):
    for (start, r0), (end, r1) in zip(KNOTS, KNOTS[1:]):
        if depth <= end:
            part = (depth - start) / (end - start)
            return r0 + (r1 - r0) * (1 - math.cos(math.pi * part)) / 2
    return KNOTS[-1][1]


def contour(distance, step):
    """Points (tenths of R, tenths of depth); one at each end of a level run."""
    points = []
    for i in range(round(END / step) + 1):
        r = min(radius(i * step) + distance, CLEAR_R)
        point = (round(10 * r), round(10 * i * step))
        if len(points) > 1 and points[-2][0] == points[-1][0] == point[0]:
            points.pop()
        points.append(point)
    return points


def decimal(tenths):
    return f"{tenths // 10}.{tenths % 10}" if tenths % 10 else str(tenths // 10)


class Program:
    def __init__(self):
        self.rows = []
        self.number = 0

    def comment(self, text):
        self.rows += ["[" + row for row in textwrap.wrap(text, PANE - 1)]

    def block(self, text):
        self.number += 10
        self.rows.append(f"N{self.number} {text}")

    def cut(self, points, feed):
        """One pass: in at the face, along the contour, out above the billet."""
        self.block(f"G00 X{decimal(2 * points[0][0])}")
        self.block(f"G01 Z0 F{feed}")
        last = points[0]
        for point in points[1:]:
            words = []
            if point[0] != last[0]:
                words.append(f"X{decimal(2 * point[0])}")
            words.append(f"Z-{decimal(point[1])}")
            self.block(" ".join(words))
            last = point
        self.block(f"X{BILLET_X + 4}")
        self.block("G00 Z2")


def main():
    program = Program()
    program.comment("VASE: a flowing contour in many small steps")
    program.comment(f"BILLET X{BILLET_X} Z{BILLET_Z}")
    program.comment("Programs of this length come from a drawing program")
    program.comment("Each block is a short straight cut. G01 is modal: rows with"
                    " only X and Z go on cutting")
    program.block(f"G21 G00 X{BILLET_X + 4} Z10")
    program.comment("Tool 2, finishing. Its slim insert follows the hollows")
    program.block("T02 M06")
    program.block("S1200 M03")
    program.block("M08")
    program.block(f"G00 X{BILLET_X + 4} Z2")
    passes = len(ROUGH_DISTANCES)
    for number, distance in enumerate(ROUGH_DISTANCES, 1):
        program.comment(f"Pass {number} of {passes}: {distance:g} mm outside")
        program.cut(contour(distance, ROUGH_STEP), 200)
    program.comment("Finishing pass in finer steps")
    program.block("S1600 M03")
    program.cut(contour(0, FINE_STEP), 100)
    program.block("G28 U0 W0 [Home from here")
    program.block("M09")
    program.block("M05")
    program.block("M30")
    text = "\r\n".join(program.rows)
    if len(text) > MAX_CHARACTERS:
        raise SystemExit(f"{len(text)} characters are too many for the editor")
    folder = Path(__file__).resolve().parent / "samples"
    folder.mkdir(exist_ok=True)
    (folder / "contour_passes.cnc").write_bytes(text.encode("ascii"))


if __name__ == "__main__":
    main()
