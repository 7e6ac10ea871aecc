"""Folders whose names are not UTF-8: what is there is found, and nothing is written elsewhere."""

import os
import plistlib
import unittest

from start_case import SUITE, StartCase

ODD = b"odd-\xff\xfe-folder"


class OddPaths(StartCase):
    def odd(self, *parts):
        path = os.path.join(os.fsencode(self.root), ODD, *parts)
        os.makedirs(path, mode=0o700, exist_ok=True)
        return path

    def names(self):
        """Everything below the test's folder, except what is at odd paths."""
        found = []
        for folder, _, files in os.walk(os.fsencode(self.root)):
            found += [os.path.join(folder, name) for name in files if ODD not in folder]
        return found

    def test_settings(self):
        for variables in ({"XDG_CONFIG_HOME": self.odd()}, {"XDG_CONFIG_HOME": None, "HOME": self.odd(b"home")}):
            folder = variables["XDG_CONFIG_HOME"] or os.path.join(variables["HOME"], b".config")
            self.write_settings(folder, customStatusBar="odd %p")
            before = sorted(self.names())
            session = self.bus()
            process = self.start(session, **variables)
            self.assert_titles(session, ["odd 50.0"])
            written = os.path.join(folder, b"quindle", b"com.fernhollow.Quindle-Helper.plist")
            self.assertTrue(os.path.exists(written), os.listdir(os.path.join(folder, b"quindle")))
            with open(written, "rb") as file:
                self.assertIn("runInBackground", plistlib.load(file))
            self.end(process)
            session.kill()
            self.assertEqual([name for name in sorted(self.names()) if name not in before
                              and b"runtime" not in name and b"cache" not in name], [])

    def test_runtime_folder(self):
        folder = self.odd(b"runtime")
        first = self.start(None, XDG_RUNTIME_DIR=folder)
        self.wait_for_file(folder, b"quindle-helper-none.socket")
        self.assertEqual(self.result(self.start(None, XDG_RUNTIME_DIR=folder))[0], 0)
        self.assertIsNone(first.poll())

    def test_session_bus_in_the_runtime_folder(self):
        folder = self.odd(b"runtime")
        session = self.bus(os.path.join(os.fsdecode(folder), "bus"))
        first = self.start(None, XDG_RUNTIME_DIR=folder, DBUS_SESSION_BUS_ADDRESS=None)
        self.assert_titles(session, ["50.0%"])
        session.kill()
        session = self.bus(os.path.join(os.fsdecode(folder), "bus"))
        self.assert_titles(session, ["50.0%"])
        self.assertIsNone(first.poll())

    def test_installation(self):
        program = self.install(self.odd())
        session = self.bus()
        self.start(session, program=program)
        self.assert_titles(session, ["50.0%"])
        [pixmaps] = session.property_of_items("IconPixmap")
        self.assertGreater(len(pixmaps), 0)

    def test_machine_file_and_supplies(self):
        supplies = self.odd()
        os.rename(self.root / "sys", os.path.join(supplies, b"sys"))
        session = self.bus()
        process = self.start(session, QUINDLE_SYSFS=os.path.join(supplies, b"sys"))
        self.assert_titles(session, ["50.0%"])
        self.end(process)
        path = os.path.join(supplies, b"machine.plist")
        with open(path, "wb") as file:
            plistlib.dump({"Bundle": {"Path": "/x", "Info": {"CFBundleVersion": "1"}}, "PowerSources": [],
                           "Registry": {"AppleSmartBattery": {"CurrentCapacity": 25, "MaxCapacity": 100}},
                           "Defaults": {SUITE: {"customStatusBar": "machine %p"}}}, file)
        self.start(session, QUINDLE_MACHINE=path)
        self.assert_titles(session, ["machine 25.0"])


if __name__ == "__main__":
    unittest.main()
