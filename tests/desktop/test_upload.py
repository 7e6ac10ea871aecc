#!/usr/bin/env python3
"""The daily upload of the real helper: what arrives, when, and that quitting does not wait for it."""

import base64
import datetime
import json
import os
import re
import shutil
import socket
import subprocess
import sys
import time
import unittest
from pathlib import Path

import helper_case
from helper_case import SOURCE, SUITE, HelperCase, battery, machine, wait_for

sys.path.insert(0, str(SOURCE / "tests" / "platform" / "linux" / "network"))
from https_case import HttpsCase  # noqa: E402
from https_server import Server, answers, drips, never_answers  # noqa: E402

INSPECT, NETWORK, LOOKUP = (os.environ[name] for name in
                            ("QUINDLE_INSPECT", "QUINDLE_TRUSTING_NETWORK", "QUINDLE_TEST_LOOKUP"))
LAUNCHED = datetime.datetime(2024, 5, 1, 12)
SERIAL = "D865033Y2CXF9CPAW"
AT_ONCE = 15.0  # seconds from the choice in the menu to the end of the process; a post may take thirty


def computer(host, seconds, auto_upload=True):
    """So many seconds after the launch its steps happen; with the last one the charge is 50 %."""
    keys = machine(66, BatterySerialNumber=SERIAL)
    info = {"CFBundleVersion": "7", "CFBundleShortVersionString": "1.2"}
    if host is not None:
        info["QDStatisticsHost"] = host
    keys["Bundle"]["Info"] = info
    keys["Defaults"][SUITE]["autoUpload"] = auto_upload
    keys["Now"] = LAUNCHED
    keys["Steps"] = [{"After": 0.05, "Now": LAUNCHED + datetime.timedelta(seconds=second)} for second in seconds]
    keys["Steps"][-1]["Registry"] = {"AppleSmartBattery": battery(50, BatterySerialNumber=SERIAL)}
    return keys


