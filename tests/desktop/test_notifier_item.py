#!/usr/bin/env python3
"""The helper as a StatusNotifierItem in a real panel."""

import os
import re
import signal
import time
import unittest

from helper_case import HELPER, HelperCase, charge_step, machine, wait_for

ICON = (16, 14)  # the one item in the panel's top left corner


class NotifierItem(HelperCase):
    def test_title_tool_tip_and_menu_are_on_the_bus(self):
        self.start(machine(66, template="%p% %r"))
        self.assert_title("66.0% 1:35")
        tool_tip = self.desktop.item_property("ToolTip")
        self.assertIn("66.0% 1:35", tool_tip)
        self.assertIn("Discharging", tool_tip)
        self.assertIn("false", self.desktop.item_property("ItemIsMenu"))
        layout = self.desktop.gdbus(self.desktop.item_name(), "/MenuBar", "com.canonical.dbusmenu.GetLayout", "0", "-1",
                                    "[]")
        for text in ("66.0% 1:35", "Open Application", "Version 9", "Quit", "42"):
            self.assertIn(text, layout)

    def menu(self, parent=0):
        """The rows of the menu itself or of a submenu, as a host asks for them: {id: printed properties}."""
        layout = self.desktop.gdbus(self.desktop.item_name(), "/MenuBar", "com.canonical.dbusmenu.GetLayout", str(parent),
                                    "1", "[]")
        return {int(row): properties for row, properties in re.findall(r"<\((\d+), (\{.*?\}), ", layout)}

    def test_the_menu_has_four_facts_the_commands_and_details(self):
        self.start(machine(66))
        self.assert_title("66.0%")
        rows = self.menu()
        seen = [row for row in rows.values() if "'visible': <true>" in row and "separator" not in row]
        facts = [row for row in seen if "'enabled': <false>" in row and "Version" not in row]
        self.assertEqual(len(facts), 4, facts)
        self.assertLessEqual(len(seen), 11, seen)  # all of it is seen on a screen of 600 pixels
        details = next(number for number, row in rows.items() if "'children-display': <'submenu'>" in row)
        self.assertIn("Cycles: 42", "".join(self.menu(details).values()))

    def test_the_template_is_shown_literally(self):
        self.start(machine(50, template="<b>&x_y %p %1 %n"))
        self.assert_title("<b>&x_y 50.0 %1 %n")
        self.assertIn("<b>&x_y", self.desktop.item_property("ToolTip"))  # this panel escapes the first text itself

    def test_a_long_title_stays_exact(self):
        template = "\u05d0\u2764\ufe0f " * 1000 + "%p"  # of 4,096 characters that count
        self.start(machine(50, template=template))
        self.assertTrue(wait_for(lambda: (self.desktop.item_title() or "").endswith("50.0")))
        self.assertEqual(self.desktop.item_title(), template.replace("%p", "50.0"))

    def test_a_change_shows_and_rest_sends_nothing(self):
        self.start(machine(66, steps=[charge_step(65, 6)]))
        self.assert_title("66.0%")
        self.assert_title("65.0%")
        time.sleep(0.5)
        monitor_path = self.desktop.root / "monitor"
        with open(monitor_path, "wb") as stream:
            monitor = self.desktop.start("dbus-monitor", "--session", "--profile",
                                         f"sender='{self.desktop.item_name()}'", stdout=stream)
            time.sleep(11)  # one tick of the refresh at least
            monitor.terminate()
            monitor.wait()
        signals = [line for line in monitor_path.read_text().splitlines() if line.startswith("sig\t")
                   and "NameAcquired" not in line and "NameLost" not in line]
        self.assertEqual(signals, [])

    def test_the_interim_title_never_leaves_the_process(self):
        monitor_path = self.desktop.root / "changes"
        with open(monitor_path, "wb") as stream:
            monitor = self.desktop.start("dbus-monitor", "--session", stdout=stream)
            self.assertTrue(wait_for(lambda: monitor_path.stat().st_size > 0), "nobody listens")
            self.start(machine(66, steps=[charge_step(65, 1), charge_step(64, 1)]))
            self.assert_title("64.0%")
            self.assertTrue(wait_for(lambda: "64.0%" in monitor_path.read_text(errors="replace")))
            monitor.terminate()
            monitor.wait()
        seen = monitor_path.read_text(errors="replace")
        self.assertIn("64.0%", seen)
        self.assertNotIn("100 %", seen)
        self.assertLessEqual(seen.count("member=NewTitle"), 3)

    def assert_in_panel(self, colour):
        shown = wait_for(lambda: colour in self.desktop.call(
            "sh", "-c", "import -silent -window root -crop 28x28+0+0 -depth 8 -format %c histogram:info:-"), 5)
        self.assertTrue(shown, f"nothing in the panel has the colour {colour}")

    def test_the_icon_has_the_colour_of_the_panel_s_text(self):
        panel = self.desktop.panel_text_colour()
        self.assertRegex(panel, "^#[0-9A-F]{6}$", "this panel publishes its colours")
        self.start(machine(95))
        self.assert_title("95.0%")
        self.assert_in_panel(panel)

    def colour_the_panel(self):
        self.desktop.call("sh", "-c", "for id in $(xwininfo -root -tree | grep -o '0x[0-9a-f]*' | sort -u); do "
                                      "xprop -id $id _NET_SYSTEM_TRAY_COLORS | grep -q = && "
                                      "xprop -id $id -f _NET_SYSTEM_TRAY_COLORS 32c -set _NET_SYSTEM_TRAY_COLORS "
                                      "65535,257,514,0,0,0,0,0,0,0,0,0; done")
        self.assertEqual(self.desktop.panel_text_colour(), "#FF0102")

    def test_other_colours_of_the_panel_are_seen_when_the_theme_is_switched(self):
        self.start(machine(95))
        self.assert_title("95.0%")
        time.sleep(5)  # the colours were asked for after the registration, and once more three seconds later
        self.colour_the_panel()
        self.desktop.call("gdbus", "emit", "--session", "--object-path", "/org/xfce/Xfconf", "--signal",
                          "org.xfce.Xfconf.PropertyChanged", "xsettings", "/Net/ThemeName", "<'Adwaita-dark'>")
        self.assert_in_panel("#FF0102")

    def test_other_colours_of_the_panel_are_seen_when_the_menu_opens(self):
        self.start(machine(95))
        self.assert_title("95.0%")
        time.sleep(5)  # the colours were asked for after the registration, and once more three seconds later
        self.colour_the_panel()
        self.desktop.gdbus(self.desktop.item_name(), "/MenuBar", "com.canonical.dbusmenu.AboutToShow", "0")
        self.assert_in_panel("#FF0102")

    def test_a_server_that_hangs_for_a_moment_leaves_the_colours_as_they_were(self):
        panel = self.desktop.panel_text_colour()
        self.start(machine(95))
        self.assert_title("95.0%")
        time.sleep(5)
        self.assert_in_panel(panel)
        server = next(pid for pid in self.desktop._own_processes() if "Xvfb" in self.desktop._command_line(pid))
        os.kill(server, signal.SIGSTOP)
        try:
            self.desktop.gdbus(self.desktop.item_name(), "/MenuBar", "com.canonical.dbusmenu.AboutToShow", "0")
            time.sleep(1)
        finally:
            os.kill(server, signal.SIGCONT)
        time.sleep(1)
        self.assert_in_panel(panel)

    def test_click_opens_the_view_and_escape_closes_it(self):
        self.start(machine(66))
        self.assert_title("66.0%")
        time.sleep(0.5)
        self.assertTrue(self.click_until(self.desktop.windows, *ICON), "no battery view appeared")
        self.assertTrue(self.press_until(lambda: not self.desktop.windows(), "Escape"), "the battery view stayed")

    def test_a_second_start_opens_the_view_of_the_first(self):
        first = self.start(machine(66))
        self.assert_title("66.0%")
        second = self.start(machine(12), "second.plist")
        self.assertEqual(second.wait(40), 0)
        self.assert_view_opens()
        self.assertEqual(len(self.desktop.registered_items()), 1)
        self.assert_title("66.0%")
        self.assertIsNone(first.poll())

    def assert_view_stays(self, what):
        time.sleep(1)
        self.assertEqual(len(self.desktop.windows()), 1, what)

    def test_only_a_click_on_the_item_closes_the_view(self):
        self.start(machine(66))
        self.assert_title("66.0%")
        for what in ("the first", "another"):
            self.desktop.choose("Show Battery...")
            self.assert_view_opens()
            self.assert_view_stays(f"after {what} \"Show Battery...\"")
        for number in range(2):
            self.assertEqual(self.start(machine(12), "second.plist").wait(40), 0)
            self.assert_view_stays(f"after {number + 1} further starts")
        self.desktop.activate_item()
        self.assert_view_closes()
        self.desktop.activate_item()
        self.assert_view_opens()

    def test_quit_in_the_menu_ends_it(self):
        process = self.start(machine(66))
        self.assert_title("66.0%")
        layout = self.desktop.gdbus(self.desktop.item_name(), "/MenuBar", "com.canonical.dbusmenu.GetLayout", "0", "-1",
                                    "['label']")
        row = re.search(r"\((\d+), \{[^}]*'label': <'Quit'>", layout)
        self.assertIsNotNone(row, layout)
        self.desktop.gdbus(self.desktop.item_name(), "/MenuBar", "com.canonical.dbusmenu.Event", row.group(1), "clicked",
                           "<''>", "0")
        self.assertEqual(process.wait(40), 0)

    def test_without_a_battery(self):
        computer = machine()
        del computer["Registry"]["AppleSmartBattery"]
        self.start(computer)
        self.assertTrue(self.desktop.item_name())
        self.assert_title("")
        self.assertIn("No battery", self.desktop.item_property("ToolTip"))
        time.sleep(0.5)
        self.assertTrue(self.click_until(self.desktop.windows, *ICON), "no battery view appeared")

    def test_a_refused_machine_file_ends_it_with_one_line(self):
        process = self.start({"Nonsense": True})
        self.assertEqual(process.wait(40), 2)

    def test_the_settings_files_are_followed_without_a_notification(self):
        import plistlib
        from pathlib import Path
        sysfs = Path(__file__).resolve().parents[1] / "data/sysfs/framework-13-discharging-93"
        process = self.desktop.start(HELPER, env={"QUINDLE_SYSFS": str(sysfs)})
        self.addCleanup(self.stop, process)
        self.assertTrue(wait_for(lambda: "%" in (self.desktop.item_title() or "")))
        folder = Path(self.desktop.env["XDG_CONFIG_HOME"]) / "quindle"
        folder.mkdir(exist_ok=True)
        settings = folder / "group.fernhollow.Quindle.plist"
        self.addCleanup(lambda: settings.unlink(missing_ok=True))
        settings.write_bytes(plistlib.dumps({"customStatusBar": "edited"}))
        self.assert_title("edited")


if __name__ == "__main__":
    unittest.main()
