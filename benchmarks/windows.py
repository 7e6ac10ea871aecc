#!/usr/bin/python3
"""windows.py HELPER [--times 20] [--sysfs DIR]

From a click on the item until the battery view is on the screen (its window is mapped): where the program of the
windows runs already (warm), and where it has to be started (cold). The click is the call that a panel makes. With the
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


def milliseconds_of_click(item, windows):
    windows.drain()
    begun = time.monotonic()
    item.Activate(0, 0, dbus_interface=ITEM_INTERFACE, ignore_reply=True)
    shown = windows.wait(rb"MapNotify event") - begun
    time.sleep(0.7)  # it is painted, and the toolkit has tidied up
    return shown * 1000


def close(item, windows):
    windows.drain()
    item.Activate(0, 0, dbus_interface=ITEM_INTERFACE, ignore_reply=True)
    windows.wait(rb"UnmapNotify event|DestroyNotify event")
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
        cold, warm = [], []
        for _ in range(arguments.times):
            cold.append(milliseconds_of_click(item, windows))
            close(item, windows)
            warm.append(milliseconds_of_click(item, windows))
            close(item, windows)
            for process in windows_processes(program):
                os.kill(process, signal.SIGKILL)
            wait_for(lambda: not windows_processes(program))
            time.sleep(0.2)
        report("cold", cold)
        report("warm", warm)
        helper.terminate()
        helper.wait()


if __name__ == "__main__":
    main()
