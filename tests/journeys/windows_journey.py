"""What the windows look like at rest: splash, About, notifications, 3D; scaled and dark."""

from PIL import Image

from journey import NO_SPLASH, ROOT, TITLE, Desktop, Journey, keep_screen, place, wait_for

SPLASH = (543, 355)  # Pixels.
DARK_SIMULATION = NO_SPLASH + "[SimulationWindow]\nBackColor=3158064\n"
DARK = (48, 48, 48)


class WindowsJourney(Journey):
    def wait_for_splash(self):
        """Until the picture stands in the middle of the screen as it is, but for the little that its
        opacity of 250 leaves of what lies behind."""
        width, height = self.desktop.size
        left, top = (width - SPLASH[0]) // 2, (height - SPLASH[1]) // 2
        expected = Image.open(ROOT / "assets/pictures/splash.png").convert("RGB")
        spots = [(x, y) for x in range(40, 500, 20) for y in range(20, 230, 10)]

        def look():
            seen = self.desktop.picture(left, top, *SPLASH)
            return all(abs(a - b) <= 6 for spot in spots
                       for a, b in zip(seen.getpixel(spot), expected.getpixel(spot)))
        wait_for(look, "the splash at rest")

    def wait_for_notification(self):
        """White on a dark simulation area, at 250 of 255."""
        width, height = self.desktop.size
        spot = (width - 20, height * 8 // 10 + 10)
        wait_for(lambda: min(self.desktop.pixel(*spot)) >= 245,
                 lambda: f"the notification, but there is {self.desktop.pixel(*spot)}")
        return spot

    def test_splash_and_about(self):
        self.start_with_splash()
        self.wait_for_splash()
        keep_screen("splash")
        self.desktop.key("Escape")
        wait_for(lambda: self.program.is_shown("text", "Part program"), "the main window")
        self.program.window(TITLE)
        self.choose("h", "About Turnbay...")
        self.wait_for_splash()
        keep_screen("about")
        self.desktop.click(*(side // 2 for side in self.desktop.size))
        self.program.window(TITLE)
        wait_for(lambda: self.desktop.windows() == 1, "About to go")

    def test_notifications(self):
        self.start(settings=DARK_SIMULATION)
        self.type_program("[BILLET X20 Z40", "M08", "G04")
        self.desktop.key("F5")
        spot = self.wait_for_notification()
        keep_screen("notification")
        self.desktop.key("Escape")
        wait_for(lambda: self.desktop.pixel(*spot) == DARK, "the notification to go")

    def test_turned_part(self):
        self.start()
        self.set_speed("End")
        self.type_program("[BILLET X20 Z40", "G00 X14 Z1", "G01 Z-15", "G00 X30")
        self.desktop.key("F5")
        self.wait_for_panel("Tool Position", "X 30.0  Z -15.0")
        self.wait_until_open("Start", "Step")
        self.desktop.key("F12")
        wait_for(lambda: self.desktop.active_title() == "3D", "the 3D window")
        whole = (0, 0, *self.desktop.size)
        wait_for(lambda: len(self.desktop.picture(*whole).getcolors(2**24)) > 20, "the part")
        before = self.desktop.picture(*whole)
        keep_screen("part")
        self.desktop.key("KP_1")
        wait_for(lambda: self.desktop.picture(*whole) != before, "a turn")
        self.desktop.key("F5")
        for _ in range(3):
            before = self.desktop.picture(*whole)
            wait_for(lambda: self.desktop.picture(*whole) != before, "the spin")
        self.desktop.key("Escape")
        self.program.window(TITLE)
        self.close_and_answer("Untitled", "alt+n")
        self.assertEqual(0, self.program.wait_for_end())


    def test_sizes_scale_and_colours(self):
        """The panes fill the window, and the text is on its background, in each of them."""
        dark = "".join(f"[Colors:{part}]\nBackgroundNormal=40,40,40\nForegroundNormal=240,240,240\n"
                       for part in ("Button", "View", "Window"))
        for name, environment in (("plain", {}), ("scale2", {"QT_SCALE_FACTOR": "2"}),
                                  ("dark", {"QT_QPA_PLATFORMTHEME": "kde", "KDE_SESSION_VERSION": "5"})):
            with self.subTest(name):
                home = self.new_home()
                if name == "dark":
                    (home / ".config").mkdir()
                    (home / ".config/kdeglobals").write_text(dark)
                self.start(home=home, environment=environment)
                keep_screen(name)
                bar = place(self.program.find("tool bar", "Tool bar"))
                ground = self.desktop.pixel(self.desktop.size[0] - 4, bar[1] + 4)
                self.assertEqual(name == "dark", sum(ground) < 300, ground)
                self.program.kill()

    def test_small_and_large_screen(self):
        """The window fills the screen, the section is in sight, and Options has its buttons there."""
        for size in ((640, 450), (2560, 1600)):
            with self.subTest(size):
                desktop = Desktop(size)
                self.addCleanup(desktop.close)
                self.use(desktop)
                self.start()
                left, top, width, height = self.area
                self.assertGreater(left + width, size[0] - 8)
                self.assertGreater(height, size[1] // 2)
                self.assertLess(top + height, size[1])
                self.choose("t", "Options...")
                options = self.program.window("Options")
                for name in ("OK", "Cancel"):
                    left, top, width, height = place(self.program.find("push button", name, options))
                    self.assertTrue(0 <= left < left + width <= size[0], name)
                    self.assertTrue(0 <= top < top + height <= size[1], name)
                keep_screen(f"options{size[0]}")
                self.desktop.click(left + width // 2, top + height // 2)
                self.program.window(TITLE)
                keep_screen(f"size{size[0]}")
                self.program.kill()
