"""coverage_test.py COMPILER READER: what scripts/coverage says of a small program."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

COVERAGE = Path(__file__).resolve().parents[2] / "scripts" / "coverage"
MODEL = ("battery", "mac", "facts", "menubar", "history", "samples", "warnings", "records", "plist", "common")

# Ten lines of code that run, and as many as asked for that do not.
RULE = """int {name}(int number)
{{
    int sum = number;
    sum += 1;
    sum += 2;
    sum += 3;
    sum += 4;
    sum += 5;
    if (number == 1)
        sum += 6;
{missed}    return sum;
}}
"""


class Coverage(unittest.TestCase):
    compiler = "c++"
    reader = "gcov"

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.source = Path(folder.name)
        self.build = self.source / "build"
        self.build.mkdir()

    def run_program(self, missed):
        """Builds and runs a program with one file for each folder, with that many lines that do not run."""
        for folder in MODEL:
            (self.source / folder).mkdir()
            count = missed.get(folder, 0)
            # No line for the brace: compilers differ on whether it counts.
            lines = "    if (number == 2) {\n" + "        sum += 7;\n" * (count - 1) + "        sum += 7; }\n" if count else ""
            (self.source / folder / "rule.cpp").write_text(RULE.format(name=folder, missed=lines))
            self.compile("-c", self.source / folder / "rule.cpp", "-o", self.build / f"{folder}.o")
        main = self.source / "main.cpp"
        main.write_text("".join(f"int {folder}(int);\n" for folder in MODEL) +
                        f"int main() {{ return {' + '.join(f'{folder}(1)' for folder in MODEL)} == 0; }}\n")
        program = self.build / "program"
        self.compile(main, *self.build.glob("*.o"), "-o", program)
        subprocess.run([program], check=True)

    def compile(self, *arguments):
        subprocess.run([self.compiler, "--coverage", *arguments], check=True, cwd=self.build)

    def coverage(self, *options):
        done = subprocess.run([COVERAGE, "--gcov", self.reader, "--source", self.source, *options, self.build], stdout=subprocess.PIPE,
                              check=False, text=True)
        return done.returncode, done.stdout

    def test_folders_that_run_whole_pass(self):
        self.run_program({})
        status, output = self.coverage()
        self.assertEqual(status, 0, output)
        self.assertRegex(output, r"battery +10 +10 +100\.0")

    def test_a_folder_below_the_least_is_named(self):
        self.run_program({"history": 4, "mac": 1})
        status, output = self.coverage("--missed")
        self.assertEqual(status, 1, output)
        self.assertRegex(output, r"history +15 +11 +73\.3")
        self.assertRegex(output, r"mac +12 +11 +91\.7")
        self.assertIn("below 90 percent: history\n", output)
        self.assertIn("history/rule.cpp: 12 13 14 15\n", output)

    def test_the_least_can_be_given(self):
        self.run_program({"mac": 1})
        self.assertEqual(self.coverage("--least", "91")[0], 0)
        self.assertEqual(self.coverage("--least", "92")[0], 1)

    def test_code_that_no_program_ran_counts(self):
        self.run_program({})
        (self.source / "mac" / "unused.cpp").write_text(RULE.format(name="unused", missed=""))
        self.compile("-c", self.source / "mac" / "unused.cpp", "-o", self.build / "unused.o")
        self.assertRegex(self.coverage()[1], r"mac +20 +10 +50\.0")

    def test_no_figures_do_not_pass(self):
        self.assertEqual(self.coverage()[0], 1)


if __name__ == "__main__":
    Coverage.compiler = sys.argv.pop(1)
    Coverage.reader = sys.argv.pop(1)
    unittest.main()
