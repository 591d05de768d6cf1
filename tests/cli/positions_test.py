"""Charts from files of positions."""

import json
import unittest

from program import EXAMPLE, HOROSCOPE_R, ProgramTest

# What no position tells, and the points that need the time since sunrise.
UNKNOWN = {"speed", "latitude", "declination", "motionCode"}
OF_THE_DAY = (*range(15, 22), 24, 25, 26, 29)


class Agreement(ProgramTest):
    def setUp(self):
        super().setUp()
        bodies = [*range(0, 10), 32, 33, 34]
        self.points = [{key: point[key] for key in ("index", "longitude", "retrograde")
                        if point[key] is not None}
                       for point in self.json("chart", *EXAMPLE)["points"]
                       if point["index"] in bodies]
        self.bare = ["--positions", self.file(json.dumps({"points": self.points}))]

    def both(self, command, *words):
        return self.json(command, *EXAMPLE, *words), self.json(command, *self.bare, *words)

    def test_what_follows_from_positions_is_the_same(self):
        for words in ([], ["--set", "houseSystem=1"], ["--set", "coLords=on"]):
            for command, more in (("dignities", []), ("ashtakavarga", ["--reductions"])):
                self.assertEqual(*self.both(command, *more, *words))
            born, bare = self.both("points", *words)
            for key in ("karakas", "sahams"):
                self.assertEqual(born[key], bare[key])
            for a, b in zip(born["points"], bare["points"]):
                if a["index"] in OF_THE_DAY:
                    self.assertIsNone(b["longitude"])
                else:
                    for key in a.keys() - UNKNOWN:
                        self.assertEqual(a[key], b[key], (a["index"], key))
            born, bare = self.both("vargas", *words)
            self.assertEqual(born["vimshopaka"], bare["vimshopaka"])
            for a, b in zip(born["vargas"], bare["vargas"]):
                for one, other in zip(a["placements"], b["placements"]):
                    nothing = dict.fromkeys(one) | {"point": one["point"]}
                    self.assertEqual(nothing if one["point"] in OF_THE_DAY else one, other)
            born, bare = self.both("strengths", *words)
            for key in ("rashmis", "aspects"):
                self.assertEqual(born[key], bare[key])
            for a, b in zip(born["shadbala"], bare["shadbala"]):
                for key in ("sthana", "naisargika", "drik"):
                    self.assertEqual(a[key], b[key])
                self.assertIsNone(b["total"])

    def test_what_does_not_is_null(self):
        chart = self.json("chart", *self.bare, "--name", "Bare")
        self.assertEqual(chart["input"].pop("name"), "Bare")
        for key in ("input", "time", "ayanamsa"):
            self.assertEqual(set(chart[key].values()), {None})
        self.assertIsNone(chart["sun"]["vedicDay"]["sunrise"])
        houses = chart["houses"]
        self.assertEqual((houses["obliquity"], houses["midheaven"]), (None, None))
        self.assertEqual(houses["ascendant"], self.points[0]["longitude"])
        text = self.text("chart", *self.bare)
        self.assertRegex(text, r"Time and ayanamsa +not computed\n")
        self.assertRegex(text, r"Midheaven +not computed\n")

    def test_given_points_are_taken(self):
        gulika = {"index": 19, "longitude": 230.5}
        cusps = [{"index": 34 + house, "longitude": (house * 30.0 + 100.5) % 360}
                 for house in range(1, 13)]
        points = json.dumps({"points": self.points + [gulika] + cusps})
        words = ["--positions", self.file(points, "more.json"), "--set", "houseSystem=2"]
        houses = self.json("chart", *words)["houses"]
        self.assertEqual(houses["system"], 2)
        self.assertEqual(houses["cusps"], [cusp["longitude"] for cusp in cusps])
        points = self.json("points", *words)
        self.assertEqual(points["points"][19]["longitude"], 230.5)
        tri = next(sphuta for sphuta in points["sphutas"] if sphuta["name"] == "Tri")
        self.assertAlmostEqual(
            tri["longitude"],
            (self.points[0]["longitude"] + self.points[2]["longitude"] + 230.5) % 360, 9)
        without = self.json("chart", *self.bare, "--set", "houseSystem=2")["houses"]
        self.assertEqual((without["system"], set(without["cusps"])), (None, {None}))
        self.assertRegex(self.text("chart", *self.bare, "--set", "houseSystem=2"),
                         r"House system +not computed\n")


