#!/usr/bin/env python3
"""Panels and watchers that end and come back, and desktops without any."""

import time
import unittest

from helper_case import HelperCase, machine, wait_for


class PanelRestart(HelperCase):
    def picture_of_panel(self):
        return self.desktop.call("sh", "-c", "import -silent -window root -crop 40x28+0+0 rgb:- | md5sum")

    def test_the_item_comes_back_and_looks_the_same(self):
        self.start(machine(66))
        self.assert_title("66.0%")
        time.sleep(1.5)
        before = self.picture_of_panel()
        for _ in range(2):
            self.desktop.kill_panel()
            self.desktop.start_panel()
            self.assert_title("66.0%")
            self.assertTrue(wait_for(lambda: self.picture_of_panel() == before, 5), "the panel shows another picture")


class NoTray(HelperCase):
    host = "none"

    def cpu(self, process):
        with open(f"/proc/{process.pid}/schedstat", encoding="ascii") as stream:
            return int(stream.read().split()[0]) / 1e6

    def test_no_tray_is_waited_for_quietly(self):
        process = self.start(machine(66))
        time.sleep(3)
        before = self.cpu(process)
        time.sleep(5)
        self.assertIsNone(process.poll())
        self.assertLess(self.cpu(process) - before, 100, "ms of processor time in 5 s of waiting")
        self.desktop.host = "xfce"
        self.desktop.start_panel()
        self.addCleanup(setattr, self.desktop, "host", "none")
        self.assert_title("66.0%")


if __name__ == "__main__":
    unittest.main()
