#!/usr/bin/python3
"""application.py QUINDLE INVENT_HISTORY [--times 10] [--days 3652] [--sysfs DIR]

From the start of the application until its window is on the screen (mapped): without a history, and with one of so many
days of snapshots and samples, which tests/support/invent-history writes. With the system's own Python, on a private
headless desktop; the machine should have nothing else to do.
"""

import argparse
import datetime
import subprocess
import time
from pathlib import Path

from windows import SOURCE, Desktop, MappedWindows, report


def milliseconds_of_start(desktop, windows, program, system):
    windows.drain()
    begun = time.monotonic()
    process = desktop.start(program, env={"QUINDLE_SYSFS": str(system)})
    shown = windows.wait(rb"MapNotify event") - begun
    time.sleep(0.7)  # it is painted
    process.terminate()
    process.wait()
    time.sleep(0.3)
    return shown * 1000


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("quindle", type=Path)
    parser.add_argument("invent_history", type=Path)
    parser.add_argument("--times", type=int, default=10)
    parser.add_argument("--days", type=int, default=3652)
    parser.add_argument("--sysfs", type=Path, default=SOURCE / "tests/data/sysfs/framework-13-discharging-93")
    arguments = parser.parse_args()
    with Desktop("xfce") as desktop:
        windows = MappedWindows(desktop)
        for days in (0, arguments.days):
            if days:
                folder = Path(desktop.env["XDG_DATA_HOME"]) / "quindle"
                folder.mkdir(parents=True, exist_ok=True)
                today = f"{datetime.date.today():%Y-%m-%d}"
                subprocess.run([arguments.invent_history, folder, today, str(days)], check=True)
            starts = [milliseconds_of_start(desktop, windows, arguments.quindle, arguments.sysfs)
                      for _ in range(arguments.times)]
            report(f"window of the application, {days} days of history", starts)


if __name__ == "__main__":
    main()
