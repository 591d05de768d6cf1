"""Ephemerides, eclipses and the windows of vargas."""

import os
import pty
import signal
import subprocess
import unittest

from program import CHENNAI, EXAMPLE, PROGRAM, ProgramTest

INDIA = ["--zone", "+5:30"]
PUNE = ["--lat", "18.52", "--lon", "73.86"] + INDIA


class Ephemeris(ProgramTest):
    def table(self, *words, **how):
        return self.json("ephemeris", *words, **how)

    def test_a_row_is_a_chart(self):
        day = self.table("--from", "1996-12-07", "--to", "1996-12-07", "--time", "10:34", *INDIA,
                         "--bodies", "1,moon,Mars,4,5,6,7,rahu,9,32,33,pluto")
        self.assertEqual(len(day["rows"]), 1)
        row = day["rows"][0]
        self.assertEqual((row["date"], row["weekday"]), ("1996-12-07", 7))
        self.assertAlmostEqual(row["hour"], 10 + 34 / 60, 9)
        chart = self.json("positions", *EXAMPLE)
        positions = {point["index"]: point for point in chart["points"]}
        self.assertEqual([body["point"] for body in row["bodies"]],
                         [*range(1, 10), 32, 33, 34])
        for body in row["bodies"]:
            point = positions[body["point"]]
            for key in ("longitude", "latitude", "declination"):
                self.assertAlmostEqual(body[key], point[key], 5, (body["point"], key))
            self.assertAlmostEqual(body["speed"], point["speed"], 1)

    def test_steps(self):
        def dates(*words):
            return [row["date"] for row in self.table(*words, "--no-events")["rows"]]
        self.assertEqual(dates("--from", "2024-02-27", "--to", "2024-03-01", "--step", "2d"),
                         ["2024-02-27", "2024-02-29"])
        self.assertEqual(len(dates("--from", "2024-02-10")), 20)
        self.assertEqual(dates("--from", "-0001-12-31", "--to", "0001-02-28", "--step", "1mo"),
                         ["-0001-12-31", "0001-01-31", "0001-02-28"])
        rows = self.table("--from", "2024-01-01", "--to", "2024-01-01", "--step", "90 minutes",
                          *INDIA, "--dst", "1", "--bodies", "sun")["rows"]
        self.assertEqual([row["hour"] for row in rows], [1.5 * i for i in range(16)])
        self.assertAlmostEqual(rows[0]["julianDay"], 2460310.5 - 6.5 / 24, 8)

    def test_phases_and_events(self):
        april = self.table("--from", "2024-04-01", *INDIA, "--bodies", "sun,moon,mercury")
        # A printed calendar for India: new moon April 8 23:51, full moon April 24 5:19.
        self.assertEqual([phase["phase"] for phase in april["phases"]],
                         ["last-quarter", "new", "first-quarter", "full"])
        new = april["phases"][1]
        self.assertEqual(new["date"], "2024-04-08")
        self.assertAlmostEqual(new["hour"], 23 + 51 / 60, delta=2 / 60)
        self.assertAlmostEqual(new["sunLongitude"], new["moonLongitude"], 3)
        lines = [event["line"] for event in april["events"] if event["body"] != 2]
        self.assertEqual(lines, ["Mercury turns retrograde in Aries",
                                 "Mercury re-enters (R) Pisces", "Sun enters Aries",
                                 "Mercury turns direct in Pisces"])
        station = april["events"][[event["kind"] for event in april["events"]].index("station")]
        self.assertTrue(station["retrograde"])
        self.assertEqual(station["sign"], 1)
        # The equinox of 2024 was on March 20 at 3:06 Universal Time.
        tropical = self.table("--from", "2024-03-01", "--zodiac", "tropical", "--bodies", "sun",
                              "--no-rows")
        self.assertIsNone(tropical["rows"])
        self.assertEqual([(event["line"], event["date"]) for event in tropical["events"]],
                         [("Sun enters Aries", "2024-03-20")])
        self.assertAlmostEqual(tropical["events"][0]["hour"], 3 + 6 / 60, delta=1.5 / 60)

    def test_text(self):
        text = self.text("ephemeris", "--from", "1996-12-07", "--to", "1997-01-02", "--time",
                         "10:34", "--step", "13d", *INDIA, "--bodies", "sun,mercury,saturn",
                         "--speed")
        blocks = text.split("\n\n")
        self.assertRegex(blocks[0], r"\ADate +Weekday +Sun +A day +Mercury +A day +Saturn +A day\n"
                                    r"1996-12-07 +Saturday +21°3\d'Sc +1\.01\d ")
        self.assertTrue(blocks[1].startswith("Phases of the Moon\n"))
        self.assertRegex(blocks[2], r"\n1996-12-24 +1:[01]\d:\d\d +\S+ +Mercury turns retrograde in ")
        # January has its own rows, with what comes before the first of them, too.
        self.assertRegex(blocks[3], r"\n1997-01-02 +Thursday .*Sg R +-")
        self.assertNotIn("1997", blocks[1])
        self.assertRegex(blocks[4], r"\n1997-01-02 +7:1\d:\d\d +Last quarter ")
        sanskrit = self.text("ephemeris", "--from", "2024-04-13", "--to", "2024-04-13", *INDIA,
                             "--bodies", "sun", "--language", "sanskrit")
        self.assertIn("Surya enters Mesha", sanskrit)

    def test_wrong_usage_names_the_option(self):
        start = ["ephemeris", "--from", "2024-01-01"]
        for pattern, words in (
                (r"--step '0d' is not above 0", start + ["--step", "0d"]),
                (r"--step '-1mo' is not above 0", start + ["--step", "-1mo"]),
                (r"--step: 'x' is no step", start + ["--step", "x"]),
                (r"--to 2023-12-31 lies before --from 2024-01-01", start + ["--to", "2023-12-31"]),
                (r"--to 3100-01-01 lies more than 366000 days", start + ["--to", "3100-01-01"]),
                (r"--step is too small", start + ["--to", "2025-01-01", "--step", "1min"]),
                (r"--to 8001-01-01 lies outside the years", start + ["--to", "8001-01-01"]),
                (r"--from -4001-01-01 lies outside", ["ephemeris", "--from", "-4001-01-01"]),
                (r"--from is missing", ["ephemeris"]),
                (r"--from: .*2024-02-30", ["ephemeris", "--from", "2024-02-30"]),
                (r"--time: ", start + ["--time", "25:00"]),
                (r"--zone: ", start + ["--zone", "x"]),
                (r"--dst '9'", start + ["--dst", "9"]),
                (r"--bodies: 'gulika'", start + ["--bodies", "sun,gulika"]),
                (r"--bodies: ''", start + ["--bodies", "sun,"]),
                (r"--zodiac 'draconic'", start + ["--zodiac", "draconic"]),
                (r"--zodiac sidereal", start + ["--zodiac", "sidereal", "--set", "ayanamsaRow=9"]),
                (r"--from is missing", ["eclipses"]),
                (r"--to 2023-12-31 lies before", ["eclipses", *start[1:], "--to", "2023-12-31"]),
                (r"--kind 'both'", ["eclipses", *start[1:], "--kind", "both"]),
                (r"--lat is missing", ["eclipses", *start[1:], "--lon", "77"]),
                (r"--visible needs", ["eclipses", *start[1:], "--visible"]),
                (r"--with-date", ["eclipses", *start[1:], "--with-time", "10:34"])):
            with self.subTest(words=words):
                self.assertFails(2, pattern, *words)


