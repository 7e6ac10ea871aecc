#!/usr/bin/env python3
"""The process that has the helper's windows: started by a click, gone when nothing is open, and whatever happens to it,
the item lives and the next click works."""

import json
import os
import re
import shutil
import signal
import sys
import time
import unittest
from pathlib import Path

from fault_case import FaultCase, anonymous_memory
from helper_case import HELPER, Desktop, HelperCase, charge_step, machine, wait_for
from preferences_case import ACCESSIBILITY, PreferencesCase, nodes

OPENINGS = int(os.environ.get("QUINDLE_VIEW_OPENINGS", "40"))
# The sanitizers' allocator does, so that memory grows without a leak; those they report themselves.
KEEPS_FREED_MEMORY = os.environ.get("QUINDLE_KEEPS_FREED_MEMORY") == "1"


class WindowsCase(HelperCase):
    """A helper in a bundle of its own, in which the program of the windows can be replaced."""

    def setUp(self):
        self.contents = Path(self.desktop.root) / "own.app" / "Contents"
        shutil.copytree(Path(HELPER).parents[1], self.contents, symlinks=True)
        self.addCleanup(shutil.rmtree, self.contents)
        self.program = self.contents / "Linux/quindle-windows"
        self.real = self.contents / "Linux/real-windows"
        self.program.rename(self.real)
        self.log_start = self.desktop.log_path.stat().st_size

    def replace(self, script):
        """The program of the windows is that script from now on; $real names the real one."""
        new = self.program.with_suffix(".new")
        new.write_text(f"#!/bin/bash\nreal='{self.real}'\n{script}\n")
        new.chmod(0o755)
        new.rename(self.program)

    def start_own(self, computer=None):
        process = self.start(computer or machine(66), program=self.contents / "Linux/quindle-helper")
        self.assert_title("66.0%")
        return process

    def processes(self):
        """The processes of the windows."""
        found = []
        for entry in Path("/proc").iterdir():
            try:
                if entry.name.isdigit() and (entry / "exe").readlink() == self.real:
                    found.append(int(entry.name))
            except OSError:
                continue
        return found

    def logged(self, text):
        with open(self.desktop.log_path, "rb") as log:
            log.seek(self.log_start)
            return log.read().decode(errors="replace").count(text)

    def show(self):
        self.desktop.choose("Show Battery...")

    def assert_runs_on(self, process):
        self.assertIsNone(process.poll())
        self.assertEqual(self.desktop.item_title(), "66.0%")

    def assert_next_click_works(self, process):
        self.show()
        self.assert_view_opens()
        self.assert_runs_on(process)


