"""The periods of dashas."""

import unittest

from program import CHENNAI, EXAMPLE, HOROSCOPE_R, ProgramTest

SUN, MOON, MARS, MERCURY, JUPITER, VENUS, SATURN, RAHU, KETU = range(1, 10)
# 1972-06-01 04:16 and others whose dashas are printed.
SOLAR = ["--date", "1967-03-08", "--time", "17:40", "--zone", "5:30", "--lat", "26.3", "--lon",
         "73.067"]


def at_birth(*words):
    return ["dasha", *EXAMPLE, "--levels", "1", *words]


class Lists(ProgramTest):
    def lords(self, *words):
        return [period["lord"] for period in self.json(*words)["periods"]]

    def test_vimshottari(self):
        dasha = self.json(*at_birth())
        self.assertEqual(dasha["system"], {"index": 0, "name": "Vimshottari", "lords": "planet"})
        periods = dasha["periods"]
        self.assertEqual([period["lord"] for period in periods[:9]],
                         [RAHU, JUPITER, SATURN, MERCURY, KETU, VENUS, SUN, MOON, MARS])
        self.assertEqual([period["length"] for period in periods[:9]],
                         [18, 16, 19, 17, 7, 20, 6, 10, 7])
        # The Moon has passed 0.02197 of its nakshatra.
        self.assertAlmostEqual(periods[0]["startAge"], -18 * 0.02197, delta=2e-3)
        for one, other in zip(periods, periods[1:]):
            self.assertAlmostEqual(one["startAge"] + one["length"], other["startAge"], places=9)
            self.assertAlmostEqual(other["startJulianDay"] - one["startJulianDay"],
                                   one["length"] * 365.256364, places=5)
        self.assertEqual(periods[1]["startDate"], "2014-07-16")
        # The rest of Rahu, with months of 30.5 days.
        balance = dasha["balance"]
        rest = balance["years"] + balance["months"] / 12 + balance["days"] / 366
        self.assertAlmostEqual(rest, 18 + periods[0]["startAge"], delta=1 / 366)
        self.assertEqual(balance["lord"], RAHU)
        self.assertEqual(balance["text"], "Balance of Rahu Dasha 17Y {months}M {days}D".format(
            **balance))

    def test_worked_examples(self):
        # Sign dashas of the example chart, then of a birth whose Narayana is printed.
        narayana = self.json(*at_birth("--system", "narayana"))["periods"][:14]
        self.assertEqual([(period["lord"], period["length"]) for period in narayana],
                         [(4, 9), (3, 6), (2, 5), (1, 4), (12, 3), (11, 11), (10, 10), (9, 12),
                          (8, 4), (7, 12), (6, 9), (5, 9), (4, 3), (3, 6)])
        other = self.json("dasha", "--date", "1912-08-08", "--time", "19:38", "--zone", "5:30",
                          "--lat", "13", "--lon", "77.583", "--system", "15", "--levels", "1")
        self.assertEqual([(period["lord"], period["length"]) for period in other["periods"][:12]],
                         [(5, 1), (10, 8), (3, 2), (8, 9), (1, 4), (6, 1), (11, 9), (4, 3),
                          (9, 11), (2, 3), (7, 10), (12, 4)])
        # Tithi Astottari: Mercury from 1992-02-14, 3 days up or down.
        tithi = self.json(*at_birth("--system", "Tithi Astottari"))["periods"]
        self.assertEqual([period["lord"] for period in tithi[:4]], [MERCURY, SATURN, JUPITER, RAHU])
        self.assertAlmostEqual(tithi[0]["startJulianDay"], 2448666.5, delta=3.5)
        self.assertEqual([period["startDate"][:4] for period in tithi[1:4]],
                         ["2009", "2019", "2038"])
        moola = self.json(*at_birth("--system", "moola"))["periods"][:9]
        self.assertEqual([(period["lord"], period["length"]) for period in moola],
                         [(VENUS, 20), (MOON, 3), (MARS, 4), (SUN, 1), (KETU, 7), (SATURN, 12),
                          (JUPITER, 16), (MERCURY, 11), (RAHU, 18)])

    def test_start_points(self):
        # A chart whose balances from the Moon and from the 4th, 5th and 8th of it are printed.
        birth = ["dasha", "--date", "2000-04-28", "--time", "5:50", "--zone", "-4", "--levels", "1"]
        printed = {"Moon": (MARS, 2, 2, 29), "kshema": (SATURN, 6, 1, 5),
                   "11": (MERCURY, 5, 5, 14), "Adhana": (SUN, 1, 11, 3)}
        for start, (lord, years, months, days) in printed.items():
            first = self.json(*birth, "--start-point", start)["periods"][0]
            self.assertEqual(first["lord"], lord, start)
            self.assertAlmostEqual(first["startAge"] + first["length"],
                                   years + months / 12 + days / 365.25, delta=0.03)

    def test_levels_fill_their_parents(self):
        for system, parts in (("vimshottari", 9), ("kala", 9), ("drig", 12), ("sudarshana", 12)):
            periods = self.json("dasha", *EXAMPLE, "--system", system, "--levels", "3",
                                "--from-age", "30", "--lines", "600")["periods"]
            self.assertTrue(all(len(period["lords"]) == period["level"] for period in periods))
            # The second mahadasha of the list, which is there as a whole.
            first, last = [i for i, period in enumerate(periods) if period["level"] == 1][1:3]
            whole, inside = periods[first], periods[first + 1:last]
            self.assertEqual(len(inside), parts + parts * parts, system)
            for level in (2, 3):
                below = [period for period in inside if period["level"] == level]
                self.assertEqual(below[0]["startAge"], whole["startAge"], system)
                self.assertAlmostEqual(sum(period["length"] for period in below), whole["length"])

    def test_span(self):
        every = self.json("dasha", *EXAMPLE, "--levels", "4", "--lines", "20000")["periods"]
        part = self.json("dasha", *EXAMPLE, "--levels", "4", "--from-age", "20.5", "--to-age", "21")
        self.assertEqual(part["periods"], [
            period for period in every
            if period["startAge"] + period["length"] > 20.5 and period["startAge"] <= 21])
        # Days of the birth zone, the last one included.
        dates = self.json("dasha", *EXAMPLE, "--levels", "4", "--from", "2019-12-30", "--to",
                          "2020-01-06")["periods"]
        self.assertEqual([period["startDate"] for period in dates][-2:],
                         ["2019-12-18", "2020-01-06"])
        # A life, unless the periods are counted: then the list goes on until their number is full.
        life = self.json("dasha", *EXAMPLE, "--levels", "1")["periods"]
        self.assertEqual(len(life), 10)
        counted = self.json("dasha", *EXAMPLE, "--levels", "1", "--lines", "30")["periods"]
        self.assertEqual((len(counted), counted[:10]), (30, life))
        # Without more, 1000 periods and a warning; a deep list costs only what is read of it.
        cut = self.json("dasha", *EXAMPLE, "--levels", "5", warning="1000 periods; --lines N")
        self.assertEqual(len(cut["periods"]), 1000)
        short = self.json("dasha", *EXAMPLE, "--levels", "5", "--lines", "7")
        self.assertEqual(short["periods"], cut["periods"][:7])

    def test_lengths(self):
        month = self.json(*at_birth("--total-length", "1/12"))["periods"]
        self.assertAlmostEqual(sum(period["length"] for period in month[:9]), 1 / 12)
        self.assertAlmostEqual(month[1]["length"] * 12, 16 / 120)
        for words, days in ((["360"], 360), (["jovian"], 361.026721), (["1"], 365.24219),
                            (["366.5"], 366.5)):
            two = self.json(*at_birth("--year-length", *words))["periods"][1:3]
            self.assertAlmostEqual(two[1]["startJulianDay"] - two[0]["startJulianDay"], 16 * days,
                                   places=5)
        # The options hold for the call only and go before the settings.
        self.text("settings", "set", "dashaSystem", "Yogini")
        self.assertEqual(self.json(*at_birth())["system"]["index"], 12)
        self.assertEqual(self.json(*at_birth("--system", "0"))["system"]["index"], 0)
        self.assertEqual(self.json(*at_birth())["system"]["index"], 12)

    def test_true_solar_years(self):
        # The Sun is back at its birth place on 2000-03-08 04:41.
        solar = self.json("dasha", *SOLAR, "--system", "sudarshana", "--levels", "1",
                          "--year-length", "true", "--from-age", "33", "--lines", "1")["periods"][0]
        self.assertEqual(solar["startDate"], "2000-03-08")
        self.assertAlmostEqual((solar["startJulianDay"] + 0.5 + 5.5 / 24) % 1 * 24, 4 + 41 / 60,
                               delta=1 / 60)
        # A Sun that was typed has no way to follow.
        bare = ["dasha", "--positions", self.positions(HOROSCOPE_R), "--year-length", "0"]
        result = self.start(*bare)
        self.assertEqual(result.returncode, 0)
        self.assertRegex(result.stderr.decode(), r"\ANotice: If you change the Sun and use the True "
                         r"Solar Year, .* Mean Siderial Year\.\n\Z")
        text = result.stdout.decode()
        self.assertIn("Mean Sidereal, 365.256364 days", text)
        self.assertRegex(text, r"\nPeriod +Age +Years\n")


