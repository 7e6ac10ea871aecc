#!/usr/bin/env python3
"""The real helper warns of a low battery: what a notification service gets, who else warns, and a real service's window."""

import datetime
import os
import plistlib
import sys
import unittest
from pathlib import Path

import dbus
import dbus.service

from helper_case import HELPER, SUITE, HelperCase, charge_step, machine, start_message_bus, wait_for

SERVICE = "org.freedesktop.Notifications"
SERVICE_PATH = "/org/freedesktop/Notifications"
OWN = "com.fernhollow.Quindle-Helper"
MORNING = datetime.datetime(2026, 1, 5, 8, 0, 0)
LOW, VERY_LOW, NEARLY_EMPTY = ("battery-low", "Battery low"), ("battery-caution", "Battery very low"), (
    "battery-caution", "Battery nearly empty")
FULL = ("battery", "Battery full")
PLUGGED = {"ExternalConnected": True, "IsCharging": True}
BUS_WITHOUT_SERVICES = """<busconfig>
 <type>session</type>
 <listen>unix:tmpdir={folder}</listen>
 <policy context="default">
  <allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/>
 </policy>
</busconfig>
"""


def day(charges, pause=0.1, every=30, standard=None):
    """A computer whose clock moves on by `every` seconds with each charge; a charge may be a tuple with other values."""
    steps = []
    for number, charge in enumerate(charges):
        charge, more = charge if isinstance(charge, tuple) else (charge, {})
        actions = more.pop("Actions", []) if "Actions" in more else []
        step = charge_step(charge, 2 if number == 0 else pause, AvgTimeToEmpty=65535, **more)
        step["Now"] = MORNING + datetime.timedelta(seconds=every * (number + 1))
        step["Actions"] = list(actions)
        steps.append(step)
    first = charges[0] if isinstance(charges[0], int) else charges[0][0]
    computer = machine(first, steps, AvgTimeToEmpty=65535)
    computer["Now"] = MORNING
    computer["Defaults"]["standard"] = standard or {}
    return computer


