#!/usr/bin/env python3
"""follow_at_rest.py INSPECT [--format text] [--seconds 120] [--sysfs DIR]

What `quindle-inspect --follow` costs while nothing changes: processor time, context switches, memory.
"""

import argparse
import os
import subprocess
import tempfile
import time
from pathlib import Path

from at_rest import SETTLED, SOURCE, cpu_milliseconds, field, memory, of_all_threads


def context_switches(pid):
    return sum(of_all_threads(pid, lambda task, name=name: field(task / "status", name))
               for name in ("voluntary_ctxt_switches", "nonvoluntary_ctxt_switches"))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("inspect")
    parser.add_argument("--format", default="text")
    parser.add_argument("--seconds", type=int, default=120)
    parser.add_argument("--sysfs", default=SOURCE / "tests/data/sysfs/thinkpad-t430s")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as home:
        process = subprocess.Popen(
            [arguments.inspect, "--follow", "--format", arguments.format, "--sysfs", str(arguments.sysfs)],
            env={**os.environ, "HOME": home, "XDG_CONFIG_HOME": home}, stdout=subprocess.PIPE)
        time.sleep(SETTLED)
        printed = os.read(process.stdout.fileno(), 65536)
        before = cpu_milliseconds(process.pid), context_switches(process.pid)
        time.sleep(arguments.seconds)
        after = cpu_milliseconds(process.pid), context_switches(process.pid)
        print(f"first lines: {printed.decode().splitlines()}")
        print(f"in {arguments.seconds} s: {after[0] - before[0]:.2f} ms of processor time, "
              f"{after[1] - before[1]} context switches")
        print(", ".join(f"{name} {memory(process.pid, name)} kB" for name in ("Rss", "Pss", "Anonymous")))
        process.terminate()
        os.set_blocking(process.stdout.fileno(), False)
        print(f"lines since: {(process.stdout.read() or b'').decode().splitlines()}, status {process.wait()}")


if __name__ == "__main__":
    main()
