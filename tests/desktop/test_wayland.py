#!/usr/bin/env python3
"""The helper under a Wayland compositor, in a bar that shows wide pictures."""

import json
import os
import plistlib
import unittest

from helper_case import Desktop, HelperCase, machine, wait_for

APPLICATION = os.environ.get("QUINDLE_APPLICATION", "")
OWN = "com.fernhollow.Quindle-Helper.plist"


def application_nodes(tree):
    """The windows of these programs in the compositor's tree."""
    own = [tree] if "quindle" in (tree.get("app_id") or "") else []
    for node in tree.get("nodes", []) + tree.get("floating_nodes", []):
        own += application_nodes(node)
    return own


class Wayland(HelperCase):
    host = "waybar"

    def tree_windows(self):
        return application_nodes(json.loads(self.desktop.call("swaymsg", "-t", "get_tree") or "{}"))

    def test_title_and_view(self):
        self.start(machine(66))
        self.assert_title("66.0%")
        self.desktop.activate_item()
        windows = wait_for(self.tree_windows)
        self.assertEqual(len(windows), 1)
        self.assertEqual(windows[0]["type"], "floating_con", "a fixed-size window is not tiled")

    def test_second_start_opens_the_view(self):
        self.start(machine(66))
        self.assert_title("66.0%")
        second = self.start(machine(12), "second.plist")
        self.assertEqual(second.wait(40), 0)
        self.assertTrue(wait_for(self.tree_windows))


class ApplicationInWayland(unittest.TestCase):
    """The application's window under a compositor that has mouse and keyboard."""

    def test_is_mapped_and_changes_its_pages(self):
        with Desktop("waybar", pointer=True) as desktop:
            system = desktop.root / "sys"
            supply = system / "class/power_supply/BAT0"
            supply.mkdir(parents=True)
            for name, value in (("type", "Battery"), ("present", 1), ("status", "Discharging"), ("charge_now", 3000000),
                                ("charge_full", 6000000), ("charge_full_design", 6500000), ("voltage_now", 12000000)):
                (supply / name).write_text(f"{value}\n")
            process = desktop.start(APPLICATION, env={"QUINDLE_SYSFS": str(system)})
            self.assertTrue(wait_for(lambda: self.is_focused(desktop)), "no window has the keyboard")
            # A key that the compositor has not passed on yet is pressed again.
            self.assertTrue(wait_for(lambda: desktop.key("ctrl+3") or self.stored_page(desktop) == "Snapshots"))
            desktop.key("ctrl+q")
            self.assertEqual(process.wait(40), 0)

    @staticmethod
    def is_focused(desktop):
        tree = json.loads(desktop.call("swaymsg", "-t", "get_tree") or "{}")
        return any(node["app_id"] == "quindle" and node["focused"] and node["visible"] for node in application_nodes(tree))

    @staticmethod
    def stored_page(desktop):
        for path in desktop.root.rglob(OWN):
            return plistlib.loads(path.read_bytes()).get("ApplicationPage")
        return None


if __name__ == "__main__":
    unittest.main()
