#!/usr/bin/env python3
"""A login starts the helper: sessions that read the autostart entry which the program wrote."""

import os
import plistlib
import shutil
import unittest
from pathlib import Path

from helper_case import HELPER, HelperCase, machine, wait_for

PEER = os.environ.get("QUINDLE_LOGIN_PEER", "")
OWN = "com.fernhollow.Quindle-Helper.desktop"


class LoginCase(HelperCase):
    program = HELPER

    def setUp(self):
        self.autostart, places = self.surroundings()
        path = self.desktop.root / "machine.plist"
        path.write_bytes(plistlib.dumps(machine(42)))
        system = self.desktop.root / "system"  # no entries of this computer's
        system.mkdir(exist_ok=True)
        self.session = {"QUINDLE_MACHINE": str(path), "XDG_CONFIG_DIRS": str(system), **places}
        self.addCleanup(self.end_helper)
        self.addCleanup(self.login_item, "off")

    def surroundings(self):
        """The folder of the user's autostart entries, and what in the environment says so."""
        return Path(self.desktop.env["XDG_CONFIG_HOME"]) / "autostart", {}

    def login_item(self, wish):
        return self.desktop.call(PEER, self.program, wish, env=self.session)

    def helpers(self):
        """Processes of the helper on this desktop, whoever started them."""
        running = []
        for pid in self.desktop._own_processes():
            try:
                if os.path.realpath(f"/proc/{pid}/exe") == os.path.realpath(self.program):
                    running.append(pid)
            except OSError:
                continue
        return running

    def end_helper(self):
        for pid in self.helpers():
            os.kill(pid, 15)
        self.assertTrue(wait_for(lambda: not self.desktop.registered_items()))

    def assert_one_helper(self):
        self.assert_title("42.0%")
        self.assertTrue(wait_for(lambda: len(self.helpers()) == 1), self.helpers())
        self.assertEqual(self.desktop.process_of(self.desktop.item_name()), self.helpers()[0])

    def log_in_with_dex(self):
        # What it starts keeps its output open, so that is not waited for.
        self.assertEqual(self.desktop.start("dex", "-a", "-e", "XFCE", env=self.session).wait(40), 0)

    def log_in_with_lxqt(self):
        # It starts nothing before there is a window manager, and its own where there is none.
        folder = self.autostart.parent / "lxqt"
        folder.mkdir(exist_ok=True)
        (folder / "session.conf").write_text("[General]\nwindow_manager=openbox\nleave_confirmation=false\n")
        process = self.desktop.start("lxqt-session", env={**self.session, "XDG_CURRENT_DESKTOP": "LXQt"})

        def end():
            process.terminate()
            process.wait(40)
        self.addCleanup(end)

    def launch_with_gio(self):
        self.desktop.start("gio", "launch", self.autostart / OWN, env=self.session).wait(40)


class Login(LoginCase):
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
        self.assertTrue(wait_for(marker.exists), "the session started nothing at all")
        self.assertEqual(self.helpers(), [])


class OddInstallation(LoginCase):
    """Installed where the path has characters that sessions read differently in an entry."""

    folder = "100% of $ure `things\\ a=b"

    def setUp(self):
        super().setUp()
        bundle = Path(HELPER).parents[2]
        copied = self.desktop.root / self.folder / bundle.name
        if not copied.exists():
            shutil.copytree(bundle, copied)
        self.program = copied / "Contents/Linux/quindle-helper"
        self.assertEqual(self.login_item("on"), "on")

    def test_starts_with_gio(self):
        self.launch_with_gio()
        self.assert_one_helper()

    def test_starts_with_dex(self):
        self.log_in_with_dex()
        self.assert_one_helper()

    def test_starts_with_lxqt(self):
        self.log_in_with_lxqt()
        self.assert_one_helper()

    def test_leaves_nothing_behind(self):
        self.assertEqual(self.login_item("off"), "off")
        self.assertEqual(list(self.autostart.iterdir()), [])
        self.assertFalse((self.autostart.parent / "quindle/quindle-helper").is_symlink())


class OddHome(OddInstallation):
    """The home folder's path, in which the settings are, has them too."""

    folder = "home/100% $ure=/Applications"

    def surroundings(self):
        home = self.desktop.root / "home/100% $ure="
        return home / ".config/autostart", {"HOME": str(home), "XDG_CONFIG_HOME": str(home / ".config")}


if __name__ == "__main__":
    unittest.main()
