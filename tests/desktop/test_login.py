#!/usr/bin/env python3
"""A login starts the helper: sessions that read the autostart entry which the program wrote."""

import os
import plistlib
import unittest
from pathlib import Path

from helper_case import HELPER, HelperCase, machine, wait_for

PEER = os.environ.get("QUINDLE_LOGIN_PEER", "")
OWN = "com.fernhollow.Quindle-Helper.desktop"


class Login(HelperCase):
    def setUp(self):
        self.autostart = Path(self.desktop.env["XDG_CONFIG_HOME"]) / "autostart"
        path = self.desktop.root / "machine.plist"
        path.write_bytes(plistlib.dumps(machine(42)))
        system = self.desktop.root / "system"  # no entries of this computer's
        system.mkdir(exist_ok=True)
        self.session = {"QUINDLE_MACHINE": str(path), "XDG_CONFIG_DIRS": str(system)}
        self.addCleanup(self.end_helper)
        self.addCleanup(self.login_item, "off")

    def login_item(self, wish):
        return self.desktop.call(PEER, HELPER, wish)

    def helpers(self):
        """Processes of the helper on this desktop, whoever started them."""
        running = []
        for pid in self.desktop._own_processes():
            try:
                if os.path.realpath(f"/proc/{pid}/exe") == os.path.realpath(HELPER):
                    running.append(pid)
            except OSError:
                continue
        return running

    def end_helper(self):
        for pid in self.helpers():
            os.kill(pid, 15)
        self.assertTrue(wait_for(lambda: not self.desktop.registered_items(), 5))

    def assert_one_helper(self):
        self.assert_title("42.0%", 15)
        self.assertTrue(wait_for(lambda: len(self.helpers()) == 1, 5), self.helpers())
        self.assertEqual(self.desktop.process_of(self.desktop.item_name()), self.helpers()[0])

    def log_in_with_dex(self):
        # What it starts keeps its output open, so that is not waited for.
        self.assertEqual(self.desktop.start("dex", "-a", "-e", "XFCE", env=self.session).wait(20), 0)

    def log_in_with_lxqt(self):
        # It starts nothing before there is a window manager, and its own where there is none.
        folder = Path(self.desktop.env["XDG_CONFIG_HOME"]) / "lxqt"
        folder.mkdir(exist_ok=True)
        (folder / "session.conf").write_text("[General]\nwindow_manager=openbox\nleave_confirmation=false\n")
        process = self.desktop.start("lxqt-session", env={**self.session, "XDG_CURRENT_DESKTOP": "LXQt"})

        def end():
            process.terminate()
            process.wait(10)
        self.addCleanup(end)

    def test_enabled_starts_with_dex(self):
        self.assertEqual(self.login_item("on"), "on")
        self.log_in_with_dex()
        self.assert_one_helper()

    def test_enabled_starts_with_lxqt(self):
        self.assertEqual(self.login_item("on"), "on")
        self.log_in_with_lxqt()
        self.assert_one_helper()

    def test_second_login_leaves_one_helper(self):
        self.login_item("on")
        self.log_in_with_dex()
        self.assert_one_helper()
        self.log_in_with_dex()
        self.assert_view_opens()  # by the second, before it ended
        self.assert_one_helper()

    def test_entry_is_there_once_and_goes(self):
        for _ in range(2):
            self.assertEqual(self.login_item("on"), "on")
        self.assertEqual([path.name for path in self.autostart.iterdir()], [OWN])
        self.assertEqual(self.login_item("off"), "off")
        self.assertEqual(list(self.autostart.iterdir()), [])

    def test_disabled_does_not_start(self):
        marker = self.desktop.root / "other-ran"
        self.login_item("on")
        other = self.autostart / "zz-other.desktop"
        other.write_text(f"[Desktop Entry]\nType=Application\nName=x\nExec=touch {marker}\n")
        self.addCleanup(other.unlink)
        self.login_item("off")
        self.log_in_with_dex()
        self.assertTrue(wait_for(marker.exists, 10), "the session started nothing at all")
        self.assertEqual(self.helpers(), [])


if __name__ == "__main__":
    unittest.main()
