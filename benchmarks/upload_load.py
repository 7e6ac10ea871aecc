#!/usr/bin/env python3
"""upload_load.py INSPECT [--helpers 1000000] [--days 5] [--seed 1]

What the daily uploads of many helpers ask of the service that takes them: bytes a record, from what quindle-inspect would
send of every recorded computer, and requests a second, from a simulation of when helpers start and computers wake.

A helper uploads at the first refresh that comes more than 86,400 s after its last upload, or after its start; a refresh comes every ten
seconds while the computer is awake, and at once when it wakes. A computer is used on each working day from a moment around
08:45 to one around 17:15 (normal, deviations of 40 and 50 minutes) and sleeps in between; all are in one time zone. One that is shut
down overnight starts its helper anew every day, which then never uploads: such computers make the load less, and are left out.
"""

import argparse
import base64
import json
import random
import statistics
import subprocess
from array import array
from pathlib import Path

SOURCE = Path(__file__).resolve().parent.parent
DAY = 86400
TICK = 10
HOUR = 3600
BEGIN, BEGIN_DEVIATION = 8.75 * HOUR, 40 * 60
END, END_DEVIATION = 17.25 * HOUR, 50 * 60


def body_sizes(inspect):
    sizes = []
    for machine in sorted((SOURCE / "tests/data/sysfs").iterdir()):
        done = subprocess.run([inspect, "--json", "--sysfs", machine], capture_output=True, check=True)
        upload = json.loads(done.stdout.splitlines()[0])["upload"]
        if upload:
            base64.b64decode(upload["body"], validate=True)
            sizes.append(len(upload["body"]))
    return sizes


def uploads_of(chance, days):
    """The seconds of each day, counted from its midnight, at which one helper uploads."""
    begin = [chance.gauss(BEGIN, BEGIN_DEVIATION) for _ in range(days)]
    end = [chance.gauss(END, END_DEVIATION) for _ in range(days)]
    last = begin[0]  # its start
    for day in range(1, days):
        wake, sleep = day * DAY + begin[day], day * DAY + end[day]
        due = last + DAY + TICK  # the refresh after a whole day has passed
        moment = max(wake, due)
        if moment <= sleep:
            yield day, moment - day * DAY
            last = moment


def simulate(helpers, days, seed):
    """How many uploads come in each second of each day but the first, which has none."""
    chance = random.Random(seed)
    seconds = [array("L", bytes(DAY * array("L").itemsize)) for _ in range(days)]
    for _ in range(helpers):
        for day, moment in uploads_of(chance, days):
            seconds[day][int(moment) % DAY] += 1
    return seconds[1:]


def clock(second):
    return f"{second // HOUR:02}:{second // 60 % 60:02}"


def print_load(seconds):
    print(f"{'day':>4} {'requests':>10} {'a second at the peak':>21} {'in the busiest minute':>22} {'at':>6}")
    for number, day in enumerate(seconds, 2):
        minutes = [sum(day[start:start + 60]) for start in range(0, DAY, 60)]
        busiest = max(range(len(minutes)), key=minutes.__getitem__)
        print(f"{number:>4} {sum(day):>10} {max(day):>21} {minutes[busiest] / 60:>20.1f}/s {clock(busiest * 60):>6}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("inspect", metavar="INSPECT")
    parser.add_argument("--helpers", type=int, default=1_000_000)
    parser.add_argument("--days", type=int, default=5)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    sizes = body_sizes(arguments.inspect)
    print(f"Body of a record, {len(sizes)} recorded computers: {min(sizes)} to {max(sizes)} bytes, "
          f"median {statistics.median(sizes):.0f}, mean {statistics.mean(sizes):.0f}")
    seconds = simulate(arguments.helpers, arguments.days, arguments.seed)
    print(f"{arguments.helpers} helpers, one time zone, seed {arguments.seed}:")
    print_load(seconds)
    print(f"Bytes of bodies a day at most: {max(map(sum, seconds)) * statistics.mean(sizes) / 1e9:.2f} GB")


if __name__ == "__main__":
    main()
