"""The program starts whatever its settings hold. TURNBAY_STORES is how many it is tried with."""
import os
import random

from journey import Journey, wait_for

STORES = int(os.environ.get("TURNBAY_STORES", 3))


def broken(text, i):
    """A store with something wrong."""
    data = bytearray(text.encode() * (i % 3 + 1))
    kind = i % 10
    if kind == 0:
        return bytes(data[:random.randrange(len(data))])
    if kind == 1:
        return random.randbytes(random.randrange(4_000))
    if kind == 2:
        return bytes(data).replace(b"\n", random.choice([b"\r", b"", b"\0", b"\n\n", b"="]))
    if kind == 3:
        return bytes(data).replace(b"=", random.choice([b"", b"==", b"=\\x", b"=\"", b"=@Variant("]))
    if kind == 4:
        return b"[General]\nTabs=" + b"9" * random.randrange(1, 100_000)
    for _ in range(10 ** (kind % 3)):
        data[random.randrange(len(data))] = random.randrange(256)
    return bytes(data)


class StoresJourney(Journey):
    def try_store(self, make):
        """What then stands in its place."""
        self.home = self.new_home()
        store = self.home / ".config/turnbay/CNC.ini"
        store.parent.mkdir(parents=True)
        make(store)
        self.start_with_splash(home=self.home)
        wait_for(lambda: any(self.program.nodes()), "a window")
        self.program.assert_runs()
        self.program.kill()
        return store

    def test_broken_stores(self):
        random.seed(1)
        whole = self.try_store(lambda store: None).read_text()
        self.assertTrue(self.try_store(lambda store: store.mkdir()).is_dir())
        self.assertTrue(self.try_store(os.mkfifo).is_fifo())
        for i in range(STORES):
            data = broken(whole, i)
            with self.subTest(data=data[:80]):
                self.try_store(lambda store, data=data: store.write_bytes(data))
