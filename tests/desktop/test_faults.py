#!/usr/bin/env python3
"""The running helper when what it stands on fails: message buses, tray hosts, the place of its settings."""

import os
import socket
import time
import unittest

import dbus
import dbus.lowlevel

from fault_case import SETTINGS_CHANGED, FaultCase, anonymous_memory, open_files

KILLS = int(os.environ.get("QUINDLE_WATCHER_KILLS", "100"))
# The sanitizers' allocator does, so that memory grows without a leak; those they report themselves.
KEEPS_FREED_MEMORY = os.environ.get("QUINDLE_KEEPS_FREED_MEMORY") == "1"
PATH = "/com/fernhollow/Quindle"


class MessageBuses(FaultCase):
    def assert_hears_settings(self, bus, item, title):
        self.set_template(title)
        bus.send(PATH, SETTINGS_CHANGED)
        self.assert_shows(bus, item, title, 2)

    def test_a_session_bus_that_goes_and_comes_back(self):
        bus = self.bus()
        bus.start()
        self.set_template("%p%")
        process = self.start_helper({"DBUS_SESSION_BUS_ADDRESS": bus.address})
        self.assert_shows(bus, self.watcher(bus).item(), "50.0%")
        files = []
        for round_number in range(4):
            bus.kill()
            time.sleep(0.3)
            self.assertIsNone(process.poll())
            bus.start()
            item = self.watcher(bus).item()
            self.assertIsNotNone(item, "the item did not come back")
            self.assert_hears_settings(bus, item, f"round {round_number}")
            files.append(open_files(process))
        self.assertLessEqual(files[-1], files[0], files)

    def start_before_bus(self, bus, env, without=()):
        self.set_template("%p%")
        process = self.start_helper(env, without)
        time.sleep(1)
        self.assertIsNone(process.poll())
        bus.start()
        item = self.watcher(bus).item()
        self.assertIsNotNone(item, "the item did not come")
        self.assert_hears_settings(bus, item, "heard")
        return process

    def test_a_session_bus_that_comes_late(self):
        bus = self.bus("late")
        self.start_before_bus(bus, {"DBUS_SESSION_BUS_ADDRESS": bus.address})

    def test_a_session_bus_that_comes_late_at_the_usual_place(self):
        # Without a display to start a bus of its own from.
        self.start_before_bus(self.bus("bus"), {"QT_QPA_PLATFORM": "offscreen"},
                              without=("DBUS_SESSION_BUS_ADDRESS", "DISPLAY"))

    def test_a_bus_that_never_comes_costs_next_to_nothing(self):
        bus = self.bus("never")
        process = self.start_helper({"DBUS_SESSION_BUS_ADDRESS": bus.address,
                                     "DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={self.desktop.root}/no/system"})
        time.sleep(2)

        def switches():
            with open(f"/proc/{process.pid}/status", encoding="ascii") as stream:
                return next(int(line.split()[1]) for line in stream if line.startswith("voluntary"))

        before = switches()
        time.sleep(5)
        self.assertIsNone(process.poll())
        self.assertLessEqual(switches() - before, 10, "wake-ups in 5 s of waiting")

    def test_a_system_bus_that_is_absent_and_comes(self):
        bus = self.bus()
        bus.start()
        system = self.bus("system")
        self.set_template("%p%")
        self.start_helper({"DBUS_SESSION_BUS_ADDRESS": bus.address, "DBUS_SYSTEM_BUS_ADDRESS": system.address})
        item = self.watcher(bus).item()
        self.assert_shows(bus, item, "50.0%")
        system.start()
        time.sleep(1)
        self.set_template("woken")
        login_manager = dbus.bus.BusConnection(system.address)
        self.addCleanup(login_manager.close)
        login_manager.request_name("org.freedesktop.login1")
        time.sleep(0.5)
        woken = dbus.lowlevel.SignalMessage("/org/freedesktop/login1", "org.freedesktop.login1.Manager", "PrepareForSleep")
        woken.append(False, signature="b")
        login_manager.send_message(woken)
        login_manager.flush()
        self.assert_shows(bus, item, "woken", 2)


class SilentDisplay(FaultCase):
    def test_a_display_that_accepts_and_never_answers_holds_nothing_up(self):
        number = 20_000_000 + os.getpid()
        with socket.socket(socket.AF_UNIX, socket.SOCK_STREAM) as display:
            display.bind(f"\0/tmp/.X11-unix/X{number}")
            display.listen(8)
            bus = self.bus()
            bus.start()
            watcher = self.watcher(bus)
            self.set_template("%p%")
            process = self.start_helper({"DBUS_SESSION_BUS_ADDRESS": bus.address, "DISPLAY": f":{number}"})
            item = watcher.item()
            self.assert_shows(bus, item, "50.0%")
            watcher.kill()  # now an X11 tray would be looked for
            self.assertIsNotNone(self.watcher(bus).item())
            self.assertIsNone(process.poll())
        self.assertIn("does not answer", self.desktop.log_path.read_text(errors="replace"))


class TrayHosts(FaultCase):
    def test_a_watcher_killed_a_hundred_times(self):
        bus = self.bus()
        bus.start()
        self.set_template("%p%")
        process = self.start_helper({"DBUS_SESSION_BUS_ADDRESS": bus.address})

        def kill_watchers(count):
            for number in range(count):
                watcher = self.watcher(bus)
                item = watcher.item()
                self.assertIsNotNone(item, f"no item after {number} kills")
                watcher.kill()
            time.sleep(4)  # the last look at the watcher's list is over
            return open_files(process), bus.names(), anonymous_memory(process)

        files, names, memory = kill_watchers(20)
        files_after, names_after, memory_after = kill_watchers(KILLS)
        print(f"{KILLS} kills: files {files} -> {files_after}, connections {names} -> {names_after}, "
              f"memory {memory} -> {memory_after} kB")
        self.assertEqual((files_after, names_after), (files, names))
        if not KEEPS_FREED_MEMORY:
            self.assertLess(memory_after - memory, 200, "kB")
        self.assert_shows(bus, self.watcher(bus).item(), "50.0%")


class Settings(FaultCase):
    """Places that nobody may write in, root neither."""

    def assert_runs_on(self, folder, message):
        bus = self.bus()
        bus.start()
        process = self.start_helper({"DBUS_SESSION_BUS_ADDRESS": bus.address, "XDG_CONFIG_HOME": str(folder)})
        self.assert_shows(bus, self.watcher(bus).item(), "50.0%")
        self.assertIsNone(process.poll())
        self.assertEqual(self.desktop.log_path.read_text(errors="replace").count(message), 1, message)

    def test_a_folder_that_cannot_be_made(self):
        self.assert_runs_on("/proc/self", "/proc/self/quindle")

    def test_a_file_in_place_of_the_folder(self):
        file = self.desktop.root / "file"
        file.write_text("x")
        self.assert_runs_on(file, f"{file}/quindle")


if __name__ == "__main__":
    unittest.main()
