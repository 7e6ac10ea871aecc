"""What the battery did reaches the program that records it, whichever way the helper ends, and only where it should."""

import contextlib
import datetime
import plistlib
import shutil
import signal
import sqlite3
import stat
import unittest
from pathlib import Path

import dbus
import dbus.bus

from start_case import AT_MOST, HELPER, SUITE, StartCase, wait_for

MENU = "com.canonical.dbusmenu"
NOON = datetime.datetime(2026, 3, 1, 12)

# Stands in for the application's program: keeps its arguments and its standard input, each time in a file of its own.
RECORDER = """#!/bin/sh
out=$(mktemp "$QUINDLE_TEST_RECORDED/new.XXXXXX")
{ echo "$@"; cat; } > "$out"
mv "$out" "$QUINDLE_TEST_RECORDED/$(date +%s%N)"
"""


def charge(percent, **more):
    return {"AppleSmartBattery": {"CurrentCapacity": percent, "MaxCapacity": 100, "IsCharging": False,
                                  "ExternalConnected": False, "Voltage": 12000, "Amperage": -1000, **more}}


class Recording(StartCase):
    def setUp(self):
        super().setUp()
        self.recorded = self.root / "recorded"
        self.recorded.mkdir()
        self.program = self.root / "Quindle.app/Contents/Resources/Quindle-Helper.app/Contents/Linux/quindle-helper"
        shutil.copytree(Path(HELPER).parents[2], self.program.parents[2])
        self.session = self.bus()

    def install_application(self):
        path = self.root / "Quindle.app/Contents/Linux/quindle"
        path.parent.mkdir()
        path.write_text(RECORDER)
        path.chmod(0o755)

    def start_helper(self, *steps, settings=None):
        machine = {"Bundle": {"Path": "/x", "Info": {"CFBundleVersion": "1"}}, "PowerSources": [],
                   "Registry": charge(50), "Steps": list(steps), "Now": NOON,
                   "Defaults": {"standard": {"recordHistory": True} if settings is None else settings,
                                SUITE: {"customStatusBar": "%p"}}}
        path = self.root / "machine.plist"
        path.write_bytes(plistlib.dumps(machine))
        process = self.start(self.session, program=str(self.program), QUINDLE_MACHINE=str(path),
                             QUINDLE_TEST_RECORDED=str(self.recorded), TZ="UTC")
        if not steps:  # which come too soon to look at the title before
            self.assert_titles(self.session, ["50.0"])
        return process

    def texts(self):
        """What each start of the recorder was given, the oldest first."""
        return [path.read_text() for path in sorted(self.recorded.iterdir()) if not path.name.startswith("new.")]

    def assert_recorded(self, *texts):
        self.assertTrue(wait_for(lambda: self.texts() == list(texts), AT_MOST), self.texts())

    def quit_from_menu(self):
        bus = dbus.bus.BusConnection(self.session.address)
        self.addCleanup(bus.close)
        for name in bus.list_names():
            item = bus.get_object(name, "/MenuBar", introspect=False)
            try:
                _, (_, _, rows) = item.GetLayout(0, -1, ["label"], dbus_interface=MENU, timeout=5)
            except dbus.DBusException:
                continue
            [row] = [row for row, properties, _ in rows if properties.get("label") == "Quit"]
            item.Event(row, "clicked", dbus.String("", variant_level=1), dbus.UInt32(0), dbus_interface=MENU)
            return
        self.fail("no menu")

    def test_at_a_signal(self):
        self.install_application()
        for number, name in enumerate((signal.SIGTERM, signal.SIGINT, signal.SIGHUP)):
            process = self.start_helper()
            process.send_signal(name)
            self.assertEqual(self.result(process)[0], 0, name)
            self.assert_recorded(*["--record\n1772366400 50 -12 discharging\n"] * (number + 1))

    def test_when_it_is_quit(self):
        self.install_application()
        process = self.start_helper()
        self.quit_from_menu()
        self.assertEqual(self.result(process)[0], 0)
        self.assert_recorded("--record\n1772366400 50 -12 discharging\n")

    def test_before_sleep(self):
        self.install_application()
        process = self.start_helper({"After": 0.5, "Actions": ["sleep"]})
        self.assert_recorded("--record\n1772366400 50 -12 discharging\n")
        self.assertIsNone(process.poll())

    def test_once_an_hour(self):
        self.install_application()
        later = [NOON + datetime.timedelta(minutes=minutes) for minutes in (30, 59, 60)]
        process = self.start_helper({"After": 0.5, "Now": later[0], "Registry": charge(40)},
                                    {"After": 0.5, "Now": later[1], "Registry": charge(40)},
                                    {"After": 0.5, "Now": later[2], "Registry": charge(30)})
        self.assert_recorded("--record\n1772366400 50 -12 discharging\n1772368200 40 -12 discharging\n"
                             "1772370000 30 -12 discharging\n")
        self.assertIsNone(process.poll())

    def end_without_recording(self, process):
        process.terminate()
        status, errors = self.result(process)
        self.assertEqual(status, 0)
        self.assertNotIn("record", errors)
        self.assertEqual(list(self.recorded.iterdir()), [])

    def test_not_where_it_is_switched_off(self):
        self.install_application()
        self.end_without_recording(self.start_helper(settings={"recordHistory": False}))

    def test_not_of_a_recorded_computer_that_does_not_ask_for_it(self):
        self.install_application()
        self.end_without_recording(self.start_helper(settings={}))

    def test_not_of_another_folder_of_supplies(self):
        self.install_application()
        process = self.start(self.session, program=str(self.program), QUINDLE_TEST_RECORDED=str(self.recorded))
        self.assert_titles(self.session, ["50.0%"])
        self.end_without_recording(process)

    def test_not_without_the_application(self):
        self.end_without_recording(self.start_helper())

    def test_an_application_that_cannot_be_started(self):
        self.install_application()
        path = self.root / "Quindle.app/Contents/Linux/quindle"
        path.write_text("#!/no/such/interpreter\n")
        process = self.start_helper()
        process.terminate()
        status, errors = self.result(process)
        self.assertEqual(status, 0)
        lines = [line for line in errors.splitlines() if "records the history" in line]
        self.assertEqual(len(lines), 1, errors)
        self.assertIn("cannot be started", lines[0])


