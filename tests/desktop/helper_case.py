"""What the desktop tests share: a helper on an invented computer, on a private desktop."""

import os
import plistlib
import sys
import time
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCE / "scripts" / "headless"))
from desktop import Desktop, start_message_bus, wait_for  # noqa: E402,F401

HELPER = os.environ.get("QUINDLE_HELPER", "")
SUITE = "group.fernhollow.Quindle"


def battery(charge, **more):
    """A battery entry of 1000 mAh with `charge` percent, on battery power."""
    values = {"CurrentCapacity": charge * 10, "MaxCapacity": 1000, "DesignCapacity": 1100, "CycleCount": 42,
              "Voltage": 12000, "Amperage": -1000, "ExternalConnected": False, "IsCharging": False,
              "FullyCharged": False, "AvgTimeToEmpty": 95, "Temperature": 3031, "Manufacturer": "SMP",
              "DeviceName": "bq20z451", "BatterySerialNumber": "D86", "ManufactureDate": 17506}
    values.update(more)
    return values


def machine(charge=66, steps=(), template="%p%", icons=1, **registry):
    return {
        "Registry": {
            "AppleSmartBattery": battery(charge, **registry),
            "IOPlatformExpertDevice": {"model": b"MacBookAir6,2\0", "IOPlatformSerialNumber": "C02MN1TXF5YW"},
        },
        "PowerSources": [{"Name": "InternalBattery-0", "BatteryHealth": "Good"}],
        "HostName": "Test Computer",
        "Bundle": {"Path": "/opt/Quindle.app/Contents/Resources/Quindle-Helper.app", "Info": {"CFBundleVersion": "9"}},
        "Defaults": {SUITE: {"customStatusBar": template, "showIconsInMenuBar": icons}},
        "Steps": list(steps),
    }


def charge_step(charge, after, **registry):
    return {"After": after, "Registry": {"AppleSmartBattery": battery(charge, **registry)}}


class HelperCase(unittest.TestCase):
    """One desktop for each test class; each test starts its own helper."""

    host = "xfce"

    @classmethod
    def setUpClass(cls):
        if not HELPER:
            raise RuntimeError("QUINDLE_HELPER names the program to test")
        cls.desktop = Desktop(cls.host)
        cls.desktop.__enter__()
        cls.addClassCleanup(cls.desktop.close)

    def machine_file(self, computer, name):
        path = self.desktop.root / name
        path.write_bytes(plistlib.dumps(computer))
        return path

    def start(self, computer, name="machine.plist", program=HELPER, env=None):
        path = self.machine_file(computer, name)
        process = self.desktop.start(program, env={"QUINDLE_MACHINE": str(path), **(env or {})})
        self.addCleanup(self.stop, process)
        return process

    def stop(self, process):
        if process.poll() is None:
            process.terminate()
            process.wait(40)
        if self.host != "tint2":
            wait_for(lambda: not self.desktop.registered_items(), 3)

    def assert_title(self, expected, seconds=30.0):
        self.assertEqual(wait_for(lambda: self.desktop.item_title() == expected, seconds) and expected, expected,
                         f"the title is {self.desktop.item_title()!r}")

    def assert_view_opens(self):
        self.assertTrue(wait_for(self.desktop.windows), "no battery view appeared")

    def click_until(self, condition, *place, button=1):
        """Clicks again where nothing comes of it for long: a busy panel may not have drawn the item yet."""
        for _ in range(3):
            self.desktop.click(*place, button=button)
            if wait_for(condition, 15):
                return True
        return False

    def press_until(self, condition, *keys):
        """Presses the keys again where nothing comes of them: a busy window may not have the keyboard yet."""
        for _ in range(6):
            for key in keys:
                self.desktop.key(key)
            if wait_for(condition, 5):
                return True
        return False

    @staticmethod
    def settled(picture, other_than=None, pause=1.0):
        """The picture, another one than that, once it stays as it is for so many seconds."""
        def seen_twice():
            first = picture()
            time.sleep(pause)
            return first if first != other_than and picture() == first else None
        return wait_for(seen_twice, 60)

    def assert_view_closes(self):
        self.assertTrue(wait_for(lambda: not self.desktop.windows()), "the battery view stayed")
