"""metadata_test.py SOURCE BUILD INSPECT: installs the build into a folder and looks at what others will read there:
desktop entry, AppStream metainfo, icons, manual pages, and where everything lies."""

import configparser
import gzip
import os
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SOURCE, BUILD, INSPECT = sys.argv[1:]
del sys.argv[1:]
BUNDLE = "lib/Quindle Helper/Quindle.app/Contents/Resources/Quindle-Helper.app/Contents"


def run(*command, **environment):
    return subprocess.run(command, capture_output=True, text=True, check=False, env=dict(os.environ) | environment)


class Metadata(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        result = run("cmake", "--install", BUILD, "--prefix", cls.folder.name)
        if result.returncode:
            raise RuntimeError(result.stderr)
        cls.root = Path(cls.folder.name)
        cls.desktop = cls.root / "share/applications/quindle-helper.desktop"
        cls.metainfo = cls.root / "share/metainfo/com.fernhollow.Quindle-Helper.metainfo.xml"

    def assertSilent(self, result):
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))

    def entry(self):
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(self.desktop, encoding="utf-8")
        return parser["Desktop Entry"]

    def test_layout(self):
        for path in ("Info.plist", "Linux/quindle-helper", "Linux/quindle-inspect", "Linux/quindle-windows",
                     "PlugIns/quindle-network.so",
                     "Resources/icons/AppIconBW-symbolic.svg", "Resources/masks/AppIconBW.pgm",
                     "Resources/machines/demo.plist"):
            self.assertTrue((self.root / BUNDLE / path).is_file(), path)
        for name in ("quindle-helper", "quindle-inspect"):
            link = self.root / "bin" / name
            self.assertFalse(os.path.isabs(os.readlink(link)))
            self.assertTrue(link.samefile(self.root / BUNDLE / "Linux" / name))
        self.assertEqual(len(list((self.root / "bin").iterdir())), 2, "the program of the windows is no command")

    def test_installed_program_runs(self):
        result = run(str(self.root / "bin/quindle-inspect"), "--json", "--demo", HOME=self.folder.name,
                     XDG_CONFIG_HOME=self.folder.name)
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def test_nothing_starts_unasked(self):
        unasked = ("autostart", "systemd", "init.d", "xdg", "dbus-1", "udev", "profile.d", "cron")
        found = [path for path in self.root.rglob("*") if any(part in unasked for part in path.parts[-3:])]
        self.assertEqual(found, [])

    def test_desktop_entry(self):
        self.assertSilent(run("desktop-file-validate", "--warn-kde", str(self.desktop)))
        entry = self.entry()
        self.assertTrue((self.root / "bin" / entry["Exec"]).exists())
        self.assertNotIn("NoDisplay", entry)
        main = Path(SOURCE, "windows/main.cpp").read_text(encoding="utf-8")
        name = re.search(r'setDesktopFileName\(QStringLiteral\("(.*?)"\)\)', main).group(1)
        self.assertEqual(self.desktop.name, name + ".desktop")

    def test_metainfo(self):
        result = run("appstreamcli", "validate", "--no-net", "--no-color", "--pedantic", str(self.metainfo))
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertNotRegex(result.stdout, r"(?m)^[EW]:")
        component = ElementTree.parse(self.metainfo).getroot()
        self.assertEqual(component.findtext("launchable"), self.desktop.name)
        self.assertEqual(component.findtext("name"), self.entry()["Name"])
        self.assertEqual(component.findtext("summary"), self.entry()["Comment"])

    def test_icons(self):
        icons = self.root / "share/icons/hicolor"
        name = self.entry()["Icon"]
        self.assertTrue((icons / f"scalable/apps/{name}.svg").is_file())
        for size in (48, 128):
            picture = (icons / f"{size}x{size}/apps/{name}.png").read_bytes()
            self.assertEqual(picture[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack(">II", picture[16:24]), (size, size))
            self.assertGreater(len(picture), 300)  # an empty picture of this size is smaller

    def test_manual_pages(self):
        for name in ("quindle-helper", "quindle-inspect"):
            page = self.root / f"share/man/man1/{name}.1.gz"
            self.assertEqual(page.read_bytes()[3:8], bytes(5), "no name and no time stamp in what gzip writes")
            result = run("man", "--warnings", "-E", "UTF-8", "-l", str(page), LC_ALL="C.UTF-8", MANWIDTH="80",
                         MANROFFSEQ="")
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            self.assertIn(name, result.stdout)

    def test_every_option_is_in_the_manual(self):
        page = gzip.decompress((self.root / "share/man/man1/quindle-inspect.1.gz").read_bytes()).decode()
        options = set(re.findall(r"--[a-z][a-z-]*", run(INSPECT, "--help").stdout))
        self.assertIn("--json", options)
        self.assertEqual(options - set(re.findall(r"--[a-z][a-z-]*", page.replace("\\-", "-"))), set())

    def test_what_everyone_may_read_is_no_ones_to_write(self):
        for path in self.root.rglob("*"):
            if not path.is_symlink():
                self.assertEqual(path.stat().st_mode & 0o022, 0, path)


if __name__ == "__main__":
    unittest.main()
