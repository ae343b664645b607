"""Kills the program while somebody types and now and then saves, and looks at what the next start offers.

What is left is never older than the file, nothing that was never typed, and at most LONGEST_LOSS behind
the keyboard; it is offered exactly when it differs from the file, and opens whole. TURNBAY_KILLS is how
often; docs/reliability.md tells what came of many.
"""
import os
import random
import signal
import statistics
import time

from journey import Journey, has, middle, wait_for

KILLS = int(os.environ.get("TURNBAY_KILLS", 2))
LONGEST_LOSS = 10  # Seconds, on a machine that is busy; by the rules two.
OPEN_PART = "[TextEditor]\nFont=Courier New\n[%General]\nSplashScreen=0\nOpenLastFile=1\n[RecentFilePaths]\n0="


class KillsJourney(Journey):
    def on_disk(self):
        return self.part.read_bytes().decode()

    def left(self):
        """What the recovery file holds, or None."""
        files = list((self.home / ".local/state/turnbay").glob("*.recovery"))
        self.assertLessEqual(len(files), 1, "recovery files of one program")
        try:
            _, size, rest = files[0].read_bytes().split(b"\0", 2)
        except (IndexError, FileNotFoundError):
            return None
        return rest[int(size):].decode()

    def start_and_take(self):
        """Yes to what is offered, which is then saved."""
        left, disk = self.left(), self.on_disk()
        self.start_with_splash(home=self.home)
        offered = left is not None and left != disk
        if offered:
            yes = self.program.find("push button", "Yes")
            wait_for(lambda: has(yes, "FOCUSED"), "the question to have the keyboard")
            self.desktop.key("Return")
            # A server that hears late of the release presses Return once more, into the text.
            expected = left.replace("\r\n", "\n").lstrip("\n")
            wait_for(lambda: self.program.text().lstrip("\n") == expected,
                     lambda: f"{expected[-80:]!r}, but there is {self.program.text()[-80:]!r}")
            self.desktop.key("ctrl+s")
            wait_for(lambda: self.on_disk().lstrip("\r\n") == left.lstrip("\r\n"),
                     "what was left on the disk")
        wait_for(lambda: self.left() is None, "the end of the recovery file")
        self.assertEqual(self.program.text(), self.on_disk().replace("\r\n", "\n"))
        return offered

    def type_and_kill(self, how):
        """Types in front of the text; the seconds of typing that are lost."""
        self.desktop.click(*middle(self.program.editor()))
        self.desktop.key("ctrl+Home")
        behind = "" if len(self.on_disk()) > 2000 else self.on_disk()
        if not behind:
            self.desktop.key("ctrl+a")
        typed, history = "", [(0.0, self.on_disk())]
        end = time.monotonic() + random.uniform(0.5, 4)
        while time.monotonic() < end:
            words = "G" + "".join(random.choices("GXZ0123456789 ", k=random.randrange(6)))
            for letter in (*words, "\r\n"):
                typed += letter
                history.append((time.monotonic(), typed + behind))
            self.desktop.type(words.lower())
            self.desktop.key("Return")
            if random.random() < 0.05:
                self.desktop.key("ctrl+s")
        self.program.process.send_signal(how)
        killed = time.monotonic()
        self.program.process.wait()
        texts = [text for _, text in history]
        left = self.left()
        for text in {self.on_disk(), left} - {None}:
            self.assertTrue(text in texts, f"never typed: {text[-80:]!r}")
        newest = disk = texts.index(self.on_disk())
        if left is not None:
            newest = texts.index(left)
            self.assertGreaterEqual(newest, disk, "an old text is left beside a newer one")
        lost = history[newest + 1:]
        return killed - lost[0][0] if lost else 0.0

    def test_what_is_typed_outlives_a_kill(self):
        self.home = self.new_home()
        self.part = self.home / "part.cnc"
        self.part.write_bytes(b"G00")
        store = self.home / ".config/turnbay/CNC.ini"
        store.parent.mkdir(parents=True)
        store.write_text(OPEN_PART + f"{self.part}\n")
        losses, offers = [], 0
        for kill in range(KILLS):
            offers += self.start_and_take()
            losses.append(self.type_and_kill((signal.SIGKILL, signal.SIGTERM)[kill % 3 == 2]))
            self.assertLess(losses[-1], LONGEST_LOSS)
        offers += self.start_and_take()
        print(f"{KILLS} kills, {offers} offers, lost {statistics.median(losses):.2f} s of typing in the "
              f"median, {max(losses):.2f} s at most")
