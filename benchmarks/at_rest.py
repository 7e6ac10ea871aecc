#!/usr/bin/env python3
"""at_rest.py HELPER FLOOR [--host xfce] [--seconds 120] [--pairs 15] [--views 20] [--sysfs DIR]

What the helper costs in a tray, beside a do-nothing Qt tray program (the floor): time from exec to the registered
item, memory, processor time, wake-ups, D-Bus messages and written bytes at rest with the view closed, and the memory
that is left after the view was opened and closed. Prints tables. In an XEmbed tray (tint2) nothing is registered
that could be waited for, so there is no time.
"""

import argparse
import statistics
import sys
import time
from pathlib import Path

SOURCE = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(SOURCE / "scripts" / "headless"))
from desktop import Desktop, wait_for  # noqa: E402

LAUNCHED = 5  # seconds after which nothing of a launch is left to do
SETTLED = 75  # and after which the remaining time, from the current of the last minute, moves no more


def of_all_threads(pid, read):
    return sum(read(task) for task in Path(f"/proc/{pid}/task").iterdir())


def cpu_milliseconds(pid):
    return of_all_threads(pid, lambda task: int((task / "schedstat").read_text().split()[0])) / 1e6


def wake_ups(pid):
    """Times a thread went to sleep by itself, and so was woken again."""
    return of_all_threads(pid, lambda task: field(task / "status", "voluntary_ctxt_switches"))


def field(path, name):
    """The number on the line `name: number` of a file of /proc."""
    for line in path.read_text().splitlines():
        if line.startswith(name + ":"):
            return int(line.split()[1])
    raise KeyError(f"{path}: {name}")


def memory(pid, name):
    return field(Path(f"/proc/{pid}/smaps_rollup"), name)


class Bus:
    """Every message on the session bus with its time, as dbus-monitor writes them down."""

    def __init__(self, desktop):
        self.path = desktop.root / "messages"
        self.process = desktop.start("dbus-monitor", "--session", "--profile", stdout=open(self.path, "wb"))
        wait_for(self.messages)

    def messages(self):
        lines = (line.split("\t") for line in self.path.read_text(errors="replace").splitlines())
        return [fields for fields in lines if len(fields) > 7]

    def registration_after(self, moment):
        for fields in self.messages():
            if fields[7] == "StatusNotifierItemRegistered" and float(fields[1]) >= moment:
                return float(fields[1])
        return None


def end(process):
    process.terminate()
    process.wait()


def milliseconds_until_shown(desktop, bus, program, env):
    begun = time.time()
    process = desktop.start(program, env=env)
    shown = wait_for(lambda: bus.registration_after(begun), 20.0, 0.2)
    end(process)
    time.sleep(0.5)  # the panel takes the item away
    if shown is None:
        raise RuntimeError(f"{program} did not appear in the tray")
    return (shown - begun) * 1000


def measure_starts(desktop, bus, programs, pairs):
    """Alternating starts, so that whatever else the machine does affects both alike."""
    times = {name: [] for name in programs}
    for number in range(pairs + 1):
        for name, (program, env) in programs.items():
            shown = milliseconds_until_shown(desktop, bus, program, env)
            if number > 0:  # the first one reads the files from disk
                times[name].append(shown)
    return times


def measure_rest(desktop, bus, program, env, seconds):
    process = desktop.start(program, env=env)
    time.sleep(SETTLED)
    pid = process.pid
    counters = {"CPU ms": lambda: cpu_milliseconds(pid), "wake-ups": lambda: wake_ups(pid),
                "bytes written": lambda: field(Path(f"/proc/{pid}/io"), "write_bytes"),
                "D-Bus messages": lambda: len(bus.messages())}
    before = {name: count() for name, count in counters.items()}
    time.sleep(seconds)
    rest = {name: count() - before[name] for name, count in counters.items()}
    rest["wake-ups/s"] = rest.pop("wake-ups") / seconds
    rest.update({f"{name} kB": memory(pid, name) for name in ("Anonymous", "Private_Dirty", "Pss", "Rss")})
    rest["threads"] = len(list(Path(f"/proc/{pid}/task").iterdir()))
    end(process)
    return rest


def measure_views(desktop, program, env, views):
    """Anonymous memory before the view was opened, while it is, and after each time that it was closed."""
    process = desktop.start(program, env=env)
    time.sleep(LAUNCHED)
    rows = [("never opened", memory(process.pid, "Anonymous"))]
    for number in range(1, views + 1):
        desktop.activate_item()
        if not wait_for(desktop.windows):
            raise RuntimeError("the view did not open")
        time.sleep(0.5)
        if number == 1:
            rows.append(("open", memory(process.pid, "Anonymous")))
        desktop.key("Escape")
        if not wait_for(lambda: not desktop.windows()):
            raise RuntimeError("the view did not close")
        time.sleep(1.0)
        if number in (1, 2, 5, 10, views):
            rows.append((f"opened and closed {number} times", memory(process.pid, "Anonymous")))
    end(process)
    return rows


def print_starts(times):
    print(f"From exec to the registered item, {len(times['floor'])} starts of each in turns (ms):")
    for name, values in times.items():
        print(f"  {name:8} median {statistics.median(values):7.1f}   fastest {min(values):7.1f}"
              f"   slowest {max(values):7.1f}")
    pairs = [helper / floor for floor, helper in zip(times["floor"], times["helper"])]
    ratio = statistics.median(times["helper"]) / statistics.median(times["floor"])
    print(f"  ratio of the medians {ratio:.2f}, median of the pairs' ratios {statistics.median(pairs):.2f}")


def print_rest(rests, seconds):
    print(f"At rest for {seconds:.0f} s:")
    print(f"  {'':16}" + "".join(f"{name:>12}" for name in rests))
    for key in next(iter(rests.values())):
        print(f"  {key:16}" + "".join(f"{rest[key]:12.2f}" for rest in rests.values()))


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("helper")
    parser.add_argument("floor")
    parser.add_argument("--host", default="xfce")
    parser.add_argument("--seconds", type=float, default=120)
    parser.add_argument("--pairs", type=int, default=15)
    parser.add_argument("--views", type=int, default=20)
    parser.add_argument("--sysfs", default=str(SOURCE / "tests/data/sysfs/framework-13-discharging-93"))
    arguments = parser.parse_args()

    programs = {"floor": (Path(arguments.floor).resolve(), {}),
                "helper": (Path(arguments.helper).resolve(), {"QUINDLE_SYSFS": arguments.sysfs})}
    with Desktop(arguments.host) as desktop:
        bus = Bus(desktop)
        has_watcher = arguments.host != "tint2"
        if has_watcher and arguments.pairs:
            print_starts(measure_starts(desktop, bus, programs, arguments.pairs))
        if arguments.seconds:
            print_rest({name: measure_rest(desktop, bus, program, env, arguments.seconds)
                        for name, (program, env) in programs.items()}, arguments.seconds)
        if has_watcher and arguments.views:
            print("Anonymous memory of the helper and its view (kB):")
            for moment, kilobytes in measure_views(desktop, *programs["helper"], arguments.views):
                print(f"  {moment:32}{kilobytes:8}")


if __name__ == "__main__":
    main()
