"""What a core dump of the running helper holds: no serial numbers."""

import contextlib
import resource
import signal
import unittest
from pathlib import Path

from start_case import AT_MOST, StartCase, wait_for

SERIAL = "SERIAL7Q3X9Z"
MOST = 1 << 30  # bytes of a range of memory; a sanitizer's own, of terabytes, holds no texts
CORE_PATTERN = Path("/proc/sys/kernel/core_pattern").read_text(encoding="ascii").strip()


class CoreDump(StartCase):
    def running(self):
        supply = self.root / "sys/class/power_supply/BAT0"
        (supply / "serial_number").write_text(SERIAL + "\n")
        session = self.bus()
        (self.root / "here").mkdir()
        process = self.start(session, prefix=["env", f"--chdir={self.root}/here"])
        self.assert_titles(session, ["50.0%"])
        return process

    def holds_serial(self, process):
        """Whether the process's memory has the number anywhere: else nothing is shown by a dump without it."""
        with open(f"/proc/{process.pid}/maps", encoding="ascii") as maps, \
                open(f"/proc/{process.pid}/mem", "rb", buffering=0) as memory:
            for line in maps:
                begin, end = (int(text, 16) for text in line.split()[0].split("-"))
                if "rw-p" not in line:
                    continue
                memory.seek(begin)
                with contextlib.suppress(OSError):  # given back meanwhile
                    if end - begin < MOST and SERIAL.encode() in memory.read(end - begin):
                        return True
        return False

    def test_memory_is_left_out(self):
        process = self.running()
        self.assertTrue(wait_for(lambda: self.holds_serial(process), AT_MOST))
        filter_of_dumps = int(Path(f"/proc/{process.pid}/coredump_filter").read_text(encoding="ascii"), 16)
        self.assertEqual(filter_of_dumps & 0b1101111, 0, "kinds of memory that are dumped")

    if "/" not in CORE_PATTERN and not CORE_PATTERN.startswith("|"):  # else others keep the dumps

        def test_a_crash_leaves_no_serial_number(self):
            process = self.running()
            resource.prlimit(process.pid, resource.RLIMIT_CORE, (resource.RLIM_INFINITY, resource.RLIM_INFINITY))
            process.send_signal(signal.SIGABRT)
            process.wait(AT_MOST)
            [core] = (self.root / "here").iterdir()
            dump = core.read_bytes()
            self.assertEqual(dump[:4], b"\x7fELF")
            self.assertNotIn(SERIAL.encode(), dump)
            self.assertNotIn(SERIAL.encode("utf-16-le"), dump)


if __name__ == "__main__":
    unittest.main()
