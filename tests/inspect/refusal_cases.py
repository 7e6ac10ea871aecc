import datetime

from machine_case import Case, machine, refused

TEXT = "text"

# Values of every other type, for a key of each type.
ANYTHING = {"text": "x", "integer": 1, "real": 1.5, "boolean": True, "array": ["x"], "dictionary": {"x": {}},
            "date": datetime.datetime(2020, 1, 1), "data": b"x"}

TYPES = {
    "Registry": "dictionary", "PowerSources": "array", "AdapterDetails": "dictionary", "Files": "dictionary",
    "HostName": "text", "Bundle": "dictionary", "Defaults": "dictionary", "SuiteUnavailable": "boolean",
    "ApplicationSupport": "array", "LoginItems": "array", "Replies": "dictionary", "Now": "date", "Steps": "array",
}
FILE_ONLY = ("Bundle", "SuiteUnavailable", "Steps")
STEP_TYPES = {key: kind for key, kind in TYPES.items() if key not in FILE_ONLY} | {"Remove": "array", "Actions": "array"}


def other_types(kind):
    return [(name, value) for name, value in ANYTHING.items() if name != kind]


def in_file(key, value, at=None):
    return Case(f"{key} of {value!r}", machine(**{key: value}), refused(at or key))


def in_step(key, value, at=None):
    return Case(f"step's {key} of {value!r}", machine(steps=[{}, {key: value}]), refused("Steps[1]." + (at or key)))


FILE_TYPES = [in_file(key, value) for key, kind in TYPES.items() for _, value in other_types(kind)]
STEP_KEYS = [in_step(key, value) for key, kind in STEP_TYPES.items() for _, value in other_types(kind)]
AFTER = [in_step("After", value) for name, value in ANYTHING.items() if name not in ("integer", "real")]

INSIDE = [
    in_file("Registry", {"AppleSmartBattery": 1}, "Registry.AppleSmartBattery"),
    in_file("PowerSources", [{}, 1], "PowerSources[1]"),
    in_file("Files", {"/a": TEXT}, "Files./a"),
    in_file("Bundle", {"Path": 1}, "Bundle.Path"),
    in_file("Bundle", {"Info": TEXT}, "Bundle.Info"),
    in_file("Bundle", {"Name": TEXT}, "Bundle.Name"),
    in_file("Defaults", {"standard": 1}, "Defaults.standard"),
    in_file("Defaults", {"com.example": {}}, "Defaults.com.example"),
    in_file("ApplicationSupport", [1], "ApplicationSupport[0]"),
    in_file("LoginItems", ["a", 1], "LoginItems[1]"),
    in_file("Replies", {"F5YW": 1}, "Replies.F5YW"),
    in_file("Steps", [{}, 1], "Steps[1]"),
    in_file("Unknown", 1, "Unknown"),
    in_file("registry", {}, "registry"),
    in_file("Remove", [], "Remove"),
    in_file("Actions", [], "Actions"),
    in_file("After", 1, "After"),
    in_step("Registry", {"AppleSmartBattery": 1}, "Registry.AppleSmartBattery"),
    in_step("Defaults", {"x": {}}, "Defaults.x"),
    in_step("Actions", ["wake", "battery.explode"], "Actions[1]"),
    in_step("Actions", ["Wake"], "Actions[0]"),
    in_step("Actions", [1], "Actions[0]"),
    in_step("Remove", [1], "Remove[0]"),
    in_step("Bundle", {}),
    in_step("SuiteUnavailable", True),
    in_step("Steps", []),
    in_step("Unknown", 1),
    Case("key over two lines", machine(**{"a\nb": 1}), refused("a b")),
]

WHOLE = [
    Case("no property list", b"hello", refused("")),
    Case("empty file", b"", refused("")),
    Case("cut off", b"<?xml version='1.0'?><plist version='1.0'><dict><key>Now", refused("")),
    Case("array at the top", b"<?xml version='1.0'?><plist version='1.0'><array/></plist>", refused("")),
]

# What stands inside is the computer's answer and is never refused.
ACCEPTED = [
    Case("anything inside entries, descriptions, databases and files",
         machine(mac={"anything": [1, {"x": b"y"}]}, standard={"x": {"y": [1.5]}}, PowerSources=[{"x": [1]}],
                 AdapterDetails={"Watts": [1]}, Files={"/a": {"x": True}}, LoginItems=[], Replies={},
                 ApplicationSupport=["../x"]),
         [(0, "battery", None)]),
    Case("After is any number", machine(steps=[{"After": 1}, {"After": 0.5}]), [(2, "battery", None)]),
    Case("every action", machine(steps=[{"Actions": [
        "battery.toggleAge", "battery.toggleTemperatureMode", "battery.loadSettings", "battery.close", "battery.open",
        "mac.toggleAge", "sleep", "wake", "SettingsChangedNotification", "WillUpdateImmediately",
        "openApplication"]}]), [(1, "battery", None)]),
]

CASES = FILE_TYPES + STEP_KEYS + AFTER + INSIDE + WHOLE + ACCEPTED
