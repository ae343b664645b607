"""What all journeys share: one desktop, and a program in a home of its own for each."""
import atexit
import os
import pathlib
import tempfile
import unittest

from desktop import BUILD, ROOT, Desktop, Program, has, keep_screen, middle, place, wait_for

TITLE = "Orvane's Turnbay"
# A store without this font counts as empty.
NO_SPLASH = "[TextEditor]\nFont=Courier New\n[%General]\nSplashScreen=0\n"

_desktop = None


def the_desktop():
    global _desktop
    if _desktop is None:
        _desktop = Desktop()
        atexit.register(_desktop.close)
    return _desktop


class Journey(unittest.TestCase):
    def setUp(self):
        self.use(the_desktop())
        self.desktop.move(0, 0)

    def use(self, desktop):
        """What is started or asked from now on is on this desktop."""
        self.desktop = desktop
        os.environ["DISPLAY"] = desktop.name

    def new_home(self):
        return pathlib.Path(tempfile.mkdtemp(dir=self.desktop.folder))

    def start_with_splash(self, **options):
        self.program = Program(self.desktop, **options)
        self.addCleanup(self.program.kill)

    def start(self, **options):
        """A program without splash, its main window in front."""
        self.start_with_splash(**{"settings": NO_SPLASH, **options})
        self.program.window(TITLE)
        self.find_controls()

    def choose(self, menu, entry):
        """An entry of a menu, by the keys that a user would press."""
        def chosen():
            return next((n.get_name() for n in self.program.nodes()
                         if n.get_role_name() == "menu item" and has(n, "FOCUSED")
                         and n.get_child_count() == 0), None)
        self.desktop.key("alt+" + menu)
        self.program.find("menu item", entry)
        while (now := wait_for(chosen, "an entry to be chosen")) != entry:
            self.desktop.key("Down")
            wait_for(lambda: chosen() not in (None, now), f"the entry behind {now}")
        self.desktop.key("Return")

    def close_and_answer(self, question, answer):
        self.desktop.key("alt+F4")
        wait_for(lambda: any(question in n.get_name() for n in self.program.nodes()), "the question")
        self.desktop.key(answer)

    def type_program(self, *lines):
        """Into the empty editor; the bracket of the billet line brings its word."""
        self.desktop.click(*middle(self.program.editor()))
        self.desktop.type("[")
        wait_for(lambda: self.program.text() == "[BILLET", "the offered word")
        self.desktop.key("End")
        self.desktop.type(lines[0].removeprefix("[BILLET"))
        for line in lines[1:]:
            self.desktop.key("Return")
            self.desktop.type(line)
        text = "\n".join(lines)
        wait_for(lambda: self.program.text() == text,
                 lambda: f"the typed text, but there is {self.program.text()!r}")

    # A run answers the bus once a point of its path: controls are found before it.

    def find_controls(self):
        nodes = list(self.program.nodes())
        self.commands = {n.get_name(): n for n in nodes
                         if n.get_name() in ("Start", "Pause", "Stop", "Step", "Save")
                         and n.get_role_name() in ("push button", "check box")}
        self.panels = {n.get_name().split(":")[0]: n for n in nodes if n.get_role_name() == "label"}
        self.area = place(next(n for n in nodes if n.get_name() == "Simulation area"))

    def section(self):
        """The simulation area, without the strip at the bottom where notifications come up."""
        left, top, width, height = self.area
        return self.desktop.picture(left, top, width, min(height, 4 * self.desktop.size[1] // 5 - top))

    def is_open(self, command):
        return has(self.commands[command], "ENABLED")

    def wait_until_open(self, *names):
        """Until these commands, and no others of a run, are open."""
        def open_now():
            return {n for n, b in self.commands.items() if n != "Save" and has(b, "ENABLED")}
        wait_for(lambda: open_now() == set(names),
                 lambda: f"{', '.join(names)} to be open, but open are {', '.join(open_now())}")

    def wait_for_panel(self, tip, holds):
        """A panel of the status bar, by its tip, and what its text has to be."""
        def text():
            self.panels[tip].clear_cache()
            return self.panels[tip].get_name()
        wait_for(lambda: text() == f"{tip}: {holds}", lambda: f'"{holds}" in the panel, not "{text()}"')

    def set_speed(self, key):
        """Home is the slowest, End the fastest."""
        self.desktop.click(*middle(self.program.find("slider", "Simulation speed")))
        self.desktop.key(key)


__all__ = ["BUILD", "ROOT", "Desktop", "NO_SPLASH", "TITLE", "Journey", "has", "keep_screen", "middle", "place", "wait_for"]
