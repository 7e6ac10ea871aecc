#!/usr/bin/env python3
"""The helper in an XEmbed tray, where no watcher is on the bus."""

import time
import unittest

from helper_case import HelperCase, charge_step, machine, wait_for

ICON = (14, 14)


class X11Tray(HelperCase):
    host = "tint2"

    def picture(self):
        return self.desktop.call("sh", "-c", "import -silent -window root -crop 28x28+0+0 -colors 64 txt:- | md5sum")

    def colours(self):
        """How many different colours the place of the icon shows; an empty panel shows one."""
        return int(self.desktop.call("sh", "-c", "import -silent -window root -crop 24x24+2+2 -format %k info:-") or 0)

    def test_icon_click_and_change(self):
        self.start(machine(66, steps=[charge_step(12, 4)]))
        self.assertTrue(wait_for(lambda: self.colours() > 2, 8), "no icon in the tray")
        before = self.picture()
        self.assertTrue(wait_for(lambda: self.picture() != before, 8), "the icon did not change with the charge")
        self.desktop.click(*ICON)
        self.assertTrue(wait_for(lambda: self.largest_window() > 150, 5), "no battery view appeared")
        self.desktop.key("Escape")
        self.assertTrue(wait_for(lambda: self.largest_window() < 150, 5), "the battery view stayed")

    def largest_window(self):
        heights = [0]
        for window in self.desktop.windows():
            for line in self.desktop.call("xwininfo", "-id", window).splitlines():
                if "Height:" in line:
                    heights.append(int(line.split()[-1]))
        return max(heights)

    def test_the_tray_restarts(self):
        self.start(machine(66))
        self.assertTrue(wait_for(lambda: self.colours() > 2, 8))
        time.sleep(0.5)
        before = self.picture()
        self.desktop.kill_panel()
        self.desktop.start_panel()
        self.assertTrue(wait_for(lambda: self.picture() == before, 8), "the icon did not come back as it was")


if __name__ == "__main__":
    unittest.main()
