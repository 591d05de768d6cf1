"""The JSON output against its schema."""

import copy
import json
import unittest

import jsonschema

from program import DOCS, EXAMPLE, HOROSCOPE_R, TROMSO_IN_JUNE, ProgramTest

SCHEMA = json.loads((DOCS / "kestrav-cli.schema.json").read_text(encoding="utf-8"))
IDES = ["--date", "-0044-03-15", "--time", "12:00", "--zone", "0:50", "--lat", "41.9", "--lon",
        "12.5"]
POLAR = TROMSO_IN_JUNE + ["--set", "houseSystem=4"]


def definition(name):
    return SCHEMA["$defs"][name]


class Schema(ProgramTest):
    def assertKeyOrder(self, value, schema, path=""):
        if "$ref" in schema:
            schema = definition(schema["$ref"].rsplit("/", 1)[1])
        if isinstance(value, list):
            for item in value:
                self.assertKeyOrder(item, schema.get("items", {}), path + "[]")
        elif isinstance(value, dict) and "properties" in schema:
            keys = [key for key in schema["properties"]
                    if key in value or key in schema["required"]]
            self.assertEqual(list(value), keys, path)
            for key, item in value.items():
                self.assertKeyOrder(item, schema["properties"][key], path + "." + key)

    def validator(self, command):
        root = {"$schema": SCHEMA["$schema"], "$defs": SCHEMA["$defs"],
                "$ref": "#/$defs/command-" + command.replace(" ", "-")}
        return jsonschema.Draft202012Validator(root)

    def check(self, command, *words, **how):
        output = self.json(*command.split(), *words, **how)
        self.validator(command).validate(output)
        self.assertKeyOrder(output, definition("command-" + command.replace(" ", "-")))
        return output

    def test_schema_is_one(self):
        jsonschema.Draft202012Validator.check_schema(SCHEMA)

    def test_charts(self):
        tropical = EXAMPLE + ["--set", "ayanamsaRow=9", "--set", "magnitudes=on"]
        bare = ["--positions", self.positions(HOROSCOPE_R)]
        analysis = ("chart", "positions", "vargas", "dignities", "strengths", "ashtakavarga",
                    "points")
        for words in (EXAMPLE, POLAR, IDES, tropical, bare, bare + ["--set", "houseSystem=2"]):
            for command in analysis + (() if words[:2] == bare else ("houses", "sun")):
                with self.subTest(words=words, command=command):
                    self.check(command, *words)
        self.check("positions", *EXAMPLE[:6])

    def test_options_of_the_analysis(self):
        navamsha = self.check("vargas", *EXAMPLE, "--varga", "navamsha")
        self.assertEqual([varga["index"] for varga in navamsha["vargas"]], [5])
        self.check("ashtakavarga", *EXAMPLE, "--varga", "D9", "--reductions")
        self.check("strengths", *EXAMPLE, "--name-letter", "3")
        self.check("match", "--positions", self.positions(HOROSCOPE_R),
                   "--with-date", "1996-12-07", "--with-time", "10:34", "--with-zone", "+5:30")
        for style in ("north", "circle"):
            self.check("diagram", *EXAMPLE, "--style", style, "--aspects", "all", "--with-date",
                       "1996-12-07", "--with-time", "10:34", "--with-zone", "+5:30")
        self.check("chart", *EXAMPLE, "--explain", "mars:navamsha", "--explain", "moon:dignity")
        topics = self.json("points", "--explain", "list")
        jsonschema.validate(topics, SCHEMA)
        self.assertEqual(list(topics), definition("topics")["required"])

    def test_transits(self):
        span = ["--from", "1997-01-01", "--to", "1997-03-31"]
        for words in (EXAMPLE[:6] + ["--kinds", "all"], EXAMPLE + ["--kakshyas", "--sade-sati"],
                      ["--mode", "transit"]):
            output = self.check("transits", *words, *span)
            self.assertGreater(len(output["events"]), 100)

    def test_dashas_and_panchanga(self):
        bare = ["--positions", self.positions(HOROSCOPE_R)]
        for words in (EXAMPLE + ["--at", "2020-01-01", "--conditional"], IDES, bare,
                      EXAMPLE + ["--system", "kala", "--levels", "5", "--lines", "50"],
                      EXAMPLE[:6] + ["--system", "sudarshana", "--levels", "1"]):
            with self.subTest(words=words):
                self.check("dasha", *words)
        systems = self.json("dasha", "--list")
        jsonschema.validate(systems, SCHEMA)
        self.assertEqual(list(systems), definition("dashaSystems")["required"])
        self.check("panchanga", *EXAMPLE, "--native-star", "Swati")
        self.check("panchanga", "--month", "1996-06", *POLAR[4:])
        self.check("panchanga", "--month", "-0044-03", *IDES[4:])

    def test_ephemeris_and_eclipses(self):
        dates = ["--from", "2024-03-01", "--to", "2024-04-30"]
        self.check("ephemeris", *dates, "--step", "12h")
        self.check("ephemeris", *dates, "--no-rows", "--zodiac", "tropical")
        self.check("ephemeris", "--from", "-0044-03-15", "--no-events")
        place = EXAMPLE[6:]
        second = ["--with" + word[1:] if word.startswith("--") else word for word in EXAMPLE]
        for words in ([], place, place + ["--visible"], second):
            self.check("eclipses", "--from", "2015-01-01", "--to", "2025-12-31", *words)
        self.check("vargas", *EXAMPLE, "--windows", "--varga", "D9")
        self.check("vargas", *TROMSO_IN_JUNE, "--windows")

    def test_settings(self):
        for command in ("settings list", "settings reset", "settings ayanamsa list",
                        "settings ayanamsa reset"):
            self.check(command)
        self.check("settings get", "houseSystem")
        self.check("settings set", "houseSystem", "2")
        self.check("settings ayanamsa set", "0", "--rate", "-1", warning="tropical")

    def test_schema_is_strict(self):
        chart = self.check("chart", *POLAR)
        validator = self.validator("chart")
        for path in (["sun", "sunrise"], ["points", 5, "combust"], ["vargas"], ["input", "name"],
                     ["vargas", 3, "placements", 7, "sign"], ["ashtakavarga", "trikona"]):
            broken = copy.deepcopy(chart)
            parent = broken
            for key in path[:-1]:
                parent = parent[key]
            del parent[path[-1]]
            self.assertFalse(validator.is_valid(broken), path)
            parent[path[-1]] = "--"
            self.assertEqual(validator.is_valid(broken), path[-1] == "name", path)
        chart["extra"] = 1
        self.assertFalse(validator.is_valid(chart))


if __name__ == "__main__":
    unittest.main()
