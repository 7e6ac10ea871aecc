#!/usr/bin/env python3
"""check_layers.py SOURCE_DIR: refuses includes that layers.txt does not allow, and #ifdef outside platform/."""

import re
import sys
from pathlib import Path

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')
NOT_LAYERED = {"tests", "benchmarks", "packaging", "build"}
CONDITION = re.compile(r"^\s*#\s*(if|ifdef|ifndef)\b")


def read_rules(path):
    rules = {}
    for line in path.read_text().splitlines():
        line = line.split("#")[0].strip()
        if line:
            place, _, allowed = line.partition(":")
            rules[place.strip()] = set(allowed.split())
    return rules


def folder_of(path, folders):
    return max((folder for folder in folders if path.startswith(folder + "/")), key=len, default=None)


def faults_of(source, root, rules, folders):
    name = source.relative_to(root).as_posix()
    own = folder_of(name, folders)
    allowed = rules[own] | rules.get(name, set()) | {own}
    for number, line in enumerate(source.read_text().splitlines(), 1):
        if CONDITION.match(line) and not own.startswith("platform"):
            yield f"{name}:{number}: conditional compilation outside platform/"
        found = INCLUDE.match(line)
        if not found or "/" not in found.group(1):
            continue
        included = found.group(1)
        if folder_of(included, folders) not in allowed:
            yield f"{name}:{number}: may not include {included}"


def main():
    root = Path(sys.argv[1])
    rules = read_rules(Path(__file__).with_name("layers.txt"))
    folders = [place for place in rules if (root / place).is_dir()]
    faults = [f"layers.txt: {place} is granted {name}, which is no room"
              for place, allowed in rules.items() for name in sorted(allowed - set(folders))]
    sources = 0
    for folder in folders:
        for source in sorted((root / folder).glob("*")):
            if source.suffix in (".h", ".cpp", ".mm"):
                sources += 1
                faults += faults_of(source, root, rules, folders)
        for source in sorted((root / folder).glob("*/*")):
            nested = source.relative_to(root).parent.as_posix()
            if nested not in folders and source.suffix in (".h", ".cpp", ".mm"):
                sources += 1
                faults += faults_of(source, root, rules, folders)
    for source in sorted((root).glob("*/**/*")):
        name = source.relative_to(root).as_posix()
        if source.suffix in (".h", ".cpp", ".mm") and name.split("/")[0] not in NOT_LAYERED and not folder_of(name, folders):
            faults.append(f"{name}: stands in no room of layers.txt")
    print("\n".join(faults) or f"{sources} files follow the layers")
    return 1 if faults or not sources else 0


if __name__ == "__main__":
    sys.exit(main())
