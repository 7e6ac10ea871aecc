"""Runs quindle-inspect with arguments: usage, environment, report, demonstration computer, captures."""

import datetime
import json
import os
import plistlib
import signal
import stat
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop()
SERIAL = "C02MN1TXF5YW"
BATTERY_SERIAL = "D86439601R9DHDFAR"
MACHINE = {
    "Bundle": {"Path": "/x", "Info": {"CFBundleVersion": "1"}},
    "HostName": "Jane's Computer",
    "PowerSources": [{"Hardware Serial Number": BATTERY_SERIAL, "BatteryHealth": "Good"}],
    "AdapterDetails": {"Watts": 60.0},
    "Registry": {
        "AppleSmartBattery": {
            "CurrentCapacity": 50, "MaxCapacity": 100, "DesignCapacity": 100, "Amperage": -1600,
            "BatterySerialNumber": BATTERY_SERIAL, "Serial": BATTERY_SERIAL,
            "Note": f"pack {BATTERY_SERIAL} of {SERIAL}", "Part": "R9DHDF",
            "ManufacturerData": b"\x01" + BATTERY_SERIAL.encode() + b"\x02",
            SERIAL: {"inside": [SERIAL]},
        },
        "IOPlatformExpertDevice": {"model": b"MacBookAir4,2\0", "IOPlatformSerialNumber": SERIAL},
    },
    "Defaults": {"standard": {"modelStringCache": {"F5YW": "Laptop (13-inch)"}, "statusBarString": "keep"},
                 "group.fernhollow.Quindle": {"customStatusBar": "%p%"}},
    "Steps": [{"HostName": "Later"}],
}


