"""A desktop of a test's own: X server, window manager, compositor, session bus with accessibility.

Everything is seen from outside: pixels from the X server, names, roles, states and values from the
accessibility bus; keys and the pointer come from the X server too. Nothing waits for a time: wait_for
waits for a sign, and fails with what it waited for after LONGEST seconds.
"""
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402
from PIL import Image  # noqa: E402
from Xlib import X, display  # noqa: E402

LONGEST = float(os.environ.get("TURNBAY_LONGEST", 60))  # Seconds: much longer than the slowest machine needs, for a sign that never comes.
BUILD = pathlib.Path(os.environ["TURNBAY_BUILD"])
ROOT = pathlib.Path(__file__).resolve().parents[2]


def keep_screen(name):
    """Copies the screen into the folder that TURNBAY_PICTURES names, to be looked at."""
    if folder := os.environ.get("TURNBAY_PICTURES"):
        subprocess.run(["import", "-window", "root", f"{folder}/{name}.png"], check=True)


def wait_for(sign, what):
    """The first true result of `sign`; what is gone while it is looked at counts as no sign."""
    end = time.monotonic() + LONGEST
    while True:
        try:
            if found := sign():
                return found
        except GLib.Error:
            pass
        if time.monotonic() > end:
            keep_screen("failed")
            raise AssertionError(f"waited in vain for {what() if callable(what) else what}")
        time.sleep(0.02)


class Desktop:
    """1280x900 pixels, unless told otherwise."""

    def __init__(self, size=(1280, 900)):
        self.size = size
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.processes = []
        reads, writes = os.pipe()
        self._start("Xvfb", "-displayfd", str(writes), "-screen", "0", "{}x{}x24".format(*size),
                    "-nolisten", "tcp", pass_fds=(writes,))
        os.close(writes)
        with os.fdopen(reads) as number:
            self.name = ":" + number.readline().strip()
        self.display = display.Display(self.name)
        self.root = self.display.screen().root
        self._start("openbox", "--sm-disable", env=os.environ | {"DISPLAY": self.name})
        self._start("picom", "--backend", "xrender", "--no-vsync", "--config", "/dev/null",
                    env=os.environ | {"DISPLAY": self.name})
        wait_for(lambda: self._property("_NET_SUPPORTING_WM_CHECK"), "the window manager")
        compositor = self.display.intern_atom("_NET_WM_CM_S0")
        wait_for(lambda: self.display.get_selection_owner(compositor) != X.NONE, "the compositor")
        Atspi.init()

    def _start(self, *command, **options):
        self.processes.append(subprocess.Popen(command, stdout=subprocess.DEVNULL,
                                               stderr=subprocess.DEVNULL, **options))

    def _property(self, name):
        return self.root.get_full_property(self.display.intern_atom(name), X.AnyPropertyType)

    def close(self):
        self.display.close()
        for process in reversed(self.processes):
            process.terminate()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    # Eyes.

    def picture(self, left, top, width, height):
        """What the screen shows there; two are equal when every pixel is."""
        image = self.root.get_image(left, top, width, height, X.ZPixmap, 0xFFFFFFFF)
        return Image.frombytes("RGB", (width, height), image.data, "raw", "BGRX")

    def pixel(self, x, y):
        """Red, green, blue."""
        return self.picture(x, y, 1, 1).getpixel((0, 0))

    def windows(self):
        """How many the window manager holds."""
        found = self._property("_NET_CLIENT_LIST")
        return len(found.value) if found else 0

    def active_title(self):
        """Of the window that has the keyboard."""
        active = self._property("_NET_ACTIVE_WINDOW")
        if active is None or active.value[0] == X.NONE:
            return None
        window = self.display.create_resource_object("window", active.value[0])
        try:
            name = window.get_full_property(self.display.intern_atom("_NET_WM_NAME"), X.AnyPropertyType)
        except Exception:  # The window has just gone.
            return None
        return name.value.decode() if name else None

    # Hands.

    def key(self, *keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "4", text], check=True)

    def click(self, x, y, button=1, times=1):
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(times),
                        "--delay", "30", str(button)], check=True)

    def move(self, x, y):
        subprocess.run(["xdotool", "mousemove", str(x), str(y)], check=True)


class Program:
    """turnbay, started as a user would, in a home of its own."""

    def __init__(self, desktop, home=None, settings="", environment=None):
        self.desktop = desktop
        self.home = home or pathlib.Path(tempfile.mkdtemp(dir=desktop.folder))
        store = self.home / ".config/turnbay/CNC.ini"
        if settings:
            store.parent.mkdir(parents=True, exist_ok=True)
            store.write_text(settings)
        keep = {k: v for k, v in os.environ.items() if not k.startswith(("XDG_", "QT_", "LC_"))
                or k == "XDG_RUNTIME_DIR"}
        self.errors = open(desktop.folder / "errors", "w+b")
        self.process = subprocess.Popen(
            [BUILD / "bin/turnbay"], stdout=self.errors, stderr=self.errors,
            env=keep | {"HOME": str(self.home), "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "xcb",
                        "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", **(environment or {})})
        self.node = wait_for(self._application, "the program on the accessibility bus")

    def assert_runs(self):
        if (status := self.process.poll()) is not None:
            raise AssertionError(f"the program has ended with {status}: {self.said()}")

    def _application(self):
        self.assert_runs()
        bus = Atspi.get_desktop(0)
        bus.clear_cache()
        for i in range(bus.get_child_count()):
            child = bus.get_child_at_index(i)
            if child is not None and child.get_process_id() == self.process.pid:
                return child
        return None

    def said(self):
        self.errors.seek(0)
        return self.errors.read().decode(errors="replace")

    # What is on the screen.

    def nodes(self, top=None):
        """Everything below `top` that shows, deepest last."""
        top = top or self.node
        top.clear_cache()
        for i in range(top.get_child_count()):
            child = top.get_child_at_index(i)
            if child is None:
                continue
            child.clear_cache()
            if has(child, "SHOWING"):
                yield child
                yield from self.nodes(child)

    def find(self, role, name, top=None):
        """The control of this role and name that shows."""
        def look():
            for node in self.nodes(top):
                if node.get_role_name() == role and node.get_name() == name:
                    return node
            return None
        return wait_for(look, f'{role} "{name}"')

    def is_shown(self, role, name):
        return any(n.get_role_name() == role and n.get_name() == name for n in self.nodes())

    def window(self, title):
        """The top level window of this title, once it has the keyboard."""
        def is_active():
            self.assert_runs()
            return self.desktop.active_title() == title
        wait_for(is_active,
                 lambda: f'window "{title}", but active is "{self.desktop.active_title()}"')
        for i in range(self.node.get_child_count()):
            child = self.node.get_child_at_index(i)
            if child.get_name() == title:
                return child
        return None

    def editor(self):
        return self.find("text", "Part program")

    def text(self):
        editor = self.editor()
        editor.clear_cache()
        return Atspi.Text.get_text(editor, 0, -1)

    def wait_for_end(self):
        """The exit status; whatever the program said on its way fails."""
        status = self.process.wait(LONGEST)
        # Without a sound server its client says so.
        said = [line for line in self.said().splitlines() if not line.startswith("PulseAudio")]
        assert not said, f"the program said: {said}"
        return status

    def kill(self):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()
        self.errors.close()


def has(node, state):
    node.clear_cache()
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def place(node):
    """Left, top, width and height on the screen, in its pixels."""
    node.clear_cache()
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return box.x, box.y, box.width, box.height


def middle(node):
    left, top, width, height = place(node)
    return left + width // 2, top + height // 2
