"""compare_declarations.py DECLARATIONS TYPES: this project's declarations of a Mac's frameworks, compared with others'.

DECLARATIONS is the folder of headers written here, TYPES one of typed declarations (*.d.ts, TypeScript) made of the true
ones. Names of classes, functions, constants and values, selectors, which methods are the class's own, and how many arguments
there are must be the same. What is only in TYPES is not used here.
"""

import re
import sys
from dataclasses import dataclass, field
from pathlib import Path

PAIRS = {"(": ")", "<": ">", "{": "}", "[": "]"}


@dataclass
class Declared:
    """What is declared. methods: (class, is the class's own, selector); arguments are counted."""

    supers: dict = field(default_factory=dict)
    protocols: set = field(default_factory=set)
    methods: dict = field(default_factory=dict)
    properties: set = field(default_factory=set)  # (class, name)
    functions: dict = field(default_factory=dict)
    constants: set = field(default_factory=set)
    values: dict = field(default_factory=dict)  # name of the enumeration -> name -> number


def without_comments(text):
    return re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.S)


def count_arguments(text):
    """How many there are between two parentheses."""
    text = text.replace("=>", "  ")
    depth, count = 0, 1 if text.strip() else 0
    for character in text.strip().rstrip(","):
        depth += (character in PAIRS) - (character in PAIRS.values())
        count += character == "," and depth == 0
    return count


# The headers written here.


def read_methods(name, body, declared):
    for own, text in re.findall(r"^([-+])\s*(\([^;]*);", body, re.M):
        text = re.sub(r"^\([^)]*\)", "", text)
        parts = re.findall(r"(\w+):\((?:[^()]|\([^()]*\))*\)\s*\w+", text)
        selector = "".join(part + ":" for part in parts) or text.strip()
        declared.methods[name, own == "+", selector] = len(parts)
    for text in re.findall(r"^@property\s*(?:\([^)]*\))?\s*([^;]*);", body, re.M):
        declared.properties.add((name, re.search(r"(\w+)\s*$", text).group(1)))


def read_plain(text, declared):
    # Options are an enumeration without a name, on the type that has it.
    for name, options, body in re.findall(r"enum (\w+)? ?: (\w+) \{([^}]*)\}", text):
        declared.values[name or options] = {key: int(number) for key, number in re.findall(r"(\w+) = (\d+)", body)}
    for block in re.findall(r'extern "C" \{(.*?)^\}', text, re.S | re.M):
        declared.constants |= set(re.findall(r"^extern const .*?\b(\w+);|^extern \w+\* const (\w+);", block, re.M))
        for name, arguments in re.findall(r"^(?!extern)[\w ]+[ *]+(\w+)\(((?:[^()]|\([^()]*\))*)\);", block, re.M):
            declared.functions[name] = count_arguments(arguments)
    declared.constants = {"".join(name) if isinstance(name, tuple) else name for name in declared.constants}


def read_declarations(folder):
    declared = Declared()
    for header in sorted(Path(folder).rglob("*.h")):
        text = without_comments(header.read_text(encoding="utf-8"))
        for name, parent, body in re.findall(r"@interface (\w+) : (\w+)(.*?)@end", text, re.S):
            declared.supers[name] = parent
            read_methods(name, body, declared)
        # What a program's own objects are asked: a wrong name would never be called.
        for name, body in re.findall(r"@protocol (\w+)\n(.*?)@end", text, re.S):
            declared.protocols.add(name)
            read_methods(name, body, declared)
        read_plain(text, declared)
    return declared


# The typed declarations.


@dataclass
class Typed:
    """members: class -> name -> [(is the class's own, arguments; None for a property)]."""

    supers: dict = field(default_factory=dict)
    members: dict = field(default_factory=dict)
    functions: dict = field(default_factory=dict)
    constants: set = field(default_factory=set)
    values: dict = field(default_factory=dict)


