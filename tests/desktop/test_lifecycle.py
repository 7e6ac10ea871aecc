#!/usr/bin/env python3
"""Panels and watchers that end and come back, and desktops without any."""

import time
import unittest

from helper_case import HelperCase, machine, wait_for


class PanelRestart(HelperCase):
    def picture_of_panel(self):
        return self.desktop.call("sh", "-c", "import -silent -window root -crop 40x28+0+0 rgb:- | md5sum")

    def test_the_item_comes_back_and_looks_the_same(self):
        empty = self.picture_of_panel()
        self.start(machine(66))
        self.assert_title("66.0%")
        before = self.settled(self.picture_of_panel, empty)
        self.assertTrue(before, "the panel shows nothing")
        for _ in range(2):
            self.desktop.kill_panel()
            self.desktop.start_panel()
            self.assert_title("66.0%")
            self.assertTrue(wait_for(lambda: self.picture_of_panel() == before), "the panel shows another picture")


class NoTray(HelperCase):
    host = "none"

    def cpu(self, process):
        with open(f"/proc/{process.pid}/schedstat", encoding="ascii") as stream:
            return int(stream.read().split()[0]) / 1e6

    def test_no_tray_is_waited_for_quietly(self):
        process = self.start(machine(66))
        time.sleep(3)

        def in_five_seconds():
            before = self.cpu(process)
            time.sleep(5)
            return self.cpu(process) - before

        # A start on a busy machine may not be over yet.
        self.assertTrue(wait_for(lambda: in_five_seconds() < 100, 40), "100 ms of processor time in 5 s of waiting, always")
        self.assertIsNone(process.poll())
        self.desktop.host = "xfce"
        self.desktop.start_panel()
        self.addCleanup(setattr, self.desktop, "host", "none")
        self.assert_title("66.0%")


if __name__ == "__main__":
    unittest.main()
