"""check_hardening.py [--not-optimised] [--start-files-unfit] FILE...: whether programs and modules were built with the usual protections against
errors with memory. Prints a line for each that is missing; exit status 1 when one is."""

import re
import subprocess
import sys

# Functions of the C library that have a form with a check of sizes. The compiler leaves the plain form where it can
# prove the size or cannot know it (memcpy and its kin in most places, so they are not listed), so plain ones are no fault
# as long as one checked form is there.
CHECKED_FORMS = {"strcpy", "strncpy", "strcat", "strncat", "sprintf", "snprintf",
                 "vsnprintf", "fprintf", "vfprintf", "printf", "read", "recv", "readlink", "realpath", "poll", "fread"}


def readelf(path, *options):
    return subprocess.run(["readelf", "-W", *options, path], capture_output=True, text=True, check=True,
                          env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"}).stdout


class Binary:
    def __init__(self, path):
        self.path = path
        header = readelf(path, "-h")
        self.machine = re.search(r"Machine:\s+(.*)", header).group(1)
        self.position_independent = bool(re.search(r"Type:\s+DYN", header))
        self.segments = readelf(path, "-l")
        self.dynamic = readelf(path, "-d")
        symbols = readelf(path, "--dyn-syms")
        self.notes = readelf(path, "-n")
        self.imports = set(re.findall(r" UND ([A-Za-z_0-9]+)", symbols))

    def is_x86(self):
        return "X86-64" in self.machine

    def code(self):
        """The bytes of the executable section."""
        name = readelf(self.path, "-S")
        offset, size = re.search(r" \.text\s+PROGBITS\s+\S+ (\S+) (\S+)", name).groups()
        with open(self.path, "rb") as file:
            file.seek(int(offset, 16))
            return file.read(int(size, 16))


def fortified(binary):
    checked = {name for name in binary.imports if name.startswith("__") and name.endswith("_chk")}
    return bool(checked) or not binary.imports & CHECKED_FORMS


def functions_marked(binary):
    """On x86, functions that may be jumped to begin with endbr64; those of the C start-up files do not."""
    return not binary.is_x86() or binary.code().count(b"\xf3\x0f\x1e\xfa") >= 10


def noted(feature):
    """Whether processors of the x86 family may hold the program to it."""
    return lambda binary: not binary.is_x86() or re.search(rf"x86 feature:.*\b{feature}\b", binary.notes)


CHECKS = [
    ("position independent", lambda b: b.position_independent),
    ("read-only relocations", lambda b: "GNU_RELRO" in b.segments),
    ("all bound at the start", lambda b: re.search(r"BIND_NOW|FLAGS_1.*\bNOW\b", b.dynamic)),
    ("stack not executable", lambda b: re.search(r"GNU_STACK.*\sRW\s", b.segments)),
    ("nothing writable and executable", lambda b: not re.search(r"LOAD.*\sRWE\s", b.segments)),
    ("no relocations in code", lambda b: "TEXTREL" not in b.dynamic),
    ("no library path of its own", lambda b: not re.search(r"\((RPATH|RUNPATH)\)", b.dynamic)),
    ("stack protector", lambda b: "__stack_chk_fail" in b.imports),
    ("jump targets marked", functions_marked),
    ("fit for shadow stacks", noted("SHSTK")),
]
OPTIMISED_CHECKS = [("checked C library functions", fortified)]
# Of the whole program, and so of the C library's start files in it, which are the distribution's.
START_FILE_CHECKS = [("fit for checked jumps", noted("IBT"))]


def main():
    arguments = sys.argv[1:]
    checks = CHECKS
    for option, more in (("--not-optimised", OPTIMISED_CHECKS), ("--start-files-unfit", START_FILE_CHECKS)):
        if option in arguments:
            arguments.remove(option)
        else:
            checks = checks + more
    if not arguments:
        sys.exit("nothing to look at")
    faults = [f"{path}: not {name}" for path in arguments
              for name, holds in [(name, holds(Binary(path))) for name, holds in checks] if not holds]
    print("\n".join(faults) or f"{len(arguments)} files, {len(checks)} checks each")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
