"""Options and tool library, by keyboard alone."""
import unittest

from journey import TITLE, Journey, has, wait_for


class DialogsJourney(Journey):
    def open_dialog(self, title, entry):
        self.choose("t", entry)
        return self.program.window(title)

    def tab_to(self, role, name, top):
        """Tab until the control has the keyboard."""
        control = self.program.find(role, name, top)
        for _ in range(40):
            if has(control, "FOCUSED"):
                return control
            self.desktop.key("Tab")
        raise AssertionError(f'Tab never came to {role} "{name}"')

    def test_options(self):
        self.start()
        for checked in (False, True):
            options = self.open_dialog("Options", "Options...")
            box = self.tab_to("check box", "Auto Complete", options)
            self.assertEqual(not checked, has(box, "CHECKED"))
            self.desktop.key("space")
            # Past Cancel, round to the tabs and on to the next page: Enter is OK all the same.
            self.tab_to("push button", "Cancel", options)
            self.desktop.key("Tab")
            self.desktop.key("Right")
            wait_for(lambda: self.program.is_shown("check box", "Show Grids"), "the next page")
            self.desktop.key("Return")
            self.program.window(TITLE)
        options = self.open_dialog("Options", "Options...")
        self.assertTrue(has(self.program.find("check box", "Auto Complete", options), "CHECKED"))
        self.desktop.key("Escape")
        self.program.window(TITLE)

    def test_tool_library(self):
        self.start()
        library = self.open_dialog("Tool Library", "Tool Library...")
        self.tab_to("combo box", "Tool Number", library)
        self.desktop.key("Down")
        self.tab_to("list", "Tool List", library)
        self.desktop.key("End", "Return")
        wait_for(lambda: self.program.is_shown("label", "tool.bmp"), "the assigned bitmap")
        # Leaves the list of tools as it was.
        self.desktop.key("Escape")
        self.program.window(TITLE)


if __name__ == "__main__":
    unittest.main()