class UploadCase(HttpsCase, HelperCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.program = cls.bundle_that_trusts(Path(cls.folder) / "Helper.app" / "Contents")

    @staticmethod
    def bundle_that_trusts(contents):
        """The helper's own bundle but for the network module; the path of its program."""
        own = Path(helper_case.HELPER).parents[1]
        (contents / "PlugIns").mkdir(parents=True)
        (contents / "Linux").mkdir()
        for name in ("Info.plist", "Resources"):
            (contents / name).symlink_to(own / name)
        shutil.copy(NETWORK, contents / "PlugIns" / "quindle-network.so")
        return shutil.copy(helper_case.HELPER, contents / "Linux" / "quindle-helper")

    def launch(self, keys, **env):
        sanitizer = ":".join(filter(None, (os.environ.get("ASAN_OPTIONS"), "verify_asan_link_order=0")))
        return self.start(keys, program=self.program, env={
            "QUINDLE_TEST_AUTHORITY": str(self.authority.certificate), "LD_PRELOAD": LOOKUP, "ASAN_OPTIONS": sanitizer, **env})


class Upload(UploadCase):
    def requests_of(self, seconds, expected, auto_upload=True, configured=True):
        with Server(self.chain, answers(200, b"ok", Set_Cookie="id=1; Path=/")) as server:
            keys = computer(server.host if configured else None, seconds, auto_upload)
            self.launch(keys)
            self.assert_title("50.0%")
            wait_for(lambda: len(server.requests) >= expected, 30 if expected else 0)
            time.sleep(0.3 if expected else 1.5)  # for a request that must not come
            return keys, list(server.requests)

    def shown(self, keys):
        """What quindle-inspect says would be sent in the last step."""
        path = self.machine_file(keys, "shown.plist")
        lines = self.desktop.call(INSPECT, "--json", "--machine", path).splitlines()
        return json.loads(lines[-1])["upload"]

    def test_one_post_with_the_body_that_was_shown(self):
        keys, requests = self.requests_of([86401, 86411], 1)
        (method, target, headers, body), = requests
        self.assertEqual((method, target), ("POST", "/qndonline/upload_mac_db_pro.php"))
        self.assertNotIn("Content-Type", dict(headers))
        first_step = {**keys, "Steps": keys["Steps"][:1]}
        shown = self.shown(first_step)
        self.assertEqual(body.decode(), shown["body"])
        self.assertEqual(json.loads(base64.b64decode(body, validate=True)), [shown["record"]])
        self.assertNotIn(SERIAL.encode(), base64.b64decode(shown["record"]["Data.Raw"]))

    def test_one_post_for_each_day(self):
        requests = self.requests_of([86401, 2 * 86401, 2 * 86401 + 86400], 2)[1]
        self.assertEqual(len(requests), 2)
        for _, _, headers, _ in requests:
            self.assertNotIn("Cookie", dict(headers))

    def test_not_before_a_day_has_passed(self):
        self.assertEqual(self.requests_of([86400], 0)[1], [])

    def test_nothing_without_permission_however_long(self):
        self.assertEqual(self.requests_of([day * 86401 for day in range(1, 30)], 0, auto_upload=False)[1], [])

    def test_nothing_without_a_host(self):
        self.assertEqual(self.requests_of([86401], 0, configured=False)[1], [])

    def network_libraries(self, process):
        names = {Path(line.split(maxsplit=5)[-1]).name.split(".so")[0]
                 for line in Path(f"/proc/{process.pid}/maps").read_text().splitlines()}
        return {name for name in names if re.match("quindle-network|libcurl|libssl|libgnutls|libQt6Network", name)}

    def test_network_libraries_are_loaded_by_the_first_post(self):
        with Server(self.chain, answers(200, b"ok")) as server:
            process = self.launch(computer(server.host, [86400]))
            self.assert_title("50.0%")
            self.assertEqual(self.network_libraries(process), set())
            self.stop(process)
            process = self.launch(computer(server.host, [86401]))
            self.assertTrue(wait_for(lambda: server.requests), "nothing was sent")
            self.assertLess({"quindle-network"}, self.network_libraries(process))

    def test_certificate_for_another_host(self):
        """The host that is configured, at the address of another one."""
        for name, sent in (("other.test", 0), ("statistics.test", 1)):
            chain = self.authority.issue(name, host=name)
            with self.subTest(name), Server(chain, answers(200, b"ok")) as server:
                process = self.launch(computer(f"statistics.test:{server.port}", [86401]))
                self.assertTrue(wait_for(lambda: server.server.connections), "nobody came")
                wait_for(lambda: server.requests, 30 if sent else 1.5)
                self.assertEqual(len(server.requests), sent)
                self.stop(process)

    def test_looking_sends_nothing(self):
        with Server(self.chain, answers(200)) as server:
            self.assertIsNotNone(self.shown(computer(server.host, [86401])))
            self.assertEqual(server.requests, [])


class QuitDuringUpload(UploadCase):
    def quit_row(self):
        """The number of the menu's row."""
        layout = self.desktop.gdbus(self.desktop.item_name(), "/MenuBar", "com.canonical.dbusmenu.GetLayout", "0", "-1",
                                    "[]")
        return re.search(r"\((\d+), \{[^}]*'label': <'Quit'>", layout).group(1)

    def assert_quits_at_once(self, process):
        item, row = self.desktop.item_name(), self.quit_row()
        begin = time.monotonic()
        self.desktop.gdbus(item, "/MenuBar", "com.canonical.dbusmenu.Event", row, "clicked", "<''>", "0")
        try:
            status = process.wait(25)
        except subprocess.TimeoutExpired:
            process.kill()  # it may wait where no signal asks it to end
            self.fail("it does not quit")
        took = time.monotonic() - begin
        self.assertEqual(status, 0)
        self.assertLess(took, AT_ONCE)

    def test_while_the_server_is_silent(self):
        for behaviour in (never_answers, drips):
            with self.subTest(behaviour.__name__), Server(self.chain, behaviour) as server:
                process = self.launch(computer(server.host, [86401]))
                self.assertTrue(wait_for(lambda: server.requests), "nothing was sent")
                self.assert_quits_at_once(process)

    def test_while_the_server_does_not_even_greet(self):
        with socket.create_server(("127.0.0.1", 0)) as server:
            process = self.launch(computer(f"127.0.0.1:{server.getsockname()[1]}", [86401]))
            server.settimeout(60)
            with server.accept()[0] as connection:
                self.assertTrue(connection.recv(1), "nothing was sent")
                self.assert_quits_at_once(process)

    def test_while_the_host_is_looked_up(self):
        begun = Path(self.folder) / "lookup"
        process = self.launch(computer("hangs.test", [86401]), QUINDLE_TEST_LOOKUP=str(begun))
        self.assertTrue(wait_for(begun.exists), "the host was not looked up")
        self.assert_quits_at_once(process)


if __name__ == "__main__":
    unittest.main()
