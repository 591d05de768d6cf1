"""Charts in text and JSON against printed examples."""

import math
import re
import unittest

from program import CHENNAI, EXAMPLE, EXAMPLE_POSITIONS, TROMSO_IN_JUNE, ProgramTest

SIGNS = ["Ari", "Tau", "Gem", "Can", "Leo", "Virg", "Libr", "Sco", "Sag", "Cap", "Aqu", "Pis"]
DELHI = ["--date", "2022-01-24", "--zone", "+5:30", "--lat", "28.6139", "--lon", "77.209"]


class Example(ProgramTest):
    def test_text_prints_the_positions(self):
        for command in ("chart", "positions"):
            lines = self.text(command, *EXAMPLE).splitlines()
            for name, (sign, degrees, minutes) in EXAMPLE_POSITIONS.items():
                printed = f"{degrees:2d}°{minutes:3d}' {SIGNS[sign - 1]}"
                row = next(line for line in lines if re.match(name + r"  +\d+° ", line))
                self.assertIn(printed, row)
        self.assertRegex(self.text("chart", *EXAMPLE), r"Moon .*Swati +1  Sag .* S +2°")

    def test_json_holds_the_positions(self):
        chart = self.json("chart", *EXAMPLE)
        for name, (sign, degrees, minutes) in EXAMPLE_POSITIONS.items():
            point = self.point(chart, name)
            self.assertEqual(point["rashi"], sign, name)
            self.assertEqual(int(point["degreeInSign"] * 60 + 1e-6), degrees * 60 + minutes, name)
            self.assertAlmostEqual(point["longitude"],
                                   30 * (sign - 1) + point["degreeInSign"], 9)
        self.assertEqual([self.point(chart, name)["retrograde"] for name in ("Sun", "Rahu")],
                         [False, True])
        moon = self.point(chart, "Moon")
        self.assertEqual((moon["nakshatra"], moon["pada"]), (14, 1))
        self.assertEqual(chart["time"]["weekday"], 7)
        self.assertAlmostEqual(chart["time"]["utHours"], 10 + 34 / 60 - 5.5, 12)
        self.assertEqual(chart["ayanamsa"]["name"], "Lahiri")

    def test_latitude_and_declination_are_degrees(self):
        chart = self.json("chart", *EXAMPLE)
        obliquity = math.radians(chart["houses"]["obliquity"])
        for name in ("Moon", "Pluto"):
            point = self.point(chart, name)
            longitude = math.radians(point["longitude"] + chart["ayanamsa"]["degrees"])
            latitude = math.radians(point["latitude"])
            self.assertGreater(abs(point["latitude"]), 1.0)
            sine = (math.sin(latitude) * math.cos(obliquity)
                    + math.cos(latitude) * math.sin(obliquity) * math.sin(longitude))
            self.assertAlmostEqual(point["declination"], math.degrees(math.asin(sine)), 6)

    def test_forms_of_place_and_zone_agree(self):
        decimal = self.json("houses", *EXAMPLE[:6], "--lat", "-13.5", "--lon", "-80.25")
        lettered = self.json("houses", *EXAMPLE[:4], "--zone=5.5", "--lat=13S30", "--lon=80w15:00")
        self.assertEqual(decimal, lettered)
        self.assertEqual((decimal["input"]["latitude"], decimal["input"]["longitude"]),
                         (-13.5, -80.25))

    def test_saving_time_moves_universal_time(self):
        summer = self.json("positions", *EXAMPLE, "--dst", "1")
        winter = self.json("positions", *EXAMPLE[:3], "9:34", *EXAMPLE[4:])
        self.assertEqual(summer["points"], winter["points"])
        self.assertEqual(summer["input"]["daylightSaving"], 1)

    def test_names_and_labels(self):
        chart = self.json("chart", *EXAMPLE, "--name", "Élodie", "--place", "Chennai, भारत",
                          "--language", "sanskrit")
        self.assertEqual(chart["input"]["name"], "Élodie")
        self.assertEqual(chart["input"]["place"], "Chennai, भारत")
        self.assertEqual(chart["points"][1]["name"], "Surya")
        text = self.text("chart", *EXAMPLE, "--name", "Élodie", "--set", "displayFlags=64",
                         "--language", "english")
        self.assertIn("Élodie", text)
        self.assertRegex(text, r"\nSun +21° 33' Sco ")

    def test_positions_need_no_place(self):
        with_place = self.json("positions", *EXAMPLE)
        without = self.json("positions", *EXAMPLE[:6])
        # The bodies, the upagrahas of the Sun and the Yogi point need neither day nor ascendant.
        placeless = set(range(1, 15)) | {32, 33, 34, 59}
        for index, (a, b) in enumerate(zip(with_place["points"], without["points"])):
            self.assertEqual(a["longitude"] is None, index in (22, 23), index)
            if index in placeless:
                self.assertEqual(a, b)
            else:
                self.assertIsNone(b["longitude"], index)
        self.assertNotIn("Ascendant", self.text("positions", *EXAMPLE[:6]))


