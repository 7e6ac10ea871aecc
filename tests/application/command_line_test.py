"""command_line_test.py QUINDLE: what a terminal sees of the application, without a display."""

import json
import os
import socket
import sqlite3
import subprocess
import sys
import tempfile
import unittest
from contextlib import closing
from pathlib import Path

PROGRAM = sys.argv.pop(1)


class CommandLine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.env = {key: value for key, value in os.environ.items()
                    if key in ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")}
        self.env.update({"HOME": folder.name, "LC_ALL": "C.UTF-8",
                         "DBUS_SESSION_BUS_ADDRESS": f"unix:path={folder.name}/no-bus"})

    def answer(self, *arguments, stdout=subprocess.PIPE, given="", **env):
        done = subprocess.run([PROGRAM, *arguments], env={**self.env, **env}, input=given, stdout=stdout,
                              stderr=subprocess.PIPE, text=True, timeout=90, check=False)
        return done.returncode, done.stdout, done.stderr

    def test_help_and_version(self):
        for argument, first in (("--help", "Usage: quindle ["), ("--version", "quindle ")):
            status, output, errors = self.answer(argument)
            self.assertEqual((status, errors), (os.EX_OK, ""))
            self.assertTrue(output.startswith(first), output)

    def test_wrong_usage(self):
        status, output, errors = self.answer("--bogus")
        self.assertEqual((status, output), (os.EX_USAGE, ""))
        self.assertEqual(errors, 'quindle: unknown argument "--bogus" (see --help)\n')

    def test_no_display(self):
        status, _, errors = self.answer()
        self.assertEqual((status, errors), (os.EX_UNAVAILABLE, "quindle: there is no display to show a window on\n"))

    def test_a_display_that_is_not_there(self):
        for env, named in (({"DISPLAY": ":9999"}, '":9999"'), ({"WAYLAND_DISPLAY": "wayland-77"}, '"wayland-77"'),
                           ({"WAYLAND_DISPLAY": "wayland-77", "DISPLAY": ":9999"}, '"wayland-77" or ":9999"')):
            env["XDG_RUNTIME_DIR"] = self.folder
            status, _, errors = self.answer(**env)
            self.assertEqual((status, errors),
                             (os.EX_UNAVAILABLE, f"quindle: no window can be shown on the display {named}\n"))

    def test_a_display_that_does_not_answer(self):
        Path("/tmp/.X11-unix").mkdir(mode=0o1777, exist_ok=True)
        name = f":{1_000_000 + os.getpid()}"
        path = f"/tmp/.X11-unix/X{name[1:]}"
        with socket.socket(socket.AF_UNIX) as server:
            server.bind(path)
            self.addCleanup(os.unlink, path)
            server.listen()
            status, _, errors = self.answer(DISPLAY=name)
        self.assertEqual((status, errors), (os.EX_UNAVAILABLE, "quindle: gave up: the display does not answer\n"))

    def test_a_refused_machine_file_is_named(self):
        path = os.path.join(self.folder, "machine.plist")
        with open(path, "w", encoding="ascii") as file:
            file.write("no property list")
        status, _, errors = self.answer(QUINDLE_MACHINE=path)
        self.assertEqual(status, os.EX_DATAERR)
        self.assertIn(path, errors)
        self.assertEqual(errors.count("\n"), 1)

    def computer(self):
        """The environment of a computer with a battery and a home of its own."""
        supply = Path(self.folder, "sys/class/power_supply/BAT0")
        supply.mkdir(parents=True)
        for name, value in (("type", "Battery"), ("present", 1), ("status", "Discharging"), ("charge_now", 3000000),
                            ("charge_full", 6000000), ("charge_full_design", 6500000), ("voltage_now", 12000000),
                            ("serial_number", "SECRET17")):
            (supply / name).write_text(f"{value}\n")
        return {"QUINDLE_SYSFS": f"{self.folder}/sys", "XDG_DATA_HOME": f"{self.folder}/data",
                "XDG_CONFIG_HOME": f"{self.folder}/config"}

    def test_a_data_folder_whose_name_is_not_utf_8(self):
        folder = os.path.join(os.fsencode(self.folder), b"data-\xff")
        lines = "1767225600 66.5 -10.25 discharging\n"
        computer = {**self.computer(), "XDG_DATA_HOME": folder}
        self.assertEqual(self.answer("--record", given=lines, **computer), (os.EX_OK, "", ""))
        self.assertIn(b"history.sqlite", os.listdir(os.path.join(folder, b"quindle")))
        for kind in ((), ("--samples",)):
            status, output, errors = self.answer("--export", "csv", *kind, **computer)
            self.assertEqual((status, output.count("\n"), errors), (os.EX_OK, 2, ""))

    def test_recorded_and_exported_without_a_display(self):
        computer = self.computer()
        self.assertEqual(self.answer("--export", "csv", **computer)[0], os.EX_NOINPUT)
        lines = "1767225600 66.5 -10.25 discharging\n1767225660 66.4 - discharging\n"
        self.assertEqual(self.answer("--record", given=lines, **computer), (os.EX_OK, "", ""))
        history = Path(self.folder, "data/quindle/history.sqlite")
        self.assertEqual(history.stat().st_mode & 0o777, 0o600)
        with closing(sqlite3.connect(history)) as database:
            tables = [row[0] for row in database.execute("select name from sqlite_master where type = 'table'")]
            self.assertEqual(max(database.execute(f"select count(*) from {table}").fetchone()[0] for table in tables), 2)
        status, output, errors = self.answer("--export", "json", **computer)
        self.assertEqual((status, errors), (os.EX_OK, ""))
        self.assertEqual([record["Battery.FullChargeCapacity"] for record in json.loads(output)], [6000])
        self.assertNotIn("SECRET17", output)
        self.assertIn("SECRET17", self.answer("--export", "json", "--with-serials", **computer)[1])
        self.assertEqual(json.loads(self.answer("--export=json", "--since=2999-01-01", **computer)[1]), [])
        self.assertEqual(self.answer("--export", "csv", **computer)[1].count("\n"), 2)

    def test_a_line_that_is_no_sample(self):
        status, _, errors = self.answer("--record", given="nonsense\n", **self.computer())
        self.assertEqual((status, errors.count("\n")), (os.EX_DATAERR, 1))
        self.assertTrue(errors.startswith("quindle: "), errors)

    def test_an_answer_that_cannot_be_written(self):
        with open("/dev/full", "w", encoding="ascii") as full:
            status, _, errors = self.answer("--help", stdout=full)
        self.assertEqual((status, errors), (os.EX_IOERR, "quindle: cannot write to standard output\n"))


if __name__ == "__main__":
    unittest.main()
