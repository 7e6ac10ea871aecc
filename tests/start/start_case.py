"""What the tests of starting share: the real program without a screen, on private buses and in private folders."""

import os
import plistlib
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
import urllib.parse
from pathlib import Path

import dbus
import dbus.bus
import dbus.lowlevel

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts" / "headless"))
from desktop import ITEM, start_message_bus, wait_for  # noqa: E402

HELPER = os.environ["QUINDLE_HELPER"]
SUITE = "group.fernhollow.Quindle"
BATTERY = {"type": "Battery", "present": "1", "status": "Discharging", "charge_now": "3000000",
           "charge_full": "6000000", "charge_full_design": "6500000", "voltage_now": "12000000"}
AT_MOST = 40  # seconds for what comes within five where nothing else runs


class Bus:
    """A message bus at a socket of its own."""

    def __init__(self, socket):
        self.socket = Path(socket)
        self.address = "unix:path=" + urllib.parse.quote(os.fsencode(socket), safe="/-_.")
        self.daemon, _ = start_message_bus(self.start_process, "--session", f"--address={self.address}")

    @staticmethod
    def start_process(*command, **options):
        return subprocess.Popen(command, stderr=subprocess.DEVNULL, **options)

    def kill(self):
        if self.daemon.poll() is None:
            self.daemon.send_signal(signal.SIGCONT)
            self.daemon.kill()
            self.daemon.wait()
        self.socket.unlink(missing_ok=True)

    def announce_settings(self):
        """Announces in the session that a setting was changed, as the main application does."""
        bus = dbus.bus.BusConnection(self.address)
        bus.send_message(dbus.lowlevel.SignalMessage("/com/fernhollow/Quindle", "com.fernhollow.Quindle.Notifications",
                                                     "SettingsChangedNotification"))
        bus.flush()
        bus.close()

    def titles(self):
        """The title of each item that is offered on the bus."""
        return [str(title) for title in self.property_of_items("Title")]

    def property_of_items(self, property_name):
        bus = dbus.bus.BusConnection(self.address)
        try:
            found = []
            for name in bus.list_names():
                if not name.startswith(":") or name == bus.get_unique_name():
                    continue
                try:
                    item = bus.get_object(name, ITEM, introspect=False)
                    found.append(item.Get("org.kde.StatusNotifierItem", property_name,
                                          dbus_interface="org.freedesktop.DBus.Properties", timeout=5))
                except dbus.DBusException:
                    pass
            return found
        finally:
            bus.close()


class Monitor:
    """What is said on a bus, from the moment that this is made."""

    def __init__(self, case, bus, *rules):
        self.bus = bus
        self.log = case.root / "monitor"
        with self.log.open("wb") as log:
            process = subprocess.Popen(["dbus-monitor", "--address", bus.address, *rules], stdout=log)
        case.addCleanup(process.wait)
        case.addCleanup(process.kill)
        case.assertTrue(wait_for(lambda: self.log.stat().st_size > 0, AT_MOST), "nobody listens")

    def said(self):
        return self.log.read_text(encoding="utf-8")

    def comes_to_say(self, text):
        return wait_for(lambda: text in self.said(), AT_MOST)


class StartCase(unittest.TestCase):
    def setUp(self):
        self.root = Path(tempfile.mkdtemp(prefix="quindle-start-"))
        self.addCleanup(shutil.rmtree, self.root, ignore_errors=True)
        for name in ("home", "config", "data", "runtime", "temporary"):
            (self.root / name).mkdir(mode=0o700)
        supply = self.root / "sys/class/power_supply/BAT0"
        supply.mkdir(parents=True)
        for name, value in BATTERY.items():
            (supply / name).write_text(value + "\n")
        self.env = {name: os.environ[name] for name in ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")
                    if name in os.environ}
        self.env.update({"HOME": str(self.root / "home"), "XDG_CONFIG_HOME": str(self.root / "config"),
                         "XDG_DATA_HOME": str(self.root / "data"), "XDG_RUNTIME_DIR": str(self.root / "runtime"),
                         "QUINDLE_SYSFS": str(self.root / "sys"), "QT_QPA_PLATFORM": "offscreen",
                         "LC_ALL": "C.UTF-8", "DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={self.root}/no-system-bus"})

    @staticmethod
    def install(folder):
        """The program in a bundle in that folder."""
        bundle = Path(HELPER).parents[2]
        copied = os.path.join(os.fsencode(folder), b"Quindle-Helper.app")
        shutil.copytree(os.fsencode(bundle), copied)
        return os.path.join(copied, b"Contents/Linux/quindle-helper")

    def bus(self, socket=None):
        bus = Bus(socket or self.root / "bus")
        self.addCleanup(bus.kill)
        return bus

    def environment(self, bus=None, without=(), **more):
        """`bus` None: a session without a bus, in which none is looked for either."""
        address = bus.address if bus else f"unix:path={self.root}/no-bus"
        values = {**self.env, "DBUS_SESSION_BUS_ADDRESS": address, **more}
        if "LD_PRELOAD" in values:  # the sanitizer's own library must not insist on being the first
            values["ASAN_OPTIONS"] = ":".join(filter(None, [values.get("ASAN_OPTIONS"), "verify_asan_link_order=0"]))
        return {name: value for name, value in values.items() if name not in without and value is not None}

    def start(self, bus=None, *arguments, program=HELPER, without=(), stderr=subprocess.PIPE, prefix=(), **env):
        process = subprocess.Popen([*prefix, program, *arguments], env=self.environment(bus, without, **env),
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=stderr)
        self.addCleanup(self.end, process)
        return process

    @staticmethod
    def end(process):
        if process.poll() is None:
            process.kill()
        process.communicate()

    def result(self, process):
        """Exit status and standard error of a start that ends, before a call over a bus is given up, after 25 s."""
        seconds = 20
        try:
            _, errors = process.communicate(timeout=seconds)
        except subprocess.TimeoutExpired:
            self.fail(f"it still ran after {seconds} s")
        return process.returncode, (errors or b"").decode(errors="replace")

    def write_settings(self, folder, **values):
        path = Path(os.fsdecode(folder)) / "quindle" / f"{SUITE}.plist"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(plistlib.dumps(values))

    def wait_for_file(self, *parts):
        path = os.path.join(*parts)
        self.assertTrue(wait_for(lambda: os.path.lexists(path), AT_MOST), path)

    def comes_to_show(self, bus, titles, seconds):
        return wait_for(lambda: bus.titles() == titles, seconds)

    def assert_titles(self, bus, titles):
        self.assertTrue(self.comes_to_show(bus, titles, AT_MOST), f"{bus.titles()} instead of {titles}")

    def assert_titles_after_change(self, bus, titles):
        bus.announce_settings()
        self.assert_titles(bus, titles)
