"""build_packages_only_test.py SOURCE: a computer without the packages of the tests configures the program without them."""

import subprocess
import sys
import tempfile
import unittest

SOURCE = sys.argv.pop(1)


class WithoutTestPackages(unittest.TestCase):
    def configure(self, *options):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        return subprocess.run(["cmake", "-S", SOURCE, "-B", folder.name, "-DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON", *options],
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=400, check=False)

    def test_tests_are_off_and_one_line_says_so(self):
        done = self.configure()
        self.assertEqual(done.returncode, 0, done.stdout)
        lines = [line for line in done.stdout.splitlines() if "Tests are" in line]
        self.assertEqual(lines, ["-- Tests are off, these are not installed: GTest (./test installs them)"])

    def test_whoever_asks_for_tests_is_refused(self):
        done = self.configure("-DQUINDLE_TESTS=ON")
        self.assertNotEqual(done.returncode, 0, done.stdout)
        self.assertIn("GTest", done.stdout)


if __name__ == "__main__":
    unittest.main()
