"""A file of the battery or of the firmware that never answers, in the running helper."""

import os
import time
import unittest

from start_case import StartCase

PRELOADED = os.environ["QUINDLE_HANGING_READS"]
# Seconds: far more than any file is waited for, and a busy machine lets two starts differ by; but a start that waits
# for a file that hangs takes for ever.
LATER_AT_MOST = 15.0


class HangingReads(StartCase):
    def setUp(self):
        super().setUp()
        self.supply = self.root / "sys/class/power_supply/BAT0"
        self.flag = self.root / "hangs"
        (self.supply / "cycle_count").write_text("12\n")
        firmware = self.root / "sys/class/dmi/id"
        firmware.mkdir(parents=True)
        (firmware / "product_name").write_text("Laptop\n")
        self.write_settings(self.root / "config", customStatusBar="%p after %l")

    def started(self, file):
        session = self.bus()
        return session, self.start(session, LD_PRELOAD=PRELOADED, QUINDLE_TEST_HANGING_FILE=file,
                                   QUINDLE_TEST_HANGS_WHILE=str(self.flag))

    def seconds_until(self, title, file):
        begun = time.monotonic()
        session, process = self.started(file)
        self.assert_titles(session, [title])
        taken = time.monotonic() - begun
        process.terminate()
        return taken, self.result(process)[1]

    def test_at_the_start_all_but_that_value_is_there_in_time(self):
        usual, _ = self.seconds_until("50.0 after 12", "cycle_count")
        self.flag.touch()
        taken, errors = self.seconds_until("50.0 after 0", "cycle_count")
        self.assertLess(taken - usual, LATER_AT_MOST)
        self.assertEqual(errors.count("BAT0/cycle_count does not answer"), 1, errors)

    def test_firmware_that_hangs_holds_nothing_up(self):
        usual, _ = self.seconds_until("50.0 after 12", "product_name")
        self.flag.touch()
        taken, errors = self.seconds_until("50.0 after 12", "product_name")
        self.assertLess(taken - usual, LATER_AT_MOST)
        self.assertEqual(errors.count("product_name does not answer"), 1, errors)

    def test_later_the_last_value_stands_and_no_other_file_is_held_up(self):
        session, process = self.started("cycle_count")
        self.assert_titles(session, ["50.0 after 12"])
        self.flag.touch()
        (self.supply / "cycle_count").write_text("13\n")
        (self.supply / "charge_now").write_text("1500000\n")
        self.assert_titles(session, ["25.0 after 12"])
        self.flag.unlink()
        self.assert_titles(session, ["25.0 after 13"])
        process.terminate()
        errors = self.result(process)[1]
        self.assertEqual(errors.count("BAT0/cycle_count does not answer"), 1, errors)


if __name__ == "__main__":
    unittest.main()
