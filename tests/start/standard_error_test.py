"""Standard error that nobody reads, or nobody reads any more: neither touches the item."""

import fcntl
import os
import pty
import signal
import socket
import unittest

from start_case import StartCase


def fill(descriptor):
    """Writes until nothing more is taken."""
    os.set_blocking(descriptor, False)
    try:
        while os.write(descriptor, b"x" * 4096):
            pass
    except BlockingIOError:
        pass
    try:
        while os.write(descriptor, b"x"):
            pass
    except BlockingIOError:
        pass
    os.set_blocking(descriptor, True)


class StandardError(StartCase):
    """Each start has something to say: the settings cannot be read."""

    def setUp(self):
        super().setUp()
        self.session = self.bus()
        (self.root / "config/quindle/group.fernhollow.Quindle.plist").mkdir(parents=True)

    def assert_shows(self, stderr):
        process = self.start(self.session, stderr=stderr)
        self.assert_titles(self.session, ["50.0%"])
        # A second cause for a line, in the running program.
        path = self.root / "config/quindle/group.fernhollow.Quindle.plist"
        path.rmdir()
        self.write_settings(self.root / "config", customStatusBar="charge %p")
        self.assert_titles_after_change(self.session, ["charge 50.0"])
        path.write_bytes(b"damaged")
        self.assert_titles_after_change(self.session, ["50.0%"])
        self.assertIsNone(process.poll())

    def test_what_is_read_is_there(self):
        read_end, write_end = os.pipe()
        self.assert_shows(write_end)
        os.close(write_end)
        os.set_blocking(read_end, False)
        text = os.read(read_end, 65536).decode()
        os.close(read_end)
        self.assertIn("cannot read", text)
        self.assertIn("set aside as", text)

    def test_a_reader_that_has_gone(self):
        read_end, write_end = os.pipe()
        os.close(read_end)
        self.assert_shows(write_end)
        os.close(write_end)

    def test_a_full_pipe(self):
        read_end, write_end = os.pipe()
        fcntl.fcntl(write_end, fcntl.F_SETPIPE_SZ, 4096)
        fill(write_end)
        self.assert_shows(write_end)
        os.close(read_end)
        os.close(write_end)

    def test_a_full_socket(self):
        reader, writer = socket.socketpair()
        fill(writer.fileno())
        self.assert_shows(writer.fileno())
        reader.close()
        writer.close()

    def test_a_terminal_that_takes_nothing(self):
        controller, terminal = pty.openpty()
        fill(terminal)
        self.assert_shows(terminal)
        os.close(controller)
        os.close(terminal)

    def test_a_file_is_appended_to(self):
        path = self.root / "log"
        path.write_text("before\n")
        with open(path, "ab") as file:
            self.assert_shows(file)
        self.assertTrue(path.read_text().startswith("before\n"))
        self.assertIn("cannot read", path.read_text())

    def test_a_second_start_ends_in_spite_of_a_full_pipe(self):
        first = self.start(self.session)
        self.assert_titles(self.session, ["50.0%"])
        first.send_signal(signal.SIGSTOP)
        read_end, write_end = os.pipe()
        fill(write_end)
        self.assertEqual(self.result(self.start(self.session, stderr=write_end))[0], 1)
        os.close(read_end)
        os.close(write_end)


if __name__ == "__main__":
    unittest.main()
