"""adapters_test.py: what holds of a Mac's adapters and can be counted without one.

Their functions have under ten lines, since an adapter converts and forwards. Every service of the seam has a class in
platform/macos.
"""

import re
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
FEWEST_TOO_MANY = 10

# The helper has its windows in its own process on a Mac, so no message goes to another one.
ONE_PROCESS = {"MessageLink", "LinkedProgram", "ProgramStarter"}
# No service of a Mac knows what the battery did before this program was there.
NO_SUCH_SERVICE = {"PowerHistory"}
# Linux's entry point of each program with windows, and a Mac's.
ENTRY_POINTS = {"windows/main.cpp": "windows/HelperMain_macos.cpp", "application/main.cpp": "application/Main_macos.cpp"}
# The toolkit looks as a Mac's user wishes by itself.
OF_OTHER_DESKTOPS = {"DesktopLook"}


def function_lengths(text):
    """{line of the opening brace: lines between the braces}, of bodies whose braces have lines of their own."""
    lengths = {}
    lines = text.split("\n")
    for number, line in enumerate(lines):
        if line.strip() != "{":
            continue
        indent = line[:-1]
        end = next(at for at in range(number + 1, len(lines)) if re.fullmatch(indent + r"\};?", lines[at]))
        if lines[end] == indent + "}":  # what ends with a semicolon is a class
            lengths[number + 1] = end - number - 1
    return lengths


def services(text):
    """The abstract classes of a header."""
    for name, body in re.findall(r"^class (\w+)[^;{]*\{(.*?)^\};", text, re.S | re.M):
        if re.search(r"\) (?:const )?= 0;", body):
            yield name


def bases(text):
    """The interfaces that the classes of a file implement."""
    for listed in re.findall(r"^\s*(?:class|struct) \w+(?: final)?\s*:([^{;]*)\{", text, re.M):
        yield from re.findall(r"public (\w+)", listed)


def custom_of_windows(path):
    """What an entry point uses of widgets/."""
    return set(re.findall(r'#include "widgets/(\w+)\.h"', (SOURCE / path).read_text(encoding="utf-8"))) - OF_OTHER_DESKTOPS


class Adapters(unittest.TestCase):
    def test_windows_begin_as_on_linux(self):
        for linux, mac in ENTRY_POINTS.items():
            self.assertTrue(custom_of_windows(linux))
            self.assertEqual(custom_of_windows(mac), custom_of_windows(linux), mac)

    def test_functions_have_under_ten_lines(self):
        counted = 0
        for path in sorted((SOURCE / "platform/macos/system").glob("*.mm")):
            for line, length in function_lengths(path.read_text(encoding="utf-8")).items():
                counted += 1
                self.assertLess(length, FEWEST_TOO_MANY, f"{path.name}:{line}")
        self.assertGreater(counted, 50)

    def test_every_service_has_a_class(self):
        wanted = {name for path in (SOURCE / "platform").glob("*.h")
                  for name in services(path.read_text(encoding="utf-8"))} - ONE_PROCESS - NO_SUCH_SERVICE
        there = {name for path in (SOURCE / "platform/macos").rglob("*") if path.suffix in (".h", ".cpp", ".mm")
                 for name in bases(path.read_text(encoding="utf-8"))}
        self.assertEqual(wanted - there, set())
        self.assertGreater(len(wanted), 15)


class Counting(unittest.TestCase):
    def test_lines_between_the_braces_of_functions(self):
        body = "\n".join(f"    line{number};" for number in range(FEWEST_TOO_MANY))
        text = f"class Long\n{{\n{body}\n}};\nvoid f()\n{{\n{body}\n}}\n    int g()\n    {{\n        if (a) {{\n        }}\n    }}\n"
        self.assertEqual(list(function_lengths(text).values()), [FEWEST_TOO_MANY, 2])

    def test_services_and_who_gives_them(self):
        self.assertEqual(list(services("class A\n{\n    virtual int a() const = 0;\n};\nclass B\n{\n    int b;\n};\n")), ["A"])
        self.assertEqual(set(bases("class C final : public Q, public A\n{\n};\nclass D\n    : public B\n{\n};\n")), {"Q", "A", "B"})


if __name__ == "__main__":
    unittest.main()