class CommandLine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.machine = self.path("machine.plist")
        with open(self.machine, "wb") as file:
            plistlib.dump(MACHINE, file)

    def supplies(self):
        """A folder to stand for /sys, without any supply."""
        os.makedirs(self.path("class/power_supply"), exist_ok=True)
        return self.folder

    def path(self, name):
        return os.path.join(self.folder, name)

    def run_program(self, *arguments, **environment):
        clean = {"PATH": os.environ["PATH"], "TZ": "UTC", "LC_ALL": "C.UTF-8", "HOME": self.folder, "XDG_CONFIG_HOME": self.folder}
        return subprocess.run([PROGRAM, *arguments], env=clean | environment, capture_output=True, text=True,
                              timeout=200)

    def captured(self, *arguments):
        target = self.path("capture.plist")
        result = self.run_program("--machine", self.machine, "--capture", target, *arguments)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""))
        with open(target, "rb") as file:
            return target, file.read()

    def test_wrong_usage(self):
        for arguments in (["--bogus"], ["file"], ["--machine"], ["--capture"], ["--sysfs"], ["--machine="],
                          ["--with-serials"], ["--json", "--capture", "x"]):
            result = self.run_program(*arguments)
            self.assertEqual((result.returncode, result.stdout), (2, ""), arguments)
            self.assertEqual(result.stderr.count("\n"), 1, arguments)

    def test_help_and_version(self):
        for argument, text in (("--help", "Usage: quindle-inspect"), ("--version", "quindle-inspect ")):
            result = self.run_program(argument)
            self.assertEqual((result.returncode, result.stderr), (0, ""))
            self.assertTrue(result.stdout.startswith(text))

    def assert_refused(self, path, reason):
        result = self.run_program("--json", "--machine", path)
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertEqual(result.stderr, f"quindle-inspect: {path}: {reason}\n")

    def test_a_refusal_says_whether_the_file_or_what_is_in_it_is_at_fault(self):
        self.assert_refused("/nonexistent/x.plist", "cannot be read: No such file or directory")
        with open(self.path("text"), "w", encoding="ascii") as file:
            file.write("hello")
        self.assert_refused(self.path("text"), "is not a property list")
        os.truncate(self.path("text"), 64 * 1024 * 1024 + 1)
        self.assert_refused(self.path("text"), "is too large")

    def test_a_machine_file_that_is_none_is_refused_at_once(self):
        os.mkfifo(self.path("pipe"))
        for path in (self.path("pipe"), self.folder, "/dev/zero", "/dev/tty"):
            self.assert_refused(path, "is not an ordinary file")

    def test_a_folder_without_supplies_is_no_computer(self):
        for arguments, environment in ((["--sysfs", self.folder], {}), ([], {"QUINDLE_SYSFS": self.folder})):
            result = self.run_program("--json", *arguments, **environment)
            self.assertEqual((result.returncode, result.stdout), (2, ""))
            self.assertEqual(result.stderr, f"quindle-inspect: {self.folder}: holds no folder class/power_supply\n")

    def test_a_capture_holds_no_users_name(self):
        for path, neutral in (("/home/jane/Apps/Quindle-Helper.app", "/home/user/Apps/Quindle-Helper.app"),
                              ("/Users/jane/Quindle-Helper.app", "/Users/user/Quindle-Helper.app"),
                              (self.folder + "/Quindle-Helper.app", "/home/user/Quindle-Helper.app")):
            with open(self.machine, "wb") as file:
                plistlib.dump(MACHINE | {"Bundle": {"Path": path}}, file)
            target = self.path("capture.plist")
            for environment in ({}, {"HOME": ""}) if "jane" in path else ({},):
                self.run_program("--machine", self.machine, "--capture", target, **environment)
                with open(target, "rb") as file:
                    self.assertEqual(plistlib.load(file)["Bundle"]["Path"], neutral)

    def assert_mode_is_fatal(self, key, value, file, *arguments):
        result = self.run_program("--json", *arguments)
        self.assertEqual((result.returncode, result.stdout), (-signal.SIGABRT, ""))
        self.assertEqual(result.stderr, f"quindle: fatal: {file}: {key}: {value} is none of 0, 1 and 2\n")

    def test_a_stored_mode_out_of_range_names_file_key_and_value(self):
        for key, value in (("QDBatteryAgeMode", 7), ("QDBatteryTemperatureMode", -1)):
            with open(self.machine, "wb") as file:
                plistlib.dump(MACHINE | {"Defaults": {"standard": {key: value}}}, file)
            self.assert_mode_is_fatal(key, value, self.machine, "--machine", self.machine)
        os.mkdir(self.path("quindle"))
        settings = self.path("quindle/com.fernhollow.Quindle-Helper.plist")
        with open(settings, "wb") as file:
            plistlib.dump({"QDBatteryTemperatureMode": 3}, file)
        os.makedirs(self.path("sys/class/power_supply"))
        self.assert_mode_is_fatal("QDBatteryTemperatureMode", 3, settings, "--sysfs", self.path("sys"))

    def test_machine_from_the_environment(self):
        by_variable = self.run_program("--json", QUINDLE_MACHINE=self.machine)
        self.assertEqual(by_variable.returncode, 0)
        self.assertEqual(len(by_variable.stdout.splitlines()), 2)
        self.assertEqual(json.loads(by_variable.stdout.splitlines()[0])["mac"]["Serial"], SERIAL)

    def test_argument_beats_the_environment(self):
        result = self.run_program("--json", f"--machine={self.machine}", QUINDLE_MACHINE="/nonexistent")
        self.assertEqual(result.returncode, 0)

    def test_keys_of_the_object(self):
        line = self.run_program("--json", "--machine", self.machine).stdout.splitlines()[0]
        self.assertEqual(set(json.loads(line)),
                         {"battery", "mac", "settings", "statusItem", "bars", "app", "defaults", "savedRecords",
                          "snapshot", "upload", "uploadsStarted", "isAppLoginItem"})

    def test_report(self):
        result = self.run_program("--machine", self.machine)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        for text in ("50.0 %", SERIAL, "Jane's Computer", "MacBookAir4,2", "60 Watts"):
            self.assertIn(text, result.stdout)

    def report_of(self, battery=None, **keys):
        registry = {} if battery is None else {"AppleSmartBattery": battery}
        with open(self.machine, "wb") as file:
            plistlib.dump({"Bundle": MACHINE["Bundle"], "Registry": registry, "PowerSources": []} | keys, file)
        return self.run_program("--machine", self.machine).stdout

    def test_report_without_battery(self):
        report = self.report_of()
        self.assertIn("this computer has no battery", report)
        self.assertNotIn("AppIconBW", report)

    def test_report_shows_nothing_that_is_not_known(self):
        for battery in ({}, {"CurrentCapacity": 50}, {"CurrentCapacity": 50, "MaxCapacity": 100}):
            report = self.report_of(battery).partition("Battery\n")[2]  # a title may hold anything
            for text in ("nan", "inf", "0.0 °C", "Cycles", "0.0 W", "0.00 W", "Health", "Built", "Manufactured"):
                self.assertNotIn(text, report, battery)

    def test_a_macs_registry_in_every_form(self):
        battery = {"CurrentCapacity": 50, "MaxCapacity": 100, "AppleRawMaxCapacity": 4000, "DesignCapacity": 5000}
        self.report_of(battery)
        call = ["--machine", self.machine, "--as-mac"]
        self.assertIn("50.0 % (2000 mAh of 4000 mAh)", self.run_program(*call).stdout)
        self.assertEqual(json.loads(self.run_program("--json", *call).stdout)["battery"]["FullChargeCapacity"], 4000)
        self.assertIn("quindle_battery_health_ratio 0.8\n", self.run_program("--metrics", *call).stdout)
        followed = subprocess.Popen([PROGRAM, "--follow", *call], stdout=subprocess.PIPE, text=True,
                                    env={"PATH": os.environ["PATH"], "HOME": self.folder})
        self.assertEqual(followed.stdout.readline(), "50.0%\n")
        followed.kill()
        followed.communicate()
        # What is captured is for the back end to read once more.
        self.assertEqual(self.run_program("--capture", self.path("again.plist"), *call).returncode, 0)
        with open(self.path("again.plist"), "rb") as file:
            self.assertEqual(plistlib.load(file)["Registry"]["AppleSmartBattery"], battery)

    def test_capture_of_a_mac_hides_the_serial_of_apple_silicon(self):
        battery = {"Serial": "F8Y0417B2QW1LRXA3", "BatteryData": {"Serial": "F8Y0417B2QW1LRXA3"}, "Voltage": 12000}
        self.report_of(battery)
        self.assertEqual(self.run_program("--capture", self.path("mac.plist"), "--machine", self.machine, "--as-mac").returncode, 0)
        with open(self.path("mac.plist"), "rb") as file:
            captured = plistlib.load(file)["Registry"]["AppleSmartBattery"]
        self.assertNotIn("F8Y0417B2QW1LRXA3", repr(captured))
        self.assertEqual(len(captured["Serial"]), 17)
        self.assertEqual(captured["BatteryData"]["Serial"], captured["Serial"])
        self.assertEqual(captured["Voltage"], 12000)

    def test_report_dates_no_computer_by_a_serial_that_does_not_decode(self):
        expert = {"model": b"x\0", "IOPlatformSerialNumber": "PFQQABCDEFG"}
        report = self.report_of(Registry={"IOPlatformExpertDevice": expert})
        self.assertIn("PFQQABCDEFG", report)
        self.assertNotIn("Built", report)

    def test_report_has_power_with_one_decimal_and_failures(self):
        report = self.report_of({"CurrentCapacity": 50, "MaxCapacity": 100, "Voltage": 12345, "Amperage": -1000})
        self.assertRegex(report, "Discharging with +12.3 W\n")
        self.assertRegex(report, "Failures +No Errors\n")

    def test_demonstration_computer(self):
        state = json.loads(self.run_program("--demo", "--json", "--machine", self.machine).stdout.splitlines()[0])
        wanted = {"FullChargeCapacity": 4865, "CycleCount": 293, "BatteryHealth": "Good", "StateOfCharge": 61.0,
                  "StateOfHealth": 89.0, "Temperature": "78.5 °F", "StateText": "Discharging with",
                  "WattThroughput": 4.61, "CurrentCapacity": 2967, "TimeRemaining": "4:41"}
        self.assertEqual({key: state["battery"][key] for key in wanted}, wanted)
        self.assertEqual(state["mac"]["Name"], "Demo Computer")
        self.assertEqual(state["statusItem"]["title"], "61.0%")

    def test_a_saved_history_outside_is_an_ordinary_file_or_nothing(self):
        os.makedirs(self.path("inside"))
        os.makedirs(self.path("outside"))
        os.mkfifo(self.path("fifo"))
        os.symlink(self.path("fifo"), self.path("outside/QuindleData.qndarchive"))
        machine = self.path("inside/machine.plist")
        with open(machine, "wb") as file:
            plistlib.dump({**MACHINE, "ApplicationSupport": ["../outside"]}, file)
        state = json.loads(self.run_program("--json", "--machine", machine).stdout.splitlines()[0])
        self.assertEqual(state["savedRecords"], [])

    def test_a_step_leaves_the_demonstration_battery_alone(self):
        machine = self.path("steps.plist")
        with open(machine, "wb") as file:
            plistlib.dump({**MACHINE, "Steps": [{}]}, file)
        first, second = map(json.loads, self.run_program("--demo", "--json", "--machine", machine).stdout.splitlines())
        self.assertEqual(second["battery"], first["battery"])
        self.assertEqual(second["statusItem"]["title"], "61.0%")

    def test_a_line_is_printed_before_the_next_step_ends_the_program(self):
        machine = self.path("aborts.plist")
        with open(machine, "wb") as file:
            plistlib.dump({**MACHINE, "Steps": [{"Registry": {"AppleSmartBattery": {"CycleCount": "many"}}}]}, file)
        result = self.run_program("--json", "--machine", machine)
        self.assertLess(result.returncode, 0)
        self.assertEqual(json.loads(result.stdout.splitlines()[0])["statusItem"]["title"], "50.0%")

    def test_demonstration_computer_captured(self):
        target = self.path("demo.plist")
        machine = ["--machine", self.machine]
        self.assertEqual(self.run_program("--demo", *machine, "--capture", target, "--with-serials").returncode, 0)
        state = json.loads(self.run_program("--json", "--machine", target).stdout)
        self.assertEqual(state["battery"]["CurrentCapacity"], 2967)
        self.assertEqual(state["battery"]["Temperature"], "25.8 °C")
        self.assertEqual(state["mac"]["Serial"], SERIAL)

    def test_capture_hides_whose_computer_it_is(self):
        target, content = self.captured()
        self.assertEqual(stat.S_IMODE(os.stat(target).st_mode), 0o600)
        keys = plistlib.loads(content)
        everything = content + repr(keys).encode()
        for serial in (SERIAL, BATTERY_SERIAL):
            for start in range(len(serial) - 3):
                self.assertNotIn(serial[start:start + 4].encode(), everything)
        invented = keys["Registry"]["IOPlatformExpertDevice"]["IOPlatformSerialNumber"]
        self.assertEqual((len(invented), invented[2:5]), (len(SERIAL), SERIAL[2:5]))
        battery = keys["Registry"]["AppleSmartBattery"]
        self.assertEqual(len(battery["BatterySerialNumber"]), len(BATTERY_SERIAL))
        self.assertEqual(battery["BatterySerialNumber"], keys["PowerSources"][0]["Hardware Serial Number"])
        self.assertEqual(keys["HostName"], "Computer")
        self.assertEqual(keys["Defaults"]["standard"], {"statusBarString": "keep"})

    def test_capture_keeps_the_rest(self):
        battery = plistlib.loads(self.captured()[1])["Registry"]["AppleSmartBattery"]
        self.assertEqual((battery["Amperage"], battery["CurrentCapacity"]), (-1600, 50))

    def test_capture_with_serials_is_the_computer(self):
        keys = plistlib.loads(self.captured("--with-serials")[1])
        for key in ("Registry", "PowerSources", "AdapterDetails", "HostName", "Bundle", "Defaults"):
            self.assertEqual(keys[key], MACHINE[key], key)

    def test_captured_machine_reads_the_same(self):
        """Both at one moment: the snapshot and ages depend on the time."""
        target, content = self.captured("--with-serials")
        for path, machine in ((self.machine, MACHINE), (target, plistlib.loads(content))):
            with open(path, "wb") as file:
                plistlib.dump(machine | {"Now": datetime.datetime(2026, 3, 2, 12)}, file)
        states = [json.loads(self.run_program("--json", "--machine", path).stdout.splitlines()[0])
                  for path in (self.machine, target)]
        for state in states:
            for volatile in ("app", "mac"):
                del state[volatile]
        self.assertEqual(*states)

    def test_capture_replaces_a_file(self):
        with open(self.path("capture.plist"), "w", encoding="ascii") as file:
            file.write("old")
        plistlib.loads(self.captured()[1])

    def test_capture_into_a_pipe_leaves_the_pipe(self):
        pipe = self.path("pipe")
        os.mkfifo(pipe)
        reader = subprocess.Popen(["cat", pipe], stdout=subprocess.PIPE)
        result = self.run_program("--machine", self.machine, "--capture", pipe)
        content = reader.communicate(timeout=200)[0]
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertTrue(stat.S_ISFIFO(os.stat(pipe).st_mode))
        self.assertIn("Registry", plistlib.loads(content))

    def test_option_in_place_of_a_file_name(self):
        for option in ("--capture", "--machine", "--sysfs"):
            result = self.run_program(option, "--json")
            self.assertEqual((result.returncode, result.stderr.count("\n")), (2, 1))
            self.assertIn(option, result.stderr)

    def test_output_that_cannot_be_written(self):
        with open("/dev/full", "wb") as full:
            result = subprocess.run([PROGRAM, "--json", "--machine", self.machine], stdout=full,
                                    stderr=subprocess.PIPE, env={"PATH": os.environ["PATH"]}, timeout=200)
        self.assertEqual((result.returncode, result.stderr.count(b"\n")), (2, 1))

    def test_damaged_settings_stay_where_they_are(self):
        settings = os.path.join(self.folder, "quindle")
        os.mkdir(settings)
        names = ["com.fernhollow.Quindle-Helper.plist", "group.fernhollow.Quindle.plist"]
        for name in names:
            with open(os.path.join(settings, name), "w", encoding="ascii") as file:
                file.write("damaged")
        result = self.run_program("--json", "--sysfs", self.supplies())
        self.assertEqual(result.returncode, 0)
        self.assertEqual(sorted(os.listdir(settings)), names)

    def test_own_login_item_is_seen_and_captured_and_no_other(self):
        bundle = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(PROGRAM))))
        autostart = os.path.join(self.folder, "autostart")
        os.mkdir(autostart)
        for name, program in (("a", f'"{bundle}/Contents/Linux/quindle-helper"'), ("b", "/bin/sh")):
            with open(os.path.join(autostart, name + ".desktop"), "w", encoding="utf-8") as file:
                file.write(f"[Desktop Entry]\nType=Application\nName=x\nExec={program}\n")
        seen = json.loads(self.run_program("--json", "--sysfs", self.supplies()).stdout)["isAppLoginItem"]
        target = self.path("capture.plist")
        self.run_program("--sysfs", self.supplies(), "--capture", target)
        with open(target, "rb") as file:
            items = plistlib.load(file)["LoginItems"]
        again = json.loads(self.run_program("--json", "--machine", target).stdout)["isAppLoginItem"]
        os.remove(os.path.join(autostart, "a.desktop"))
        gone = json.loads(self.run_program("--json", "--sysfs", self.supplies()).stdout)["isAppLoginItem"]
        self.assertEqual((seen, again, gone), (True, True, False))
        self.assertEqual(len(items), 1)
        self.assertEqual(os.listdir(autostart), ["b.desktop"])

    def test_capture_that_cannot_be_written(self):
        result = self.run_program("--machine", self.machine, "--capture", "/nonexistent/folder/x")
        self.assertEqual((result.returncode, result.stderr.count("\n")), (2, 1))


if __name__ == "__main__":
    unittest.main()
