"""The daily upload from end to end. Called as: test_upload.py UPLOAD_PEER QUINDLE_INSPECT"""

import base64
import datetime
import json
import os
import plistlib
import subprocess
import sys
import tempfile
import unittest

from https_server import Authority, Server, answers

PEER, INSPECT = sys.argv.pop(1), sys.argv.pop(1)
LAUNCHED = datetime.datetime(2024, 5, 1, 12)
SERIAL = "D865033Y2CXF9CPAW"


def machine(host, seconds, auto_upload):
    info = {"CFBundleVersion": "7", "CFBundleShortVersionString": "1.2"}
    if host is not None:
        info["QDStatisticsHost"] = host
    return {
        "Registry": {
            "AppleSmartBattery": {"CurrentCapacity": 4000, "MaxCapacity": 4512, "DesignCapacity": 5200, "CycleCount": 57,
                                  "ManufactureDate": 17506, "Manufacturer": "SMP", "BatterySerialNumber": SERIAL},
            "IOPlatformExpertDevice": {"model": b"MacBookAir6,2\0", "IOPlatformSerialNumber": "C02MN1TXF5YW"}},
        "PowerSources": [],
        "Bundle": {"Path": "/opt/Quindle-Helper.app", "Info": info},
        "Defaults": {"group.fernhollow.Quindle": {"autoUpload": auto_upload}},
        "Now": LAUNCHED,
        "Steps": [{"Now": LAUNCHED + datetime.timedelta(seconds=second)} for second in seconds],
    }


class UploadTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.authority = Authority(cls.folder.name)
        cls.chain = cls.authority.issue("right")

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def run_program(self, *command):
        environment = {"PATH": os.environ["PATH"], "TZ": "UTC", "HOME": self.folder.name}
        result = subprocess.run(command, env=environment, capture_output=True, timeout=30)
        self.assertEqual(result.returncode, 0, result.stderr)
        return result.stdout

    def written(self, keys):
        path = os.path.join(self.folder.name, "machine.plist")
        with open(path, "wb") as file:
            plistlib.dump(keys, file)
        return path

    def requests_of(self, seconds, auto_upload=True, configured=True):
        with Server(self.chain, answers(200, b"ok")) as server:
            path = self.written(machine(server.host if configured else None, seconds, auto_upload))
            self.run_program(PEER, self.authority.certificate, path)
            return path, list(server.requests)

    def test_one_post_with_the_body_that_was_shown(self):
        path, requests = self.requests_of([86401])
        shown = json.loads(self.run_program(INSPECT, "--json", "--machine", path).splitlines()[1])["upload"]
        (method, target, headers, body), = requests
        self.assertEqual((method, target), ("POST", "/qndonline/upload_mac_db_pro.php"))
        self.assertNotIn("Content-Type", headers)
        self.assertEqual(body.decode(), shown["body"])
        self.assertEqual(json.loads(base64.b64decode(body, validate=True)), [shown["record"]])
        self.assertNotIn(SERIAL.encode(), base64.b64decode(shown["record"]["Data.Raw"]))

    def test_not_before_a_day_has_passed(self):
        self.assertEqual(self.requests_of([86400])[1], [])

    def test_nothing_without_permission_however_long(self):
        self.assertEqual(self.requests_of([day * 86400 + 1 for day in range(1, 30)], auto_upload=False)[1], [])

    def test_nothing_without_a_host(self):
        self.assertEqual(self.requests_of([86401], configured=False)[1], [])

    def test_looking_sends_nothing(self):
        with Server(self.chain, answers(200)) as server:
            self.run_program(INSPECT, "--json", "--machine", self.written(machine(server.host, [86401], True)))
            self.assertEqual(server.requests, [])


if __name__ == "__main__":
    unittest.main()
