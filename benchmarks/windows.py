#!/usr/bin/python3
"""windows.py HELPER [--times 20] [--sysfs DIR]

From a click on the item until the battery view is on the screen (its window is mapped): where the program of the
windows runs already (warm), and where it has to be started (cold); and the same for the preferences, chosen in the menu.
The click is the call that a panel makes. With the
system's own Python, for its D-Bus module, on a private headless desktop; the machine should have nothing else to do.
"""

import argparse
import os
import re
import select
import signal
import statistics
import sys
import time
from pathlib import Path

import dbus

SOURCE = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(SOURCE / "scripts" / "headless"))
from desktop import ITEM, ITEM_INTERFACE, Desktop, wait_for  # noqa: E402

MENU_INTERFACE = "com.canonical.dbusmenu"
PATIENCE = 10.0  # seconds


class MappedWindows:
    """What the X server says of windows that appear and go, as xev prints it."""

    def __init__(self, desktop):
        read_end, write_end = os.pipe()
        self.process = desktop.start("stdbuf", "-oL", "xev", "-root", "-event", "substructure", stdout=write_end)
        os.close(write_end)
        self.stream = read_end
        time.sleep(0.5)
        self.drain()

    def drain(self):
        while select.select([self.stream], [], [], 0)[0]:
            os.read(self.stream, 65536)

    def wait(self, event):
        """The moment at which the event was read."""
        seen = b""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if select.select([self.stream], [], [], 0.5)[0]:
                seen += os.read(self.stream, 65536)
                now = time.monotonic()
                if re.search(event, seen):
                    return now
        raise RuntimeError(f"no {event} in {PATIENCE} s")


def windows_processes(program):
    found = []
    for entry in Path("/proc").iterdir():
        try:
            if entry.name.isdigit() and (entry / "exe").readlink() == program:
                found.append(int(entry.name))
        except OSError:
            continue
    return found


def click(item):
    item.Activate(0, 0, dbus_interface=ITEM_INTERFACE, ignore_reply=True)


def choose_preferences(menu):
    """What a panel does when the entry of the menu that it draws is chosen."""
    _, (_, _, rows) = menu.GetLayout(0, 1, ["label"], dbus_interface=MENU_INTERFACE)
    row = next(row for row, properties, _ in rows if properties.get("label") == "Preferences...")
    return lambda: menu.Event(row, "clicked", dbus.Int32(0, variant_level=1), dbus.UInt32(0),
                              dbus_interface=MENU_INTERFACE, ignore_reply=True)


def milliseconds_of(ask, windows):
    windows.drain()
    begun = time.monotonic()
    ask()
    shown = windows.wait(rb"MapNotify event") - begun
    time.sleep(0.7)  # it is painted, and the toolkit has tidied up
    return shown * 1000


def close(item, windows):
    windows.drain()
    click(item)
    windows.wait(rb"UnmapNotify event|DestroyNotify event")
    time.sleep(0.3)


def end(program):
    for process in windows_processes(program):
        os.kill(process, signal.SIGKILL)
    wait_for(lambda: not windows_processes(program))
    time.sleep(0.3)


def report(name, milliseconds):
    print(f"{name}: median {statistics.median(milliseconds):.1f} ms, {min(milliseconds):.1f} to {max(milliseconds):.1f} "
          f"({len(milliseconds)} times)")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("helper", type=Path)
    parser.add_argument("--times", type=int, default=20)
    parser.add_argument("--sysfs", type=Path, default=SOURCE / "tests/data/sysfs/framework-13-discharging-93")
    arguments = parser.parse_args()
    program = arguments.helper.resolve().with_name("quindle-windows")
    with Desktop("xfce") as desktop:
        helper = desktop.start(arguments.helper, env={"QUINDLE_SYSFS": str(arguments.sysfs)})
        name = desktop.item_name(15.0)
        bus = dbus.bus.BusConnection(desktop.env["DBUS_SESSION_BUS_ADDRESS"])
        item = bus.get_object(name, ITEM, introspect=False)
        windows = MappedWindows(desktop)
        preferences = choose_preferences(bus.get_object(name, "/MenuBar", introspect=False))
        cold, warm, panes = [], [], []
        for _ in range(arguments.times):
            cold.append(milliseconds_of(lambda: click(item), windows))
            close(item, windows)
            warm.append(milliseconds_of(lambda: click(item), windows))
            close(item, windows)
            end(program)
            panes.append(milliseconds_of(preferences, windows))
            end(program)
        report("battery view, cold", cold)
        report("battery view, warm", warm)
        report("preferences, cold", panes)
        helper.terminate()
        helper.wait()


if __name__ == "__main__":
    main()
