"""The program's own posts against a real HTTPS server in every mood, and both kinds of request while a host is looked up.

test_posts.py NETWORK_PEER TEST_LOOKUP
"""

import gzip
import os
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

import https_server
from https_case import HttpsCase
from https_server import Authority, Server, answers

PEER, LOOKUP = sys.argv[1:3]
del sys.argv[1:3]
PATH = "/qndonline/upload_mac_db_pro.php"
BODY = "W3siYSI6MX1d"
AMPLE = 30_000  # milliseconds for an answer, which a busy machine may need; whoever gets one waits no longer
BRIEF = 500  # for what gets none


class Outcome:
    def __init__(self, output):
        lines = output.split("\n")
        self.answer = lines[0]
        waited, quitting, started = lines[1].split(" ", 2)
        self.waited, self.quitting = int(waited) / 1000, int(quitting) / 1000
        self.started_at_once = started == "at once"


class Posts(HttpsCase, unittest.TestCase):
    def peer(self, *arguments, **more):
        kept = ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS")
        environment = {key: os.environ[key] for key in kept if key in os.environ}
        environment.update({"LANG": "de_DE.UTF-8", "HOME": self.folder, **more})
        if "LD_PRELOAD" in more:
            sanitizer = filter(None, (environment.get("ASAN_OPTIONS"), "verify_asan_link_order=0"))
            environment["ASAN_OPTIONS"] = ":".join(sanitizer)
        result = subprocess.run([PEER, *map(str, arguments)], env=environment, capture_output=True, text=True, timeout=90)
        self.assertEqual(result.returncode, 0, result.stderr)
        return result.stdout

    def post(self, url, limit=BRIEF, quit_after=0, authority=None, **environment):
        outcome = Outcome(self.peer(authority or self.authority.certificate, url, BODY, limit, quit_after, **environment))
        self.assertTrue(outcome.started_at_once)
        self.assertLess(outcome.quitting, 10)
        return outcome

    def exchange(self, behaviour, chain=None, host="127.0.0.1", **more):
        with Server(chain or self.chain, behaviour) as server:
            outcome = self.post(f"https://{host}:{server.port}{PATH}", **{"limit": AMPLE, **more})
            for _, _, headers, _ in server.requests:
                self.assertEqual(headers[0], ("Host", f"{host}:{server.port}"))
            time.sleep(0.2)  # for a second request that must not come
            self.poured = server.server.poured
            return outcome, list(server.requests)

    def unanswered(self, behaviour, limit=BRIEF):
        """The same where the request gets no answer; begun again when it did not get out in time."""
        for patience in (1, 4, 16):
            outcome, requests = self.exchange(behaviour, limit=patience * limit)
            if requests:
                break
        return outcome, requests

    def test_accepted(self):
        outcome, requests = self.exchange(answers(200, b"thanks"))
        self.assertEqual(outcome.answer, "200 thanks")
        (method, path, headers, body), = requests
        self.assertEqual((method, path, body), ("POST", PATH, BODY.encode()))
        self.assertEqual(headers[1:], [
            ("Content-Length", str(len(BODY))), ("User-Agent", "Quindle-Helper"), ("Accept-Language", "en"),
            ("Connection", "Keep-Alive"), ("Accept-Encoding", "zstd, br, gzip, deflate")])

    def test_compressed_answer(self):
        outcome, requests = self.exchange(answers(200, gzip.compress(b"thanks"), Content_Encoding="gzip"))
        self.assertEqual(outcome.answer, "200 thanks")

    def test_environment_and_passwords_are_not_looked_at(self):
        Path(self.folder, ".netrc").write_text("default login name password word\n")
        proxies = {name: "http://127.0.0.1:1" for name in ("https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY")}
        outcome, requests = self.exchange(answers(200), **proxies)
        self.assertEqual(outcome.answer, "200 ")
        self.assertNotIn("Authorization", dict(requests[0][2]))

    def test_server_error_is_an_answer(self):
        outcome, requests = self.exchange(answers(500, b"oops"))
        self.assertEqual((outcome.answer, len(requests)), ("500 oops", 1))

    def test_redirection_is_not_followed(self):
        with Server(self.chain, answers(200)) as other:
            for status in (301, 302, 307, 308):
                outcome, requests = self.exchange(answers(status, Location=f"https://{other.host}/other"))
                self.assertEqual((outcome.answer, len(requests)), (f"{status} ", 1))
            self.assertEqual(other.requests, [])

    def test_reset_connection_is_not_tried_again(self):
        outcome, requests = self.unanswered(https_server.resets)
        self.assertEqual((outcome.answer, len(requests)), ("no answer", 1))

    def test_half_an_answer_is_none(self):
        outcome, requests = self.unanswered(https_server.hangs_up_midway)
        self.assertEqual((outcome.answer, len(requests)), ("no answer", 1))

    def test_time_is_bounded(self):
        outcome, requests = self.unanswered(https_server.never_answers)
        self.assertEqual((outcome.answer, len(requests)), ("no answer", 1))
        with Server(self.chain, https_server.drips) as server:
            self.assertEqual(self.post(f"https://{server.host}{PATH}", quit_after=6000).answer, "no answer")
            self.assertLess(server.server.poured, 50)  # ten a second until the client ends it

    def test_size_is_bounded(self):
        bomb = answers(200, gzip.compress(bytes(50_000_000)), Content_Encoding="gzip")
        for behaviour in (https_server.pours_body, https_server.pours_extension, bomb):
            outcome, requests = self.unanswered(behaviour, limit=2000)
            self.assertEqual((outcome.answer, len(requests)), ("no answer", 1))
            self.assertLess(self.poured, 16_000_000)  # the sockets' own buffers take some

    def test_quits_at_once(self):
        for behaviour in (https_server.never_answers, https_server.drips):
            outcome, requests = self.exchange(behaviour, quit_after=600)
            self.assertEqual(outcome.answer, "no answer")
            self.assertLess(outcome.waited, 15)

    def test_wrong_certificates_get_nothing(self):
        chains = {"expired": self.authority.issue("expired", days=-1),
                  "another address": self.authority.issue("address", host="127.0.0.2"),
                  "a name": self.authority.issue("name", host="example.org", subject="127.0.0.1"),
                  "signed by itself": self.authority.self_signed("self")}
        for name, chain in chains.items():
            with self.subTest(name):
                outcome, requests = self.exchange(answers(200), chain, limit=BRIEF)
                self.assertEqual((outcome.answer, requests), ("no answer", []))

    def test_name_of_the_host(self):
        chains = {"statistics.test": "200 ", "*.test": "no answer", "*.statistics.test": "no answer",
                  "other.test": "no answer", "statistics.test.example.org": "no answer", "127.0.0.1": "no answer"}
        for number, (name, answer) in enumerate(chains.items()):
            with self.subTest(name):
                chain = self.authority.issue(f"named{number}", host=name, subject="statistics.test")
                outcome, requests = self.exchange(answers(200), chain, "statistics.test", LD_PRELOAD=LOOKUP,
                                                  limit=BRIEF if answer == "no answer" else AMPLE)
                self.assertEqual((outcome.answer, len(requests)), (answer, int(answer == "200 ")))

    def test_authority_that_is_not_trusted(self):
        other = Authority(tempfile.mkdtemp(dir=self.folder))
        outcome, requests = self.exchange(answers(200), authority=other.certificate, limit=BRIEF)
        self.assertEqual((outcome.answer, requests), ("no answer", []))

    def test_nothing_listens(self):
        self.assertEqual(self.post(f"https://127.0.0.1:1{PATH}").answer, "no answer")

    def test_lookup_that_hangs(self):
        for limit, quit_after in ((BRIEF, 0), (AMPLE, 300)):
            outcome = self.post(f"https://hangs.test{PATH}", limit, quit_after, LD_PRELOAD=LOOKUP)
            self.assertEqual(outcome.answer, "no answer")
            self.assertLess(outcome.waited, 15)
        begin = time.monotonic()
        self.assertEqual(self.peer("http://hangs.test/", BRIEF, LD_PRELOAD=LOOKUP), "nothing\n")
        self.assertLess(time.monotonic() - begin, 20)

    def test_only_https(self):
        with Server(self.chain, answers(200)) as server:
            for url in (f"http://{server.host}{PATH}", f"{server.host}{PATH}", f"https://{PATH}", ""):
                self.assertEqual(self.post(url, limit=300).answer, "no answer")
            self.assertEqual(server.requests, [])


if __name__ == "__main__":
    unittest.main()
