"""Runs quindle-inspect --follow: on a machine file with steps, on a folder of supplies that changes, and to its end."""

import json
import os
import plistlib
import select
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = sys.argv.pop()
MACHINE = {
    "Bundle": {"Path": "/x", "Info": {"CFBundleVersion": "1"}},
    "PowerSources": [],
    "Registry": {"AppleSmartBattery": {"CurrentCapacity": 64, "MaxCapacity": 100, "DesignCapacity": 100,
                                       "IsCharging": False, "ExternalConnected": False, "AvgTimeToEmpty": 95}},
    "Steps": [
        {"After": 0.3, "Registry": {"AppleSmartBattery": {"CurrentCapacity": 30}}},
        {"After": 0.3, "HostName": "nothing that shows"},
        {"After": 0.3, "Registry": {"AppleSmartBattery": {"IsCharging": True, "ExternalConnected": True}}},
        {"After": 0.3, "Registry": {"AppleSmartBattery": {"CurrentCapacity": 31}}},
    ],
}
SUPPLY = {"type": "Battery", "present": "1", "status": "Discharging", "charge_now": "3000000",
          "charge_full": "6000000", "charge_full_design": "6500000", "voltage_now": "12000000"}


class Follow(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def path(self, name):
        return os.path.join(self.folder, name)

    def machine_file(self, keys):
        with open(self.path("machine.plist"), "wb") as file:
            plistlib.dump(keys, file)
        return self.path("machine.plist")

    def start(self, *arguments, stdout=subprocess.PIPE):
        environment = {"PATH": os.environ["PATH"], "HOME": self.folder, "XDG_CONFIG_HOME": self.folder, "TZ": "UTC",
                       "DBUS_SYSTEM_BUS_ADDRESS": "unix:path=/nonexistent"}
        process = subprocess.Popen([PROGRAM, "--follow", *arguments], env=environment, stdout=stdout,
                                   stderr=subprocess.PIPE, stdin=subprocess.DEVNULL)
        self.addCleanup(self.close, process)
        return process

    def close(self, process):
        process.kill()
        process.wait()
        for stream in (process.stdout, process.stderr):
            if stream:
                stream.close()

    def follow(self, keys, *arguments):
        return self.start("--machine", self.machine_file(keys), *arguments)

    def lines(self, process, count, seconds=60):
        """That many further lines, without their ends."""
        stream, end, data = process.stdout.fileno(), time.monotonic() + seconds, b""
        while data.count(b"\n") < count:
            left = end - time.monotonic()
            self.assertTrue(left > 0 and select.select([stream], [], [], left)[0], f"only {data!r}")
            piece = os.read(stream, 1)
            self.assertTrue(piece, f"it ended after {data!r}")
            data += piece
        return data.decode().splitlines()

    def assert_silent(self, process, seconds):
        self.assertEqual(select.select([process.stdout], [], [], seconds)[0], [], "it printed without a change")

    def assert_ends_quietly(self, process):
        self.assertEqual(process.wait(60), 0)
        self.assertEqual(process.stderr.read(), b"")

    def test_text_at_start_and_at_each_change(self):
        process = self.follow(MACHINE)
        self.assertEqual(self.lines(process, 3), ["64.0%", "30.0%", "31.0%"])
        self.assert_silent(process, 0.5)

    def test_a_step_of_months_later_waits(self):
        for seconds in (3_000_000, 4_294_968, 1e30):  # around what a timer counts in milliseconds
            process = self.follow({**MACHINE, "Steps": [{**MACHINE["Steps"][0], "After": seconds}]})
            self.assertEqual(self.lines(process, 1), ["64.0%"])
            self.assert_silent(process, 0.5)
            process.kill()
            self.assertEqual(process.stderr.read(), b"")

    def test_json(self):
        process = self.follow(MACHINE, "--format", "json")
        states = [json.loads(line) for line in self.lines(process, 4)]
        self.assertEqual([set(state) for state in states],
                         [{"title", "tooltip", "icon", "state", "percentage", "class"}] * 4)
        wanted = [("64.0%", "#bat24", "discharging", 64, "good"), ("30.0%", "#bat14", "discharging", 30, "warning"),
                  ("30.0%", "#bat04Charge", "charging", 30, "warning"),
                  ("31.0%", "#bat04Charge", "charging", 31, "warning")]
        self.assertEqual([(s["title"], s["icon"], s["state"], s["percentage"], s["class"]) for s in states], wanted)
        self.assertIn("1:35", states[0]["tooltip"])

    def test_i3bar(self):
        process = self.follow(MACHINE, "--format=i3bar")
        header, *array = self.lines(process, 6)
        self.assertEqual(json.loads(header), {"version": 1})
        states = json.loads("".join(array) + "]")
        self.assertEqual([block["full_text"] for (block,) in states], ["64.0%", "30.0%", "30.0%", "31.0%"])

    def test_waybar(self):
        process = self.follow(MACHINE, "--format", "waybar")
        states = [json.loads(line) for line in self.lines(process, 4)]
        self.assertEqual([(s["text"], s["alt"], s["class"], s["percentage"]) for s in states],
                         [("64.0%", "discharging", "good", 64), ("30.0%", "discharging", "warning", 30),
                          ("30.0%", "charging", "warning", 30), ("31.0%", "charging", "warning", 31)])

    def test_without_a_battery(self):
        keys = {"Bundle": MACHINE["Bundle"]}
        self.assertEqual(self.lines(self.follow(keys), 1), [""])
        state = json.loads(self.lines(self.follow(keys, "--format", "waybar"), 1)[0])
        self.assertEqual((state["text"], state["class"]), ("", "no-battery"))

    def test_demonstration_computer(self):
        process = self.follow({"Bundle": MACHINE["Bundle"]}, "--demo")
        self.assertEqual(self.lines(process, 1), ["61.0%"])

    def write_supply(self, **attributes):
        folder = self.path("class/power_supply/BAT0")
        os.makedirs(folder, exist_ok=True)
        for name, value in attributes.items():
            with open(os.path.join(folder, name), "a+", encoding="ascii") as file:
                file.truncate(0)
                file.write(value + "\n")

    def test_a_changed_computer_and_changed_settings_show_at_the_next_refresh(self):
        self.write_supply(**SUPPLY)
        process = self.start("--sysfs", self.folder)
        self.assertEqual(self.lines(process, 1), ["50.0%"])
        self.write_supply(charge_now="3600000")
        self.assertEqual(self.lines(process, 1), ["60.0%"])
        os.makedirs(self.path("quindle"))
        with open(self.path("quindle/group.fernhollow.Quindle.plist"), "wb") as file:
            plistlib.dump({"customStatusBar": "charge %p"}, file)
        self.assertEqual(self.lines(process, 1), ["charge 60.0"])
        self.assertEqual(sorted(os.listdir(self.path("quindle"))), ["group.fernhollow.Quindle.plist"])

    def test_ends_quietly_when_told_to(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            process = self.follow(MACHINE)
            self.lines(process, 1)
            process.send_signal(number)
            self.assert_ends_quietly(process)

    def test_ends_quietly_when_nobody_reads_any_more(self):
        """At once, not at the next change, which may be hours away."""
        process = self.follow(MACHINE | {"Steps": []})
        self.lines(process, 1)
        process.stdout.close()
        process.stdout = None
        self.assert_ends_quietly(process)

    def test_ends_quietly_when_nobody_ever_read(self):
        read_end, write_end = os.pipe()
        os.close(read_end)
        process = self.follow_into(write_end)
        self.assert_ends_quietly(process)

    def test_ends_quietly_with_its_socket(self):
        ours, theirs = socket.socketpair()
        process = self.follow_into(theirs.detach())
        self.assertEqual(ours.recv(100), b"64.0%\n")
        ours.close()
        self.assert_ends_quietly(process)

    def follow_into(self, descriptor):
        process = self.start("--machine", self.machine_file(MACHINE | {"Steps": []}), stdout=descriptor)
        os.close(descriptor)
        return process

    def test_into_a_file(self):
        with open(self.path("out"), "wb") as file:
            process = self.start("--machine", self.machine_file(MACHINE), stdout=file)

        def written():
            with open(self.path("out"), encoding="ascii") as file:
                return file.read()

        end = time.monotonic() + 60
        while not written().endswith("31.0%\n") and time.monotonic() < end:
            time.sleep(0.05)
        process.terminate()
        self.assert_ends_quietly(process)
        self.assertEqual(written(), "64.0%\n30.0%\n31.0%\n")

    def test_output_that_cannot_be_written(self):
        with open("/dev/full", "wb") as full:
            process = self.start("--machine", self.machine_file(MACHINE), stdout=full)
        self.assertEqual(process.wait(60), 2)
        self.assertEqual(process.stderr.read().count(b"\n"), 1)

    def test_wrong_usage(self):
        for arguments in (["--json"], ["--capture", "x"], ["--with-serials"], ["--format"], ["--format", "xml"]):
            process = self.start(*arguments)
            self.assertEqual(process.wait(60), 2, arguments)
            self.assertEqual((process.stdout.read(), process.stderr.read().count(b"\n")), (b"", 1), arguments)


if __name__ == "__main__":
    unittest.main()
