"""What of the environment the program reads, and what it must not."""

import calendar
import os
import subprocess
import unittest

from program import CHENNAI, EXAMPLE, ProgramTest

MOMENT = str(calendar.timegm((1996, 12, 7, 5, 4, 0)))
NEW_YORK = "EST5EDT,M3.2.0,M11.1.0"


class Independence(ProgramTest):
    def comma_locale(self):
        folder = os.environ.get("KESTRAV_TEST_LOCPATH") or str(self.folder)
        if folder == str(self.folder):
            subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", folder + "/de_DE.UTF-8"],
                           check=True, capture_output=True)
        environment = {"LOCPATH": folder, "LC_ALL": "de_DE.UTF-8"}
        keys = subprocess.run(["locale", "-k", "LC_NUMERIC"], env=environment, check=True,
                              capture_output=True).stdout
        self.assertIn(b'decimal_point=","', keys)
        return environment

    def test_locale_and_zone_change_no_byte(self):
        comma = self.comma_locale()
        calls = [["chart", *EXAMPLE, "--name", "Élodie"], ["chart", *EXAMPLE, "--json"],
                 ["settings", "list"], ["settings", "ayanamsa", "list"]]
        for words in calls:
            plain = self.text(*words, environment={"LC_ALL": "C"})
            for environment in (comma, {"TZ": NEW_YORK}, {"TZ": "IST-5:30", "LANG": "C.UTF-8"}):
                self.assertEqual(self.text(*words, environment=environment), plain)


class Now(ProgramTest):
    def now(self, *words, zone="UTC0", clock=MOMENT):
        return self.json("chart", "--now", *CHENNAI, *words,
                         environment={"TZ": zone, "KESTRAV_CLOCK": clock})

    def test_given_zone_is_the_example(self):
        example = self.json("chart", *EXAMPLE)
        for zone in ("UTC0", NEW_YORK, "IST-5:30"):
            chart = self.now("--zone", "+5:30", zone=zone)
            for key in ("input", "points", "sun", "houses"):
                self.assertEqual(chart[key], example[key])
        self.assertEqual(self.now(zone="IST-5:30")["input"], example["input"])

    def test_zone_of_the_system(self):
        def clock_of(*when, **how):
            data = self.now(zone=NEW_YORK, clock=str(calendar.timegm(when)), **how)["input"]
            return data["day"], data["localTime"], data["zone"], data["daylightSaving"]
        self.assertEqual(clock_of(2024, 7, 4, 2, 30, 0), (3, 22.5, -5.0, 1))
        self.assertEqual(clock_of(2024, 12, 4, 2, 30, 0), (3, 21.5, -5.0, 0))

    def test_before_the_epoch(self):
        data = self.now(clock="-0.5")["input"]
        self.assertEqual((data["year"], data["month"], data["day"]), (1969, 12, 31))
        self.assertAlmostEqual(data["localTime"], 24 - 0.5 / 3600, 9)

    def test_real_clock(self):
        before = int(subprocess.run(["date", "+%s"], check=True, capture_output=True).stdout)
        moment = self.json("positions", "--now", "--zone", "0")["time"]
        seconds = (moment["dayCount"] + 2415020 - 2440587.5) * 86400
        self.assertTrue(-0.1 < seconds - before < 60, seconds - before)

    def test_unusable_clock(self):
        for clock in ("noon", "1e300", "nan"):
            self.assertFails(2, "KESTRAV_CLOCK '" + clock, "positions", "--now",
                             environment={"KESTRAV_CLOCK": clock})
        self.assertFails(2, "--lon and --lat", "chart", "--now")


if __name__ == "__main__":
    unittest.main()
