"""Every control is found by role and name, and the focus is seen wherever it goes."""

from journey import TITLE, Journey, has, place, wait_for

# What is a place, not a control: frames, and the cells of the grid.
NAMELESS = {"filler", "panel", "layered pane", "menu bar", "scroll bar", "separator", "table cell",
            "frame", "viewport"}


# Have the focus as long as they are the current one of theirs.
ITEMS = {"list item", "page tab", "table cell"}


class AccessJourney(Journey):
    def assert_all_have_names(self, top):
        nameless = [n.get_role_name() for n in self.program.nodes(top)
                    if n.get_role_name() not in NAMELESS and not n.get_name().strip()
                    and has(n, "FOCUSABLE")]
        self.assertEqual([], nameless)

    def assert_focus_is_seen(self, top, stops):
        """Each Tab changes the picture of the window and moves the focus, until it is back."""
        seen = []
        area = place(top)
        for _ in range(stops):
            focused = wait_for(lambda: next((n for n in self.program.nodes(top)
                                             if n.get_role_name() not in ITEMS
                                             and has(n, "FOCUSED")), None), "a focus")
            name = (focused.get_role_name(), focused.get_name())
            if name in seen:
                return seen
            seen.append(name)
            before = self.desktop.picture(*area)
            self.desktop.key("Tab")
            wait_for(lambda: not has(focused, "FOCUSED"), f"the focus to leave {name}")
            wait_for(lambda: self.desktop.picture(*area) != before, f"the focus behind {name} to be seen")
        return seen

    def test_main_window(self):
        self.start()
        self.assert_all_have_names(self.program.node)

    def test_dialogs(self):
        self.start()
        for entry, title, stops in (("Tool Library...", "Tool Library", 4), ("Options...", "Options", 16)):
            self.choose("t", entry)
            dialog = self.program.window(title)
            self.assert_all_have_names(dialog)
            self.assertGreaterEqual(len(self.assert_focus_is_seen(dialog, stops)), 3)
            self.desktop.key("Escape")
            self.program.window(TITLE)
