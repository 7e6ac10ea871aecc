"""The program's own posts against a real HTTPS server in every mood. Called as: test_https_post.py HTTPS_PEER"""

import os
import subprocess
import sys
import tempfile
import time
import unittest

import https_server
from https_case import HttpsCase
from https_server import Authority, Server, answers

PEER = sys.argv.pop(1)
PATH = "/qndonline/upload_mac_db_pro.php"
BODY = "W3siYSI6MX1d"


class Outcome:
    def __init__(self, output):
        lines = output.split("\n")
        self.answer = lines[0]
        waited, quitting, started = lines[1].split(" ", 2)
        self.waited, self.quitting = int(waited) / 1000, int(quitting) / 1000
        self.started_at_once = started == "at once"


class HttpsPostTest(HttpsCase, unittest.TestCase):
    def post(self, url, limit=500, quit_after=0, authority=None):
        kept = ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")
        environment = {key: os.environ[key] for key in kept if key in os.environ}
        environment.update({"LANG": "de_DE.UTF-8", "HOME": self.folder})
        result = subprocess.run([PEER, str(authority or self.authority.certificate), url, BODY, str(limit), str(quit_after)],
                                env=environment, capture_output=True, text=True, timeout=30)
        self.assertEqual(result.returncode, 0, result.stderr)
        outcome = Outcome(result.stdout)
        self.assertTrue(outcome.started_at_once)
        self.assertLess(outcome.quitting, 0.5)
        return outcome

    def exchange(self, behaviour, chain=None, **more):
        with Server(chain or self.chain, behaviour) as server:
            outcome = self.post(f"https://{server.host}{PATH}", **more)
            for _, _, headers, _ in server.requests:
                self.assertEqual(headers["Host"], server.host)
            time.sleep(0.2)  # for a second request that must not come
            return outcome, list(server.requests)

    def test_accepted(self):
        outcome, requests = self.exchange(answers(200, b"thanks"))
        self.assertEqual(outcome.answer, "200 thanks")
        (method, path, headers, body), = requests
        self.assertEqual((method, path, body), ("POST", PATH, BODY.encode()))
        headers.pop("Host")
        headers.pop("Accept-Encoding")  # what the library was built with, the same for every user
        self.assertEqual(headers, {
            "Content-Length": str(len(BODY)), "User-Agent": "Quindle-Helper", "Accept-Language": "en",
            "Connection": "Keep-Alive"})

    def test_server_error_is_an_answer(self):
        outcome, requests = self.exchange(answers(500, b"oops"))
        self.assertEqual((outcome.answer, len(requests)), ("500 oops", 1))

    def test_redirection_is_not_followed(self):
        with Server(self.chain, answers(200)) as other:
            for status in (301, 302, 307, 308):
                outcome, requests = self.exchange(answers(status, Location=f"https://{other.host}/other"))
                self.assertEqual((outcome.answer, len(requests)), (f"{status} ", 1))
            self.assertEqual(other.requests, [])

    def test_cookies_are_not_kept(self):
        outcome, requests = self.exchange(answers(200, b"x", Set_Cookie="id=1; Path=/"))
        self.assertNotIn("Cookie", requests[0][2])

    def test_reset_connection_is_not_tried_again(self):
        outcome, requests = self.exchange(https_server.resets)
        self.assertEqual((outcome.answer, len(requests)), ("no answer", 1))

    def test_half_an_answer_is_none(self):
        outcome, requests = self.exchange(https_server.hangs_up_midway)
        self.assertEqual((outcome.answer, len(requests)), ("no answer", 1))

    def test_time_is_bounded(self):
        for behaviour in (https_server.never_answers, https_server.drips):
            outcome, requests = self.exchange(behaviour, limit=1000)
            self.assertEqual((outcome.answer, len(requests)), ("no answer", 1))

    def test_size_is_bounded(self):
        outcome, requests = self.exchange(https_server.pours, limit=3000)
        self.assertEqual((outcome.answer, len(requests)), ("no answer", 1))

    def test_quits_at_once(self):
        for behaviour in (https_server.never_answers, https_server.drips):
            outcome, requests = self.exchange(behaviour, limit=20000, quit_after=600)
            self.assertEqual(outcome.answer, "no answer")
            self.assertLess(outcome.waited, 2)

    def test_wrong_certificates_get_nothing(self):
        chains = {"expired": self.authority.issue("expired", days=-1),
                  "another name": self.authority.issue("name", host="example.org"),
                  "signed by itself": self.authority.self_signed("self")}
        for name, chain in chains.items():
            with self.subTest(name):
                outcome, requests = self.exchange(answers(200), chain)
                self.assertEqual((outcome.answer, requests), ("no answer", []))

    def test_authority_that_is_not_trusted(self):
        other = Authority(tempfile.mkdtemp(dir=self.folder))
        outcome, requests = self.exchange(answers(200), authority=other.certificate)
        self.assertEqual((outcome.answer, requests), ("no answer", []))

    def test_nothing_listens(self):
        self.assertEqual(self.post(f"https://localhost:1{PATH}").answer, "no answer")

    def test_only_https(self):
        with Server(self.chain, answers(200)) as server:
            for url in (f"http://{server.host}{PATH}", f"{server.host}{PATH}", f"https://{PATH}", ""):
                self.assertEqual(self.post(url, limit=300).answer, "no answer")
            self.assertEqual(server.requests, [])


if __name__ == "__main__":
    unittest.main()
