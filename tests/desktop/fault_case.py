"""What the tests of faults share: a helper on invented sysfs files, and message buses and watchers that can be killed."""

import os
import plistlib
import re
import select
import signal
import subprocess
from pathlib import Path

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

from helper_case import HELPER, SUITE, HelperCase, start_message_bus, wait_for

WATCHER = "org.kde.StatusNotifierWatcher"
SETTINGS_CHANGED = "com.fernhollow.Quindle.Notifications.SettingsChangedNotification"
BATTERY = {"type": "Battery", "present": "1", "status": "Discharging", "charge_now": "3000000",
           "charge_full": "6000000", "charge_full_design": "6500000", "voltage_now": "12000000",
           "voltage_min_design": "11400000", "current_now": "1000000", "cycle_count": "12"}


class Bus:
    """A message bus at a fixed address."""

    def __init__(self, desktop, socket):
        self.desktop = desktop
        self.socket = Path(socket)
        self.address = f"unix:path={socket}"
        self.daemon = None

    def start(self):
        self.daemon, _ = start_message_bus(self.desktop.start, "--session", f"--address={self.address}")

    def kill(self):
        if self.daemon and self.daemon.poll() is None:
            self.daemon.kill()
            self.daemon.wait()
        self.socket.unlink(missing_ok=True)

    def send(self, path, signal_name, *arguments):
        subprocess.run(["dbus-send", f"--bus={self.address}", "--type=signal", path, signal_name, *arguments],
                       check=True)

    def names(self):
        """How many connections the bus has, the asking one not counted."""
        bus = dbus.bus.BusConnection(self.address)
        try:
            return sum(name.startswith(":") for name in bus.list_names()) - 1
        finally:
            bus.close()


class WatcherProcess:
    """A watcher of status notifier items in a process of its own, which reports every item that registers."""

    def __init__(self, bus):
        self.reports, write_end = os.pipe()
        self.pid = os.fork()
        if self.pid == 0:
            os.close(self.reports)
            try:
                self._serve(bus.address, write_end)
            finally:
                os._exit(1)
        os.close(write_end)

    @staticmethod
    def _serve(address, reports):
        dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
        connection = dbus.bus.BusConnection(address)
        items = dbus.Array([], signature="s")

        class Watcher(dbus.service.Object):
            @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
            def RegisterStatusNotifierItem(self, path, sender):
                items.append(sender + path)
                os.write(reports, f"{sender}\n".encode())

            @dbus.service.method("org.freedesktop.DBus.Properties", in_signature="ss", out_signature="v")
            def Get(self, _interface, _name):
                return items

        Watcher(connection, "/StatusNotifierWatcher")
        connection.request_name(WATCHER)
        GLib.MainLoop().run()

    def item(self, seconds=40.0):
        """The connection of the next item that registers; None when none does in time."""
        readable, _, _ = select.select([self.reports], [], [], seconds)
        return os.read(self.reports, 4096).decode().split()[0] if readable else None

    def kill(self):
        if self.pid:
            os.kill(self.pid, signal.SIGKILL)
            os.waitpid(self.pid, 0)
            os.close(self.reports)
            self.pid = 0


class FaultCase(HelperCase):
    """The helper without any panel; buses and watchers are the test's."""

    host = "none"

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.sysfs = cls.desktop.root / "sys"
        supply = cls.sysfs / "class/power_supply/BAT0"
        supply.mkdir(parents=True)
        for name, value in BATTERY.items():
            (supply / name).write_text(value + "\n")
        cls.settings = Path(cls.desktop.env["XDG_CONFIG_HOME"]) / "quindle"
        cls.settings.mkdir()

    def bus(self, name="bus"):
        bus = Bus(self.desktop, self.desktop.root / "runtime" / name)
        self.addCleanup(bus.kill)
        return bus

    def watcher(self, bus):
        watcher = WatcherProcess(bus)
        self.addCleanup(watcher.kill)
        return watcher

    def set_template(self, template):
        path = self.settings / f"{SUITE}.plist"
        replacement = path.with_suffix(".new")
        replacement.write_bytes(plistlib.dumps({"customStatusBar": template}))
        replacement.rename(path)

    def start_helper(self, env, without=()):
        kept = {name: self.desktop.env.pop(name) for name in without}
        try:
            process = self.desktop.start(HELPER, env={"QUINDLE_SYSFS": str(self.sysfs), **env})
        finally:
            self.desktop.env.update(kept)
        self.addCleanup(self.end, process)
        return process

    @staticmethod
    def end(process):
        if process.poll() is None:
            process.terminate()
            process.wait(40)

    def title(self, bus, item):
        answer = self.desktop.call("gdbus", "call", "--address", bus.address, "--timeout", "20", "--dest", item,
                                   "--object-path", "/StatusNotifierItem", "--method",
                                   "org.freedesktop.DBus.Properties.Get", "org.kde.StatusNotifierItem", "Title")
        found = re.search(r"<'(.*)'>", answer)
        return found.group(1) if found else None

    def comes_to_show(self, bus, item, title, seconds=30):
        return wait_for(lambda: self.title(bus, item) == title, seconds)

    def assert_shows(self, bus, item, title):
        self.assertTrue(self.comes_to_show(bus, item, title), f"{self.title(bus, item)!r} instead of {title!r}")

    def assert_shows_at_once(self, bus, item, title, announce):
        """A text that is set and announced. The helper's own timer shows it too, ten seconds after it showed the one
        before; and where the machine was busy, nobody may have listened yet."""
        for attempt, seconds in enumerate((3, 8, 8, 8)):
            awaited = title + attempt * "!"
            self.set_template(awaited)
            announce()
            if self.comes_to_show(bus, item, awaited, seconds):
                return
            self.assert_shows(bus, item, awaited)
        self.fail("only the helper's own timer shows it")


def open_files(process):
    return len(os.listdir(f"/proc/{process.pid}/fd"))


def anonymous_memory(process):
    """kB that belong to the process alone."""
    text = Path(f"/proc/{process.pid}/smaps_rollup").read_text(encoding="ascii")
    return int(re.search(r"^Anonymous:\s+(\d+)", text, re.M).group(1))
