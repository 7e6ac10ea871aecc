"""What scripts/check-skipped says of the reports that ctest writes."""

import subprocess
import sys
import tempfile
import textwrap
import unittest
from pathlib import Path

CHECK = Path(__file__).resolve().parents[2] / "scripts" / "check-skipped"

PASSING = 'add_test(passes sh -c "echo fine")\n'


class CheckSkipped(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def check(self, tests):
        """Has ctest run these tests and returns what the check says: its status and its words."""
        (self.folder / "CTestTestfile.cmake").write_text(tests)
        report = self.folder / "report.xml"
        subprocess.run(["ctest", "--output-junit", report, "--test-output-size-passed", "1000000"], cwd=self.folder,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
        done = subprocess.run([CHECK, report], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False, text=True)
        return done.returncode, done.stdout

    def python_test(self, cases):
        path = self.folder / "cases.py"
        path.write_text("import unittest\n\n\nclass Cases(unittest.TestCase):\n" + textwrap.indent(cases, "    ") +
                        "\n\nunittest.main()\n")
        return f'{PASSING}add_test(cases "{sys.executable}" "{path}")\n'

    def assert_refused(self, tests, *words):
        status, output = self.check(tests)
        self.assertEqual(status, 1, output)
        for word in words:
            self.assertIn(word, output)
        self.assertNotIn("passes", output)

    def test_a_run_without_skipped_tests_passes(self):
        self.assertEqual(self.check(PASSING), (0, "None of 1 tests was skipped\n"))

    def test_a_python_test_that_passes_is_not_skipped(self):
        self.assertEqual(self.check(self.python_test("def test_it(self):\n    print('skipped=1')"))[0], 0)

    def test_a_skipped_googletest_is_refused_by_its_property(self):
        self.assert_refused(PASSING + 'add_test(odd sh -c "echo \'[  SKIPPED ] Odd.one\'")\n'
                            'set_tests_properties(odd PROPERTIES SKIP_REGULAR_EXPRESSION "SKIPPED")\n', "odd: ")

    def test_a_skipped_googletest_is_refused_by_its_output(self):
        self.assert_refused(PASSING + 'add_test(odd sh -c "echo \'[  SKIPPED ] Odd.one\'")\n', "odd: skipped")

    def test_a_skip_return_code_is_refused(self):
        self.assert_refused(PASSING + 'add_test(odd sh -c "exit 77")\n'
                            'set_tests_properties(odd PROPERTIES SKIP_RETURN_CODE 77)\n', "odd: ")

    def test_a_disabled_test_is_refused(self):
        self.assert_refused(PASSING + 'add_test(odd sh -c "echo fine")\n'
                            'set_tests_properties(odd PROPERTIES DISABLED TRUE)\n', "odd: ")

    def test_a_test_whose_program_is_not_there_is_refused(self):
        self.assert_refused(PASSING + 'add_test(odd /nowhere/program)\n', "odd: ")

    def test_a_skipped_python_case_is_refused(self):
        self.assert_refused(self.python_test("@unittest.skip('not here')\ndef test_it(self):\n    pass"),
                            "cases: 1 of its cases skipped")

    def test_a_python_case_that_skips_itself_after_much_output_is_refused(self):
        self.assert_refused(self.python_test("def test_it(self):\n    print('word ' * 20000)\n    self.skipTest('no')"),
                            "cases: 1 of its cases skipped")

    def test_a_python_class_that_skips_itself_is_refused(self):
        self.assert_refused(self.python_test("@classmethod\ndef setUpClass(cls):\n    raise unittest.SkipTest('no')\n\n"
                                             "def test_it(self):\n    pass"), "cases: 1 of its cases skipped")

    def test_a_python_test_without_cases_is_refused(self):
        self.assert_refused(self.python_test("pass"), "cases: it has no cases")

    def test_a_run_of_nothing_is_refused(self):
        self.assertEqual(self.check(""), (1, "No test ran.\n"))


if __name__ == "__main__":
    unittest.main()
