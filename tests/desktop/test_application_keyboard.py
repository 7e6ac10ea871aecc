#!/usr/bin/env python3
"""The application's dialogs, reached, answered and left by the keyboard alone, and read by an assistive technology."""

import unittest
from pathlib import Path

from helper_case import wait_for
from preferences_case import ACCESSIBILITY, BATTERY, nodes
from test_application import APPLICATION, NAMELESS_ALLOWED, ApplicationCase as Case

MOST_CONTROLS = 60  # of a page
CELLS = ("table cell", "column header", "row header")


class Dialogs(Case):
    def setUp(self):
        super().setUp()
        self.history = Path(self.desktop.env["XDG_DATA_HOME"]) / "quindle"
        # The desktop is that of the case before, with its history.
        for file in self.history.glob("*"):
            file.unlink()
        self.record(self.history.parent)

    def record(self, data, **battery):
        """A history of one snapshot and one sample."""
        self.set_battery(**{**BATTERY, **battery})
        self.desktop.call("sh", "-c", 'echo "$(date +%s) 60 -9.5 discharging" | "$0" --record', APPLICATION,
                          env={**self.environment, "XDG_DATA_HOME": str(data)})
        self.set_battery(**BATTERY)
        return data / "quindle/QuindleData.qndarchive"

    def start_application(self, page="Battery", *arguments):
        process = super().start_application(page, *arguments)
        self.focus_log = self.desktop.root / "focus"
        with self.focus_log.open("wb") as stream:
            follower = self.desktop.start("/usr/bin/python3", "-W", "ignore", ACCESSIBILITY, "follow-focus", "quindle",
                                          stdout=stream)
        self.addCleanup(follower.wait)
        self.addCleanup(follower.kill)
        self.assertTrue(wait_for(lambda: self.moves() == ["listening"]), "nobody follows the keyboard")
        return process

    def moves(self):
        """The controls that have got the keyboard one after the other."""
        return self.focus_log.read_text().splitlines()

    def focused(self):
        """The name of the control that has the keyboard. A table's current cell counts as focused in any case."""
        found = [node for node in nodes(self.tree()) if "focused" in node["states"] and node["role"] not in CELLS]
        return found[-1]["name"] if found else None

    def go_to(self, name, key="Tab"):
        now = self.focused()
        reached = [now]
        while now != name:
            self.assertLess(len(reached), MOST_CONTROLS, f"{key} does not reach {name}, but {reached}")
            before = len(self.moves())
            self.desktop.key(key)
            self.assertTrue(wait_for(lambda: len(self.moves()) > before, 15), f"{key} leads nowhere after {reached}")
            now = self.moves()[-1]
            reached.append(now)

    def press(self, name, key="Tab"):
        self.go_to(name, key)
        self.desktop.key("space")

    def has_dialog(self, title):
        return any(node["name"] == title and node["role"] in ("dialog", "alert") for node in nodes(self.tree()))

    def assert_dialog(self, title):
        self.assertTrue(wait_for(lambda: self.has_dialog(title), 15), self.texts())
        self.assertTrue(wait_for(self.is_active, 15))
        for node in nodes(self.tree()):
            if "focusable" in node["states"] and node["role"] not in NAMELESS_ALLOWED:
                self.assertNotEqual(node["name"], "", (title, node))

    def assert_closed(self, title):
        self.assertTrue(wait_for(lambda: not self.has_dialog(title), 15))
        self.assertTrue(wait_for(self.is_active, 15))

    def enter_path(self, path):
        self.type(str(path))
        self.desktop.key("Return")

    def test_snapshots_imported_compared_deleted_and_brought_back(self):
        other = self.record(self.desktop.root / "another", charge_full=4800000)
        self.start_application("Snapshots")
        self.press("Import...")
        self.assert_dialog("Import Snapshots")
        self.enter_path(other)
        self.assert_text("1 snapshot imported")
        self.assert_closed("Import Snapshots")
        self.go_to("Save Now")
        self.desktop.key("Tab")
        self.desktop.key("ctrl+a")
        self.press("Compare")
        self.assert_dialog("Compare Snapshots")
        self.assert_text("4,800 mAh")
        self.press("Close")
        self.assert_closed("Compare Snapshots")
        self.press("Delete")
        self.assert_text("2 snapshots deleted")
        self.press("Undo deleting")
        self.assert_text("2 snapshots restored")

    def test_snapshots_exported_with_serial_numbers(self):
        self.start_application("Snapshots")
        self.press("Export...")
        self.assert_dialog("Export Snapshots")
        self.press("With serial numbers")
        self.go_to("File name:")
        table = self.desktop.root / "table.csv"
        self.enter_path(table)
        self.assert_text("Exported")
        self.assertIn("Mac.ID", table.read_text().splitlines()[0])

    def test_a_picture_saved(self):
        self.start_application("History")
        self.press("Save Picture...")
        self.assert_dialog("Save Picture")
        picture = self.desktop.root / "history.png"
        self.enter_path(picture)
        self.assertTrue(wait_for(picture.exists, 15), "nothing was saved")
        self.assertEqual(picture.read_bytes()[:4], b"\x89PNG")

    def test_the_history_deleted(self):
        archive = self.history / "QuindleData.qndarchive"
        self.start_application("Settings")
        # The last of the page.
        self.press("Delete History...", "shift+Tab")
        self.assert_dialog("Delete History")
        # A careless Return keeps it.
        self.desktop.key("Return")
        self.assert_closed("Delete History")
        self.assertTrue(archive.exists())
        self.press("Delete History...", "shift+Tab")
        self.assert_dialog("Delete History")
        self.press("Delete")
        self.assertTrue(wait_for(lambda: not archive.exists(), 15), "it is still there")


if __name__ == "__main__":
    unittest.main()
