"""The listing of transits."""

import unittest

from program import EXAMPLE, EXAMPLE_POSITIONS, ProgramTest

PLACELESS = EXAMPLE[:6]
NATIVE = ["transits"] + PLACELESS
# Another way to say where the points of the example chart stand.
BARE = {index: (sign - 1) * 30 + degree + minute / 60
        for index, (sign, degree, minute) in enumerate(EXAMPLE_POSITIONS.values())}


class Transits(ProgramTest):
    def events(self, *words, **how):
        return self.json("transits", *words, **how)["events"]

    def test_published_moments(self):
        words = PLACELESS + ["--from", "1996-12-07", "--to", "1997-12-31", "--bodies",
                             "moon,sun,rahu,mercury,mars,venus", "--kinds", "signs,stations"]
        events = self.events(*words)
        found = {(event["body"], event["kind"], event["date"]): event for event in events}
        scorpio = found[2, "ingress", "1996-12-09"]
        self.assertAlmostEqual(scorpio["hour"], 3 + 46 / 60 + 39 / 3600, delta=1 / 60)
        self.assertEqual((scorpio["sign"], scorpio["division"]), (8, "sign"))
        self.assertEqual(scorpio["line"], "Tr. Moon    enters Scorpio at 3:47")
        self.assertAlmostEqual(found[1, "ingress", "1996-12-15"]["hour"], 17.71, delta=0.08)
        self.assertTrue(found[8, "ingress", "1997-06-24"]["retrograde"])
        for body, date, hour in ((4, "1996-12-24", 1 + 8 / 60), (3, "1997-02-06", 5 + 57 / 60),
                                 (6, "1997-12-27", 2 + 47 / 60)):
            station = found[body, "station", date]
            self.assertAlmostEqual(station["hour"], hour, delta=0.25)
            self.assertIn("turns retrograde", station["line"])
        # The same in the text, day by day.
        text = self.text("transits", *words)
        self.assertRegex(text, r"\ATransits to the chart, 1996-12-07 to 1997-12-31, zone \+5:30\n")
        self.assertRegex(text, r"1996-12-09 +Monday +3:46:\d\d +Tr\. Moon    enters Scorpio at")

    def test_conjunction_without_a_native(self):
        words = ["--mode", "transit", "--bodies", "jupiter,saturn", "--targets", "saturn,jupiter",
                 "--kinds", "aspects", "--from", "2000-05-01", "--to", "2000-06-30"]
        for clock in (["--clock", "+5:30"], ["--zone", "5.5"]):
            (meeting,) = self.events(*words, *clock)
            self.assertEqual((meeting["kind"], meeting["date"], meeting["houseDistance"]),
                             ("conjunction", "2000-05-28", 1))
            self.assertAlmostEqual(meeting["hour"], 21 + 25 / 60, delta=0.25)
            self.assertAlmostEqual(meeting["longitude"], 28 + 52 / 60, delta=1 / 60)
        # Without any zone the clock is that of Universal Time.
        (meeting,) = self.events(*words)
        self.assertAlmostEqual(meeting["hour"], 15 + 55 / 60, delta=0.25)

    def test_filters(self):
        span = ["--from", "1997-01-01", "--to", "1997-12-31"]
        every = self.events(*PLACELESS, *span)
        kinds = {event["kind"] for event in every}
        self.assertEqual(kinds, {"aspect", "conjunction", "orb-enter", "orb-leave", "ingress",
                                 "station", "combust-enter", "combust-leave"})
        self.assertEqual(every, sorted(every, key=lambda event: event["julianDay"]))
        some = self.events(*PLACELESS, *span, "--bodies", "Saturn,3", "--targets", "moon,venus",
                           "--kinds", "aspects,orbs")
        self.assertEqual(some, [event for event in every if event["body"] in (3, 7)
                                and event["target"] in (2, 6)])
        self.assertEqual({event["houseDistance"] for event in some} - {1, 3, 7, 10}, set())
        self.assertNotIn("nakshatra", {event["division"] for event in every})
        padas = self.events(*PLACELESS, *span, "--bodies", "sun", "--kinds", "padas")
        self.assertEqual(len(padas), 108)
        self.assertEqual(self.events(*PLACELESS, *span, "--kinds", "none"), [])
        self.assertIn("no event", self.text(*NATIVE, *span, "--kinds", "none"))
        self.assertFalse({8, 9, 32} & {event["body"] for event in self.events(
            *PLACELESS, *span, "--no-upagrahas", "--kinds", "aspects", "--set", "nodeOption=2")})
        # Without a place there is no ascendant; with one it is a target.
        self.assertNotIn(0, {event["target"] for event in every})
        self.assertIn(0, {event["target"] for event in self.events(*EXAMPLE, *span)})

    def test_offset_moves_exact_places(self):
        words = ["--bodies", "sun", "--kinds", "aspects", "--aspects", "every", "--from",
                 "1998-01-01", "--to", "1998-12-31", "--positions", self.positions(BARE)]
        plain = self.events(*words, "--targets", "moon")
        moved = self.events(*words, "--targets", "moon", "--offset", "30")
        self.assertEqual(len(plain), 12)
        self.assertEqual([event["julianDay"] for event in moved],
                         [event["julianDay"] for event in plain])
        self.assertEqual([event["houseDistance"] % 12 + 1 for event in moved],
                         [event["houseDistance"] for event in plain])

    def test_all_passes(self):
        words = PLACELESS + ["--from", "1996-01-01", "--to", "2005-12-31", "--bodies",
                             "mars,rahu", "--kinds", "aspects", "--aspects", "0"]
        passes = self.events(*words)
        tested = self.events(*words, "--set", "allPasses=off")
        self.assertEqual({event["body"] for event in tested}, {3})
        self.assertFalse(any(event["retrograde"] for event in tested))
        lines = [event["line"] for event in passes]
        self.assertTrue(all(event["line"] in lines for event in tested))
        self.assertGreater(len(passes), len(tested) + 50)

    def test_sade_sati_and_kakshyas(self):
        words = ["transits", "--positions", self.positions(BARE), "--clock", "5:30", "--kinds",
                 "none", "--from", "2011-01-01", "--to", "2018-12-31"]
        plain = self.json(*words)
        self.assertIsNone(plain["kakshyas"])
        self.assertIsNone(plain["sadeSati"])
        # Saturn entered Libra, the Moon's sign, on 2011-11-15, went back on 2012-05-16 and came
        # again on 2012-08-04; Scorpio followed on 2014-11-02.
        phases = self.json(*words, "--sade-sati")["sadeSati"]
        self.assertEqual([(phase["house"], phase["startDate"], phase["return"])
                          for phase in phases if not phase["small"]][1:5],
                         [(1, "2011-11-15", False), (12, "2012-05-16", True),
                          (1, "2012-08-04", False), (2, "2014-11-02", False)])
        self.assertRegex(self.text(*words, "--sade-sati"),
                         r"first phase \(returns\) +Virgo +2012-05-16 ")
        stays = self.json(*words, "--kakshyas", "--bodies", "sun,rahu")["kakshyas"]
        self.assertEqual({stay["point"] for stay in stays}, {1})
        self.assertGreaterEqual(len(stays), 8 * 96)
        self.assertEqual([stay["part"] for stay in stays[:9]],
                         [(stays[0]["part"] + i) % 8 for i in range(9)])

    def test_days(self):
        clock = {"KESTRAV_CLOCK": "852076800"}  # 1997-01-01 0h Universal Time
        words = ["--bodies", "moon", "--kinds", "nakshatras"]
        dates = [event["date"] for event in self.events(*PLACELESS, *words, environment=clock)]
        self.assertEqual((dates[0], dates[-1][:8]), ("1997-01-01", "1997-01-"))
        self.assertIn(len(dates), (29, 30, 31))
        one = self.events(*PLACELESS, *words, "--from", "1997-01-05", "--to", "1997-01-05")
        self.assertEqual({event["date"] for event in one}, {"1997-01-05"})

    def test_errors_name_the_option(self):
        for pattern, words in (
                ("--to lies before --from", ["--from", "1997-01-02", "--to", "1997-01-01"]),
                ("--to lies before today", ["--to", "1997-01-01"]),
                ("--to lies more than 200 years", ["--from", "1800-01-01", "--to", "2001-01-01"]),
                ("--from '9000-01-01' lies outside the years", ["--from", "9000-01-01"]),
                ("--to: date '1997-13-01'", ["--to", "1997-13-01"]),
                ("--orb '0' is not a whole number from 1 to 14", ["--orb", "0"]),
                ("--offset '1.5' is not a whole number", ["--offset", "1.5"]),
                ("--mode 'x' is not known", ["--mode", "x"]),
                ("--aspects '6' is not known", ["--aspects", "6"]),
                ("--kinds 'aspect': there is no kind", ["--kinds", "aspect"]),
                ("--bodies: Gulika is no body", ["--bodies", "gulika"]),
                ("--bodies 'sun,': there is no point", ["--bodies", "sun,"]),
                ("--targets: the chart has no position of Ascendant", ["--targets", "ascendant"]),
                ("--clock: ", ["--clock", "99"])):
            self.assertFails(2, pattern, *NATIVE, *words)
        self.assertFails(2, "--date, --time and --zone are missing", "transits", "--from",
                         "1997-01-01")
        self.assertFails(2, "--date, --time and --zone are missing", "transits", "--mode",
                         "transit", "--sade-sati")
        self.assertFails(2, "--targets: Ascendant is no body", "transits", "--mode", "transit",
                         "--targets", "0")


if __name__ == "__main__":
    unittest.main()
