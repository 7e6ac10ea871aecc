"""What the tests of the preferences share: a helper on an invented sysfs tree with real settings files, looked at and
worked as an assistive technology does it."""

import json
import plistlib
import time
from pathlib import Path

from helper_case import HELPER, SOURCE, SUITE, HelperCase, wait_for

OWN = "com.fernhollow.Quindle-Helper"
ACCESSIBILITY = SOURCE / "scripts" / "headless" / "accessibility.py"
BATTERY = {"type": "Battery", "present": "1", "status": "Discharging", "charge_now": "3300000",
           "charge_full": "5000000", "charge_full_design": "5500000", "voltage_now": "12000000",
           "voltage_min_design": "11400000", "current_now": "1000000", "cycle_count": "12", "temp": "300"}


def nodes(tree, showing=True):
    """Every node of a tree, depth first."""
    for node in tree:
        if showing and "showing" not in node["states"]:
            continue
        yield node
        yield from nodes(node["children"], showing)


class PreferencesCase(HelperCase):
    def setUp(self):
        self.config = Path(self.desktop.env["XDG_CONFIG_HOME"])
        self.system = self.desktop.root / "sys"
        self.set_battery(**BATTERY)
        self.store(SUITE, {"customStatusBar": "%p%", "showIconsInMenuBar": 1})
        (self.config / "quindle" / f"{OWN}.plist").unlink(missing_ok=True)

    def set_battery(self, **attributes):
        folder = self.system / "class" / "power_supply" / "BAT0"
        folder.mkdir(parents=True, exist_ok=True)
        for name, value in attributes.items():
            (folder / name).write_text(f"{value}\n")

    # ---- settings

    def store(self, database, values):
        """As another program writes: the whole file at once."""
        folder = self.config / "quindle"
        folder.mkdir(exist_ok=True)
        new = folder / f".{database}.other"
        new.write_bytes(plistlib.dumps(values))
        new.rename(folder / f"{database}.plist")

    def stored(self, key, database=SUITE):
        path = self.config / "quindle" / f"{database}.plist"
        return plistlib.loads(path.read_bytes()).get(key) if path.exists() else None

    def assert_stored(self, key, expected, database=SUITE):
        wait_for(lambda: self.stored(key, database) == expected)
        value = self.stored(key, database)
        self.assertEqual(value, expected, f"{key} in {database}")
        self.assertIs(type(value), type(expected), f"{key} in {database}")

    # ---- the helper and its windows

    def start_helper(self):
        process = self.desktop.start(HELPER, env={"QUINDLE_SYSFS": str(self.system),
                                                  "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
        self.addCleanup(self.stop, process)
        self.assert_title("66.0%")
        return process

    def open(self, entry, title):
        self.desktop.choose(entry)
        self.assertTrue(wait_for(lambda: self.window(title)), f"no window {title!r}")
        self.assertTrue(wait_for(lambda: self.desktop.call("xdotool", "getactivewindow") == self.window(title)),
                        f"the window {title!r} has no keyboard")
        self.settled(lambda: self.desktop.call("xwininfo", "-id", self.window(title)), pause=0.5)  # it is moved once more

    def window(self, title):
        found = self.desktop.call("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()
        return found[-1] if found else None

    def announced(self):
        """Starts to listen; call the result for how often changes were announced since."""
        log = self.desktop.root / "announced"
        with log.open("wb") as stream:
            process = self.desktop.start("dbus-monitor", "--session",
                                         "interface='com.fernhollow.Quindle.Notifications'", stdout=stream)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        self.assertTrue(wait_for(lambda: log.stat().st_size > 0), "nobody listens")
        return lambda: log.read_text().count("member=SettingsChangedNotification")

    def announce(self):
        self.desktop.call("gdbus", "emit", "--session", "--object-path", "/com/fernhollow/Quindle", "--signal",
                          "com.fernhollow.Quindle.Notifications.SettingsChangedNotification")

    # ---- an assistive technology

    def accessibility(self, verb, *arguments):
        return self.desktop.call("/usr/bin/python3", "-W", "ignore", ACCESSIBILITY, verb, "quindle-helper",
                                 *arguments)

    def tree(self):
        """Begun again where it met a control that was just being taken away: nothing is printed then."""
        return json.loads(wait_for(lambda: self.accessibility("tree")) or "")

    def control(self, role, name):
        """A window is mapped a while before assistive technologies hear of what is in it."""
        return wait_for(lambda: next((node for node in nodes(self.tree())
                                      if (node["role"], node["name"]) == (role, name)), None), 10)

    def is_checked(self, role, name):
        return "checked" in self.control(role, name)["states"]

    def assert_checked(self, role, name, expected=True):
        self.assertTrue(wait_for(lambda: self.is_checked(role, name) == expected), f"{role} {name!r}")

    def act(self, role, name):
        self.accessibility("act", role, name)

    def click(self, role, name):
        """With the mouse, in its middle."""
        node = self.control(role, name)
        self.assertIsNotNone(node, f"no {role} {name!r}")
        x, y, width, height = node["box"]
        # Check boxes and radio buttons take a click on box and label, which are at the beginning.
        self.desktop.click(x + min(width // 2, 12), y + height // 2)

    def type(self, text):
        """Replaces the text of the field that has the keyboard."""
        self.desktop.key("ctrl+a")
        self.desktop.call("xdotool", "type", "--delay", "20", text)