class WarningsCase(HelperCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.bus = dbus.bus.BusConnection(cls.desktop.env["DBUS_SESSION_BUS_ADDRESS"])

    def status(self):
        return self.desktop.item_property("Status").strip("(<'>,)")


class Mocked(WarningsCase):
    """Beside a service that keeps what it is asked."""

    def setUp(self):
        mock = self.desktop.start(sys.executable, "-m", "dbusmock", "--session", "--template", "notification_daemon")
        self.addCleanup(mock.wait)
        self.addCleanup(mock.terminate)
        self.assertTrue(wait_for(lambda: self.bus.name_has_owner(SERVICE)))
        self.mock = dbus.Interface(self.bus.get_object(SERVICE, SERVICE_PATH), "org.freedesktop.DBus.Mock")

    def calls(self):
        """What the service was asked so far: (replaced, icon, title, text, urgency, time) or the number that was closed."""
        found = []
        for _, method, arguments in self.mock.GetCalls():
            if method == "Notify":
                _, replaced, icon, title, text, _, hints, expires = arguments
                found.append((int(replaced), (str(icon), str(title)), str(text), int(hints["urgency"]), int(expires)))
            elif method == "CloseNotification":
                found.append(int(arguments[0]))
        return found

    def assert_calls(self, expected):
        wait_for(lambda: len(self.calls()) >= len(expected))
        self.assertEqual(self.calls(), expected)

    def test_a_discharge_and_a_charge(self):
        told = self.desktop.root / "told"
        charges = [24, 24, 24, 22, 19, 19, 14, 13, 9, 9, 9, 6, 4, 4]
        charges += [(charge, dict(PLUGGED)) for charge in range(4, 101, 7)]
        charges += [(100, dict(PLUGGED, FullyCharged=True, IsCharging=False))] * 4 + [99]
        process = self.start(day(charges, standard={"warnLowCommand": f"touch {told}"}))
        self.assert_calls([(0, LOW, "19% left", 1, -1), (1, VERY_LOW, "9% left", 1, -1),
                           (1, NEARLY_EMPTY, "4% left", 2, 0), 1, (0, FULL, "100%", 0, -1), 2])
        self.assertIsNone(process.poll())
        self.assertFalse(told.exists(), "a recorded computer ran a command")

    def test_noise_sleep_and_a_swapped_battery(self):
        other = {"BatterySerialNumber": "D87"}
        charges = [50, 2, 50, 50, 21, 20, 21, 20, 21, 20, 20, 22, 19, 22]  # jumps, then noise around a level
        charges += [(18, {"Actions": ["sleep", "wake"]}), 8, 8, 8]  # very low, but a minute after the wake
        charges += [(90, other)] * 4
        self.start(day(charges))
        self.assert_calls([(0, LOW, "20% left", 1, -1), (1, VERY_LOW, "8% left", 1, -1), 1])

    def test_the_item_needs_attention_while_very_low(self):
        self.start(day([12, 12, 9, 9, 9, 9, 9, 9, (9, dict(PLUGGED))], pause=1))
        self.assertEqual(self.status(), "Active")
        self.assertTrue(wait_for(lambda: self.status() == "NeedsAttention"), self.status())
        self.assertTrue(wait_for(lambda: self.status() == "Active"), self.status())

    def test_a_power_manager_is_left_alone_unless_the_user_wants_both(self):
        manager = dbus.bus.BusConnection(self.desktop.env["DBUS_SESSION_BUS_ADDRESS"])
        name = dbus.service.BusName("org.xfce.PowerManager", manager)
        self.addCleanup(manager.close)
        charges = [12, 12, 9, 9, 9, 9, 4, 4]
        process = self.start(day(charges))
        self.assertTrue(wait_for(lambda: self.status() == "NeedsAttention"))
        self.assert_title("4.0%")
        self.assertEqual(self.calls(), [])
        self.stop(process)
        self.start(day(charges, standard={"warnings": "on"}), "on.plist")
        self.assert_calls([(0, LOW, "12% left", 1, -1), (1, VERY_LOW, "9% left", 1, -1),
                           (1, NEARLY_EMPTY, "4% left", 2, 0)])
        del name

    def test_the_end_takes_it_back(self):
        process = self.start(day([24, 24, 24, 19, 19, 19]))
        self.assert_calls([(0, LOW, "19% left", 1, -1)])
        self.stop(process)
        self.assert_calls([(0, LOW, "19% left", 1, -1), 1])


class WithoutPanel(WarningsCase):
    host = "none"

    def bus_without_services(self):
        """Of its own, so that nothing on this computer is started to show notifications."""
        config = self.desktop.root / "bus.conf"
        config.write_text(BUS_WITHOUT_SERVICES.format(folder=self.desktop.root))
        _, address = start_message_bus(self.desktop.start, f"--config-file={config}")
        return {"DBUS_SESSION_BUS_ADDRESS": address}

    def test_a_command_is_run_with_level_charge_and_state(self):
        output = self.desktop.root / "told"
        program = self.desktop.root / "tell"
        program.write_text(f'#!/bin/sh\nprintf "%s\\n" "$@" > "{output}.new" && mv "{output}.new" "{output}"\n')
        program.chmod(0o755)
        settings = Path(self.desktop.env["XDG_CONFIG_HOME"]) / "quindle"
        settings.mkdir()
        own = {"warnings": "on", "warnNearlyEmptyCommand": f'"{program}" "to me"'}
        (settings / f"{OWN}.plist").write_bytes(plistlib.dumps(own))
        (settings / f"{SUITE}.plist").write_bytes(plistlib.dumps({}))
        supply = self.desktop.root / "sys/class/power_supply/BAT0"
        supply.mkdir(parents=True)
        values = {"type": "Battery", "present": "1", "status": "Discharging", "charge_now": "180000",
                  "charge_full": "6000000", "charge_full_design": "6500000", "voltage_now": "11000000",
                  "voltage_min_design": "11400000", "current_now": "1000000"}
        for name, value in values.items():
            (supply / name).write_text(value + "\n")
        process = self.desktop.start(HELPER, env={"QUINDLE_SYSFS": str(self.desktop.root / "sys"),
                                                  **self.bus_without_services()})
        self.addCleanup(self.stop, process)
        self.assertTrue(wait_for(output.exists, 30), "it was not run")
        self.assertEqual(output.read_text(), "to me\nnearly-empty\n3\ndischarging\n")

    def test_that_nothing_shows_notifications_is_said_once(self):
        process = self.start(day([24, 24, 24, 19, 19, 9, 9, 4, 4, 4]), env=self.bus_without_services())
        said = "no service shows notifications"
        self.assertTrue(wait_for(lambda: said in self.desktop.log_path.read_text()))
        self.assertIsNone(process.poll())
        self.assertEqual(self.desktop.log_path.read_text().count(said), 1)

    def start_dunst(self):
        config = self.desktop.root / "dunstrc"
        config.write_text("[global]\nfollow = none\nmonitor = 0\n")
        dunst = self.desktop.start("dunst", "-config", config)
        self.addCleanup(dunst.wait)
        self.addCleanup(dunst.terminate)
        self.assertTrue(wait_for(lambda: self.bus.name_has_owner(SERVICE)))

    def displayed(self):
        return self.desktop.call("dunstctl", "count", "displayed")

    def test_a_real_service_shows_one_and_takes_it_back_at_the_plug(self):
        self.start_dunst()
        self.start(day([12, 12, 9, 9, 9, 4, 4, 4, 4, 4, 4, 4, 4, (4, dict(PLUGGED))], pause=0.7))
        self.assertTrue(wait_for(lambda: self.displayed() == "1"), self.displayed())
        self.assertTrue(wait_for(lambda: len(self.desktop.windows("^Dunst$")) == 1))
        picture = os.environ.get("QUINDLE_WARNING_PICTURE")
        if picture:
            wait_for(lambda: False, 3)
            self.desktop.screenshot(picture)
        self.assertTrue(wait_for(lambda: self.displayed() == "0"), self.displayed())
        self.assertTrue(wait_for(lambda: not self.desktop.windows("^Dunst$")))


if __name__ == "__main__":
    unittest.main()