class Moments(ProgramTest):
    def test_running_periods_are_those_of_the_list(self):
        for system in ("0", "yogini", "kala", "chara", "sudarshana"):
            periods = self.json("dasha", *EXAMPLE, "--system", system, "--levels", "5", "--from",
                                "2020-01-01", "--to", "2020-01-02", "--lines", "2000",
                                "--at", "2020-01-01T12:00")
            moment = 2458850.0 - 5.5 / 24
            listed = {}
            for period in periods["periods"]:
                if period["startJulianDay"] <= moment:
                    listed[period["level"]] = period
            self.assertEqual(periods["running"], [listed[level] for level in range(1, 6)], system)

    def test_text(self):
        text = self.text("dasha", *EXAMPLE, "--at", "2020-01-01")
        self.assertRegex(text, r"\nRunning on 2020-01-01 00:00, at the age of 23\.06\d\d\n")
        self.assertRegex(text, r"\nJupiter +2014-07-16 \d\d:\d\d  2030-07-16 ")
        self.assertRegex(text, r"\n  Jup-Mer +2019-03-17 ")
        self.assertRegex(text, r"\n        Jup-Mer-Ven-Mer-Rah  2019-12-29 ")
        self.assertNotIn("Saturn", text)
        now = self.text("dasha", *EXAMPLE, "--at", "now", environment={"KESTRAV_CLOCK": "0"})
        self.assertIn("No period runs on 1970-01-01 05:30.", now)
        self.assertEqual(self.json("dasha", *EXAMPLE, "--at", "1970-01-01")["running"], [])


