"""link.py PROCESSOR STUBS [OBJECT | LIBRARY | OPTION]...: links a program as CMake says for a Mac, without one.

STUBS holds a text stub for each library and framework. This computer's libraries, which CMake names by their paths, are replaced
by the stubs of the same name; static libraries and frameworks are those that CMake names.
"""

import os
import re
import sys
from pathlib import Path

# With every program: the C library, the C++ library and the runtime of Objective-C. The compiler adds these on a Mac.
SYSTEM = ("-lSystem", "-lc++", "-lc++abi", "-lobjc")


def stub_instead(argument, stubs):
    name = re.match(r"(lib\w+)\.so", Path(argument).name)
    return str(stubs / f"{name.group(1)}.tbd") if name else argument


def main():
    processor, stubs = sys.argv[1], Path(sys.argv[2])
    # Options that go to the linker through the compiler.
    given = [argument.removeprefix("-Wl,") for argument in sys.argv[3:]]
    os.execvp("ld64.lld-14", ["ld64.lld-14", "-arch", processor, "-platform_version", "macos", "13.3", "14.2", "-L", str(stubs),
                              "-F", str(stubs), *(stub_instead(argument, stubs) for argument in given), *SYSTEM])


main()