class RealApplication(StartCase):
    """The helper and the program of its own bundle's application, together."""

    def test_what_the_helper_saw_is_in_the_history(self):
        machine = {"Bundle": {"Path": "/x", "Info": {"CFBundleVersion": "1"}}, "PowerSources": [], "Now": NOON,
                   "ApplicationSupport": ["support"],
                   "Defaults": {"standard": {"recordHistory": True}, SUITE: {"customStatusBar": "%p"}},
                   "Registry": charge(50, BatterySerialNumber="D86ABCDEFGH", ManufactureDate=17506, DeviceName="bq20z451",
                                      Manufacturer="SMP", DesignCapacity=110, CycleCount=7)}
        path = self.root / "machine.plist"
        path.write_bytes(plistlib.dumps(machine))
        session = self.bus()
        process = self.start(session, QUINDLE_MACHINE=str(path), TZ="UTC")
        self.assert_titles(session, ["50.0"])
        process.terminate()
        status, errors = self.result(process)
        self.assertEqual((status, errors.count("record")), (0, 0), errors)
        history, archive = self.root / "support/history.sqlite", self.root / "support/QuindleData.qndarchive"
        self.assertTrue(wait_for(lambda: archive.exists() and self.samples_in(history), AT_MOST), list(self.root.rglob("*")))
        self.assertEqual(self.samples_in(history), [(1772366400, 50.0, -12.0)])
        for file in (history, archive):
            self.assertEqual(stat.S_IMODE(file.stat().st_mode), 0o600, file)

    @staticmethod
    def samples_in(history):
        try:
            with contextlib.closing(sqlite3.connect(f"file:{history}?mode=ro", uri=True)) as database:
                return database.execute("SELECT moment, charge, power FROM samples").fetchall()
        except sqlite3.OperationalError:
            return []


if __name__ == "__main__":
    unittest.main()
