"""The panchanga of days."""

import os
import pty
import re
import unittest

from program import HOROSCOPE_R, PROGRAM, TROMSO_IN_JUNE, ProgramTest

DELHI = ["--zone", "+5:30", "--lat", "28.6139", "--lon", "77.209"]
TROMSO = TROMSO_IN_JUNE[4:]
MINUTE = 1 / 60


def clock(text):
    hours, minutes = text.split(":")
    return int(hours) + int(minutes) / 60


class Days(ProgramTest):
    def day(self, date, *words, place=DELHI):
        days = self.json("panchanga", "--date", date, *place, *words)["days"]
        self.assertEqual(len(days), 1)
        return days[0]

    def assertHours(self, span, start, end, within=2 * MINUTE):
        self.assertAlmostEqual(span["start"], clock(start), delta=within)
        self.assertAlmostEqual(span["end"], clock(end), delta=within)

    def test_printed_day(self):
        day = self.day("2022-01-24")
        self.assertEqual((day["date"], day["weekday"]), ("2022-01-24", 2))
        self.assertAlmostEqual(day["sunrise"], 7 + 14 / 60 + 11 / 3600, delta=15 / 3600)
        self.assertAlmostEqual(day["sunset"], 17 + 52 / 60 + 25 / 3600, delta=15 / 3600)
        for elements, number, name, end in (("tithis", 20, "Shashti", "8:43"),
                                            ("nakshatras", 12, "Hasta", "11:15"),
                                            ("yogas", 6, "Sukarma", "11:12"),
                                            ("karanas", 42, "Vanija", "8:43")):
            first = day[elements][0]
            self.assertEqual((first["index"], first["name"]), (number, name))
            self.assertAlmostEqual(first["end"], clock(end), delta=2 * MINUTE)
            for one, other in zip(day[elements], day[elements][1:]):
                self.assertEqual(one["end"], other["start"])
            self.assertLess(first["start"], day["sunrise"])
            self.assertGreaterEqual(day[elements][-1]["end"], day["nextSunrise"])
        self.assertEqual((day["karanas"][1]["index"], day["karanas"][1]["name"]), (43, "Vishti-"))
        self.assertAlmostEqual(day["karanas"][1]["end"], clock("20:19"), delta=2 * MINUTE)
        self.assertHours(day["rahuKalam"], "8:33", "9:53")
        self.assertHours(day["yamaganda"], "11:13", "12:33")
        month = day["month"]
        self.assertEqual((month["amanta"]["name"], month["purnimanta"]["name"]), ("Pausha", "Magha"))
        self.assertEqual((day["ritu"]["name"], day["ayana"]["name"]), ("Hemanta", "Uttarayana"))
        self.assertEqual((day["shaka"], day["vikrama"]), (1943, 2078))
        self.assertEqual({name: year["index"] for name, year in day["samvatsara"].items()},
                         {"southern": 34, "northern": 47})

    def test_parts(self):
        day = self.day("2022-01-26")
        self.assertIsNone(day["abhijit"])  # void on Wednesday
        self.assertHours(day["durmuhurta"][0], "12:12", "12:55")
        for parts, count in (("horas", 24), ("choghadia", 16), ("kalaVelas", 16)):
            self.assertEqual(len(day[parts]), count)
            self.assertEqual(day[parts][0]["start"], day["sunrise"])
            self.assertEqual(day[parts][count // 2]["start"], day["sunset"])
            self.assertAlmostEqual(day[parts][-1]["end"], day["nextSunrise"])
        # Mercury's day; the night of Wednesday begins with Udvega.
        self.assertEqual(day["horas"][0]["lord"], 4)
        self.assertEqual(day["choghadia"][8]["name"], "Udvega")
        self.assertEqual((day["kalaVelas"][7]["lord"], day["kalaVelas"][7]["name"]), (None, None))
        kalam = self.day("2025-11-20")
        self.assertHours(kalam["varjyam"][-1], "15:28", "17:16", 4 * MINUTE)
        self.assertHours(kalam["amritaKalam"][-1], "26:15", "28:03", 4 * MINUTE)

    def test_leap_and_lost_months(self):
        for date, adhika, kshaya, name in (("2023-07-20", True, False, "Ad.Shravana"),
                                           ("2023-08-20", False, False, "Shravana"),
                                           ("1983-01-20", False, True, "Pausha-Magha")):
            month = self.day(date)["month"]
            self.assertEqual((month["adhika"], month["kshaya"]), (adhika, kshaya), date)
            text = self.text("panchanga", "--date", date, *DELHI)
            self.assertRegex(text, rf"\nLunar month: {re.escape(name)}( \(|\n)")

    def test_moment(self):
        # Before sunrise the day of the date before is still running.
        day = self.day("2022-01-24")
        early = self.day("2022-01-24", "--time", "5:00")
        self.assertEqual((early["date"], early["weekday"]), ("2022-01-23", 1))
        self.assertAlmostEqual(early["nextSunrise"] - 24, day["sunrise"], places=9)
        now = self.json("panchanga", "--now", *DELHI, environment={"KESTRAV_CLOCK": "1643020200"})
        self.assertEqual(now["days"][0], self.day("2022-01-24", "--time", "16:00"))

    def test_report(self):
        text = self.text("panchanga", "--date", "2022-01-24", *DELHI)
        self.assertIn("\nTithi: Shashti, Fiery 6 of the Waning Moon from 09:1", text)
        self.assertIn("\nHasta Nakshatra (#13) from 11:", text)
        self.assertRegex(text, r"\nRahu kalam +08:3\d +09:5\d +avoid\n")
        self.assertRegex(text, r"\n   8  16:3\d  Amrita     ----       05:3\d\+  Chala      ----\n")
        self.assertRegex(text, r"\n   1  07:14  Moo   17:52   Ven\n")
        sanskrit = self.text("panchanga", "--date", "2022-01-24", *DELHI, "--language", "sanskrit")
        self.assertIn("\nMaas: Pausha (Purnimanta: Magha)\n", sanskrit)
        self.assertIn(" 6 of the Krishna Paksha ", sanskrit)
        wednesday = self.text("panchanga", "--date", "2022-01-26", *DELHI)
        self.assertRegex(wednesday, r"\nAbhijit +-- +-- +void on Wednesday\n")


class Spans(ProgramTest):
    def test_days(self):
        month = self.json("panchanga", "--month", "2024-02", *DELHI)["days"]
        self.assertEqual([day["date"] for day in month],
                         [f"2024-02-{number:02}" for number in range(1, 30)])
        span = self.json("panchanga", "--from", "2024-02-10", "--to", "2024-02-12", *DELHI)["days"]
        self.assertEqual(span, month[9:12])
        for one, other in zip(month, month[1:]):
            self.assertAlmostEqual(one["nextSunrise"] - 24, other["sunrise"], places=9)
        # The ten days that the calendar leaves out.
        october = self.json("panchanga", "--month", "1582-10", *DELHI)["days"]
        self.assertEqual(len({day["weekday"] for day in october}), 7)
        for one, other in zip(october, october[1:]):
            self.assertEqual(other["weekday"], one["weekday"] % 7 + 1)

    def test_table(self):
        text = self.text("panchanga", "--month", "2023-08", *DELHI)
        lines = text.split("\n\n")[1].splitlines()
        self.assertRegex(lines[0], r"\ADate +Day +Sunrise +Sunset +Moon +Tithi +to +Nakshatra +to")
        self.assertEqual(sum(line.startswith("2023-08-") for line in lines), 31)
        self.assertRegex(lines[1], r"\A2023-08-01  Tue .* Waxing +Purnima .* Ad\.Shravana\Z")
        # Shashti of the 6th ends before the next sunrise, too.
        sixth = next(i for i, line in enumerate(lines) if line.startswith("2023-08-06"))
        self.assertRegex(lines[sixth + 1], r"\A +Waning +Shashti +05:2\d\+\Z")
        self.assertRegex(text, r"2023-08-17  Thu .* Prathama .* Shravana\n")

    def test_saving_time_of_the_place(self):
        words = ["panchanga", "--from", "2024-03-30", "--to", "2024-04-01", "--place",
                 "Berlin, Germany"]
        self.assertRegex(self.text(*words), r"\nClock set +2024-03-31 forward\n")
        days = self.json(*words)["days"]
        rises = [day["sunrise"] for day in days]
        self.assertAlmostEqual(rises[1] - rises[0], 1 - 2.3 / 60, delta=0.01)
        self.assertAlmostEqual(rises[2] - rises[1], -2.3 / 60, delta=0.01)

    def test_progress(self):
        # On a terminal the count of days comes and goes; elsewhere nothing is written.
        words = ["panchanga", "--from", "2020-01-01", "--to", "2022-12-31", *DELHI]
        self.assertEqual(self.start(*words).stderr, b"")
        master, terminal = pty.openpty()
        child = os.fork()
        if child == 0:
            os.dup2(terminal, 2)
            os.dup2(os.open(os.devnull, os.O_WRONLY), 1)
            os.execve(PROGRAM, [str(PROGRAM), *words], {"HOME": str(self.home)})
        os.close(terminal)
        shown = b""
        try:
            while part := os.read(master, 4096):
                shown += part
        except OSError:  # the end of a terminal
            pass
        os.close(master)
        self.assertEqual(os.waitpid(child, 0)[1], 0)
        self.assertRegex(shown, rb"\A\rDays: \d+ of 1096")
        self.assertTrue(shown.endswith(b"\r"))


class Poles(ProgramTest):
    def test_midnight_sun(self):
        words = ["panchanga", "--date", "1996-06-21", *TROMSO]
        text = self.text(*words)
        self.assertIn("The Sun does not set on this day: no horas, choghadia, kala velas", text)
        self.assertNotRegex(text, r"\n(Part|Hora|Rahu)")
        day = self.json(*words)["days"][0]
        for name in ("sunrise", "sunset", "rahuKalam", "yamaganda", "gulika", "abhijit"):
            self.assertIsNone(day[name], name)
        for name in ("horas", "choghadia", "kalaVelas", "durmuhurta"):
            self.assertEqual(day[name], [], name)
        self.assertTrue(day["tithis"] and day["nakshatras"])

    def test_table(self):
        text = self.text("panchanga", "--month", "1996-11", *TROMSO)
        self.assertRegex(text, r"\n1996-11-25  Mon  11:\d\d +11:\d\d ")
        self.assertRegex(text, r"\n1996-11-26  Tue  -- +-- ")
        self.assertTrue(text.endswith("without a sunrise the day runs from midnight\n"))
        self.assertNotIn("midnight", self.text("panchanga", "--month", "1996-11", *DELHI))


class Natives(ProgramTest):
    def strength(self, *words):
        # The Moon is in Hasta, nakshatra 13, in Virgo.
        day = self.json("panchanga", "--date", "2022-01-24", *DELHI, *words)["days"][0]
        return day["taraBala"] and day["taraBala"]["score"], day["chandraBala"]

    def test_birth_stars(self):
        self.assertEqual(self.strength(), (None, None))
        self.assertEqual(self.strength("--native-star", "Hasta"), (0, 1))
        # The tenth star from Rohini is favourable; the sixth sign from Aries, too.
        self.assertEqual(self.strength("--native-star", "4"), (1, 0))
        self.assertEqual(self.strength("--native-star", "bharani 2"), (-1, 1))
        # Krittika lies in Aries and Taurus; Virgo is the eighth sign from Aquarius.
        self.assertEqual(self.strength("--native-star", "Krittika"), (1, None))
        self.assertEqual(self.strength("--native-star", "krittika 1"), (1, 1))
        self.assertEqual(self.strength("--native-star", "Shatabhisha"), (1, -1))
        text = self.text("panchanga", "--date", "2022-01-24", *DELHI, "--native-star", "Hasta")
        self.assertIn("\nTara bala: Birth Star, mainly favourable\nChandra bala: +1\n", text)

    def test_charts(self):
        # Swati in Libra, the 27th star and the 12th sign.
        typed = ["--native-date", "1996-12-07", "--native-time", "10:34"]
        swati = self.strength("--native-star", "Swati 1")
        self.assertEqual(self.strength(*typed, "--native-zone", "5:30"), swati)
        self.assertEqual(self.strength(*typed, "--native-place", "Chennai, India"), swati)
        bare = self.positions(dict(enumerate(HOROSCOPE_R)))
        self.assertEqual(self.strength("--native-positions", bare),
                         self.strength("--native-star", "Dhanishtha 4"))
        # A database has natives, and places for the days.
        sample = ["--db", str(PROGRAM.parent / "Sample.ksc")]
        einstein = self.strength(*sample, "--native", "Albert Einstein")
        self.assertEqual(einstein, self.strength("--native-star", "Jyeshtha"))
        ulm = self.json("panchanga", "--month", "2022-01", *sample, "--line", "1")["days"]
        self.assertEqual(self.json("panchanga", "--date", "2022-01-24", *sample, "--line",
                                   "1")["days"], ulm[23:24])
        self.assertAlmostEqual(ulm[23]["sunrise"], 7.7, delta=0.1)
        table = self.text("panchanga", "--month", "2022-01", *DELHI, "--native-star", "Swati 1")
        self.assertRegex(table, r" Tara  Chandra  Month\n")
        self.assertRegex(table, r"\n2022-01-26 .* Swati .* 0 +\+1\n")


class Failures(ProgramTest):
    def test_wrong_options(self):
        for words, pattern in (
                (DELHI, "--date is missing"),
                (["--date", "2022-01-24", *DELHI[2:]], "--zone is missing"),
                (["--date", "2022-01-24", "--zone", "5:30"], "--lon and --lat are missing"),
                (["--date", "2022-02-29", *DELHI], "--date: date '2022-02-29' does not exist"),
                (["--month", "2022-13", *DELHI], "--month '2022-13' is not a month"),
                (["--month", "2022-01", "--date", "2022-01-01", *DELHI],
                 "--date cannot stand beside --month"),
                (["--from", "2022-01-01", *DELHI], "--from needs --to"),
                (["--from", "2022-01-02", "--to", "2022-01-01", *DELHI],
                 "--to 2022-01-01 lies before --from 2022-01-02"),
                (["--from", "1900-01-01", "--to", "2000-01-01", *DELHI],
                 "36525 days, more than 3660"),
                (["--date", "8001-01-01", *DELHI], "--date 8001-01-01 lies outside the years"),
                (["--date", "-4001-01-01", "--time", "5:00", *DELHI], "--date -4001-01-01 lies"),
                (["--month", "9000-01", *DELHI], "--month 9000-01 lies outside the years"),
                (["--from", "8000-12-31", "--to", "8001-01-01", *DELHI],
                 "--to 8001-01-01 lies outside the years"),
                (["--month", "2022-01", *DELHI, "--native-star", "Purva"],
                 "--native-star 'Purva' is not the name"),
                (["--month", "2022-01", *DELHI, "--native-star", "Swati 5"], "--native-star"),
                (["--month", "2022-01", *DELHI, "--native-date", "2000-01-01"],
                 "--native-time is missing"),
                (["--month", "2022-01", *DELHI, "--native", "Mira"], "--native needs --db")):
            with self.subTest(words=words):
                self.assertFails(2, pattern, "panchanga", *words)


if __name__ == "__main__":
    unittest.main()
