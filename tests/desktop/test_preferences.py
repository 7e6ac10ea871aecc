#!/usr/bin/env python3
"""The windows of settings in a real desktop: title, settings files and autostart folder change as the user works."""

import os
import re
import shutil
import time
import unittest
from pathlib import Path

from helper_case import SOURCE, SUITE, wait_for
from preferences_case import OWN, PreferencesCase, nodes


class General(PreferencesCase):
    def setUp(self):
        super().setUp()
        self.start_helper()
        self.count = self.announced()
        self.open("Preferences...", "General")

    def assert_announced(self, expected):
        wait_for(lambda: self.count() >= expected)
        time.sleep(0.3)
        self.assertEqual(self.count(), expected, "announcements")

    def test_opening_announces_nothing(self):
        self.assert_announced(0)

    def test_typed_text_is_the_title(self):
        self.type("%p% of it")
        self.assertTrue(wait_for(lambda: self.control("label", "Would show 66.0% of it")), "no live preview")
        self.assertEqual(self.stored("customStatusBar"), "%p%", "stored before it was meant")
        self.desktop.key("Return")
        self.assert_title("66.0% of it")
        self.assert_stored("customStatusBar", "%p% of it")
        self.assertTrue(wait_for(lambda: self.control("label", "Now shows 66.0% of it")), "stored and not said")
        self.desktop.key("Tab")
        self.assert_announced(1)

    def test_reset(self):
        self.store(SUITE, {"customStatusBar": "mine"})
        self.announce()
        self.assertTrue(wait_for(lambda: self.control("text", "Menu bar text")["text"] == "mine"))
        self.assert_title("mine")
        self.click("push button", "Reset menu bar text")
        self.assert_stored("customStatusBar", "%p%")
        self.assert_title("66.0%")
        self.assert_announced(2)

    def test_temperature_by_mouse(self):
        self.type("%t")
        self.desktop.key("Return")
        self.assert_title("30.0")
        self.click("radio button", "Fahrenheit")
        self.assert_title("86.0")
        self.assert_stored("temperatureSettingIndex", 1)
        self.assertIsNone(self.stored("QDBatteryTemperatureMode", OWN))
        self.assert_announced(2)

    def test_check_boxes_by_mouse_and_by_an_assistive_technology(self):
        self.click("check box", "Show battery icon")
        self.assert_stored("showIconsInMenuBar", 0)
        self.act("check box", "Show battery icon")
        self.assert_stored("showIconsInMenuBar", 1)
        self.act("check box", "Send battery health once a day")
        self.assert_stored("autoUpload", True)
        self.assertIsNone(self.stored("autoUploadBatteryData", OWN))
        self.assert_announced(3)

    def test_the_helper_cannot_switch_its_own_login_item_here(self):
        box = self.control("check box", "Start when I log in")
        self.assertNotIn("enabled", box["states"])
        texts = [node["name"] for node in nodes(self.tree())]
        self.assertIn("This option can only be disabled in main application. "
                      "Run it via \"Open Application\" from the menu", texts)

    def test_parameters(self):
        self.type("at ")
        self.act("push button", "Parameters")
        self.assertTrue(wait_for(lambda: len(self.desktop.windows()) == 2), "no popover")
        self.assertEqual(self.stored("customStatusBar"), "%p%", "the popover stored what was being typed")
        self.desktop.key("Down")
        self.desktop.key("Return")
        self.assert_stored("customStatusBar", "at %s")
        # Writing goes on in the text.
        self.desktop.call("xdotool", "type", "--delay", "20", " now")
        self.desktop.key("Return")
        self.assert_stored("customStatusBar", "at %s now")

    def test_escape_takes_a_text_back(self):
        self.type("not meant")
        self.desktop.key("Escape")
        self.assertTrue(wait_for(lambda: self.control("text", "Menu bar text")["text"] == "%p%"))
        self.assertTrue(self.window("General"), "Escape closed more than the typing")
        self.assertEqual(self.stored("customStatusBar"), "%p%")

    def test_what_is_typed_is_stored_when_the_window_closes_or_shows_another_pane(self):
        self.type("one")
        self.act("radio button", "Update")
        self.assert_stored("customStatusBar", "one")
        self.act("radio button", "General")
        self.assertTrue(wait_for(lambda: self.window("General")))
        self.click("text", "Menu bar text")
        self.type("two")
        self.desktop.key("ctrl+w")
        self.assert_stored("customStatusBar", "two")

    def test_what_is_sent(self):
        self.act("push button", "See exactly what is sent")
        self.assertTrue(wait_for(lambda: self.window("What is sent")))
        texts = [node["name"] for node in nodes(self.tree())]
        self.assertIn("Nothing would be sent: no host of the statistics service is configured.", texts)
        self.desktop.key("Escape")
        self.assertTrue(wait_for(lambda: not self.window("What is sent")))

    def test_keys_that_close(self):
        self.desktop.key("ctrl+shift+w")
        time.sleep(0.5)
        self.assertTrue(wait_for(lambda: self.window("General")), "another key")
        for key in ("ctrl+w", "Escape"):
            self.desktop.key(key)
            self.assertTrue(wait_for(lambda: not self.window("General")), key)
            self.open("Preferences...", "General")
        self.act("push button", "See exactly what is sent")
        self.assertTrue(wait_for(lambda: self.window("What is sent")))
        self.desktop.key("ctrl+w")
        self.assertTrue(wait_for(lambda: not self.window("What is sent")), "a dialog")
        self.assertTrue(self.window("General"))

    def test_panes(self):
        self.act("radio button", "Update")
        self.assertTrue(wait_for(lambda: self.window("Update")))
        self.assertTrue(any("0.1.0" in node["name"] for node in nodes(self.tree())), "no version")
        self.click("radio button", "Menu Bar")
        self.assertTrue(wait_for(lambda: self.window("Menu Bar")))
        time.sleep(0.5)
        self.act("push button", "Menu Bar Text")
        self.assertTrue(wait_for(lambda: self.window("Menu Bar Text")))

    def test_the_menu_bar_pane_shows_what_the_panel_shows(self):
        self.act("radio button", "Menu Bar")
        for choice, shown in (("What suits the panel", "the icon alone"),
                              ("One wide picture with the text", "the number 66"),
                              ("Icon only", "the icon alone")):
            self.act("radio button", choice)
            self.assertTrue(self.control("label", f"Now shows {shown}"), choice)

    def focused(self):
        return [(node["role"], node["name"]) for node in nodes(self.tree()) if "focused" in node["states"]]

    def reached_by_tab(self, wanted, presses):
        """The controls that had the keyboard. Tab is pressed more often where a busy window was read before it moved on."""
        reached = set()
        for press in range(5 * presses):
            if press >= presses and wanted <= reached:
                break
            self.desktop.key("Tab")
            self.assertTrue(wait_for(lambda: len(self.focused()) == 1), "who has the keyboard?")
            reached.update(self.focused())
        return reached

    def test_every_control_has_a_name_and_the_keyboard_reaches_it(self):
        for pane in ("General", "Menu Bar", "Update"):
            self.act("radio button", pane)
            self.assertTrue(wait_for(lambda: self.window(pane)))
            time.sleep(0.5)
            controls = [node for node in nodes(self.tree()) if {"focusable", "enabled"} <= set(node["states"])
                        and node["role"] != "label"]  # the version, which the mouse may mark
            self.assertTrue(controls)
            self.assertEqual([node["role"] for node in controls if not node["name"]], [], f"nameless in {pane}")
            wanted = {(node["role"], node["name"]) for node in controls}
            # Of a group of radio buttons Tab reaches one.
            alone = {control for control in wanted if control[0] != "radio button"}
            reached = self.reached_by_tab(alone, len(controls))
            self.assertEqual(alone - reached, set(), f"{pane}: Tab never came there")
            self.assertTrue(alone == wanted or any(role == "radio button" for role, _ in reached), pane)