class Reports(ProgramTest):
    def test_tables(self):
        text = self.text("dasha", *EXAMPLE, "--levels", "2")
        self.assertIn("\nAt birth     Balance of Rahu Dasha 17Y 7M ", text)
        self.assertRegex(text, r"\nPeriod +From +To +Age +Years\nRahu +1996-07-\d\d  2014-07-16 +"
                               r"-0\.40  18\.00\n  Rah-Rah ")
        sanskrit = self.text("dasha", *EXAMPLE, "--levels", "1", "--language", "sanskrit")
        self.assertRegex(sanskrit, r"\nGuru +2014-07-16 ")
        kala = self.text("dasha", *EXAMPLE, "--system", "kala", "--levels", "1")
        self.assertIn("\nBirth pada   Deh:Aries/Jiv:Sagittarius\n", kala)
        self.assertRegex(kala, r"\nCapricorn .* Deh:Capricorn/Jiv:Gemini\n")
        self.assertEqual(self.json(*at_birth("--system", "kala"))["label"],
                         "Deh:Aries/Jiv:Sagittarius")
        # A birth in saving time: the dates stay in standard time.
        saving = self.text("dasha", *EXAMPLE, "--dst", "1", "--levels", "1")
        self.assertIn("without saving time", saving)

    def test_sudarshana(self):
        # At 25 house 2 begins: Aquarius, Scorpio and Sagittarius from the three references.
        text = self.text("dasha", *EXAMPLE, "--system", "10", "--levels", "1", "--from-age", "25",
                         "--lines", "2")
        self.assertRegex(text, r"Ascendant  Moon +Sun\nHouse 2 .* 25\.00 +1\.00  Aqu +Sco +Sag\n")
        dasha = self.json(*at_birth("--system", "10"))
        self.assertEqual(dasha["references"], [{"point": 0, "sign": 10}, {"point": 2, "sign": 7},
                                               {"point": 1, "sign": 8}])
        self.assertNotIn("-0.0", str(dasha["periods"][0]["startAge"]))

    def test_conditional(self):
        dasha = self.json(*at_birth("--conditional"))
        self.assertEqual([system["name"] for system in dasha["conditional"]],
                         ["Astottari", "Chaturashiti sama", "Shat-trimshat sama"])
        self.assertIn("* Conditional Dashas applying to this native\n  Astottari\n",
                      self.text(*at_birth("--conditional")))
        self.assertIsNone(self.json(*at_birth())["conditional"])

    def test_systems(self):
        systems = self.json("dasha", "--list")["systems"]
        self.assertEqual(len(systems), 24)
        self.assertEqual(systems[1], {"index": 1, "name": "Astottari", "lords": "planet",
                                      "cycleYears": 108, "fromNakshatra": True,
                                      "conditional": True})
        text = self.text("dasha", "--list")
        for system in systems:
            self.assertRegex(text, rf"\n +{system['index']}  " + system["name"].replace(
                "(", r"\(").replace(")", r"\)"))
            dasha = self.json(*at_birth("--system", str(system["index"]), "--lines", "30"))
            self.assertEqual(dasha["system"]["lords"], system["lords"])


