"""failing_reads_test.py QUINDLE PRELOADED: a disk or a server that cannot give a part of the database for a moment. The
file was taken for a damaged one, and set aside."""

import errno
import os
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

QUINDLE, PRELOADED = sys.argv.pop(1), sys.argv.pop(1)
SAMPLES = 5000


class FailingReads(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.history = self.root / "data/quindle"
        now = self.now = int(time.time())
        lines = "".join(f"{now - 60 * (SAMPLES - number)} {number % 90 + 10} {number % 7} discharging\n"
                        for number in range(SAMPLES))
        self.assertEqual(self.quindle("--record", text=lines).returncode, 0)

    def quindle(self, *arguments, text="", **environment):
        plain = {key: value for key, value in os.environ.items() if not key.startswith(("QUINDLE_", "XDG_"))}
        plain |= {"HOME": str(self.root), "XDG_DATA_HOME": str(self.root / "data"),
                  "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/nowhere"}
        return subprocess.run([QUINDLE, *arguments], input=text, env=plain | environment, capture_output=True,
                              text=True, timeout=120, check=False)

    def stored(self):
        with sqlite3.connect(self.history / "history.sqlite") as database:
            return database.execute("SELECT count(*) FROM samples").fetchone()[0]

    def make_day_s_work_due(self):
        with sqlite3.connect(self.history / "history.sqlite") as database:
            database.execute("INSERT OR REPLACE INTO notes VALUES ('daily', ?)", (str(self.now - 2 * 86400),))

    def check(self, *arguments):
        before = self.stored()
        self.assertGreater(before, 1000)
        for error in (errno.ESTALE, errno.ENOMEM, errno.EIO):
            with self.subTest(errno.errorcode[error]):
                self.make_day_s_work_due()
                # The sanitizer's own library must not insist on being the first.
                sanitizer = ":".join(filter(None, (os.environ.get("ASAN_OPTIONS"), "verify_asan_link_order=0")))
                ended = self.quindle(*arguments, LD_PRELOAD=PRELOADED, QUINDLE_TEST_READ_ERROR=str(error),
                                     ASAN_OPTIONS=sanitizer)
                self.assertNotEqual(ended.returncode, 0)
                self.assertIn("history.sqlite", ended.stderr)
                self.assertNotIn("damaged", ended.stderr)
                self.assertEqual(list(self.history.glob("*damaged*")), [])
        self.assertEqual(self.quindle(*arguments).returncode, 0)
        self.assertEqual(self.stored(), before)

    def test_what_cannot_be_read_is_not_damaged(self):
        self.check("--export", "csv", "--samples")

    def test_the_work_of_a_day_waits_for_another_time(self):
        self.check("--record")


if __name__ == "__main__":
    unittest.main()
