#!/usr/bin/env python3
"""at_rest.py HELPER FLOOR [--seconds 120] [--starts 7] [--sysfs DIR]

What the helper costs in a tray with its view closed, beside a do-nothing Qt tray program: time from exec to the
registered item, memory, processor time, wake-ups, D-Bus messages and written files at rest. Prints a table.
"""

import argparse
import os
import statistics
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "scripts" / "headless"))
from desktop import Desktop  # noqa: E402


def cpu_nanoseconds(pid):
    """Processor time of all threads, as the scheduler counts it."""
    return sum(int((task / "schedstat").read_text().split()[0]) for task in Path(f"/proc/{pid}/task").iterdir())


def switches(pid):
    """Times any thread was put on a processor again."""
    total = 0
    for task in Path(f"/proc/{pid}/task").iterdir():
        for line in (task / "status").read_text().splitlines():
            if "ctxt_switches" in line:
                total += int(line.split()[1])
    return total


def memory(pid, field):
    for line in Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines():
        if line.startswith(field + ":"):
            return int(line.split()[1])
    return 0


def written_bytes(pid):
    for line in Path(f"/proc/{pid}/io").read_text().splitlines():
        if line.startswith("write_bytes:"):
            return int(line.split()[1])
    return 0


class Signals:
    """Times of registrations on the bus, as dbus-monitor prints them."""

    def __init__(self, desktop, path):
        self.path = path
        self.stream = open(path, "wb")
        self.process = desktop.start("dbus-monitor", "--session", "--profile", stdout=self.stream)
        time.sleep(0.5)

    def lines(self):
        return self.path.read_text(errors="replace").splitlines()

    def registration_after(self, moment):
        for line in self.lines():
            fields = line.split("\t")
            if len(fields) > 7 and fields[7] == "StatusNotifierItemRegistered" and float(fields[1]) >= moment:
                return float(fields[1])
        return None


def start_times(desktop, signals, command, env, starts):
    times = []
    for _ in range(starts + 1):
        begun = time.time()
        process = desktop.start(command, env=env)
        shown = None
        while shown is None and time.time() < begun + 10:
            time.sleep(0.01)
            shown = signals.registration_after(begun)
        if shown is None:
            raise RuntimeError(f"{command} did not appear in the tray")
        times.append((shown - begun) * 1000)
        process.terminate()
        process.wait()
        time.sleep(0.4)
    return times[1:]  # the first one reads the files from disk


def at_rest(desktop, signals, command, env, seconds):
    process = desktop.start(command, env=env)
    time.sleep(10)
    result = {"anonymous kB": memory(process.pid, "Anonymous"), "RSS kB": memory(process.pid, "Rss"),
              "PSS kB": memory(process.pid, "Pss")}
    before = cpu_nanoseconds(process.pid), switches(process.pid), written_bytes(process.pid), len(signals.lines())
    time.sleep(seconds)
    after = cpu_nanoseconds(process.pid), switches(process.pid), written_bytes(process.pid), len(signals.lines())
    result["CPU ms"] = (after[0] - before[0]) / 1e6
    result["wake-ups/s"] = (after[1] - before[1]) / seconds
    result["bytes written"] = after[2] - before[2]
    result["D-Bus messages"] = after[3] - before[3]
    process.terminate()
    process.wait()
    return result


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("helper")
    parser.add_argument("floor")
    parser.add_argument("--seconds", type=float, default=120)
    parser.add_argument("--starts", type=int, default=7)
    parser.add_argument("--host", default="xfce")
    source = Path(__file__).resolve().parent.parent
    parser.add_argument("--sysfs", default=str(source / "tests/data/sysfs/framework-13-discharging-93"))
    arguments = parser.parse_args()

    rows = {}
    with Desktop(arguments.host) as desktop:
        signals = Signals(desktop, desktop.root / "profile")
        for name, command, env in (("floor", arguments.floor, {}),
                                   ("helper", arguments.helper, {"QUINDLE_SYSFS": arguments.sysfs})):
            times = start_times(desktop, signals, os.path.abspath(command), env, arguments.starts)
            rows[name] = {"shown ms (median)": statistics.median(times), "shown ms (fastest)": min(times)}
            rows[name].update(at_rest(desktop, signals, os.path.abspath(command), env, arguments.seconds))
    print(f"At rest for {arguments.seconds:.0f} s in {arguments.host}, {arguments.starts} starts:")
    print(f"{'':22}{'floor':>12}{'helper':>12}{'ratio':>9}")
    for key, floor in rows["floor"].items():
        helper = rows["helper"][key]
        ratio = f"{helper / floor:9.2f}" if floor else ""
        print(f"{key:22}{floor:12.2f}{helper:12.2f}{ratio}")


if __name__ == "__main__":
    main()
