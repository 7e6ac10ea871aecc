"""The system bus with the distribution's own policy, and another user on it who wants to drive the helper."""

import math
import os
import plistlib
import re
import subprocess
import sys
import time
import unittest
from pathlib import Path

import dbus
import dbus.bus
import dbus.lowlevel

from start_case import AT_MOST, SUITE, Bus, StartCase, start_message_bus, wait_for

POLICY = Path("/usr/share/dbus-1/system.conf")  # with what the installed services add to it
LOGIN_MANAGER = "org.freedesktop.login1"
PATH = "/org/freedesktop/login1"
INTERFACE = "org.freedesktop.login1.Manager"
OTHER_USER = 65534
FLOOD = 5.0  # seconds, or until that many were sent
FLOOD_AT_LEAST = 5000

# The policy lets root alone be the login manager. Who does not run this as root is root in a namespace of users, in
# which there is nobody else: the forger is the same user then.
NAMESPACE = "QUINDLE_TEST_IN_NAMESPACE"
IN_NAMESPACE = NAMESPACE in os.environ

# To everybody, and to each connection by its name, which no match rule keeps out. Prints how many were sent.
FORGER = f"""
import sys, time, dbus.bus, dbus.lowlevel
bus = dbus.bus.BusConnection(sys.argv[1])
victims = [None] + ([name for name in bus.list_names() if name.startswith(":")] if sys.argv[2] == "each" else [])
end = time.monotonic() + {FLOOD}
sent = 0
while time.monotonic() < end or sent < {FLOOD_AT_LEAST}:
    for victim in victims:
        signal = dbus.lowlevel.SignalMessage("{PATH}", "{INTERFACE}", "PrepareForSleep")
        signal.append(False, signature="b")
        if victim:
            signal.set_destination(victim)
        bus.send_message(signal)
        sent += 1
    if sent % 100 < len(victims):
        bus.flush()
bus.flush()
print(sent)
"""


def processor_time(process):
    """Seconds of a processor that it has used."""
    fields = Path(f"/proc/{process.pid}/stat").read_text(encoding="ascii").rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def memory(process):
    """kB that belong to the process alone."""
    text = Path(f"/proc/{process.pid}/smaps_rollup").read_text(encoding="ascii")
    return int(re.search(r"^Anonymous:\s+(\d+)", text, re.M).group(1))

# kB that a sanitizer keeps of what was freed.
KEPT = 300_000 if os.environ.get("QUINDLE_KEEPS_FREED_MEMORY") == "1" else 0