def arguments_after(text, start):
    """What stands between the parentheses of which the first is at start."""
    depth = 0
    for index in range(start, len(text)):
        depth += (text[index] == "(") - (text[index] == ")")
        if depth == 0:
            return text[start + 1:index]
    raise ValueError("a parenthesis that is not closed: " + text[start:start + 60])


def read_members(body):
    members = {}
    for found in re.finditer(r"^  (static )?(readonly )?(\w+)(<[^\n]*?>)?\??(\(|:)", body, re.M):
        is_own, _, name, _, kind = found.groups()
        count = None
        if kind == "(":
            arguments = re.sub(r"^this: This,?", "", arguments_after(body, found.end() - 1))
            count = count_arguments(arguments)
        members.setdefault(name, []).append((bool(is_own), count))
    return members


def read_typed(folder):
    typed = Typed()
    for path in sorted(Path(folder).glob("*.d.ts")):
        text = path.read_text(encoding="utf-8")
        for name, parent, body in re.findall(r"^declare (?:class|interface) (\w+)(?: extends (\w+))?[^\n]*\{\n(.*?)^\}", text, re.S | re.M):
            typed.supers[name] = parent
            typed.members.setdefault(name, {}).update(read_members(body))
        for found in re.finditer(r"^declare function (\w+)\(", text, re.M):
            typed.functions[found.group(1)] = count_arguments(arguments_after(text, found.end() - 1))
        typed.constants |= set(re.findall(r"^declare const (\w+): (?!\{)", text, re.M))
        for name, body in re.findall(r"^declare const (\w+): \{\n(.*?)^\}", text, re.S | re.M):
            typed.values[name] = {key: int(number) for key, number in re.findall(r"^  (\w+): (-?\d+),", body, re.M)}
    return typed


# The comparison.


def members_of(typed, name, member):
    while name in typed.members:
        yield from typed.members[name].get(member, [])
        name = typed.supers.get(name)


def member_name(selector):
    first, *rest = [part for part in selector.split(":") if part]
    return first + "".join(part[0].upper() + part[1:] for part in rest)


def is_typed_method(typed, name, is_own, selector, count):
    found = list(members_of(typed, name, member_name(selector)))
    # A method without arguments may be written as a property.
    return (is_own, count) in found or (count == 0 and (is_own, None) in found)


def differences(declared, typed):
    for name in [*declared.supers, *declared.protocols]:
        if name not in typed.members and name not in COMPILER_CLASSES:
            yield f"there is no class {name}"
    for (name, is_own, selector), count in declared.methods.items():
        if not is_typed_method(typed, name, is_own, selector, count):
            yield f"there is no {'+' if is_own else '-'}[{name} {selector}]"
    for name, member in declared.properties:
        if not any(True for _ in members_of(typed, name, member)):
            yield f"there is no property {name}.{member}"
    for name, count in declared.functions.items():
        if typed.functions.get(name) != count:
            yield f"{name} has {typed.functions.get(name, 'no declaration, not')} arguments, not {count}"
    for name in declared.constants - typed.constants:
        yield f"there is no constant {name}"
    for name, values in declared.values.items():
        for key, number in values.items():
            # The others leave out what the names of all have in common.
            if not any(typed_key in key and number == typed_number
                       for typed_key, typed_number in typed.values.get(name, {}).items()):
                yield f"{name} has no {key} = {number}"


# What the compiler makes of a text in quotes; no header of the system's names them.
COMPILER_CLASSES = {"NSSimpleCString", "NSConstantString"}


def compare(declarations, types):
    declared = read_declarations(declarations)
    counts = {"classes": len(declared.supers), "protocols": len(declared.protocols), "methods": len(declared.methods), "properties": len(declared.properties),
              "functions": len(declared.functions), "constants": len(declared.constants),
              "values": sum(map(len, declared.values.values()))}
    return sorted(differences(declared, read_typed(types))), counts


def main():
    faults, counts = compare(*sys.argv[1:3])
    print("\n".join(faults) or ", ".join(f"{count} {kind}" for kind, count in counts.items()) + " are the same")
    return 1 if faults or not all(counts.values()) else 0


if __name__ == "__main__":
    sys.exit(main())
