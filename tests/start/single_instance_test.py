"""Starts of quindle-helper beside another one: exactly one item on a session bus, and no start that waits for ever."""

import fcntl
import os
import signal
import subprocess
import time
import unittest
from pathlib import Path

import dbus
import dbus.bus

from start_case import AT_MOST, HELPER, Monitor, StartCase, wait_for

NAME = "com.fernhollow.Quindle-Helper"
OTHER_USER = 65534


def read_only(folder):
    """Makes a folder one in which nothing can be made, also for root."""
    if os.geteuid() != 0:
        folder.chmod(0o500)
        return folder
    return "/proc"


def is_locked(path):
    return path.exists() and f":{path.stat().st_ino} " in Path("/proc/locks").read_text(encoding="ascii")


class OnABus(StartCase):
    def setUp(self):
        super().setUp()
        self.session = self.bus()

    def first(self, **env):
        process = self.start(self.session, **env)
        self.assert_titles(self.session, ["50.0%"])
        return process

    def assert_second_ends(self, **env):
        status, errors = self.result(self.start(self.session, **env))
        self.assertEqual(status, 0, errors)
        self.assert_titles(self.session, ["50.0%"])

    def test_one_display_by_any_of_its_names(self):
        self.first(DISPLAY=":77")
        for display in (":77.0", "unix:77", ":78"):
            self.assert_second_ends(DISPLAY=display)
        self.assert_second_ends(WAYLAND_DISPLAY="wayland-9")

    def test_another_runtime_folder(self):
        self.first()
        (self.root / "runtime2").mkdir(mode=0o700)
        self.assert_second_ends(XDG_RUNTIME_DIR=str(self.root / "runtime2"))
        self.assert_second_ends(without=("XDG_RUNTIME_DIR",))

    def test_a_runtime_folder_longer_than_the_path_of_a_socket(self):
        folder = self.root / "/".join(["x" * 60] * 3)
        folder.mkdir(parents=True, mode=0o700)
        self.first(XDG_RUNTIME_DIR=str(folder))
        self.assert_second_ends(XDG_RUNTIME_DIR=str(folder))

    def test_a_runtime_folder_that_is_read_only(self):
        folder = str(read_only(self.root / "runtime"))
        self.first(XDG_RUNTIME_DIR=folder)
        self.assert_second_ends(XDG_RUNTIME_DIR=folder)

    def test_a_directory_in_the_place_of_the_socket(self):
        for name in ("quindle-helper-none.socket", "quindle-helper-_77.socket"):
            (self.root / "runtime" / name / "inside").mkdir(parents=True)
        self.first(DISPLAY=":77")
        self.assert_second_ends(DISPLAY=":77")

    def test_a_lock_that_another_process_holds(self):
        for name in ("quindle-helper-none.lock", "quindle-helper-_77.lock"):
            file = open(self.root / "runtime" / name, "w", encoding="ascii")
            self.addCleanup(file.close)
            fcntl.flock(file, fcntl.LOCK_EX)
        self.first(DISPLAY=":77")
        self.assert_second_ends(DISPLAY=":77")

    def test_fifty_at_once(self):
        starts = [self.start(self.session) for _ in range(50)]
        self.assertTrue(wait_for(lambda: sum(start.poll() is None for start in starts) == 1, 300))
        self.assert_titles(self.session, ["50.0%"])

    def test_one_that_was_killed_is_in_nobodys_way(self):
        first = self.first()
        first.kill()
        first.wait()
        self.first()

    def test_one_that_is_stopped_lets_the_second_end_with_a_line(self):
        first = self.first()
        first.send_signal(signal.SIGSTOP)
        status, errors = self.result(self.start(self.session))
        self.assertEqual(status, 1)
        self.assertEqual(errors, f"quindle-helper: another one, process {first.pid}, runs in this session but does not "
                                 "answer\n")
        first.send_signal(signal.SIGCONT)
        self.assert_titles(self.session, ["50.0%"])

    def test_a_bus_that_is_stopped_lets_the_start_end_with_a_line(self):
        self.session.daemon.send_signal(signal.SIGSTOP)
        status, errors = self.result(self.start(self.session))
        self.assertEqual((status, errors.count("\n")), (1, 1), errors)

    def test_each_bus_has_its_own(self):
        other = self.bus(self.root / "bus2")
        self.first(DISPLAY=":77")
        self.start(other, DISPLAY=":77")
        self.assert_titles(other, ["50.0%"])
        self.assert_titles(self.session, ["50.0%"])

    def test_answers_to_arguments_leave_the_first_alone(self):
        first = self.first()
        monitor = Monitor(self, self.session)
        for argument, status in (("--help", 0), ("--version", 0), ("--bogus", 2)):
            done = subprocess.run([HELPER, argument], env=self.environment(DBUS_SESSION_BUS_ADDRESS=self.session.address),
                                  stdin=subprocess.DEVNULL, capture_output=True, timeout=90, check=False)
            self.assertEqual(done.returncode, status)
        bus = dbus.bus.BusConnection(self.session.address)  # which the monitor hears, after all that was said before
        self.addCleanup(bus.close)
        bus.get_object("org.freedesktop.DBus", "/").GetId(dbus_interface="org.freedesktop.DBus")
        self.assertTrue(monitor.comes_to_say("member=GetId"), monitor.said())
        self.assertNotIn(NAME, monitor.said())
        children = Path(f"/proc/{first.pid}/task/{first.pid}/children").read_text(encoding="ascii")
        self.assertEqual(children, "")

    def test_anybody_in_the_session_may_ask_for_the_view(self):
        self.first()
        bus = dbus.bus.BusConnection(self.session.address)
        self.addCleanup(bus.close)
        application = bus.get_object(NAME, "/com/fernhollow/Quindle_Helper", introspect=False)
        application.Activate({}, dbus_interface="org.freedesktop.Application", signature="a{sv}", timeout=10)

    def test_the_first_gets_the_activation_token_of_the_second(self):
        self.first()
        monitor = Monitor(self, self.session, "interface='org.freedesktop.Application'")
        self.assert_second_ends(XDG_ACTIVATION_TOKEN="token-of-the-second")
        self.assertTrue(monitor.comes_to_say('string "token-of-the-second"'), monitor.said())
        self.assertRegex(monitor.said(), r'"activation-token"\s+variant\s+string "token-of-the-second"')

    def test_a_bus_that_comes_late_and_a_second_start_leave_one(self):
        self.session.kill()
        first = self.start(self.session)
        time.sleep(1.5)
        self.assertIsNone(first.poll())
        self.session = self.bus()
        second = self.start(self.session)
        self.assertTrue(wait_for(lambda: (first.poll() is None) != (second.poll() is None), AT_MOST))
        time.sleep(1)
        self.assertNotEqual(first.poll() is None, second.poll() is None)
        self.assert_titles(self.session, ["50.0%"])

    def test_the_name_is_taken_again_after_the_bus_was_restarted(self):
        first = self.first()
        self.session.kill()
        self.session = self.bus()
        self.assert_titles(self.session, ["50.0%"])
        self.assert_second_ends()
        self.assertIsNone(first.poll())

    def test_a_second_start_while_the_bus_is_away(self):
        first = self.first()
        self.session.kill()
        self.assertEqual(self.result(self.start(self.session))[0], 0)
        self.assertIsNone(first.poll())


