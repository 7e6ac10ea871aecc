"""metadata_test.py SOURCE BUILD INSPECT QUINDLE: installs the build into a folder and looks at what others will read there:
desktop entry, AppStream metainfo, icons, manual pages, and where everything lies."""

import configparser
import gzip
import os
import plistlib
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

SOURCE, BUILD, INSPECT, PROGRAM = sys.argv[1:]
del sys.argv[1:]
APPLICATION = "lib/Quindle Helper/Quindle.app/Contents"
BUNDLE = f"{APPLICATION}/Resources/Quindle-Helper.app/Contents"
ENTRIES = {"quindle": "application/main.cpp", "quindle-helper": "windows/main.cpp"}  # and who sets its name


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
        cls.metainfo = cls.root / "share/metainfo/com.fernhollow.Quindle.metainfo.xml"

    def assertSilent(self, result):
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))

    def desktop(self, name):
        return self.root / f"share/applications/{name}.desktop"

    def entry(self, name):
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(self.desktop(name), encoding="utf-8")
        return parser["Desktop Entry"]

    def test_layout(self):
        for path in ("Info.plist", "Linux/quindle-helper", "Linux/quindle-inspect", "Linux/quindle-windows",
                     "PlugIns/quindle-network.so",
                     "Resources/icons/AppIconBW-symbolic.svg", "Resources/masks/AppIconBW.pgm",
                     "Resources/machines/demo.plist"):
            self.assertTrue((self.root / BUNDLE / path).is_file(), path)
        for path in ("Info.plist", "Linux/quindle"):
            self.assertTrue((self.root / APPLICATION / path).is_file(), path)
        for name, bundle in (("quindle", APPLICATION), ("quindle-helper", BUNDLE), ("quindle-inspect", BUNDLE)):
            link = self.root / "bin" / name
            self.assertFalse(os.path.isabs(os.readlink(link)))
            self.assertTrue(link.samefile(self.root / bundle / "Linux" / name))
        self.assertEqual(len(list((self.root / "bin").iterdir())), 3, "the program of the windows is no command")

    def test_each_bundle_says_whose_it_is(self):
        for bundle, identifier in ((APPLICATION, "com.fernhollow.Quindle"), (BUNDLE, "com.fernhollow.Quindle-Helper")):
            information = plistlib.loads((self.root / bundle / "Info.plist").read_bytes())
            self.assertEqual(information.pop("CFBundleIdentifier"), identifier)
            self.assertIn("CFBundleVersion", information)
            self.assertEqual(information["QDStatisticsHost"], "")

    def test_installed_program_runs(self):
        result = run(str(self.root / "bin/quindle-inspect"), "--json", "--demo", HOME=self.folder.name,
                     XDG_CONFIG_HOME=self.folder.name)
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def test_nothing_starts_unasked(self):
        unasked = ("autostart", "systemd", "init.d", "xdg", "dbus-1", "udev", "profile.d", "cron")
        found = [path for path in self.root.rglob("*") if any(part in unasked for part in path.parts[-3:])]
        self.assertEqual(found, [])

    def test_desktop_entry(self):
        for name, source in ENTRIES.items():
            self.assertSilent(run("desktop-file-validate", "--warn-kde", str(self.desktop(name))))
            entry = self.entry(name)
            self.assertTrue((self.root / "bin" / entry["Exec"]).exists())
            self.assertNotIn("NoDisplay", entry)
            main = Path(SOURCE, source).read_text(encoding="utf-8")
            self.assertEqual(re.search(r'setDesktopFileName\(QStringLiteral\("(.*?)"\)\)', main).group(1), name)

    def test_metainfo(self):
        result = run("appstreamcli", "validate", "--no-net", "--no-color", "--pedantic", str(self.metainfo))
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertNotRegex(result.stdout, r"(?m)^[EW]:")
        component = ElementTree.parse(self.metainfo).getroot()
        self.assertEqual([entry.text for entry in component.findall("launchable")],
                         [self.desktop(name).name for name in ENTRIES])
        self.assertEqual(component.findtext("name"), self.entry("quindle")["Name"])
        self.assertEqual(component.findtext("summary"), self.entry("quindle")["Comment"])

    def test_other_languages(self):
        languages = {path.stem.removeprefix("quindle_") for path in Path(SOURCE, "resources/translations").glob("*.ts")}
        installed = {path.stem.removeprefix("quindle_") for path in (self.root / BUNDLE / "Resources/translations").iterdir()}
        self.assertEqual(installed, languages)
        for name in ENTRIES:
            for key in ("GenericName", "Comment", "Keywords"):
                self.assertNotEqual(self.entry(name)[f"{key}[de]"], self.entry(name)[key])
        component = ElementTree.parse(self.metainfo).getroot()
        summaries = {element.get("{http://www.w3.org/XML/1998/namespace}lang"): element.text
                     for element in component.findall("summary")}
        self.assertEqual(summaries["de"], self.entry("quindle")["Comment[de]"])
        page = gzip.decompress((self.root / "share/man/de/man1/quindle.1.gz").read_bytes()).decode()
        self.assertRegex(page, r"\nquindle \\- Ladung")
        self.assertIn("\n.SH ÜBERSICHT\n.B quindle\n", page)
        # What is put in place of an option's argument is called the same where the option is told.
        self.assertIn(r'.RB [ "\-\-since \fIDATUM\fP" ]', page)
        self.assertIn(r'.BI \-\-since " DATUM"', page)
        self.assertIn(".SH FILES", page)

    def test_icons(self):
        icons = self.root / "share/icons/hicolor"
        for entry in ENTRIES:
            name = self.entry(entry)["Icon"]
            self.assertTrue((icons / f"scalable/apps/{name}.svg").is_file())
            for size in (48, 128):
                picture = (icons / f"{size}x{size}/apps/{name}.png").read_bytes()
                self.assertEqual(picture[:8], b"\x89PNG\r\n\x1a\n")
                self.assertEqual(struct.unpack(">II", picture[16:24]), (size, size))
                self.assertGreater(len(picture), 300)  # an empty picture of this size is smaller

    def test_manual_pages(self):
        for name in ("quindle", "quindle-helper", "quindle-inspect", "de/quindle"):
            language, _, name = name.rpartition("/")
            page = self.root / "share/man" / language / f"man1/{name}.1.gz"
            self.assertEqual(page.read_bytes()[3:8], bytes(5), "no name and no time stamp in what gzip writes")
            result = run("man", "--warnings", "-E", "UTF-8", "-l", str(page), LC_ALL="C.UTF-8", MANWIDTH="80",
                         MANROFFSEQ="")
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            self.assertIn(name, result.stdout)

    def test_every_option_is_in_the_manual(self):
        for program, known in ((INSPECT, "--json"), (PROGRAM, "--version")):
            page = gzip.decompress((self.root / f"share/man/man1/{Path(program).name}.1.gz").read_bytes()).decode()
            options = set(re.findall(r"--[a-z][a-z-]*", run(program, "--help").stdout))
            self.assertIn(known, options)
            self.assertEqual(options - set(re.findall(r"--[a-z][a-z-]*", page.replace("\\-", "-"))), set())

    def test_what_everyone_may_read_is_no_ones_to_write(self):
        for path in self.root.rglob("*"):
            if not path.is_symlink():
                self.assertEqual(path.stat().st_mode & 0o022, 0, path)


if __name__ == "__main__":
    unittest.main()
