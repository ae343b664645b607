"""The machine is heard while it moves, from a sound server of the test's own."""
import os
import subprocess

from journey import Journey, wait_for

QUARTER_SECOND = 2 * 44_100 // 4  # Bytes.


class SoundJourney(Journey):
    def serve_sound(self):
        """What is played from now on is recorded."""
        socket = self.new_home() / "sound"
        os.environ["PULSE_SERVER"] = f"unix:{socket}"
        self.addCleanup(os.environ.pop, "PULSE_SERVER")
        self.run_beside("pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "-L", "module-null-sink",
                        "-L", f"module-native-protocol-unix socket={socket} auth-anonymous=1")
        wait_for(socket.exists, "the sound server")
        self.recorder = self.run_beside("parec", "--raw", "--rate=44100", "--channels=1", "--latency-msec=50",
                                        "--device=@DEFAULT_MONITOR@", stdout=subprocess.PIPE)

    def run_beside(self, *command, stdout=subprocess.DEVNULL):
        process = self.enterContext(subprocess.Popen(command, stdout=stdout, stderr=subprocess.DEVNULL))
        self.addCleanup(process.kill)
        return process

    def hears(self, quarters=1):
        """How many of the next quarters of a second aren't silent."""
        return sum(any(self.recorder.stdout.read(QUARTER_SECOND)) for _ in range(quarters))

    def test_moves(self):
        self.serve_sound()
        self.start()
        self.type_program("[BILLET X20 Z80", "G00 X18 Z1", "G01 Z-70 F100")
        self.set_speed("Home")
        self.assertEqual(0, self.hears())
        # The first time longer than the sounds, which go on while the tool moves, but for the rest of a move
        # that paused.
        for key, quarters, heard in (("F5", 20, 20), ("F6", 8, 0), ("F7", 4, 0), ("F5", 4, 4), ("F7", 8, 0)):
            self.desktop.key(key)
            wait_for(lambda: self.hears(quarters) == heard, f"{heard} quarters of a second with sound behind {key}")
        self.choose("t", "Play Sound")
        self.desktop.key("F5")
        self.wait_until_open("Pause", "Stop")
        self.assertEqual(0, self.hears(4))
        self.desktop.key("F7")
        self.wait_until_open("Start", "Step")