class Progress(ProgramTest):
    SHORT = ["ephemeris", "--from", "1990-01-01", "--to", "1999-12-31", "--bodies", "sun,saturn"]
    LONG = ["ephemeris", "--from", "1500-01-01", "--to", "2299-12-31", "--step", "8d"]

    def start_in_terminal(self, words):
        """The program with a terminal as its standard error, and the end of that to read."""
        here, there = pty.openpty()
        program = subprocess.Popen([str(PROGRAM), *words], cwd=self.work,
                                   env={"HOME": str(self.home)}, stdout=subprocess.PIPE,
                                   stderr=there)
        os.close(there)
        self.addCleanup(os.close, here)
        return program, here

    def read_all(self, terminal):
        text = b""
        while True:
            try:
                piece = os.read(terminal, 4096)
            except OSError:
                return text
            if not piece:
                return text
            text += piece

    def test_progress_only_in_a_terminal(self):
        program, terminal = self.start_in_terminal(self.SHORT)
        result, _ = program.communicate(timeout=60)
        shown = self.read_all(terminal)
        self.assertEqual(program.returncode, 0)
        self.assertRegex(shown, rb"\rEphemeris: \d+ of \d+")
        self.assertRegex(shown, rb"\r *\r\Z")
        piped = self.start(*self.SHORT)
        self.assertEqual(piped.stderr, b"")
        self.assertEqual(piped.stdout, result)

    def test_interruption(self):
        program, terminal = self.start_in_terminal(self.LONG)
        shown = b""
        while b"Ephemeris" not in shown:
            shown += os.read(terminal, 4096)
        program.send_signal(signal.SIGINT)
        result, _ = program.communicate(timeout=60)
        self.assertEqual(program.returncode, 1)
        self.assertEqual(result, b"")
        self.assertIn(b"stopped before the end", self.read_all(terminal))


