#!/usr/bin/env python3
"""Faults that take minutes, or rights that not every computer gives: a real panel killed again and again, and real
file systems that are full or read-only. Run by scripts/faults-long."""

import os
import plistlib
import time
import unittest
from pathlib import Path

from fault_case import HELPER, SUITE, FaultCase, anonymous_memory, open_files
from helper_case import HelperCase, machine

PANEL_KILLS = int(os.environ.get("QUINDLE_PANEL_KILLS", "100"))


class RealPanel(HelperCase):
    def test_a_panel_killed_a_hundred_times(self):
        process = self.start(machine(66))
        self.assert_title("66.0%")

        def kill_panels(count):
            for _ in range(count):
                self.desktop.kill_panel()
                self.desktop.start_panel()
                self.assert_title("66.0%")
            time.sleep(4)
            return open_files(process), anonymous_memory(process)

        files, memory = kill_panels(5)
        files_after, memory_after = kill_panels(PANEL_KILLS)
        print(f"{PANEL_KILLS} kills: files {files} -> {files_after}, memory {memory} -> {memory_after} kB")
        self.assertEqual(files_after, files)
        self.assertLess(memory_after - memory, 300, "kB")


class RealFileSystems(FaultCase):
    UNSHARE = ["unshare", "--mount"] if os.geteuid() == 0 else ["unshare", "--user", "--map-root-user", "--mount"]

    def run_on_file_system(self, preparation):
        """The helper with its settings on a small file system of its own, prepared by a line of shell."""
        place = self.desktop.root / "small"
        place.mkdir(exist_ok=True)
        shared = self.desktop.root / "shared.plist"
        shared.write_bytes(plistlib.dumps({"customStatusBar": "kept %p", "runInBackground": True}))
        bus = self.bus()
        bus.start()
        script = (f"mount -t tmpfs -o size=64k none {place} && mkdir {place}/quindle && "
                  f"cp {shared} {place}/quindle/{SUITE}.plist && {preparation} && exec '{HELPER}'")
        process = self.desktop.start(*self.UNSHARE, "sh", "-c", script,
                                     env={"QUINDLE_SYSFS": str(self.sysfs), "XDG_CONFIG_HOME": str(place),
                                          "DBUS_SESSION_BUS_ADDRESS": bus.address})
        self.addCleanup(self.end, process)
        item = self.watcher(bus).item(20)
        self.assertIsNotNone(item)
        self.assert_shows(bus, item, "kept 50.0")
        # What the helper sees, in its own namespace.
        seen = Path(f"/proc/{process.pid}/root{place}/quindle")
        names = sorted(path.name for path in seen.iterdir() if not path.name.endswith(".lock"))
        self.assertEqual(names, [f"{SUITE}.plist"], "what could not be written left something over")
        self.assertEqual(plistlib.loads((seen / f"{SUITE}.plist").read_bytes())["customStatusBar"], "kept %p")
        return self.desktop.log_path.read_text(errors="replace")

    def test_a_full_file_system(self):
        log = self.run_on_file_system(f"{{ cat /dev/zero > {self.desktop.root}/small/filler 2>/dev/null || true; }}")
        self.assertEqual(log.count("No space left"), 1, log)

    def test_a_read_only_file_system(self):
        log = self.run_on_file_system(f"mount -o remount,ro {self.desktop.root}/small")
        self.assertEqual(log.count("Read-only file system"), 1, log)


if __name__ == "__main__":
    unittest.main()