class Failures(ProgramTest):
    def test_wrong_values(self):
        chart = ["dasha", *EXAMPLE]
        for words, pattern in (
                (["--system", "Vimsho"], None),
                (["--system", "trimshat"], r"--system 'trimshat' is not known"),
                (["--system", "chakra"],
                 r"--system 'chakra' can be any of Sudarshana Chakra, Kala Chakra"),
                (["--system", "nosuch"], r"--system 'nosuch' is not known; .* --list"),
                (["--system", "sha"], r"--system 'sha' can be any of Shatabdika, Shastihayani, "),
                (["--system", "24"], r"--system '24' is not an index from 0 to 23"),
                (["--levels", "6"], r"--levels '6' .* 1 to 5"),
                (["--start-point", "14"], r"--start-point '14' .* 0 to 13"),
                (["--total-length", "2 years"], r"--total-length '2 years' .* Standard, 1 year"),
                (["--year-length", "100"], r"--year-length '100'"),
                (["--lines", "0"], r"--lines '0' .* 1 to 100000"),
                (["--from-age", "old"], r"--from-age 'old'"),
                (["--from-age", "20", "--to-age", "19"], r"--to-age 19 lies before --from-age 20"),
                (["--from", "2001-01-01", "--to", "2000-12-31"],
                 r"--to 2000-12-31 lies before --from 2001-01-01"),
                (["--to", "1980-01-01"], r"--to 1980-01-01 lies before birth"),
                (["--from", "2001-01-01", "--from-age", "3"], r"--from cannot stand beside"),
                (["--from", "2001-02-29"], r"--from: date '2001-02-29' does not exist"),
                (["--to", "20000-01-01"], r"--to 20000-01-01 lies more than 10000 years from"),
                (["--at", "2001-01-01T24:00"], r"--at: time '24:00'"),
                (["--at", "soon"], r"--at: date 'soon'")):
            with self.subTest(words=words):
                if pattern is None:
                    self.text(*chart, *words)
                else:
                    self.assertFails(2, pattern, *chart, *words)

    def test_missing_data(self):
        self.assertFails(2, "Ascendant; give --lon and --lat", "dasha", *EXAMPLE[:6], "--system",
                         "narayana")
        self.text("dasha", *EXAMPLE[:6])
        self.assertFails(2, "--longitude|--lat is missing", "dasha", *EXAMPLE[:6], *CHENNAI[2:])
        bare = ["dasha", "--positions", self.positions(HOROSCOPE_R)]
        self.assertFails(2, "--at cannot stand beside --positions", *bare, "--at", "2000-01-01")
        dasha = self.json(*bare, "--lines", "3")
        self.assertEqual([period["startDate"] for period in dasha["periods"]], [None] * 3)


if __name__ == "__main__":
    unittest.main()
