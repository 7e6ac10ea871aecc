"""linked_libraries_test.py SOURCE PROGRAM...: every library that a built program or module is linked with is listed
in docs/dependencies.md, and every program named there is linked with it."""

import re
import subprocess
import sys
import unittest
from fnmatch import fnmatch
from pathlib import Path

SOURCE, *PROGRAMS = sys.argv[1:]
del sys.argv[1:]


def needed(program):
    dynamic = subprocess.run(["readelf", "-dW", program], capture_output=True, text=True, check=True,
                             env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"}).stdout
    return set(re.findall(r"\(NEEDED\).*\[(.+)\]", dynamic))


def tables():
    """The cells of each row, table by table."""
    text = Path(SOURCE, "docs/dependencies.md").read_text(encoding="utf-8")
    found = re.findall(r"(?:^\|.*\n)+", text, re.M)
    return [[[cell.strip() for cell in line.strip("|").split("|")] for line in table.splitlines()[2:]] for table in found]


class LinkedLibraries(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        own, system = tables()[:2]
        cls.listed = [(row[0].strip("`"), row[1].split(", ")) for row in own]
        cls.of_system = [pattern for row in system for pattern in re.findall("`([^`]+)`", row[0])]

    def test_nothing_else_is_linked(self):
        for program in PROGRAMS:
            known = [pattern for pattern, users in self.listed if Path(program).name in users] + self.of_system
            for library in needed(program):
                self.assertTrue(any(fnmatch(library, pattern) for pattern in known), f"{program}: {library} is not listed")

    def test_what_is_listed_is_linked(self):
        libraries = {Path(program).name: needed(program) for program in PROGRAMS}
        for pattern, users in self.listed:
            for user in users:
                self.assertTrue(any(fnmatch(library, pattern) for library in libraries[user]),
                                f"{user} does not need {pattern}")


if __name__ == "__main__":
    unittest.main()
