"""other_formats_test.py SOURCE: what the PKGBUILD and the Nix expression say is what the build says: version, summary, and
every package that docs/packaging.md lists beside Debian's."""

import re
import subprocess
import sys
import unittest
from pathlib import Path

SOURCE = Path(sys.argv.pop(1))
# Compilers, and what only Debian has apart.
WITHOUT_A_ROW = {"g++", "ccache", "libgl-dev"}


def text(name):
    return (SOURCE / name).read_text(encoding="utf-8")


def found(pattern, name):
    return re.search(pattern, text(name), re.MULTILINE).group(1)


class OtherFormats(unittest.TestCase):
    def setUp(self):
        self.rows = re.findall(r"^\| `(\S+)` \| \*(\S+)\* \| \*(\S+)\* \|$", text("docs/packaging.md"), re.MULTILINE)

    def test_version(self):
        version = found(r"^project\(QuindleHelper VERSION (\S+)", "CMakeLists.txt")
        self.assertEqual(found(r"^pkgver=(.*)$", "packaging/arch/PKGBUILD"), version)
        self.assertEqual(found(r'^  version = "(.*)";$', "packaging/nix/package.nix"), version)

    def test_summary(self):
        summary = found(r'^set\(CPACK_RPM_PACKAGE_SUMMARY "(.*)"\)$', "packaging/Rpm.cmake")
        self.assertEqual(found(r'^set\(CPACK_PACKAGE_DESCRIPTION_SUMMARY "(.*)"\)$', "packaging/Debian.cmake").lower(),
                         summary.lower())
        self.assertEqual(found(r"^pkgdesc='(.*)'$", "packaging/arch/PKGBUILD"), summary)
        self.assertEqual(found(r'^    description = "(.*)";$', "packaging/nix/package.nix"), summary)

    def test_every_package_of_the_build_has_a_row(self):
        needed = set(found(r'^build_packages="([^"]*)"', "scripts/packages.sh").split()) - WITHOUT_A_ROW
        self.assertGreater(len(needed), 10)
        self.assertEqual(needed - {debian for debian, _, _ in self.rows}, set())

    def test_every_row_is_asked_for(self):
        arch = re.findall(r"[a-z0-9-]+", " ".join(re.findall(r"depends=\((.*?)\)\n", text("packaging/arch/PKGBUILD"), re.DOTALL)))
        nix = re.findall(r"[a-z0-9-]+", " ".join(re.findall(r"^[{,] (\S+)$", text("packaging/nix/package.nix"), re.MULTILINE)))
        for debian, arch_name, nix_name in self.rows:
            with self.subTest(debian):
                self.assertIn(arch_name, arch)
                self.assertIn(nix_name, nix)

    def test_pkgbuild_is_well_formed(self):
        self.assertEqual(subprocess.run(["bash", "-n", SOURCE / "packaging/arch/PKGBUILD"], check=False).returncode, 0)


if __name__ == "__main__":
    unittest.main()
