#!/usr/bin/env python3
"""The running helper beside processes of the session that ask too much: it neither grows nor goes away for good."""

import os
import subprocess
import sys
import time
import unittest

from fault_case import FaultCase, anonymous_memory, wait_for

# The sanitizers' allocator keeps what is freed, so that memory grows without a leak.
# The sanitizer keeps 256 MB of what was freed.
MOST_GROWTH = 300_000 if os.environ.get("QUINDLE_KEEPS_FREED_MEMORY") == "1" else 16_000  # kB

# Asks for the item's menu and properties for that many seconds and reads no answer. Prints how often.
NEVER_READS = """
import sys, time, dbus.bus, dbus.lowlevel
address, item, seconds = sys.argv[1], sys.argv[2], float(sys.argv[3])
bus = dbus.bus.BusConnection(address)
end = time.monotonic() + seconds
calls = 0
while time.monotonic() < end or calls < 5_000:
    call = dbus.lowlevel.MethodCallMessage(item, "/StatusNotifierItem", "org.freedesktop.DBus.Properties", "GetAll")
    call.append("org.kde.StatusNotifierItem", signature="s")
    bus.send_message(call)
    call = dbus.lowlevel.MethodCallMessage(item, "/MenuBar", "com.canonical.dbusmenu", "GetLayout")
    call.append(0, -1, [], signature="iias")
    bus.send_message(call)
    calls += 2
    if calls % 100 == 0:
        bus.flush()
print(calls)
"""

# Becomes the watcher and leaves again for that many seconds, then stays. Prints each item that registers meanwhile, the
# flaps and how long they took, and each item that registers afterwards.
FLAPS = """
import sys, time, dbus.bus, dbus.mainloop.glib, dbus.service
from gi.repository import GLib
address, seconds = sys.argv[1], float(sys.argv[2])
WATCHER = "org.kde.StatusNotifierWatcher"
dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.bus.BusConnection(address)
items = dbus.Array([], signature="s")

class Watcher(dbus.service.Object):
    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, path, sender):
        items.append(sender + path)
        print(sender, flush=True)

    @dbus.service.method("org.freedesktop.DBus.Properties", in_signature="ss", out_signature="v")
    def Get(self, _interface, _name):
        return items

watcher = Watcher(bus, "/StatusNotifierWatcher")
context = GLib.MainContext.default()
begun = time.monotonic()
flaps = 0
while time.monotonic() < begun + seconds or flaps < 2_000:
    bus.request_name(WATCHER)
    bus.release_name(WATCHER)
    while context.iteration(False):
        pass
    flaps += 1
print("flaps", flaps, time.monotonic() - begun, flush=True)
items.clear()
bus.request_name(WATCHER)
GLib.MainLoop().run()
"""


class Abuse(FaultCase):
    def setUp(self):
        self.session = self.bus()
        self.session.start()
        self.set_template("%p%")

    def run_script(self, script, *arguments):
        process = subprocess.Popen([sys.executable, "-c", script, self.session.address, *map(str, arguments)],
                                   stdout=subprocess.PIPE, text=True)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process

    def start_shown(self):
        process = self.start_helper({"DBUS_SESSION_BUS_ADDRESS": self.session.address})
        watcher = self.watcher(self.session)
        item = watcher.item()
        self.assert_shows(self.session, item, "50.0%")
        return process, watcher, item

    def most_memory(self, process, until):
        """The most memory of its own that the process had until the other one ended."""
        most = anonymous_memory(process)
        while until.poll() is None:
            most = max(most, anonymous_memory(process))
            time.sleep(0.05)
        return most

    def test_a_caller_that_never_reads_its_answers(self):
        process, watcher, item = self.start_shown()
        for _ in range(100):  # what answers cost once
            self.title(self.session, item)
        before = anonymous_memory(process)
        for _ in range(2):
            caller = self.run_script(NEVER_READS, item, 4)
            grown = self.most_memory(process, caller) - before
            calls = int(caller.stdout.readline())
            print(f"\n  {calls} calls without reading: at most {grown} kB more", file=sys.stderr)
            self.assertLess(grown, MOST_GROWTH)
            item_before, item = item, watcher.item()
            self.assertIsNotNone(item, "the item did not come back")
            self.assertNotEqual(item, item_before)
            self.assert_shows(self.session, item, "50.0%")

    def test_a_watcher_that_comes_and_goes_without_end(self):
        process, watcher, item = self.start_shown()
        watcher.kill()
        wait_for(lambda: self.session.names() <= 3)
        before = anonymous_memory(process)
        flapping = self.run_script(FLAPS, 6)
        registrations = 0
        most = before
        for line in flapping.stdout:
            most = max(most, anonymous_memory(process))
            if line.startswith("flaps"):
                break
            registrations += 1
        _, flaps, lasted = line.split()
        print(f"\n  {flaps} flaps: {registrations} registrations, at most {most - before} kB more", file=sys.stderr)
        self.assertLessEqual(registrations, 2 * float(lasted) + 1)
        self.assertLess(most - before, MOST_GROWTH)
        self.assertEqual(flapping.stdout.readline().strip(), item)  # it stays now, and has the item
        self.assert_shows(self.session, item, "50.0%")


if __name__ == "__main__":
    unittest.main()
