#!/usr/bin/env python3
"""The user's language in the helper, and that programs are not spoken to in it."""

import os
import subprocess
import unittest

from helper_case import HelperCase, machine

INSPECT = os.environ["QUINDLE_INSPECT"]


class Languages(HelperCase):
    def menu(self):
        return self.desktop.gdbus(self.desktop.item_name(), "/MenuBar", "com.canonical.dbusmenu.GetLayout", "0", "-1", "[]")

    def translations_loaded_by(self, process):
        with open(f"/proc/{process.pid}/maps", encoding="utf-8") as maps:
            return {os.path.basename(line.split(maxsplit=5)[5].strip()) for line in maps if line.rstrip().endswith(".qm")}

    def test_tool_tip_and_menu_are_in_the_users_language(self):
        helper = self.start(machine(66, template="%p% %r"), env={"LANGUAGE": "de"})
        self.assert_title("66.0% 1:35")  # figures of the title stay as the template's author knows them
        self.assertIn("Entlädt …", self.desktop.item_property("ToolTip"))
        menu = self.menu()
        for text in ("Zeit bis leer", "Einstellungen …", "Beenden", "Version 9"):
            self.assertIn(text, menu)
        self.assertNotIn("Time until", menu)
        # The file itself, not a copy in memory.
        self.assertEqual(self.translations_loaded_by(helper), {"quindle_de.qm"})

    def test_english_loads_nothing(self):
        helper = self.start(machine(66), env={"LANGUAGE": "en:de"})
        self.assert_title("66.0%")
        self.assertIn("Discharging...", self.desktop.item_property("ToolTip"))
        self.assertIn("Quit", self.menu())
        self.assertEqual(self.translations_loaded_by(helper), set())

    def test_what_programs_read_is_the_same_in_every_language(self):
        path = self.machine_file(machine(66), "inspected.plist")
        for arguments in ([], ["--json"], ["--metrics"]):
            printed = [subprocess.run([INSPECT, *arguments, "--machine", str(path)], capture_output=True, text=True, check=True,
                                      env={**self.desktop.env, "LANGUAGE": language}).stdout for language in ("", "de")]
            self.assertIn("66", printed[0])
            self.assertEqual(printed[0], printed[1], arguments)


if __name__ == "__main__":
    unittest.main()
