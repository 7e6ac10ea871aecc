"""Runs quindle-helper with arguments: it answers at once, whatever the surroundings, and wakes nobody."""

import os
import subprocess
import unittest
from pathlib import Path

from start_case import HELPER, StartCase


class CommandLine(StartCase):
    def answer(self, *arguments, **environment):
        done = subprocess.run([HELPER, *arguments], env=self.environment(**environment), stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=90, check=False)
        return done.returncode, done.stdout, done.stderr

    def surroundings(self):
        """With a display, without one, and with one that is not there."""
        return ({}, {"QT_QPA_PLATFORM": None}, {"QT_QPA_PLATFORM": None, "DISPLAY": ":9999"})

    def test_help_and_version_are_answered(self):
        for surroundings in self.surroundings():
            for argument, first in (("--help", "Usage: quindle-helper\n"), ("-h", "Usage: quindle-helper\n"),
                                    ("--version", "quindle-helper ")):
                status, output, errors = self.answer(argument, **surroundings)
                self.assertEqual((status, errors), (0, ""), (argument, surroundings))
                self.assertTrue(output.startswith(first), output)

    def test_other_arguments_are_refused(self):
        for surroundings in self.surroundings():
            for argument in ("--bogus", "file", "-platform"):
                status, output, errors = self.answer(argument, **surroundings)
                self.assertEqual((status, output), (2, ""), (argument, surroundings))
                self.assertEqual(errors, f'quindle-helper: unknown argument "{argument}" (see --help)\n')

    def test_an_answer_that_cannot_be_written(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([HELPER, "--help"], env=self.environment(), stdout=full, stderr=subprocess.PIPE,
                                  timeout=90, check=False)
        self.assertEqual((done.returncode, done.stderr.count(b"\n")), (2, 1))

    def test_windows_without_the_display_they_were_started_for(self):
        done = subprocess.run([Path(HELPER).with_name("quindle-windows"), "--tray"], stdin=subprocess.DEVNULL,
                              env=self.environment(QT_QPA_PLATFORM=None, DISPLAY=":9999"), capture_output=True,
                              text=True, timeout=90, check=False)
        self.assertEqual((done.returncode, done.stderr),
                         (os.EX_UNAVAILABLE, 'quindle-windows: no window can be shown on the display ":9999"\n'))

    def test_a_pipe_for_a_machine_file_is_refused_at_once(self):
        os.mkfifo(self.root / "pipe")
        status, _, errors = self.answer(QUINDLE_MACHINE=str(self.root / "pipe"))
        self.assertEqual(status, 2)
        self.assertIn("pipe: is not an ordinary file", errors)


if __name__ == "__main__":
    unittest.main()
