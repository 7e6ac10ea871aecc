#!/usr/bin/env python3
"""The helper in an XEmbed tray, where no watcher is on the bus."""

import time
import unittest

from helper_case import HELPER, HelperCase, charge_step, machine, wait_for
from preferences_case import PreferencesCase

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


class WithoutASessionBus(PreferencesCase):
    host = "tint2"

    def picture(self):
        return self.desktop.call("sh", "-c", "import -silent -window root -crop 28x28+0+0 rgb:- | md5sum")

    def test_the_tray_follows_the_preferences_at_once(self):
        process = self.desktop.start(HELPER, env={"QUINDLE_SYSFS": str(self.system),
                                                  "DBUS_SESSION_BUS_ADDRESS": "unix:path=/nowhere"})
        self.addCleanup(self.stop, process)
        self.assertTrue(wait_for(self.desktop.windows, 8), "no icon in the tray")
        time.sleep(1)
        self.desktop.click(*ICON)
        self.assertTrue(wait_for(lambda: len(self.desktop.windows()) > 1, 5), "no battery view appeared")
        time.sleep(0.5)
        for key in ("Up", "Up", "Up", "Return"):  # from the last entry of the menu to "Preferences..."
            self.desktop.key(key)
        self.assertTrue(wait_for(lambda: self.window("General"), 5), "no preferences")
        time.sleep(1)
        for number in range(3):
            before = self.picture()
            self.desktop.key("alt+i")
            self.assertTrue(wait_for(lambda: self.picture() != before, 2), f"after switch {number} the icon stayed")
            time.sleep(0.5)


if __name__ == "__main__":
    unittest.main()