class LoginManager:
    def __init__(self, address):
        self.bus = dbus.bus.BusConnection(address)
        self.bus.request_name(LOGIN_MANAGER)

    def wake(self):
        signal = dbus.lowlevel.SignalMessage(PATH, INTERFACE, "PrepareForSleep")
        signal.append(False, signature="b")
        self.bus.send_message(signal)
        self.bus.flush()

    def is_heard(self):
        """Whether somebody asked the bus for what this connection says."""
        rules = self.bus.call_blocking("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                       "org.freedesktop.DBus.Debug.Stats", "GetAllMatchRules", "", ())
        text = f"sender='{self.bus.get_unique_name()}'"
        return any(text in rule and "PrepareForSleep" in rule for of_one in rules.values() for rule in of_one)

    def end(self):
        self.bus.close()


class SystemBus(StartCase):
    def setUp(self):
        super().setUp()
        self.root.chmod(0o755)
        self.address = f"unix:path={self.root}/system"
        configuration = self.root / "system.conf"  # which runs as who starts it, and finds what the policy includes
        configuration.write_text(re.sub("<user>.*</user>", "", POLICY.read_text(encoding="utf-8")).replace(
            "<includedir>system.d<", f"<includedir>{POLICY.parent}/system.d<"), encoding="utf-8")
        daemon, _ = start_message_bus(Bus.start_process, f"--config-file={configuration}", "--nopidfile",
                                      f"--address={self.address}")
        self.addCleanup(daemon.wait)
        self.addCleanup(daemon.kill)
        self.manager = LoginManager(self.address)
        self.session = self.bus()
        self.helper = self.start(self.session, DBUS_SYSTEM_BUS_ADDRESS=self.address)
        self.assert_titles(self.session, ["50.0%"])

    def set_text(self, text):
        """The title from the next refresh on."""
        path = self.root / "config/quindle" / f"{SUITE}.plist"
        replacement = path.with_suffix(".new")
        replacement.write_bytes(plistlib.dumps({"customStatusBar": text}))
        replacement.rename(path)

    def assert_waking_shows(self, text):
        self.assertTrue(wait_for(self.manager.is_heard, AT_MOST), "nobody listens to the login manager")
        # The helper's own timer shows it too, 10 s after it showed the text before. A machine may be busy for a while.
        for attempt, seconds in enumerate((4, 8, 8, 8)):
            awaited = text + attempt * "!"
            self.set_text(awaited)
            self.manager.wake()
            if self.comes_to_show(self.session, [awaited], seconds):
                return
            self.assert_titles(self.session, [awaited])
        self.fail("only the helper's own timer shows it")

    @staticmethod
    def as_other_user(script, *arguments):
        other = [] if IN_NAMESPACE else ["setpriv", f"--reuid={OTHER_USER}", f"--regid={OTHER_USER}", "--clear-groups"]
        return subprocess.Popen([*other, sys.executable, "-c", script, *arguments], stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, text=True)

    def flooded(self, whom):
        """How many titles a signal showed, and what of a processor and of memory was used, while the flood lasted."""
        begun, used, kept = time.monotonic(), processor_time(self.helper), memory(self.helper)
        forger = self.as_other_user(FORGER, self.address, whom)
        titles = []
        while forger.poll() is None:
            self.set_text(str(time.monotonic()))
            title = self.session.titles()
            if titles[-1:] != title:
                titles += title
            time.sleep(0.1)
        sent = int(forger.communicate()[0])
        self.assertEqual(forger.returncode, 0)
        lasted = time.monotonic() - begun
        share = (processor_time(self.helper) - used) / lasted
        grown = memory(self.helper) - kept
        print(f"\n  {sent / lasted:.0f} a second to {whom}: {len(titles)} titles, {100 * share:.1f} % of a processor, "
              f"{grown} kB more", file=sys.stderr)
        usual = 2 + math.ceil(lasted / 10)  # the first, and those of the helper's own timers
        return len(titles) - usual, share, grown

    def test_another_users_broadcasts_are_not_heard(self):
        titles, share, grown = self.flooded("all")
        self.assertLessEqual(titles, 0)
        self.assertLess(share, 0.05)
        self.assertLess(grown, KEPT + 2000)
        self.assert_waking_shows("awake")

    def test_another_users_signals_to_the_helper_alone_are_not_heard(self):
        titles, _, grown = self.flooded("each")
        self.assertLessEqual(titles, 0)
        self.assertLess(grown, KEPT + 5000)
        self.assert_waking_shows("awake")

    def test_the_login_manager_is_heard_and_followed(self):
        for text in ("one", "two"):
            self.assert_waking_shows(text)
            self.manager.end()
            self.manager = LoginManager(self.address)

    if not IN_NAMESPACE:

        def test_another_user_cannot_become_the_login_manager(self):
            forger = self.as_other_user("import sys, dbus.bus\n"
                                        f"dbus.bus.BusConnection(sys.argv[1]).request_name('{LOGIN_MANAGER}')\n"
                                        "print('I am')", self.address)
            self.assertEqual(forger.communicate()[0], "")
            self.assertEqual(forger.returncode, 1)


if __name__ == "__main__":
    if os.geteuid() != 0:
        os.execvpe("unshare", ["unshare", "--user", "--map-root-user", sys.executable, "-B", *sys.argv],
                   {**os.environ, NAMESPACE: "1"})
    unittest.main()
