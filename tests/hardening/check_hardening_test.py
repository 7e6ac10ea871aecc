"""check_hardening_test.py COMPILER: builds small programs that lack one protection each, which must be reported."""

import os
import subprocess
import sys
import tempfile
import unittest

from check_hardening import CHECKS, OPTIMISED_CHECKS, START_FILE_CHECKS, Binary

COMPILER = sys.argv.pop()
SOURCE = """
#include <cstdio>
#include <cstring>
#define F(n) extern "C" __attribute__((noinline, visibility("default"))) int f##n(int x) { return x * n + 1; }
F(0) F(1) F(2) F(3) F(4) F(5) F(6) F(7) F(8) F(9)
int (*table[])(int) = {f0, f1, f2, f3, f4, f5, f6, f7, f8, f9};
int main(int argc, char** argv)
{
    char text[16];
    std::strcpy(text, argv[argc - 1]);
    std::puts(text);
    return table[argc % 10](argc);
}
"""
HARDENED = ["-O2", "-fPIE", "-pie", "-fstack-protector-strong", "-U_FORTIFY_SOURCE", "-D_FORTIFY_SOURCE=2",
            "-Wl,-z,relro", "-Wl,-z,now", "-Wl,-z,noexecstack"]
NOTES = []
if os.uname().machine == "x86_64":
    HARDENED.append("-fcf-protection=full")
    # By force, as the distribution's start files decide otherwise.
    NOTES = ["-Wl,-z,shstk", "-Wl,-z,ibt"]


class CheckHardening(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def missing(self, *options, notes=tuple(NOTES)):
        source, program = (os.path.join(self.folder, name) for name in ("program.cpp", "program"))
        with open(source, "w", encoding="ascii") as file:
            file.write(SOURCE)
        subprocess.run([COMPILER, source, "-o", program, *HARDENED, *notes, *options], check=True, capture_output=True)
        binary = Binary(program)
        return [name for name, holds in CHECKS + OPTIMISED_CHECKS + START_FILE_CHECKS if not holds(binary)]

    def test_hardened(self):
        self.assertEqual(self.missing(), [])

    def test_each_protection_is_missed(self):
        cases = [
            (["-no-pie", "-fno-pie"], "position independent"),
            (["-Wl,-z,norelro"], "read-only relocations"),
            (["-Wl,-z,lazy"], "all bound at the start"),
            (["-Wl,-z,execstack"], "stack not executable"),
            (["-Wl,-rpath,/nowhere"], "no library path of its own"),
            (["-fno-stack-protector"], "stack protector"),
            (["-U_FORTIFY_SOURCE", "-D_FORTIFY_SOURCE=0"], "checked C library functions"),
        ]
        for options, name in cases:
            with self.subTest(name):
                self.assertEqual(self.missing(*options), [name])

    def test_unmarked_jump_targets(self):
        if os.uname().machine == "x86_64":
            self.assertEqual(self.missing("-fcf-protection=none"), ["jump targets marked"])

    def test_one_unfit_object_file(self):
        if os.uname().machine == "x86_64":
            unfit = os.path.join(self.folder, "unfit.s")
            with open(unfit, "w", encoding="ascii") as file:
                file.write('.section .note.GNU-stack,"",@progbits\n')
            self.assertEqual(self.missing(unfit, notes=()), ["fit for shadow stacks", "fit for checked jumps"])


if __name__ == "__main__":
    unittest.main()