class Calendar(ProgramTest):
    def test_years_before_christ(self):
        # The Ides of March: Julian day 1705426 at noon.
        for date in (["--date", "-0044-03-15"], ["--date=-0044-03-15"]):
            moment = self.json("positions", *date, "--time", "12:00", "--zone", "0")
            self.assertEqual(moment["time"]["julianDay0h"], 1705425.5)
            self.assertEqual(moment["time"]["dayCount"] + 2415020, 1705426.0)
        self.assertIn("44 BC", self.text("positions", *date, "--time", "12:00", "--zone", "0"))

    def test_last_julian_day_is_warned_about(self):
        moment = self.json("positions", "--date", "1582-10-15", "--time", "0:00", "--zone", "0",
                           warning="October 25")
        self.assertEqual(moment["time"]["julianDay0h"], 2299170.5)

    def test_tropical_row_takes_the_nutation_only(self):
        ayanamsa = self.json("chart", *EXAMPLE, "--set", "ayanamsaRow=9")["ayanamsa"]
        self.assertEqual(ayanamsa["degrees"], -ayanamsa["nutation"])
        self.assertLess(abs(ayanamsa["nutation"]), 0.006)


class Sun(ProgramTest):
    def assertNear(self, hours, clock):
        hour, minute, second = (int(part) for part in clock.split(":"))
        self.assertAlmostEqual(hours * 3600, hour * 3600 + minute * 60 + second, delta=15)

    def test_sunrise_and_sunset(self):
        chennai = ["--date", "2024-07-17", "--zone", "+5:30"] + CHENNAI
        for place, sunrise, sunset in ((DELHI, "7:14:11", "17:52:25"),
                                       (chennai, "5:51:53", "18:38:14")):
            sun = self.json("sun", *place, "--time", "12:00")["sun"]
            self.assertNear(sun["sunrise"], sunrise)
            self.assertNear(sun["sunset"], sunset)
            text = self.text("sun", *place, "--time", "12:00")
            for label, hours in (("Sunrise", sun["sunrise"]), ("Sunset", sun["sunset"])):
                printed = re.search(label + r" +(\d+):(\d\d):(\d\d)\n", text).groups()
                seconds = sum(int(p) * unit for p, unit in zip(printed, (3600, 60, 1)))
                self.assertAlmostEqual(seconds, hours * 3600, delta=0.51)
            noon = re.search(r"Noon +(\d+):(\d\d):", text).groups()
            middle = (sun["sunrise"] + sun["sunset"]) / 2
            self.assertAlmostEqual(int(noon[0]) + int(noon[1]) / 60, middle, delta=0.03)

    def test_day_before_sunrise_belongs_to_the_day_before(self):
        chart = self.json("chart", *DELHI, "--time", "3:00")
        day = chart["sun"]["vedicDay"]
        self.assertNear(day["nextSunrise"], "7:14:11")
        self.assertLess(day["sunrise"], -16.7)
        self.assertLess(day["sunset"], 0)
        self.assertEqual(chart["time"]["weekday"], 1)  # Sunday; the civil date is a Monday
        self.assertRegex(self.text("sun", *DELHI, "--time", "3:00"), r"Sunset +17:51:\d\d-\n")


class Polar(ProgramTest):
    def test_missing_values_are_marked(self):
        words = TROMSO_IN_JUNE + ["--set", "houseSystem=Placidus (Vedic)"]
        chart = self.json("chart", *words)
        self.assertEqual((chart["sun"]["sunrise"], chart["sun"]["sunset"]), (None, None))
        self.assertEqual(set(chart["sun"]["vedicDay"].values()), {None})
        cusps, sandhis = chart["houses"]["cusps"], chart["houses"]["sandhis"]
        self.assertIn(None, cusps)
        self.assertIn(None, sandhis)
        self.assertEqual([point["longitude"] for point in chart["points"][35:47]], cusps)
        text = self.text("chart", *words)
        self.assertIn("neither rises nor sets", text)
        self.assertRegex(text, r"Sunrise +--\n")
        self.assertRegex(text, r"\n +\d+  -- .*")
        self.assertRegex(text, r"Placidus[^.]*latitude[^.]*\.[^.]*Equal\s+House")

    def test_other_systems_are_complete_there(self):
        houses = self.json("houses", *TROMSO_IN_JUNE, "--set", "houseSystem=1")["houses"]
        self.assertNotIn(None, houses["cusps"])
        self.assertIsNone(houses["sandhis"])
        self.assertNotIn("Placidus", self.text("houses", *TROMSO_IN_JUNE))


if __name__ == "__main__":
    unittest.main()
