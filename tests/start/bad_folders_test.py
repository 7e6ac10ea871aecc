"""Starts of quindle-helper with folders that no longer answer or are full: they end with one line, or leave one item."""

import os
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

from start_case import AT_MOST, StartCase, wait_for

ABSENT_FOLDER = os.environ["QUINDLE_ABSENT_FOLDER"]


class BadFolders(StartCase):
    def assert_gives_up(self, process, word):
        status, errors = self.result(process)
        self.assertEqual(status, 1, errors)
        lines = [line for line in errors.splitlines() if line.startswith("quindle-helper: ")]
        self.assertEqual(len(lines), 1, errors)
        self.assertIn(word, lines[0])

    def hanging(self, folder):
        return {"LD_PRELOAD": ABSENT_FOLDER, "QUINDLE_TEST_HANGS": str(folder)}

    def test_settings_on_a_server_that_is_away(self):
        self.write_settings(self.root / "config", customStatusBar="%p")
        self.assert_gives_up(self.start(self.bus(), **self.hanging(self.root / "config/quindle")), "settings")

    def test_settings_that_stand_in_for_the_runtime_folder_on_a_server_that_is_away(self):
        self.assert_gives_up(self.start(None, XDG_RUNTIME_DIR=None, **self.hanging(self.root / "config/quindle")),
                             "whether another one runs")

    def test_settings_that_answer(self):
        self.write_settings(self.root / "config", customStatusBar="mine %p")
        session = self.bus()
        self.start(session, **self.hanging(self.root / "elsewhere"))
        self.assert_titles(session, ["mine 50.0"])

    def test_settings_that_go_stale_and_come_back(self):
        self.write_settings(self.root / "config", customStatusBar="mine %p")
        folder = self.root / "config/quindle"
        flag = self.root / "config/quindle.stale"
        session = self.bus()
        log = self.root / "log"

        def reports():
            return [line for line in log.read_text(encoding="utf-8").splitlines() if "Stale file handle" in line]

        with log.open("wb") as stream:
            process = self.start(session, stderr=stream, LD_PRELOAD=ABSENT_FOLDER, QUINDLE_TEST_STALE=str(folder))
        self.assert_titles(session, ["mine 50.0"])
        flag.touch()
        session.announce_settings()
        self.assertTrue(wait_for(lambda: len(reports()) == 2, AT_MOST), reports())  # one for each file
        for _ in range(3):
            self.assert_titles_after_change(session, ["mine 50.0"])
            time.sleep(0.3)
        self.assert_titles(session, ["mine 50.0"])
        self.write_settings(self.root / "config", customStatusBar="back %p")
        flag.unlink()
        self.assert_titles_after_change(session, ["back 50.0"])
        process.terminate()
        self.result(process)
        self.assertEqual(len(set(reports())), 2, reports())
        self.assertEqual(len(reports()), 2, reports())

    if os.geteuid() == 0:  # to mount something takes the right to

        def full_temporary_folder(self):
            """What runs a program in a world whose /tmp is full."""
            fill = ("mount -t tmpfs -o size=64k,nr_inodes=4 none /tmp && cat /dev/zero > /tmp/full 2>/dev/null; "
                    "touch /tmp/a /tmp/b /tmp/c 2>/dev/null; echo full; exec sleep 600")
            holder = subprocess.Popen(["unshare", "--mount", "sh", "-c", fill], stdout=subprocess.PIPE, text=True)
            self.addCleanup(holder.stdout.close)
            self.addCleanup(holder.wait)
            self.addCleanup(holder.kill)
            self.assertEqual(holder.stdout.readline(), "full\n")
            return ["nsenter", "--mount", f"--target={holder.pid}"]

        def folder_outside(self):
            folder = Path(tempfile.mkdtemp(prefix="quindle-start-", dir="/var/tmp"))
            self.addCleanup(subprocess.run, ["rm", "-rf", folder], check=False)
            return folder

        def program_outside(self):
            """The program where a full /tmp does not hide it, as it does that of a source folder in /tmp."""
            return self.install(self.folder_outside())

        def home_outside(self):
            folder = self.folder_outside()
            return {"XDG_RUNTIME_DIR": None, "HOME": str(folder), "XDG_CONFIG_HOME": str(folder / "config"),
                    "XDG_DATA_HOME": str(folder), "QUINDLE_SYSFS": str(folder)}

        def test_a_full_temporary_folder(self):
            prefix, program, home = self.full_temporary_folder(), self.program_outside(), self.home_outside()
            starts = [self.start(None, program=program, prefix=prefix, **home) for _ in range(2)]
            self.assertTrue(wait_for(lambda: sum(start.poll() is None for start in starts) == 1, AT_MOST))
            time.sleep(1)
            self.assertEqual(sum(start.poll() is None for start in starts), 1)
            second = next(start for start in starts if start.poll() is not None)
            self.assertEqual(second.returncode, 0, self.result(second))

        def test_a_home_in_a_full_temporary_folder(self):
            home = {"XDG_RUNTIME_DIR": None, "HOME": "/tmp", "XDG_CONFIG_HOME": None, "XDG_DATA_HOME": None,
                    "QUINDLE_SYSFS": "/nowhere"}
            prefix, program = self.full_temporary_folder(), self.program_outside()
            for _ in range(2):
                self.assert_gives_up(self.start(None, program=program, prefix=prefix, **home), "No space left")


if __name__ == "__main__":
    unittest.main()
