#!/usr/bin/env python3
"""check_rules.py SOURCE_DIR: refuses a rule of the models without a test file of its name, and a name in docs/inherited.md
that no file with such a mark has."""

import re
import sys
from pathlib import Path

# A class whose functions fill two files; its tests are in one.
SECOND_FILES = {"QDBatteryReads": "QDBattery"}
NOT_MARKED = {"tests", "benchmarks", "packaging", "build"}


def rules_without_tests(root):
    for folder in ("battery", "mac"):
        for rule in sorted((root / folder).glob("*.cpp")):
            name = SECOND_FILES.get(rule.stem, rule.stem)
            if not (root / "tests" / folder / f"{name}Test.cpp").is_file():
                yield f"{folder}/{rule.name} has no tests/{folder}/{name}Test.cpp"


def marked_sources(root):
    for pattern in ("*.h", "*.cpp"):
        for path in root.rglob(pattern):
            if path.relative_to(root).parts[0] not in NOT_MARKED:
                text = path.read_text(encoding="utf-8")
                if "inherited:" in text:
                    yield text


def names_of(document):
    """The code in the first cells of the tables."""
    for cell in re.findall(r"^\| (.+?) \| .+ \|$", document, re.M):
        for code in re.findall(r"`([^`]+)`", cell):
            yield re.split(r"::|\.", code.split("(")[0])[-1]


def names_without_marks(root):
    marked = "\n".join(marked_sources(root))
    for name in names_of((root / "docs/inherited.md").read_text(encoding="utf-8")):
        if name not in marked:
            yield f"docs/inherited.md: {name} stands in no file with a mark"


def main():
    root = Path(sys.argv[1]).resolve()
    faults = [*rules_without_tests(root), *names_without_marks(root)]
    for fault in faults:
        print(fault)
    print(f"{len(list(names_of((root / 'docs/inherited.md').read_text(encoding='utf-8'))))} names looked for")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
