"""Places, their zones, and charts whose place is looked up."""

import json
import subprocess
import unittest

import jsonschema

from program import BIN, CHENNAI, EXAMPLE, ProgramTest
from schema_test import SCHEMA

MOMENT = ["--date", "1990-06-15", "--time", "14:32"]


class AtlasTest(ProgramTest):
    def call(self, *words, code=0, told=(), **how):
        """Standard output of a call with the exit code, whose messages are these patterns."""
        result = self.start(*words, **how)
        errors = result.stderr.decode("utf-8")
        self.assertEqual(result.returncode, code, errors)
        self.assertEqual(len(errors.splitlines()), len(told), errors)
        for message, pattern in zip(errors.splitlines(), told):
            self.assertRegex(message, pattern)
        return result.stdout.decode("utf-8")

    def data(self, command, *words, **how):
        output = json.loads(self.call(*command.split(), *words, "--json", **how))
        name = "command-" + command.replace(" ", "-")
        jsonschema.validate(output, {"$defs": SCHEMA["$defs"], "$ref": "#/$defs/" + name})
        return output


class Find(AtlasTest):
    def found(self, *words):
        return [(place["name"], place["region"], place["country"])
                for place in self.data("atlas find", *words)["places"]]

    def test_ranked_matches(self):
        portlands = self.data("atlas find", "Portland")["places"]
        self.assertEqual([place["region"] for place in portlands[:2]], ["Oregon", "Maine"])
        people = [place["population"] for place in portlands]
        self.assertEqual(people, sorted(people, reverse=True))
        oregon = [("Portland", "Oregon", "United States of America")]
        for words in (["Portland, Oregon"], ["Portland", "--state", "OR"], ["portland", ",", "or"],
                      ["Portland", "--state", "Oregon", "--country", "USA"]):
            self.assertEqual(self.found(*words), oregon)
        # Benares is another name of Varanasi; its gazetteer position is 25°20' N, 83°0' E.
        varanasi = self.data("atlas find", "benares", "--country", "India")["places"][0]
        self.assertEqual((varanasi["name"], varanasi["zoneName"]), ("Varanasi", "Asia/Kolkata"))
        self.assertAlmostEqual(varanasi["latitude"], 25.333, delta=0.05)
        self.assertAlmostEqual(varanasi["longitude"], 83.0, delta=0.05)
        self.assertIn(("Ahmedabad", "Gujarat", "India"), self.found("Ahmed"))

    def test_display_form(self):
        text = self.call("atlas", "find", "Chennai")
        self.assertRegex(text, r"\n13N 5'16\"    Chennai, Tamil Nadu, India +80E16'43\" +"
                               r"Asia/Kolkata +\d+\n\Z")

    def test_nothing_found(self):
        self.assertEqual(self.found("Nowhereville"), [])
        self.assertEqual(self.call("atlas", "find", "Nowhereville"), "no such place\n")
        # "USA" is no state, and another word of three letters is refused.
        self.assertEqual(self.found("Portland", "--state", "USA"), [])
        self.call("atlas", "find", "Portland", "--state", "ORE", code=2,
                  told=[r"\AError: State abbreviation > 2 chars"])


class Zone(AtlasTest):
    ATLAS = r"\AWarning: Some of the Atlas values may not be correct \(Longitude, .*carefully\."

    def zone(self, place, date, clock, told=()):
        zone = self.data("atlas zone", place, "--date", date, "--time", clock,
                         told=[self.ATLAS, *told] if told else [])["zone"]
        self.assertEqual(bool(zone["warning"]), bool(told))
        return zone["standard"], zone["daylightSaving"]

    def test_known_times(self):
        for place, date, expected in (
                ("Ahmedabad, India", "1990-06-15", (5.5, 0)),
                ("Kathmandu", "1985-06-15", (5.5, 0)), ("Kathmandu", "1990-06-15", (5.75, 0)),
                ("London, United Kingdom", "1942-06-15", (0, 2)),    # double summer time
                ("London, United Kingdom", "1970-01-15", (1, 0)),    # British Standard Time
                ("Sydney, Australia", "2000-01-15", (10, 1)),
                ("New York", "1990-07-04", (-5, 1))):
            self.assertEqual(self.zone(place, date, "12:00"), expected)
        # One hour of war time; places in India kept times of their own until 1955.
        self.assertEqual(self.zone("Pune", "1943-06-15", "12:00", ["Indian Standard Time"]),
                         (5.5, 1))
        # Local mean time from the longitude of Jaipur, 75°48' E: 5 h 3 m.
        zone, saving = self.zone("Jaipur", "1850-06-15", "12:00",
                                 ["local mean time", "Before 1906"])
        self.assertAlmostEqual(zone, 5 + 3 / 60, delta=0.02)
        self.assertEqual(saving, 0)

    def test_clock_times_that_are_no_single_moment(self):
        self.assertEqual(self.zone("New York", "2024-11-03", "1:30", ["showed this time twice"]),
                         (-5, 1))
        self.assertEqual(self.zone("New York", "2024-03-10", "2:30", ["forward over this time"]),
                         (-5, 0))
        text = self.call("atlas", "zone", "New York", *MOMENT)
        for line in ("Place +New York, New York, United States of America",
                     "Longitude +74W 0'22\"", "Local time +1990-06-15 14:32",
                     "Standard time +-5:00:00", "Saving time +1 h", "Source +tz database 20.*"):
            self.assertRegex(text, "(?m)^" + line + "$")

    def test_now(self):
        text = self.call("atlas", "zone", "New York", "--now",
                         environment={"KESTRAV_CLOCK": "1720060200", "TZ": "IST-5:30"})
        self.assertIn(" 2024-07-03 22:30\n", text)

    def test_usage(self):
        for pattern, words in (("--date and --time are missing", ["Pune"]),
                               ("--time is missing", ["Pune", *MOMENT[:2]]),
                               ("--now cannot", ["Pune", *MOMENT, "--now"]),
                               ("no place 'Nowhereville'", ["Nowhereville", *MOMENT]),
                               ("'Portland' is one of several.*Oregon.*; .*Maine", ["Portland",
                                                                                   *MOMENT])):
            self.call("atlas", "zone", *words, code=2, told=[pattern])