class Eclipses(ProgramTest):
    def list(self, *words):
        return self.json("eclipses", *words)["eclipses"]

    def test_the_list(self):
        found = self.list("--from", "2024-01-01", "--to", "2025-12-31")
        self.assertEqual([(eclipse["date"], eclipse["kind"], eclipse["type"])
                          for eclipse in found],
                         [("2024-03-25", "lunar", "penumbral"), ("2024-04-08", "solar", "total"),
                          ("2024-09-18", "lunar", "partial"), ("2024-10-02", "solar", "annular"),
                          ("2025-03-14", "lunar", "total"), ("2025-03-29", "solar", "partial"),
                          ("2025-09-07", "lunar", "total"), ("2025-09-21", "solar", "partial")])
        total = found[1]
        self.assertAlmostEqual(total["hour"], 18 + 17.3 / 60, delta=2 / 60)
        self.assertAlmostEqual(total["magnitude"], 1.0566, delta=0.003)
        self.assertEqual((total["sign"], total["nakshatra"], total["central"]), (12, 26, True))
        for key in ("visible", "local", "points", "umbralMagnitude"):
            self.assertIsNone(total[key], key)
        self.assertEqual(total["contacts"], [])
        moon = found[2]
        self.assertEqual((moon["sign"], moon["central"]), (12, None))
        self.assertEqual([contact["contact"] for contact in moon["contacts"]],
                         ["penumbral-begin", "partial-begin", "greatest", "partial-end",
                          "penumbral-end"])
        self.assertIsNone(moon["contacts"][0]["visible"])

    def test_filters(self):
        span = ["--from", "2020-01-01", "--to", "2029-12-31"]
        everything = self.list(*span)
        solar = self.list(*span, "--kind", "solar")
        umbral = self.list(*span, "--kind", "lunar", "--no-penumbral")
        self.assertEqual(solar, [one for one in everything if one["kind"] == "solar"])
        self.assertEqual(umbral, [one for one in everything
                                  if one["kind"] == "lunar" and one["type"] != "penumbral"])
        self.assertEqual(self.list(*span[:2]),
                         self.list(*span[:2], "--to", "2030-01-01"))
        seen = self.list(*span, *PUNE, "--visible")
        self.assertEqual(seen, [one for one in self.list(*span, *PUNE) if one["visible"]])
        self.assertTrue(0 < len(seen) < len(everything))

    def test_from_a_place(self):
        # Annular from Coimbatore on 2019-12-26: the ring from 9:28 to 9:31 by the clock.
        ring = self.list("--from", "2019-12-26", "--to", "2019-12-26", "--lat", "11.017", "--lon",
                         "76.956", *INDIA)[0]
        self.assertEqual(ring["local"]["type"], "annular")
        self.assertEqual(ring["local"]["seenType"], "annular")
        hours = {contact["contact"]: contact["hour"] for contact in ring["contacts"]}
        for contact, hour in (("partial-begin", 8 + 6 / 60), ("total-begin", 9 + 28 / 60),
                              ("total-end", 9 + 31 / 60), ("partial-end", 11 + 10 / 60)):
            self.assertAlmostEqual(hours[contact], hour, delta=1.6 / 60)
        # The places of the program's lists give coordinates and zone.
        place = self.json("eclipses", "--from", "2019-12-26", "--to", "2019-12-26", "--place",
                          "Coimbatore, India")["eclipses"][0]
        self.assertEqual(place["local"]["type"], "annular")
        self.assertAlmostEqual(place["hour"], ring["hour"], 6)
        text = self.text("eclipses", "--from", "2024-09-01", "--to", "2025-09-30", *PUNE)
        self.assertRegex(text, r"\n2024-09-18 +8:1\d:\d\d +lunar +partial +0\.0\d+ .* penumbral\n")
        self.assertRegex(text, r"\n2025-09-07 .* total\n")
        self.assertRegex(text, r"\n2025-03-14 .* no\n")
        self.assertRegex(text, r"\nSeen from the place\n")
        self.assertIn("In parentheses: below the horizon.", text)
        self.assertEqual(self.text("eclipses", "--from", "2024-05-01", "--to", "2024-05-31"),
                         "There is no such eclipse.\n")

    def test_points_of_a_chart(self):
        # The Moon of the example stands at 6 Libra 57, the Sun at 21 Scorpio 33.
        native = ["--with-date", "1996-12-07", "--with-time", "10:34", "--with-zone", "+5:30",
                  "--with-lat", CHENNAI[1], "--with-lon", CHENNAI[3]]
        found = self.list("--from", "1996-01-01", "--to", "2016-12-31", *native)
        chart = {point["index"]: point["longitude"]
                 for point in self.json("chart", *EXAMPLE)["points"]}
        hits = 0
        for eclipse in found:
            for point in eclipse["points"]:
                hits += 1
                body = eclipse["sunLongitude" if point["body"] == 1 else "moonLongitude"]
                apart = abs((chart[point["point"]] - body + 180) % 360 - 180)
                self.assertAlmostEqual(apart, point["distance"], 6)
                self.assertLessEqual(apart, 3)
            near = {index for index in range(10) if any(
                abs((chart[index] - eclipse[body] + 180) % 360 - 180) <= 3
                for body in ("sunLongitude", "moonLongitude"))}
            self.assertLessEqual(near, {point["point"] for point in eclipse["points"]})
        self.assertGreater(hits, 5)
        text = self.text("eclipses", "--from", "1996-01-01", "--to", "2016-12-31", *native)
        self.assertIn("\nPoints of the chart within 3 degrees\n", text)