class Errors(ProgramTest):
    def assertRefused(self, pattern, text):
        for command in ("positions", "match"):
            more = (["--with-positions", self.positions(HOROSCOPE_R, "good.json")]
                    if command == "match" else [])
            self.assertFails(1, r"file\.json" + pattern, command, "--positions",
                             self.file(text, "file.json"), *more)

    def entries(self, change):
        points = [{"index": index, "longitude": longitude}
                  for index, longitude in enumerate(HOROSCOPE_R)]
        return json.dumps({"points": change(points)})

    def test_entries(self):
        for pattern, key, value in (
                (r": points\[3\]: longitude 360.* under 360", "longitude", 360),
                (r": points\[3\]: longitude -0.1", "longitude", -0.1),
                (r": points\[3\]: longitude \"9\"", "longitude", "9"),
                (r": points\[3\]: longitude null", "longitude", None),
                (r": points\[3\]: retrograde 1 ", "retrograde", 1),
                (r": points\[3\]: index 63 ", "index", 63),
                (r": points\[3\]: index -1 ", "index", -1),
                (r": points\[3\]: index 3.0 ", "index", 3.0),
                (r": points\[3\]: longitude \[\.\.\.\] is no", "longitude", [1]),
                (r": points\[3\]: index 2 is there", "index", 2),
                (r": points\[3\]: .*'retrogade'", "retrogade", True)):
            with self.subTest(key=key, value=value):
                self.assertRefused(pattern, self.entries(
                    lambda points: points[:3] + [points[3] | {key: value}] + points[4:]))

    def test_structure(self):
        missing = self.entries(lambda points: points[:7] + points[8:])
        for pattern, text in (
                (": point 7 is missing", missing),
                (r": points\[0\]: has no longitude", '{"points": [{"index": 0}]}'),
                (r": points\[0\]: has no index", '{"points": [{"longitude": 0}]}'),
                (r": points\[0\]: is no object", '{"points": [7]}'),
                (": has no list 'points'", '{"points": 7}'),
                (": has no list 'points'", "{}"), (": is no object", "[]"),
                (": .*'points2'", '{"points2": []}'),
                (":3: is no JSON", '{"points":\n\n[}'), (":1: is no JSON", ""),
                (": .*too large", '{"points": [{"index": 0, "longitude": 1e999}]}'),
                (":1: is no JSON", "[" * 100000),
                (r": points\[0\]: index \[\.\.\.\] is no",
                 '{"points": [{"index": %s}]}' % ("[" * 300000 + "]" * 300000))):
            with self.subTest(pattern):
                self.assertRefused(pattern, text)

    def test_file(self):
        self.assertFails(1, r"nowhere\.json", "chart", "--positions", "nowhere.json")
        self.assertFails(1, "home", "chart", "--positions", str(self.home))

    def test_usage(self):
        bare = ["--positions", self.positions(HOROSCOPE_R)]
        for pattern, words in (
                ("--date cannot stand beside --positions", ["vargas", *bare, *EXAMPLE]),
                ("--now cannot stand", ["vargas", *bare, "--now"]),
                ("--place cannot stand", ["vargas", *bare, "--place", "Pune"]),
                ("--positions", ["houses", *bare]), ("--positions", ["sun", *bare]),
                ("--name holds", ["vargas", *bare, "--name", "a\nb"]),
                ("no divisional chart 'D13'", ["vargas", *bare, "--varga", "D13"]),
                ("no divisional chart '21'", ["ashtakavarga", *bare, "--varga", "21"]),
                ("--name-letter '6'", ["strengths", *bare, "--name-letter", "6"]),
                ("--with-date, --with-time and --with-zone are missing.*--with-positions",
                 ["match", *bare]),
                ("--with-lat is missing", ["match", *bare, "--with-date", "1990-01-01",
                                           "--with-time", "1:00", "--with-zone", "0",
                                           "--with-lon", "1"]),
                ("--with-dst cannot stand beside --with-positions",
                 ["match", *bare, "--with-positions", bare[1], "--with-dst", "1"])):
            with self.subTest(pattern):
                self.assertFails(2, pattern, *words)


if __name__ == "__main__":
    unittest.main()
