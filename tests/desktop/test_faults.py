#!/usr/bin/env python3
"""The running helper when what it stands on fails: message buses, tray hosts, the place of its settings."""

import os
import socket
import time
import unittest

import dbus
import dbus.lowlevel

from fault_case import SETTINGS_CHANGED, FaultCase, anonymous_memory, open_files, wait_for

KILLS = int(os.environ.get("QUINDLE_WATCHER_KILLS", "100"))
# The sanitizers' allocator does, so that memory grows without a leak; those they report themselves.
KEEPS_FREED_MEMORY = os.environ.get("QUINDLE_KEEPS_FREED_MEMORY") == "1"
PATH = "/com/fernhollow/Quindle"


class MessageBuses(FaultCase):
    def assert_hears_settings(self, bus, item, title):
        self.assert_shows_at_once(bus, item, title, lambda: bus.send(PATH, SETTINGS_CHANGED))

    def test_a_session_bus_that_goes_and_comes_back(self):
        bus = self.bus()
        bus.start()
        self.set_template("%p%")
        process = self.start_helper({"DBUS_SESSION_BUS_ADDRESS": bus.address})
        self.assert_shows(bus, self.watcher(bus).item(), "50.0%")
        files = 0
        for round_number in range(4):
            bus.kill()
            time.sleep(0.3)
            self.assertIsNone(process.poll())
            bus.start()
            item = self.watcher(bus).item()
            self.assertIsNotNone(item, "the item did not come back")
            self.assert_hears_settings(bus, item, f"round {round_number}")
            files = files or open_files(process)
        self.assertTrue(wait_for(lambda: open_files(process) <= files), (open_files(process), files))

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

        def in_five_seconds():
            before = switches()
            time.sleep(5)
            return switches() - before

        # A start on a busy machine may not be over yet.
        self.assertTrue(wait_for(lambda: in_five_seconds() <= 10, 40), "more than ten wake-ups in 5 s of waiting, always")
        self.assertIsNone(process.poll())

    def test_a_system_bus_that_is_absent_and_comes(self):
        bus = self.bus()
        bus.start()
        system = self.bus("system")
        self.set_template("%p%")
        self.start_helper({"DBUS_SESSION_BUS_ADDRESS": bus.address, "DBUS_SYSTEM_BUS_ADDRESS": system.address})
        item = self.watcher(bus).item()
        self.assert_shows(bus, item, "50.0%")
        system.start()
        login_manager = dbus.bus.BusConnection(system.address)
        self.addCleanup(login_manager.close)
        login_manager.request_name("org.freedesktop.login1")

        def wake():
            woken = dbus.lowlevel.SignalMessage("/org/freedesktop/login1", "org.freedesktop.login1.Manager",
                                                "PrepareForSleep")
            woken.append(False, signature="b")
            login_manager.send_message(woken)
            login_manager.flush()

        self.assert_shows_at_once(bus, item, "woken", wake)


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
        self.assertTrue(wait_for(lambda: "does not answer" in self.desktop.log_path.read_text(errors="replace")))


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
            return anonymous_memory(process)

        def used():
            return open_files(process), bus.names()

        memory = kill_watchers(20)
        before = used()
        for _ in range(3):  # what is left behind each time grows each time; heaps settle late on a busy machine
            memory_before, memory = memory, kill_watchers(KILLS)
            print(f"{KILLS} kills: files and connections {before} -> {used()}, memory {memory_before} -> {memory} kB")
            self.assertTrue(wait_for(lambda: used() == before), (used(), before))
            if KEEPS_FREED_MEMORY or memory - memory_before < 200:
                break
        else:
            self.fail("the memory grows")
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