class Charts(AtlasTest):
    def test_place_gives_what_is_not_typed(self):
        data = self.json("sun", *MOMENT, "--place", "Portland, OR")["input"]
        self.assertEqual((data["zone"], data["daylightSaving"], data["place"]),
                         (-8, 1, "Portland, Oregon"))
        self.assertAlmostEqual(data["latitude"], 45.52, 1)
        self.assertAlmostEqual(data["longitude"], -122.68, 1)
        typed = self.json("sun", *MOMENT, "--place", "Portland, OR", "--zone", "-7", "--dst", "0",
                          "--lat", "45")["input"]
        self.assertEqual((typed["zone"], typed["daylightSaving"], typed["latitude"],
                          typed["longitude"]), (-7, 0, 45, data["longitude"]))
        # The place of the example found by its name gives the printed chart.
        found = self.json("chart", *EXAMPLE[:4], "--place", "Chennai, India")
        example = self.json("chart", *EXAMPLE)
        self.assertEqual(found["points"], example["points"])

    def test_label_and_failures(self):
        label = self.json("sun", *EXAMPLE, "--place", "My house")["input"]
        self.assertEqual((label["place"], label["zone"]), ("My house", 5.5))
        for code, pattern, place in ((2, "no place 'My house'", "My house"),
                                     (2, "'Paris' is one of several.*France; .*Texas", "Paris"),
                                     (2, "State abbreviation > 2 chars", "Paris, TEX")):
            self.call("sun", *MOMENT, "--place", place, code=code, told=[pattern])
        self.call("sun", "--date", "2024-11-03", "--time", "1:30", "--place", "New York",
                  told=[Zone.ATLAS, "showed this time twice"])
        self.call("match", *MOMENT, "--place", "Pune", "--with-date", "1991-01-01", "--with-time",
                  "1:00", "--with-place", "Nowhereville", code=2, told=["'Nowhereville'"])

    def test_own_places(self):
        self.file("Paris\t\t\tMy region\tFR\t10.5\t20.25\tEurope/Paris\t\nbroken\n",
                  "cities6a.txt")
        told = [r"\AWarning: cities6a\.txt:2: 1 line is not understood"]
        data = json.loads(self.call("sun", *MOMENT, "--place", "Paris", "--json", told=told))
        self.assertEqual((data["input"]["latitude"], data["input"]["longitude"]), (10.5, 20.25))

    def test_now_in_the_zone_of_the_place(self):
        data = self.json("sun", "--now", "--place", "Kathmandu",
                         environment={"KESTRAV_CLOCK": "1720060200", "TZ": "EST5"})["input"]
        self.assertEqual((data["day"], data["zone"]), (4, 5.75))
        self.assertAlmostEqual(data["localTime"], 8.25, 9)


class OutsideAtlas(AtlasTest):
    def test_atlas_of_the_settings(self):
        for version, name in enumerate(("plain", "indexed")):
            folder = self.work / name
            folder.mkdir()
            subprocess.run([str(BIN / "makeatlas"), name, str(folder)], check=True, cwd=BIN,
                           capture_output=True)
            self.text("settings", "set", "atlasPath", str(folder))
            self.text("settings", "set", "atlasVersion", str(version))
            # What only the own lists have is not found any more.
            self.file("Mytown\t\t\t\tFR\t10\t20\tEurope/Paris\t\n", "cities6a.txt")
            self.call("sun", *MOMENT, "--place", "Mytown", code=2, told=["no place 'Mytown'"])
            data = self.json("sun", *MOMENT, "--place", "Chennai, India")["input"]
            self.assertAlmostEqual(data["latitude"], float(CHENNAI[1]), 3)
            self.assertEqual(data["zone"], 5.5)
            for path in folder.glob("*TAB.BIN"):
                path.unlink()
            (folder / "ACSTT.DAT").unlink(missing_ok=True)
            self.call("sun", *MOMENT, "--place", "Chennai, India", code=1,
                      told=[r"Unable to open (ACSTT\.DAT|TIMTAB\.BIN) for reading"])


if __name__ == "__main__":
    unittest.main()