class WithoutABus(StartCase):
    """What counts is the display."""

    def sockets(self):
        return [path for path in self.root.rglob("quindle-helper-*.socket") if path.is_socket()]

    def first(self, **env):
        process = self.start(**env)
        self.assertTrue(wait_for(self.sockets, AT_MOST), "nobody listens")
        self.assertIsNone(process.poll())
        return process

    def assert_second_ends(self, **env):
        status, errors = self.result(self.start(**env))
        self.assertEqual(status, 0, errors)

    def assert_given_up(self, *words, **env):
        status, errors = self.result(self.start(**env))
        self.assertEqual(status, 1, errors)
        lines = [line for line in errors.splitlines() if line.startswith("quindle-helper: ")]
        self.assertEqual(len(lines), 1, errors)
        for word in words:
            self.assertIn(word, lines[0])

    def test_one_display_by_any_of_its_names(self):
        self.first(DISPLAY=":77")
        for display in (":77", ":77.0", ":77.1", "unix:77", "unix:77.0"):
            self.assert_second_ends(DISPLAY=display)

    def test_a_runtime_folder_longer_than_the_path_of_a_socket(self):
        folder = self.root / "/".join(["x" * 60] * 3)
        folder.mkdir(parents=True, mode=0o700)
        first = self.first(XDG_RUNTIME_DIR=str(folder))
        self.assertEqual(self.sockets(), [folder / "quindle-helper-none.socket"])
        self.assert_second_ends(XDG_RUNTIME_DIR=str(folder))
        self.assertIsNone(first.poll())

    def test_an_empty_directory_in_the_place_of_the_socket(self):
        (self.root / "runtime/quindle-helper-none.socket").mkdir()
        self.first()
        self.assert_second_ends()

    def test_a_full_directory_in_the_place_of_the_socket(self):
        (self.root / "runtime/quindle-helper-none.socket/inside").mkdir(parents=True)
        first = self.start()
        lock = self.root / "runtime/quindle-helper-none.lock"
        self.assertTrue(wait_for(lambda: is_locked(lock), AT_MOST))
        self.assert_given_up("quindle-helper-none.lock")
        self.assertIsNone(first.poll())

    def test_a_lock_that_another_process_holds(self):
        lock = self.root / "runtime/quindle-helper-none.lock"
        with open(lock, "w", encoding="ascii") as file:
            fcntl.flock(file, fcntl.LOCK_EX)
            self.assert_given_up(str(lock), "does not answer")

    def test_a_runtime_folder_that_is_read_only(self):
        folder = str(read_only(self.root / "runtime"))
        self.first(XDG_RUNTIME_DIR=folder)
        self.assert_second_ends(XDG_RUNTIME_DIR=folder)

    def test_no_folder_at_all(self):
        folder = str(read_only(self.root / "runtime"))
        self.assert_given_up("XDG_RUNTIME_DIR", XDG_RUNTIME_DIR=folder, XDG_CONFIG_HOME="/proc")

    if os.geteuid() == 0:  # to give folders away takes the right to

        def test_a_runtime_folder_of_another_user_is_not_used(self):
            os.chown(self.root / "runtime", OTHER_USER, OTHER_USER)
            self.first()
            self.assertEqual(os.listdir(self.root / "runtime"), [])
            self.assert_second_ends()

        def test_a_folder_that_another_user_made_first_switches_nothing_off(self):
            user = 50_000 + os.getpid() % 10_000
            temporary = f"/tmp/quindle-{user}"
            os.mkdir(temporary)
            self.addCleanup(os.rmdir, temporary)
            os.chown(temporary, OTHER_USER, OTHER_USER)
            self.root.chmod(0o755)
            for path in [*self.root.iterdir()]:
                os.chown(path, user, user)
            as_user = {"program": self.install(self.root / "installed"), "XDG_RUNTIME_DIR": None,
                       "prefix": ["setpriv", f"--reuid={user}", f"--regid={user}", "--clear-groups"]}
            self.first(**as_user)
            self.assert_second_ends(**as_user)

    def test_a_runtime_folder_that_others_may_write_to_is_not_used(self):
        (self.root / "runtime").chmod(0o777)
        self.first()
        self.assertEqual(os.listdir(self.root / "runtime"), [])

    def test_fifty_at_once(self):
        starts = [self.start() for _ in range(50)]
        self.assertTrue(wait_for(lambda: sum(start.poll() is None for start in starts) == 1, 300))


if __name__ == "__main__":
    unittest.main()
