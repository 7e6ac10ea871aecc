#!/usr/bin/env python3
"""What the helper records, and the application beside it: on mocked hardware, because the history of a computer takes in
nothing of another one.

To be run by umockdev-wrapper."""

import unittest
from pathlib import Path

from helper_case import HELPER, wait_for
from test_application import ApplicationCase
from test_power_events import Hardware


class Recording(ApplicationCase):
    def setUp(self):
        super().setUp()
        self.hardware = Hardware()  # 50 %
        self.environment = {**self.hardware.env, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        self.folder = Path(self.desktop.env["XDG_DATA_HOME"]) / "quindle"

    def start_recording(self):
        process = self.desktop.start(HELPER, env=self.environment)
        self.addCleanup(self.stop, process)
        self.assert_title("50.0%")
        return process

    def described(self):
        return self.control("chart", "Charge, last 24 hours")["description"]

    def test_the_last_hour_is_shown_from_the_helpers_memory(self):
        self.start_recording()
        self.assertFalse((self.folder / "history.sqlite").exists(), "the first hour is not over")
        self.start_application("History")
        x, y, width, height = self.control("chart", "Charge, last 24 hours")["box"]
        self.desktop.click(x + width // 2, y + height // 2)
        self.desktop.key("End")
        self.assertTrue(wait_for(lambda: "50.0 %" in self.described()), self.described())
        self.assertIn("discharging", self.described())


if __name__ == "__main__":
    unittest.main()