class MenuBarText(PreferencesCase):
    def setUp(self):
        super().setUp()
        self.start_helper()
        self.count = self.announced()
        self.open("Menu Bar Text...", "Menu Bar Text")

    def test_custom_text(self):
        self.assertNotIn("enabled", self.control("text", "Custom menu bar text")["states"])
        self.click("radio button", "Custom text")
        self.assert_stored("customMenuBarSettingSelectedIndex", 1, OWN)
        self.assertTrue(wait_for(lambda: "enabled" in self.control("text", "Custom menu bar text")["states"]))
        self.click("text", "Custom menu bar text")
        self.type("%l cycles")
        self.desktop.key("Return")
        self.assert_title("12 cycles")
        self.click("radio button", "Standard title")
        self.assert_title("66.0%")
        self.click("radio button", "Custom text")
        self.assert_title("12 cycles")
        self.assertEqual(self.count(), 0, "this window announces nothing")

    def test_the_selected_row_is_chosen_in_four_ways(self):
        row = "customMenuBarSettingSelectedIndex"
        self.assertIsNone(self.stored(row, OWN))
        for choose in (lambda: self.click("radio button", "Standard title"), lambda: self.desktop.key("space"),
                       lambda: self.desktop.key("alt+s"), lambda: self.act("radio button", "Standard title")):
            choose()
            self.assert_stored(row, 0, OWN)
            self.assert_checked("radio button", "Standard title")
            self.store(OWN, {})

    def test_a_text_written_in_the_other_window_is_shown_as_selected(self):
        self.open("Preferences...", "General")
        self.type("%l cycles")
        self.desktop.key("Return")
        self.assert_title("12 cycles")
        self.assert_checked("radio button", "Custom text")
        self.assertNotIn("enabled", self.control("text", "Custom menu bar text")["states"])
        self.assertIsNone(self.stored("customMenuBarSettingSelectedIndex", OWN))
        self.act("radio button", "Custom text")
        self.assert_stored("customMenuBarSettingSelectedIndex", 1, OWN)
        self.assertTrue(wait_for(lambda: "enabled" in self.control("text", "Custom menu bar text")["states"]))
        self.act("radio button", "Standard title")
        self.assert_title("66.0%")
        self.assert_stored("parkedCustomStatusBar", "%l cycles", OWN)
        self.assertIsNone(self.stored("statusBarString", OWN))
        self.act("radio button", "Custom text")
        self.assert_title("12 cycles")

    def test_upload_mark_permits_nothing(self):
        self.click("check box", "Mark battery data for automatic upload")
        self.assert_stored("autoUploadBatteryData", 1, OWN)
        self.assertIsNone(self.stored("autoUpload"))

    def test_both_temperatures(self):
        self.click("radio button", "Custom text")
        self.click("radio button", "Kelvin")
        self.assert_stored("temperatureSettingIndex", 2)
        self.assert_stored("QDBatteryTemperatureMode", 2, OWN)
        self.assertTrue(wait_for(lambda: "303.2 K" in self.desktop.menu()), "the battery's own unit is another one")

    def test_run_in_background(self):
        entry = self.config / "autostart" / f"{OWN}.desktop"
        self.click("check box", "Run in the background when I log in")
        self.assertTrue(wait_for(entry.exists))
        self.assertIn(os.environ["QUINDLE_HELPER"], entry.read_text())
        self.open("Preferences...", "General")
        self.assert_checked("check box", "Start when I log in")
        self.act("check box", "Run in the background when I log in")
        self.assertTrue(wait_for(lambda: not entry.exists()))
        self.assert_checked("check box", "Start when I log in", False)

    def test_two_windows_show_one_setting(self):
        self.open("Preferences...", "General")
        boxes = [node for node in nodes(self.tree()) if node["name"] == "Show battery icon"]
        self.assertEqual(len(boxes), 2)
        self.act("check box", "Show battery icon")
        self.assert_stored("showIconsInMenuBar", 0)
        self.assertTrue(wait_for(lambda: all("checked" not in node["states"] for node in nodes(self.tree())
                                             if node["name"] == "Show battery icon"), 5))
        self.store(SUITE, {"customStatusBar": "other", "showIconsInMenuBar": 1})
        self.announce()
        self.assertTrue(wait_for(lambda: [node["text"] for node in nodes(self.tree()) if node["role"] == "text"]
                                 == ["other", "other"], 5))


