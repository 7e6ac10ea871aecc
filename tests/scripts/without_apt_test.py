"""What the commands of the README say where there is no apt."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
TOOLS = ("bash", "dirname", "cmake", "env")  # enough to start, nothing to install with


class WithoutApt(unittest.TestCase):
    def test_one_line_says_what_is_needed_and_how_to_go_on(self):
        with tempfile.TemporaryDirectory() as folder:
            for tool in TOOLS:
                os.symlink(shutil.which(tool), Path(folder, tool))
            for command in ("run", "test", "package"):
                with self.subTest(command):
                    result = subprocess.run([SOURCE / command], env={"PATH": folder}, capture_output=True, text=True,
                                            timeout=200)
                    self.assertEqual((result.returncode, result.stdout), (1, ""))
                    self.assertEqual(result.stderr.count("\n"), 1, result.stderr)
                    for words in ("qt6-base-dev", "cmake --preset", "cmake --build"):
                        self.assertIn(words, result.stderr)


if __name__ == "__main__":
    unittest.main()
