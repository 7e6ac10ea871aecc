"""Runs quindle-inspect on invented computers and compares what it prints.

A table of cases is a Python file with a list CASES; see Case. Called as: machine_case.py PROGRAM TABLE...
"""

import importlib.util
import json
import os
import plistlib
import signal
import subprocess
import sys
import tempfile
from dataclasses import dataclass, field

ABSENT = object()  # expected where a key must not be there
HELPER_PATH = "/Applications/Quindle.app/Contents/Resources/Quindle-Helper.app"


@dataclass
class Case:
    """One computer and what is expected of it.

    machine: the machine file, as values (see machine()) or as bytes.
    expected: (line, path, value) with the line counted from 0 and the path's keys parted by slashes, where a
        function instead of the value is asked whether it is right;
        or ABORT; or refused(KEY), where KEY is "" for the file as a whole.
    """

    name: str
    machine: object
    expected: object
    environment: dict = field(default_factory=dict)
    files: dict = field(default_factory=dict)  # beside the machine file: path -> bytes
    arguments: tuple = ()  # besides those that name the machine file and ask for JSON


ABORT = "abort"


def refused(key):
    return ("refused", key)


def machine(battery=None, mac=None, standard=None, suite=None, steps=None, **keys):
    """A machine file with a bundle, in which any part can be replaced by its key or left out by None."""
    values = {
        "Bundle": {"Path": HELPER_PATH, "Info": {"CFBundleVersion": "1"}},
        "PowerSources": [],
        "Registry": {},
        "Defaults": {},
    }
    if battery is not None:
        values["Registry"]["AppleSmartBattery"] = battery
    if mac is not None:
        values["Registry"]["IOPlatformExpertDevice"] = mac
    if standard is not None:
        values["Defaults"]["standard"] = standard
    if suite is not None:
        values["Defaults"]["group.fernhollow.Quindle"] = suite
    if steps is not None:
        values["Steps"] = steps
    values.update(keys)
    return {key: value for key, value in values.items() if value is not None}


def battery_step(**properties):
    return {"Registry": {"AppleSmartBattery": properties}}


def machine_bytes(values):
    return values if isinstance(values, bytes) else plistlib.dumps(values)


def run(program, path, environment, arguments=()):
    clean = {"PATH": os.environ["PATH"], "TZ": "UTC", "LC_ALL": "C.UTF-8"}
    clean.update(environment)
    return subprocess.run([program, "--json", "--machine", path, *arguments], env=clean, capture_output=True, timeout=200)


def value_at(state, path):
    for key in path.split("/"):
        if not isinstance(state, dict) or key not in state:
            return ABSENT
        state = state[key]
    return state


def same(actual, wanted):
    if isinstance(wanted, float):
        return type(actual) in (int, float) and actual == wanted
    return type(actual) is type(wanted) and actual == wanted


def is_right(actual, wanted):
    if not callable(wanted):
        return actual is wanted or same(actual, wanted)
    try:
        return wanted(actual)
    except (KeyError, TypeError, ValueError):  # not even of the shape that the function takes
        return False


def differences(result, expected):
    if expected == ABORT:
        return [] if result.returncode == -signal.SIGABRT else [f"exit {result.returncode}, wanted an abort"]
    if result.returncode != 0:
        return [f"exit {result.returncode}: {result.stderr.decode()}"]
    lines = [json.loads(line) for line in result.stdout.splitlines()]
    found = []
    for line, path, wanted in expected:
        actual = value_at(lines[line], path) if line < len(lines) else "no such line"
        if not is_right(actual, wanted):
            found.append(f"line {line}, {path}: {actual!r}, wanted {wanted!r}")
    return found


def refusal_differences(result, path, key):
    message = result.stderr.decode()
    wanted = f"{path}: {key}: " if key else f"{path}: "
    found = []
    if result.returncode != 2:
        found.append(f"exit {result.returncode}, wanted 2")
    if wanted not in message or message.count("\n") != 1:
        found.append(f"message {message!r}, wanted one line with {wanted!r}")
    if result.stdout:
        found.append("something was printed")
    return found


def check(program, case):
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "machine.plist")
        with open(path, "wb") as file:
            file.write(machine_bytes(case.machine))
        for name, content in case.files.items():
            os.makedirs(os.path.dirname(os.path.join(folder, name)), exist_ok=True)
            with open(os.path.join(folder, name), "wb") as file:
                file.write(content)
        environment = {key: value.replace("{folder}", folder) for key, value in case.environment.items()}
        result = run(program, path, environment, case.arguments)
        if isinstance(case.expected, tuple):
            return refusal_differences(result, path, case.expected[1])
        return differences(result, case.expected)


def load(path):
    sys.path.insert(0, os.path.dirname(path))
    spec = importlib.util.spec_from_file_location("table", path)
    table = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(table)
    return table.CASES


def main(program, tables):
    sys.modules["machine_case"] = sys.modules["__main__"]
    failures = 0
    cases = [case for table in tables for case in load(table)]
    for case in cases:
        for difference in check(program, case):
            failures += 1
            print(f"{case.name}: {difference}")
    print(f"{len(cases)} cases, {failures} differences")
    return 1 if failures or not cases else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2:]))
