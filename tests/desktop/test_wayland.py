#!/usr/bin/env python3
"""The helper under a Wayland compositor, in a bar that shows wide pictures."""

import json
import unittest

from helper_case import HelperCase, machine, wait_for


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


if __name__ == "__main__":
    unittest.main()