class Windows(WindowsCase):
    def test_nothing_runs_before_the_first_click(self):
        self.replace('exec "$real" "$@"')
        process = self.start_own()
        time.sleep(0.5)
        self.assertEqual(self.processes(), [])
        self.assert_next_click_works(process)
        self.assertEqual(len(self.processes()), 1)

    def test_it_ends_when_nothing_has_been_open_for_a_while(self):
        self.replace('exec "$real" --patience=700 "$@"')
        process = self.start_own()
        for _ in range(2):
            self.show()
            self.assert_view_opens()
            time.sleep(1.5)
            self.assertEqual(len(self.processes()), 1, "it ended under an open window")
            begun = time.monotonic()
            self.desktop.activate_item()
            self.assertTrue(wait_for(lambda: not self.processes()), "it stays")
            # Its timer may fire early by a part.
            self.assertGreater(time.monotonic() - begun, 0.4, "it ended at once")
        self.assert_runs_on(process)
        self.assertEqual(self.logged("program of the windows"), 0)

    def test_it_ends_with_the_helper(self):
        self.replace('exec "$real" "$@"')
        for number in (signal.SIGTERM, signal.SIGKILL):
            process = self.start_own()
            self.show()
            self.assert_view_opens()
            process.send_signal(number)
            process.wait()
            self.assertTrue(wait_for(lambda: not self.processes()), number)
            self.assertTrue(wait_for(lambda: not self.desktop.registered_items()))

    def test_quit_in_the_view_ends_both(self):
        self.replace('exec "$real" "$@"')
        process = self.start_own()
        self.show()
        self.assert_view_opens()
        time.sleep(0.5)
        self.assertTrue(self.press_until(lambda: process.poll() is not None, "Up", "Return"))  # the last entry
        self.assertEqual(process.returncode, 0)
        self.assertTrue(wait_for(lambda: not self.processes()))
        self.assertEqual(self.logged("program of the windows"), 0)

    def test_killed_in_the_middle(self):
        self.replace('exec "$real" "$@"')
        process = self.start_own()
        for _ in range(3):
            self.assert_next_click_works(process)
            os.kill(self.processes()[0], signal.SIGKILL)
            self.assert_view_closes()
            self.assert_runs_on(process)
        ended = "program of the windows ended unexpectedly"
        self.assertTrue(wait_for(lambda: self.logged(ended) >= 3))
        self.assertEqual(self.logged(ended), 3)  # each after it had answered

    def test_asked_twice_while_it_starts(self):
        go = self.contents / "go"
        self.replace(f'until [ -e "{go}" ]; do sleep 0.1; done; exec "$real" "$@"')
        process = self.start_own()
        for _ in range(2):
            self.desktop.activate_item()
        self.assertEqual(self.desktop.windows(), [])
        go.touch()
        self.assert_view_opens()
        time.sleep(1)
        self.assertEqual(len(self.desktop.windows()), 1, "the second click closed what nobody had seen")
        self.assertEqual(len(self.processes()), 1)
        self.assert_runs_on(process)

    def test_missing_from_the_installation(self):
        process = self.start_own()
        for _ in range(3):
            self.show()
        self.assert_runs_on(process)
        self.assertTrue(wait_for(lambda: self.logged("the program of the windows cannot be started")))
        self.assertEqual(self.logged("the program of the windows cannot be started"), 1)
        self.replace('exec "$real" "$@"')
        self.assert_next_click_works(process)

    def test_one_that_crashes_at_each_start(self):
        self.replace("kill -SEGV $$")
        process = self.start_own()
        # One that has ended before the helper could say anything to it counts as one that does not answer.
        self.assertTrue(wait_for(lambda: self.show() or self.logged("the program of the windows ended unexpectedly"),
                                 60, 0.3))
        for _ in range(3):
            self.show()
            time.sleep(0.3)
        self.assert_runs_on(process)
        self.assertEqual(self.logged("the program of the windows ended unexpectedly"), 1)
        self.replace('exec "$real" "$@"')
        self.assert_next_click_works(process)

    def test_one_that_hangs(self):
        self.replace("exec sleep 100")
        process = self.start_own()
        files = len(os.listdir(f"/proc/{process.pid}/fd"))
        for _ in range(200):  # more than its queues hold
            self.desktop.activate_item()
            if len(os.listdir(f"/proc/{process.pid}/fd")) > files + 20:
                self.fail("it opens files without end")
            if self.logged("does not answer"):
                break
        self.assert_runs_on(process)
        self.replace('exec "$real" "$@"')
        self.assertTrue(wait_for(lambda: self.show() or self.desktop.windows(), pause=0.5), "no view after a while")
        self.assertLessEqual(self.logged("program of the windows does not answer"), 2)
        self.assert_runs_on(process)

    def test_a_recorded_computer_is_where_the_helper_s_is(self):
        self.replace('exec "$real" "$@"')
        self.start(machine(66, steps=[charge_step(65, 1), charge_step(64, 10)]),
                   program=self.contents / "Linux/quindle-helper",
                   env={"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
        self.assert_title("65.0%")
        self.show()
        self.assert_view_opens()
        self.assertTrue(wait_for(lambda: "65.0" in self.view_texts()), self.view_texts())
        self.assert_title("64.0%")
        self.assertTrue(wait_for(lambda: "64.0" in self.view_texts()), self.view_texts())

    def view_texts(self):
        tree = self.desktop.call("/usr/bin/python3", "-W", "ignore", ACCESSIBILITY, "tree", "quindle-helper")
        return [node["name"] for node in nodes(json.loads(tree or "[]"))]

    def test_many_openings_leave_the_helper_s_memory_flat(self):
        self.replace('exec "$real" "$@"')
        process = self.start_own()

        def open_and_close(times):
            for _ in range(times):
                self.desktop.activate_item()
                self.assert_view_opens()
                self.desktop.activate_item()
                self.assert_view_closes()
            return anonymous_memory(process)

        def files_of_helper():
            return len(os.listdir(f"/proc/{process.pid}/fd"))

        memory, files = open_and_close(5), files_of_helper()
        for _ in range(3):  # what openings leave behind grows each time; heaps settle late on a busy machine
            memory_before, memory = memory, open_and_close(OPENINGS)
            print(f"\n  {OPENINGS} openings: memory {memory_before} -> {memory} kB, files {files} -> {files_of_helper()}",
                  file=sys.stderr)
            self.assertTrue(wait_for(lambda: files_of_helper() == files), (files_of_helper(), files))
            if KEEPS_FREED_MEMORY or memory - memory_before < 120:  # three kilobytes left by each would be more
                break
        else:
            self.fail("the memory grows")


class WithoutADisplay(FaultCase):
    """The helper itself is no graphical program."""

    def libraries(self, process):
        return {Path(line.split(maxsplit=5)[-1]).name.split(".so")[0]
                for line in Path(f"/proc/{process.pid}/maps").read_text().splitlines() if ".so" in line}

    @staticmethod
    def x_server(desktop):
        server, = (pid for pid in desktop._own_processes() if "Xvfb" in desktop._command_line(pid))
        return server

    def connections(self):
        """How many files the X server has open: one more for each program that is connected."""
        return len(os.listdir(f"/proc/{self.x_server(self.desktop)}/fd"))

    def start_shown(self):
        bus = self.bus()
        bus.start()
        before = self.connections()
        process = self.start_helper({"DBUS_SESSION_BUS_ADDRESS": bus.address})
        item = self.watcher(bus).item()
        self.assert_shows(bus, item, "50.0%")
        time.sleep(4)  # what a start asks has been answered
        return process, before

    def test_it_loads_nothing_of_the_kind(self):
        process, _ = self.start_shown()
        loaded = self.libraries(process)
        self.assertIn("libQt6Core", loaded)
        graphical = [name for name in loaded if re.match("libQt6(Gui|Widgets|Svg|XcbQpa|WaylandClient)|libX11$|libwayland",
                                                         name)]
        self.assertEqual(graphical, [])

    def test_it_ends_with_the_display(self):
        desktop = Desktop("none")
        with desktop:
            helper = desktop.start(HELPER, env={"QUINDLE_SYSFS": str(self.sysfs)})
            time.sleep(1.5)
            self.assertIsNone(helper.poll())
            os.kill(self.x_server(desktop), signal.SIGTERM)
            self.assertEqual(helper.wait(40), 0)

    def test_it_is_not_connected_to_the_display(self):
        _, before = self.start_shown()
        self.assertTrue(wait_for(lambda: self.connections() == before), (self.connections(), before))


class ReadAloud(PreferencesCase):
    """What an assistive technology finds of the two windows that the toolkit would hide from it."""

    def view(self):
        return next((window for window in self.tree() if window["name"] == "Battery" and "showing" in window["states"]),
                    None)

    def test_the_battery_view(self):
        self.start_helper()
        self.desktop.activate_item()
        self.assertTrue(wait_for(self.view), "no battery view in the tree")
        names = [node["name"] for node in nodes([self.view()])]
        self.assertIn("66.0", names)
        self.assertIn("Discharging...", names)
        self.assertTrue([name for name in names if name.startswith("Temperature 30.0")], names)
        buttons = [node["name"] for node in nodes([self.view()]) if node["role"] == "push button"]
        self.assertIn("Preferences...", buttons)
        self.act("push button", next(name for name in buttons if name.startswith("Temperature")))
        self.assertTrue(wait_for(lambda: any("86.0" in node["name"] for node in nodes([self.view()]))))
        self.desktop.key("Escape")
        self.assertTrue(wait_for(lambda: not self.view()), "a closed view is still shown")

    def test_the_parameters(self):
        self.start_helper()
        self.open("Preferences...", "General")
        self.act("push button", "Parameters")
        popover = wait_for(lambda: next((window for window in self.tree() if window["name"] == "Parameters"
                                         and "showing" in window["states"]), None), 5)
        self.assertTrue(popover, "no popover in the tree")
        names = [node["name"] for node in nodes([popover])]
        self.assertTrue([name for name in names if name.startswith("%p, ") and "66.0" in name], names)


if __name__ == "__main__":
    unittest.main()
