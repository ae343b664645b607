"""Runs: a first program typed, paused, stopped and played to its end; a break point and a row
edited in a pause; a slip found and mended."""
import subprocess

from PIL import Image

from journey import BUILD, TITLE, Journey, has, keep_screen, place, wait_for

WHITE = (255, 255, 255)
HIGHLIGHT = bytes((48, 140, 198))
PART = ("[BILLET X20 Z40", "M03 S800", "G00 X16 Z2", "G01 Z-20 F100", "G00 X30", "M30")


class RunJourney(Journey):
    def assert_shows_the_run_of(self, *lines):
        """The simulation area is what the player makes of the program."""
        part, picture = self.program.home / "player.cnc", self.program.home / "player.png"
        part.write_text("\r\n".join(lines))
        left, top, width, height = self.area
        subprocess.run([BUILD / "bin/turnbay-play", "--size", f"{width}x{height}",
                        "--picture", picture, part], check=True, stdout=subprocess.DEVNULL)
        expected = Image.open(picture).convert("RGB").tobytes()
        wait_for(lambda: self.desktop.picture(*self.area).tobytes() == expected,
                 "the picture that the player makes")

    def test_first_program(self):
        self.start()
        self.type_program(*PART)
        self.wait_until_open("Start", "Step")
        self.set_speed("Home")
        self.desktop.key("F5")
        self.wait_until_open("Pause", "Stop")
        self.wait_for_panel("Spindle Direction", "CW")
        self.desktop.key("F6")
        self.wait_until_open("Start", "Stop")
        still = self.section()
        self.desktop.key("F5")
        self.wait_until_open("Pause", "Stop")
        wait_for(lambda: self.section() != still, "the tool to move on")
        self.desktop.key("F7")
        self.wait_until_open("Start", "Step")
        self.set_speed("End")
        self.desktop.key("F5")
        self.wait_for_panel("Tool Position", "X 30.0  Z -20.0")
        self.wait_until_open("Start", "Step")
        keep_screen("run")
        self.assert_shows_the_run_of(*PART)

    def test_break_point_and_a_row_edited_in_a_pause(self):
        self.start()
        self.set_speed("End")
        self.type_program("[BILLET X20 Z40", "G00 X18 Z1", "G01 Z-5", "G00 X30")
        self.desktop.key("ctrl+d")
        rows = self.program.find("table", "Program rows")
        left, top, width, _ = place(rows)
        row = 19  # Pixels.
        third = (left + 24, top + 2 * row, 18, row)
        plain = self.desktop.picture(*third)
        self.desktop.click(left + 32, top + 2 * row + row // 2)
        wait_for(lambda: self.desktop.picture(*third) != plain, "a break point")
        self.desktop.key("F5")
        self.wait_until_open("Start", "Stop")
        # The next row: that of the break point has been read.
        middle = top + 3 * row + row // 2
        self.desktop.click(left + 100, middle, times=2)
        box = self.program.find("text", "Text of the row")
        wait_for(lambda: has(box, "FOCUSED"), "the row's edit box to have the keyboard")
        # It reaches beyond the cells, nearly to the edge of the grid.
        wait_for(lambda: self.desktop.pixel(left + width - 12, middle) == WHITE,
                 "the row's edit box")
        self.desktop.key("End", "BackSpace")
        self.desktop.type("9")
        self.desktop.key("Return")
        self.desktop.key("F5")
        self.wait_until_open("Start", "Step")
        self.assert_shows_the_run_of("[BILLET X20 Z40", "G00 X18 Z1", "G01 Z-5", "G00 X39")

    def test_slips_are_found_mended_and_run(self):
        self.start()
        self.set_speed("End")
        self.type_program("[BILLET X20 Z40", "G00 X18 Z1", "G01 Z-5,5", "G00 X")
        self.desktop.key("F5")
        self.program.window("Syntax Error!")
        self.desktop.key("Return")
        self.program.window(TITLE)
        # The fault is selected.
        self.desktop.type(".")
        self.desktop.key("F5")
        self.program.window("Syntax Error!")
        # Where there is nothing to select, the caret is marked.
        editor = place(self.program.editor())
        wait_for(lambda: HIGHLIGHT in self.desktop.picture(*editor).tobytes(), "the mark")
        self.desktop.key("Return")
        self.program.window(TITLE)
        self.desktop.type("30")
        self.desktop.key("F5")
        self.wait_for_panel("Tool Position", "X 30.0  Z -5.5")
        self.wait_until_open("Start", "Step")
        self.assert_shows_the_run_of("[BILLET X20 Z40", "G00 X18 Z1", "G01 Z-5.5", "G00 X30")