class OlderHelper(PreferencesCase):
    def test_the_text_that_it_parked_comes_back(self):
        self.store(OWN, {"customMenuBarSettingSelectedIndex": 0, "statusBarString": "%l cycles"})
        self.start_helper()
        self.open("Menu Bar Text...", "Menu Bar Text")
        self.click("radio button", "Custom text")
        self.assert_title("12 cycles")
        self.assert_stored("statusBarString", "%l cycles", OWN)


class Icon(PreferencesCase):
    def test_the_window_has_the_helper_s_icon(self):
        icons = Path(self.desktop.env["XDG_DATA_HOME"]) / "icons" / "hicolor"
        (icons / "scalable" / "apps").mkdir(parents=True, exist_ok=True)
        shutil.copy(SOURCE / "packaging" / "icons" / "quindle-helper.svg", icons / "scalable" / "apps")
        (icons / "index.theme").write_text("[Icon Theme]\nName=Hicolor\nDirectories=scalable/apps\n\n"
                                           "[scalable/apps]\nSize=128\nMinSize=8\nMaxSize=512\nType=Scalable\n")
        self.start_helper()
        self.open("Preferences...", "General")
        self.assertIn("ICON", self.desktop.call("xprop", "-id",
                                                self.window("General"), "_NET_WM_ICON"))


class Frame(PreferencesCase):
    def position(self):
        geometry = self.desktop.call("xwininfo", "-id", self.window("General"))
        return tuple(int(re.search(f"Absolute upper-left {axis}: +(-?[0-9]+)", geometry).group(1)) for axis in "XY")

    def test_the_window_comes_back_where_it_was(self):
        first = self.start_helper()
        self.open("Preferences...", "General")
        before = self.position()
        self.desktop.call("xdotool", "windowmove", "--sync", self.window("General"), "40", "50")
        self.assertTrue(wait_for(lambda: self.position() != before))
        moved = self.position()
        time.sleep(1)
        self.stop(first)
        self.start_helper()
        self.open("Preferences...", "General")
        self.assertEqual(self.position(), moved)


if __name__ == "__main__":
    unittest.main()
