#!/usr/bin/env python3
"""The helper under a Wayland compositor, in a bar that shows wide pictures."""

import json
import os
import plistlib
import unittest

from helper_case import HelperCase, machine, wait_for

APPLICATION = os.environ.get("QUINDLE_APPLICATION", "")
OWN = "com.fernhollow.Quindle-Helper.plist"


class Wayland(HelperCase):
    host = "waybar"

    def tree_windows(self):
        found = []

        def walk(node):
            if node.get("app_id"):
                found.append(node)
            for child in node.get("nodes", []) + node.get("floating_nodes", []):
                walk(child)

        walk(json.loads(self.desktop.call("swaymsg", "-t", "get_tree") or "{}"))
        return [node for node in found if "quindle" in node["app_id"]]

    def test_title_and_view(self):
        self.start(machine(66))
        self.assert_title("66.0%")
        self.desktop.activate_item()
        windows = wait_for(self.tree_windows, 5)
        self.assertEqual(len(windows), 1)
        self.assertEqual(windows[0]["type"], "floating_con", "a fixed-size window is not tiled")

    def test_second_start_opens_the_view(self):
        self.start(machine(66))
        self.assert_title("66.0%")
        second = self.start(machine(12), "second.plist")
        self.assertEqual(second.wait(5), 0)
        self.assertTrue(wait_for(self.tree_windows, 5))

    def stored_page(self):
        for path in self.desktop.root.rglob(OWN):
            try:
                return plistlib.loads(path.read_bytes()).get("ApplicationPage")
            except (OSError, plistlib.InvalidFileException):
                return None
        return None

    def test_the_application(self):
        system = self.desktop.root / "application/sys/class/power_supply/BAT0"
        system.mkdir(parents=True)
        for name, value in (("type", "Battery"), ("present", 1), ("status", "Discharging"), ("charge_now", 3000000),
                            ("charge_full", 6000000), ("charge_full_design", 6500000), ("voltage_now", 12000000)):
            (system / name).write_text(f"{value}\n")
        process = self.desktop.start(APPLICATION, env={"QUINDLE_SYSFS": str(system.parents[2])})
        self.addCleanup(process.kill)
        window = wait_for(self.tree_windows, 10)
        self.assertEqual([node["app_id"] for node in window], ["quindle"])
        self.assertTrue(window[0]["visible"])
        # No keyboard is at hand here: a compositor of its own has none to type with.
        self.desktop.call("swaymsg", "kill")
        self.assertEqual(process.wait(10), 0)


if __name__ == "__main__":
    unittest.main()
