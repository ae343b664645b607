"""A document: saved, closed with each answer to the save question, and there at the next start."""

from journey import TITLE, Journey, wait_for

OPEN_LAST = "[TextEditor]\nFont=Courier New\n[%General]\nSplashScreen=0\nOpenLastFile=1\n"


class DocumentJourney(Journey):
    def save_as(self, name):
        self.program.window("Save As")
        self.desktop.type(name)
        self.desktop.key("Return")
        self.program.window(TITLE)

    def test_saved_closed_with_each_answer_and_started_anew(self):
        self.start(settings=OPEN_LAST)
        part = self.program.home / "part.cnc"
        self.type_program("[BILLET X20 Z40", "G00 X18")
        self.desktop.key("ctrl+s")
        self.save_as(str(part))
        self.wait_for_panel("Current File Name", "part.cnc")
        wait_for(part.exists, "the file")
        self.assertEqual(b"[BILLET X20 Z40\r\nG00 X18", part.read_bytes())

        self.desktop.type(" Z1")
        wait_for(lambda: self.is_open("Save"), "a change to save")
        self.close_and_answer("part.cnc", "Escape")
        self.program.window(TITLE)
        self.close_and_answer("part.cnc", "alt+n")
        self.assertEqual(0, self.program.wait_for_end())
        self.assertEqual(b"[BILLET X20 Z40\r\nG00 X18", part.read_bytes())

        self.start(settings="", home=self.program.home)
        wait_for(lambda: self.program.text() == "[BILLET X20 Z40\nG00 X18", "the last file")
        self.desktop.key("ctrl+End")
        self.desktop.type(" Z3")
        wait_for(lambda: self.is_open("Save"), "a change to save")
        self.close_and_answer("part.cnc", "alt+y")
        self.assertEqual(0, self.program.wait_for_end())
        self.assertEqual(b"[BILLET X20 Z40\r\nG00 X18 Z3", part.read_bytes())
