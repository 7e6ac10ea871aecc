"""private_files_test.py HELPER INSPECT TREE: what the programs write, with a umask that hides nothing, can be read by its
owner alone wherever it holds a serial number."""

import os
import plistlib
import shutil
import stat
import struct
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

HELPER, INSPECT, TREE = sys.argv[1:]
del sys.argv[1:]
BATTERY_SERIAL = "BAT7731904455"
COMPUTER_SERIAL = "C02MN1TXF5YW"
SETTINGS = "quindle/com.fernhollow.Quindle-Helper.plist"


def mode(path):
    return stat.S_IMODE(os.lstat(path).st_mode)


class PrivateFiles(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = Path(folder.name)
        self.tree = self.home / "sys"
        shutil.copytree(TREE, self.tree)
        (self.tree / "class/power_supply/BAT0/serial_number").write_text(BATTERY_SERIAL + "\n", encoding="ascii")
        identity = self.tree / "class/dmi/id"
        identity.mkdir(parents=True, exist_ok=True)
        (identity / "product_serial").write_text(COMPUTER_SERIAL + "\n", encoding="ascii")
        (identity / "product_name").write_text("MacBookAir4,2\n", encoding="ascii")
        self.runtime = self.home / "runtime"
        self.runtime.mkdir(mode=0o700)
        self.settings = self.home / "config" / SETTINGS
        self.addCleanup(os.umask, os.umask(0))

    def environment(self):
        return {"PATH": os.environ["PATH"], "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / "config"),
                "XDG_RUNTIME_DIR": str(self.runtime), "QUINDLE_SYSFS": str(self.tree), "QT_QPA_PLATFORM": "offscreen",
                "DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}

    def run_helper(self, until):
        process = subprocess.Popen([HELPER], env=self.environment(), stderr=subprocess.DEVNULL)
        try:
            end = time.monotonic() + 60
            while not until() and time.monotonic() < end:
                time.sleep(0.05)
            self.assertTrue(until(), "nothing was written")
        finally:
            process.terminate()
            process.wait(60)

    def written(self):
        return [path for path in self.home.rglob("*") if path.is_file() and self.tree not in path.parents]

    def assertPrivate(self):
        for path in self.written():
            content = path.read_bytes()
            secret = any(serial.encode() in content or serial.encode("utf-16-be") in content
                         for serial in (BATTERY_SERIAL, COMPUTER_SERIAL))
            if secret or "quindle" in str(path.relative_to(self.home)).lower():
                self.assertEqual(mode(path) & 0o077, 0, path)

    def test_helper(self):
        self.run_helper(self.settings.exists)
        self.assertEqual((mode(self.settings), mode(self.settings.parent)), (0o600, 0o700))
        self.assertPrivate()

    def test_settings_that_everybody_could_read(self):
        self.settings.parent.mkdir(parents=True)
        self.settings.write_bytes(plistlib.dumps({"modelStringCache": {"F5YW": "Laptop"}}))
        self.settings.chmod(0o666)
        inode = self.settings.stat().st_ino
        self.run_helper(lambda: self.settings.stat().st_ino != inode)
        self.assertIn("modelStringCache", plistlib.loads(self.settings.read_bytes()))
        self.assertEqual(mode(self.settings), 0o600)
        self.assertPrivate()

    def test_capture(self):
        target = self.home / "capture.plist"
        for existing in (None, 0o666):
            if existing:
                target.write_bytes(b"old")
                target.chmod(existing)
            subprocess.run([INSPECT, "--capture", str(target), "--with-serials"], env=self.environment(), check=True)
            content = target.read_bytes()
            self.assertIn(BATTERY_SERIAL.encode(), content)
            self.assertIn(COMPUTER_SERIAL.encode(), content)
            self.assertEqual(mode(target), 0o600)
        self.assertPrivate()


class InheritedAccessList(PrivateFiles):
    """The same below a folder whose access control list gives everything in it to another account as well. The rights of
    a file's group are then the most that the list gives, and nothing of them is left."""

    OTHER, NOBODY_IN_PARTICULAR = 65534, 0xffffffff
    OWNER, ACCOUNT, GROUP, MASK, OTHERS = 1, 2, 4, 16, 32  # kinds of entries
    ALL, NONE = 7, 0  # rights

    def setUp(self):
        super().setUp()
        entries = ((self.OWNER, self.ALL, self.NOBODY_IN_PARTICULAR), (self.ACCOUNT, self.ALL, self.OTHER),
                   (self.GROUP, self.NONE, self.NOBODY_IN_PARTICULAR), (self.MASK, self.ALL, self.NOBODY_IN_PARTICULAR),
                   (self.OTHERS, self.NONE, self.NOBODY_IN_PARTICULAR))
        inherited = struct.pack("<I", 2) + b"".join(struct.pack("<HHI", *entry) for entry in entries)
        os.setxattr(self.home, "system.posix_acl_default", inherited)
        (self.home / "proof").touch()
        self.assertTrue(os.getxattr(self.home / "proof", "system.posix_acl_access"))
        self.assertEqual(mode(self.home / "proof") & 0o070, 0o060, "nothing is inherited here")


if __name__ == "__main__":
    unittest.main()
