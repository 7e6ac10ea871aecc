#!/usr/bin/env python3
"""faults_long.py INVENT_HISTORY: the files of the history on file systems that are really full and really read-only. Needs root
or user namespaces. Run by scripts/faults-long."""

import os
import plistlib
import sqlite3
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

INVENT_HISTORY = sys.argv.pop(1)
UNSHARE = ["unshare", "--mount"] if os.geteuid() == 0 else ["unshare", "--user", "--map-root-user", "--mount"]


class RealFileSystems(unittest.TestCase):
    def write_after(self, preparation):
        """What a second write says, and the files before and after it."""
        with tempfile.TemporaryDirectory() as folder:
            place, copies = Path(folder, "small"), Path(folder, "copies")
            place.mkdir()
            script = f"""small={place}; mount -t tmpfs -o size=400k none {place} && '{INVENT_HISTORY}' {place}/quindle 2026-11-19 3 &&
                         cp -rL {place}/quindle {copies}-before && {{ {preparation}; }} &&
                         '{INVENT_HISTORY}' {place}/quindle 2026-11-22 3; echo "status $?"; cp -rL {place}/quindle {copies}-after"""
            ran = subprocess.run([*UNSHARE, "sh", "-c", script], capture_output=True, text=True, check=True)
            self.assertIn("status 1", ran.stdout)
            before, after = (self.contents(Path(f"{copies}-{when}")) for when in ("before", "after"))
            self.assertEqual(before[1:], after[1:])
            return ran.stderr, before[0] == after[0]

    def contents(self, folder):
        archive = plistlib.loads((folder / "QuindleData.qndarchive").read_bytes())
        with sqlite3.connect(folder / "history.sqlite") as database:
            samples = database.execute("SELECT * FROM samples ORDER BY moment").fetchall()
        self.assertGreater(len(samples), 500)
        names = sorted(path.name for path in folder.iterdir() if not path.name.endswith(("-wal", "-shm")))
        return archive, samples, names

    FILL = "cat /dev/zero > $small/filler 2>/dev/null || true"
    # The archive is on another disk then, so that writing fails at the database.
    ELSEWHERE = "archive=QuindleData.qndarchive; mv $small/quindle/$archive $small.archive; ln -s $small.archive $small/quindle/$archive"

    def test_a_full_file_system(self):
        said, is_same = self.write_after(self.FILL)
        self.assertRegex(said, r"^invent-history: cannot write \S+archive: No space left on device\n$")
        self.assertTrue(is_same)

    def test_a_read_only_file_system(self):
        said, is_same = self.write_after("mount -o remount,ro $small")
        self.assertRegex(said, r"^invent-history: cannot write \S+archive: Read-only file system\n$")
        self.assertTrue(is_same)

    def test_a_full_file_system_with_the_database(self):
        said, _ = self.write_after(f"{self.ELSEWHERE}; {self.FILL}")
        self.assertRegex(said, r"^invent-history: cannot write \S+sqlite: No space left on device\n$")

    def test_a_read_only_file_system_with_the_database(self):
        said, _ = self.write_after(f"{self.ELSEWHERE}; mount -o remount,ro $small")
        self.assertRegex(said, r"^invent-history: cannot write \S+sqlite: Read-only file system\n$")


if __name__ == "__main__":
    unittest.main()
