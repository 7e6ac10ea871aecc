#!/usr/bin/env python3
"""What other processes say to the running helper: settings changed, an update comes, the computer woke up."""

import http.server
import os
import plistlib
import shutil
import sys
import threading
import time
import unittest
from pathlib import Path

import dbus

from helper_case import HELPER, SUITE, HelperCase, start_message_bus, wait_for

OWN = "com.fernhollow.Quindle-Helper"
ITEM = "/StatusNotifierItem"
ITEM_INTERFACE = "org.kde.StatusNotifierItem"
PATH = "/com/fernhollow/Quindle"
NOTIFICATIONS = "com.fernhollow.Quindle.Notifications."
SETTINGS_CHANGED = NOTIFICATIONS + "SettingsChangedNotification"
WILL_UPDATE = NOTIFICATIONS + "WillUpdateImmediately"
A_MOMENT = 0.5  # seconds in which nothing is shown that has to wait for the refresh timer, which comes every ten
BATTERY = {"type": "Battery", "present": "1", "status": "Discharging", "charge_now": "3000000",
           "charge_full": "6000000", "charge_full_design": "6500000", "voltage_now": "12000000",
           "voltage_min_design": "11400000", "current_now": "1000000", "cycle_count": "12"}


class Notifications(HelperCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        _, cls.system_bus = start_message_bus(cls.desktop.start)
        cls.desktop.env["DBUS_SYSTEM_BUS_ADDRESS"] = cls.system_bus
        cls.bus = dbus.bus.BusConnection(cls.desktop.env["DBUS_SESSION_BUS_ADDRESS"])
        cls.sysfs = cls.desktop.root / "sys"
        cls.settings = Path(cls.desktop.env["XDG_CONFIG_HOME"]) / "quindle"
        cls.settings.mkdir()

    def setUp(self):
        for file in self.settings.iterdir():
            file.unlink()
        self.write_attributes("power_supply/BAT0", **BATTERY)
        self.write_attributes("dmi/id", product_name="MacBookAir6,2")

    def write_attributes(self, folder, **attributes):
        target = self.sysfs / "class" / folder
        target.mkdir(parents=True, exist_ok=True)
        for name, value in attributes.items():
            (target / name).write_text(value + "\n")

    def store(self, settings, database=OWN):
        path = self.settings / f"{database}.plist"
        replacement = path.with_suffix(".new")
        replacement.write_bytes(plistlib.dumps(settings))
        replacement.rename(path)

    def set_template(self, template):
        self.store({"customStatusBar": template}, SUITE)

    def start_here(self, program=HELPER):
        process = self.desktop.start(program, env={"QUINDLE_SYSFS": str(self.sysfs)})
        self.addCleanup(self.stop, process)
        return process

    def start_titled(self, template, title):
        self.set_template(template)
        process = self.start_here()
        self.assert_title(title)
        self.item = self.bus.get_object(self.desktop.item_name(), ITEM)
        return process

    def title(self):
        return str(self.item.Get(ITEM_INTERFACE, "Title", dbus_interface="org.freedesktop.DBus.Properties"))

    def assert_changes_at_once(self, template, title, announce):
        """Another template is not shown by itself, and at once when `announce` was called. The timer shows it too, ten
        seconds after it showed the one before; and where the machine was busy, nobody may have listened yet."""
        for attempt, seconds in enumerate((2, 8, 8, 8)):
            marks = attempt * "?"
            marks += self.assert_stays(template + marks)
            announce()
            if wait_for(lambda shown=title + marks: self.title() == shown, seconds, 0.005):
                return
            self.assertTrue(wait_for(lambda shown=title + marks: self.title() == shown), self.title())
        self.fail("only the timer shows it")

    def assert_stays(self, template, announce=lambda: None):
        """Another template is not shown for a while, unless that is the timer's turn: then yet another one. Gives what
        makes it one."""
        for marks in ("", "!", "!!"):
            before = self.title()
            self.set_template(template + marks)
            announce()
            time.sleep(A_MOMENT)
            if self.title() == before:
                return marks
        self.fail(f"it shows {self.title()}")

    def gdbus_emit(self, signal):
        self.desktop.call("gdbus", "emit", "--session", "--object-path", PATH, "--signal", signal)

    def dbus_send(self, signal):
        self.desktop.call("dbus-send", "--session", "--type=signal", PATH, signal)

    def test_changed_settings_show_at_once(self):
        self.start_titled("one %p%", "one 50.0%")
        self.assert_changes_at_once("two %p%", "two 50.0%", lambda: self.gdbus_emit(SETTINGS_CHANGED))
        self.assert_changes_at_once("three %p%", "three 50.0%", lambda: self.dbus_send(SETTINGS_CHANGED))

    def test_other_signals_are_not_taken(self):
        self.start_titled("one %p%", "one 50.0%")

        def announce():
            self.dbus_send(NOTIFICATIONS + "OtherNotification")
            self.dbus_send("com.fernhollow.Other.SettingsChangedNotification")
            self.desktop.call("dbus-send", "--session", "--type=signal", "/com/fernhollow/Other", SETTINGS_CHANGED)

        self.assert_stays("two %p%", announce)

    def test_a_coming_update_changes_nothing(self):
        process = self.start_titled("one %p%", "one 50.0%")

        def announce():
            self.gdbus_emit(WILL_UPDATE)
            self.dbus_send(WILL_UPDATE)

        self.assert_stays("two %p%", announce)
        self.assertIsNone(process.poll())
        self.assert_changes_at_once("three %p%", "three 50.0%", lambda: self.dbus_send(SETTINGS_CHANGED))

    def test_units_that_another_process_has_stored_show(self):
        self.write_attributes("power_supply/BAT0", temp="300")
        self.addCleanup(os.unlink, self.sysfs / "class/power_supply/BAT0/temp")
        self.start_titled("%p%", "50.0%")

        def menu():
            return self.desktop.gdbus(self.desktop.item_name(), "/MenuBar", "com.canonical.dbusmenu.GetLayout", "0", "-1",
                                      "[]")

        self.assertIn("30.0 °C", menu())
        self.store({"QDBatteryTemperatureMode": 1})

        def announced_and_shown():  # again and again: where the machine was busy, nobody may have listened yet
            self.dbus_send(SETTINGS_CHANGED)
            return "86.0 °F" in menu()

        self.assertTrue(wait_for(announced_and_shown), menu())

    def test_waking_refreshes_the_title(self):
        environment = {"DBUS_SYSTEM_BUS_ADDRESS": self.system_bus}
        mock = self.desktop.start(sys.executable, "-m", "dbusmock", "--system", "--template", "logind",
                                  env=environment)
        self.addCleanup(mock.wait)
        self.addCleanup(mock.terminate)
        system = dbus.bus.BusConnection(self.system_bus)
        self.assertTrue(wait_for(lambda: system.name_has_owner("org.freedesktop.login1")))
        manager = dbus.Interface(system.get_object("org.freedesktop.login1", "/org/freedesktop/login1"),
                                 "org.freedesktop.DBus.Mock")

        def prepare_for_sleep(going_to_sleep):
            manager.EmitSignal("org.freedesktop.login1.Manager", "PrepareForSleep", "b", [going_to_sleep])

        self.start_titled("one %p%", "one 50.0%")
        self.assert_changes_at_once("two %p%", "two 50.0%", lambda: prepare_for_sleep(False))
        self.assert_stays("three %p%", lambda: prepare_for_sleep(True))

    def bundle_asking(self, port):
        """The helper in a bundle whose product-information service is on this computer."""
        contents = self.desktop.root / "asking.app" / "Contents"
        shutil.copytree(Path(HELPER).parents[1], contents, symlinks=True)
        self.addCleanup(shutil.rmtree, contents)
        with open(contents / "Info.plist", "rb+") as file:
            info = plistlib.load(file)
            info["QDProductInformationHost"] = f"127.0.0.1:{port}"
            file.seek(0)
            file.truncate()
            plistlib.dump(info, file)
        return contents / "Linux" / "quindle-helper"

    def test_what_happens_during_a_slow_look_up_is_handled_after_it(self):
        case = self

        class SlowService(http.server.BaseHTTPRequestHandler):
            asked = []

            def do_GET(self):
                self.asked.append(self.path)
                case.set_template("two %p%")
                case.dbus_send(SETTINGS_CHANGED)
                time.sleep(1)
                self.send_response(200)
                self.end_headers()
                self.wfile.write(b"<root><configCode>MacBook Air (13-inch, Early 2014)</configCode></root>")

            def log_message(self, *_):
                pass

        service = http.server.HTTPServer(("127.0.0.1", 0), SlowService)
        self.addCleanup(service.server_close)
        self.addCleanup(service.shutdown)
        threading.Thread(target=service.serve_forever, daemon=True).start()
        self.write_attributes("dmi/id", product_serial="C02MN1TXF5YX")
        self.addCleanup(os.unlink, self.sysfs / "class/dmi/id/product_serial")
        self.set_template("one %p%")
        process = self.start_here(self.bundle_asking(service.server_port))
        self.assert_title("two 50.0%")
        self.assertIsNone(process.poll())
        self.assertEqual(SlowService.asked, ["/sp/product?cc=F5YX&lang=en_US"])
        stored = plistlib.loads((self.settings / f"{OWN}.plist").read_bytes())
        self.assertEqual(stored["modelStringCache"], {"F5YX": "(13-inch, Early 2014)"})


if __name__ == "__main__":
    unittest.main()
