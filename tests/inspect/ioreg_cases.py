"""Registries of real computers: none may end the program, and signs and percentages must come out right."""

import glob
import os
import plistlib

from machine_case import Case, machine

FOLDER = os.path.join(os.path.dirname(__file__), "..", "data", "ioreg")


def signed(number):
    return number - (1 << 64) if number >= 1 << 63 else number


def percentage(part, whole):
    if whole:
        return part / whole * 100
    return "inf" if part else "nan"


def expected(entry):
    charge = percentage(entry.get("CurrentCapacity", 0), entry.get("MaxCapacity", 0))
    return [(0, "battery/StateOfCharge", charge), (0, "battery/amperage", signed(entry.get("Amperage", 0))),
            (0, "battery/CycleCount", entry.get("CycleCount", 0)), (0, "battery/isCharging", entry.get("IsCharging", False))]


def case(path):
    with open(path, "rb") as file:
        entries = plistlib.load(file)
    name = os.path.basename(path)
    if not entries:
        return Case(name, machine(), [(0, "battery", None), (0, "statusItem/image", "AppIconBW")])
    return Case(name, machine(battery=entries[0]), expected(entries[0]))


CASES = [case(path) for path in sorted(glob.glob(os.path.join(FOLDER, "*.plist")))]