class Windows(ProgramTest):
    def test_windows(self):
        result = self.json("vargas", *EXAMPLE, "--windows")
        birth = 10 + 34 / 60
        ascendants = {varga["index"]: varga["placements"][0]["sign"]
                      for varga in result["vargas"]}
        self.assertEqual([window["varga"] for window in result["windows"]], list(range(21)))
        for window in result["windows"]:
            self.assertEqual(window["sign"], ascendants[window["varga"]])
            self.assertTrue(window["begin"] < birth < window["end"])

        def sign_at(hour, varga):
            clock = f"{int(hour)}:{int(hour * 60) % 60:02d}:{hour * 3600 % 60:.2f}"
            words = EXAMPLE[:2] + ["--time", clock] + EXAMPLE[4:]
            chart = self.json("vargas", *words, "--varga", str(varga))
            return chart["vargas"][0]["placements"][0]["sign"]
        for varga in (0, 5, 15):
            window = result["windows"][varga]
            for edge, inward in ((window["begin"], 1), (window["end"], -1)):
                self.assertEqual(sign_at(edge + inward / 3600, varga), window["sign"])
                self.assertNotEqual(sign_at(edge - inward / 3600, varga), window["sign"])

        one = self.json("vargas", *EXAMPLE, "--windows", "--varga", "D9")
        self.assertEqual(one["windows"], [result["windows"][5]])
        self.assertIsNone(self.json("vargas", *EXAMPLE)["windows"])
        text = self.text("vargas", *EXAMPLE, "--windows")
        self.assertRegex(text, r"\nThe ascendant stays in its sign\n"
                               r"Varga +Ascendant +From +To +Length\n"
                               r"D1 +Capricorn +\d+:\d\d:\d\d +\d+:\d\d:\d\d +[12]:\d\d:\d\d\n")

    def test_charts_without_an_ascendant_that_moves(self):
        bare = ["--positions", self.positions([298.45] + [30.0 * i for i in range(8)] + [30.0])]
        self.assertIsNone(self.json("vargas", *bare, "--windows")["windows"])
        self.assertIn("need a moment and a place", self.text("vargas", *bare, "--windows"))


if __name__ == "__main__":
    unittest.main()
