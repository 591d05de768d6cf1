"""The commands on yogas, and the research table."""

import json
import shutil
import unittest

import jsonschema

from program import BIN, DOCS, EXAMPLE, ProgramTest

SCHEMA = json.loads((DOCS / "kestrav-cli.schema.json").read_text(encoding="utf-8"))

# In the chart of EXAMPLE the Sun is in Scorpio, the Moon in Libra and Jupiter in Sagittarius.
YOGAS = """<?xml version="1.0"?>
<ksy><nm>Test yogas</nm><au>Somebody</au>
<yg tl="Sun in Scorpio" ch="Signs" in="What it does."><rl>InSign,,Sun,Sco</rl></yg>
<yg tl="Sun in Leo" ch="Signs"><rl>InSign,,Sun,Leo\\InSign,,Moo,Leo</rl></yg>
<yg tl="Moon or Sun"><rl>InSign,,Moo,Leo\\OR\\InSign,!,Sun,Leo\\OR\\InSign,,Jup,Leo</rl></yg>
</ksy>
"""


class Yogas(ProgramTest):
    def setUp(self):
        super().setUp()
        self.yogas = self.file(YOGAS, "test.ksy")

    def checked(self, command, *words, **how):
        output = self.json(*command.split(), *words, **how)
        jsonschema.Draft202012Validator(
            {"$schema": SCHEMA["$schema"], "$defs": SCHEMA["$defs"],
             "$ref": "#/$defs/command-" + command.replace(" ", "-")}).validate(output)
        return output

    def database(self):
        shutil.copy(BIN / "Sample.ksc", self.work / "my.ksc")
        self.start("db", "refresh", "--db", "my.ksc", "--yes")
        return ["--db", "my.ksc"]

    def test_list(self):
        files = self.checked("yogas list", "--file", self.yogas)["files"]
        self.assertEqual(files[0]["name"], "Test yogas")
        self.assertEqual([yoga["title"] for yoga in files[0]["yogas"]],
                         ["Sun in Scorpio", "Sun in Leo", "Moon or Sun"])
        self.assertEqual(files[0]["yogas"][0]["interpretation"], "What it does.")
        chapter = self.checked("yogas list", "--file", self.yogas, "--chapter", "Signs")
        self.assertEqual(len(chapter["files"][0]["yogas"]), 2)
        self.assertIn("    Sun in Leo\n", self.text("yogas", "list", "--file", self.yogas))

    def test_files_that_cannot_be_read(self):
        self.file("meta:\n  id: png\n", "other.ksy")
        self.assertFails(1, "other.ksy: is no yoga file.*another program", "yogas", "list",
                         "--file", "other.ksy")
        self.assertFails(1, "none.ksy", "yogas", "list", "--file", "none.ksy")
        self.assertFails(1, "none.txt", "yogas", "list", "--file", "none.txt")
        self.file("Moon in Leo\tInSign,,Moo,Leo\nBad\t(\n", "cusyog2.txt")
        plain = self.checked("yogas list", "--file", "cusyog2.txt")["files"][0]["yogas"]
        self.assertEqual([(yoga["title"], yoga["rule"]) for yoga in plain],
                         [("Moon in Leo", "InSign,,Moo,Leo"), ("Bad", "(")])
        # The user's own file is found in the current folder; a broken one is only warned of.
        self.file("<ksy><yg>", "myyogas.ksy")
        result = self.start("yogas", "list")
        self.assertIn(b"myyogas.ksy:1: is not well-formed XML", result.stderr)
        self.file(YOGAS, "myyogas.ksy")
        self.assertIn("Test yogas", self.text("yogas", "list"))

    def test_check(self):
        good = self.checked("yogas check", "--file", self.yogas)
        self.assertEqual((good["checked"], good["yogas"]), (3, []))
        self.file(YOGAS.replace("<rl>InSign,,Sun,Sco", "<rl>(\\InSign,,Sun,Skorpion"), "bad.ksy")
        result = self.start("yogas", "check", "--file", "bad.ksy", "--json")
        self.assertEqual(result.returncode, 1)
        problems = json.loads(result.stdout)["yogas"][0]["problems"]
        self.assertEqual([problem["fatal"] for problem in problems], [True, False])
        self.assertIn("brakets are not equal", problems[0]["text"])
        self.assertIn("Skorpion", problems[1]["text"])
        self.assertEqual(self.start("yogas", "check", "--rule", "InSign,,Sun,Leo").returncode, 0)
        self.assertEqual(self.start("yogas", "check", "--rule", ")\\(").returncode, 1)

    def test_find(self):
        yogas = self.checked("yogas find", "--file", self.yogas, *EXAMPLE)["yogas"]
        self.assertEqual([yoga["holds"] for yoga in yogas], [True, False, True])
        conditions = [[(one["tested"], one["truth"]) for one in yoga["reasons"]]
                      for yoga in yogas]
        self.assertEqual(conditions, [[(True, True)], [(True, False), (False, None)],
                                      [(True, False), (True, True), (False, None)]])
        for yoga in yogas:
            for one in yoga["reasons"]:
                self.assertEqual(one["reason"] is not None, one["tested"])
        holding = self.checked("yogas find", "--file", self.yogas, "--holding", *EXAMPLE)["yogas"]
        self.assertEqual([yoga["title"] for yoga in holding], ["Sun in Scorpio", "Moon or Sun"])
        text = self.text("yogas", "find", "--file", self.yogas, *EXAMPLE)
        self.assertIn("Sun in Scorpio (Signs)\n  What it does.\n  + ", text)
        self.assertTrue(text.endswith("2 of 3 yogas hold\n"))

    def test_explain(self):
        moon = self.checked("yogas explain", "--yoga", "moon OR sun", "--file", self.yogas,
                            *EXAMPLE)
        self.assertEqual((moon["title"], moon["holds"]), ("Moon or Sun", True))
        self.assertEqual(moon["reasons"][1]["condition"], "InSign,!,Sun,Leo")
        self.assertTrue(moon["reasons"][1]["negated"])
        typed = self.checked("yogas explain", "--rule", "InSign,,Sun,Leo", *EXAMPLE)
        self.assertEqual((typed["title"], typed["holds"]), (None, False))
        self.assertFails(2, "--yoga 'None' is no title", "yogas", "explain", "--yoga", "None",
                         "--file", self.yogas, *EXAMPLE)
        self.assertFails(2, "brakets", "yogas", "explain", "--rule", "(", *EXAMPLE)
        self.assertFails(2, "give --yoga or --rule", "yogas", "explain", *EXAMPLE)

    def test_second_chart_and_moment(self):
        # Transit of the Sun: in mid January it is in Capricorn or Sagittarius, in July in Gemini.
        rule = ["--rule", "T.InSign,,Sun,Gem", *EXAMPLE]
        for date, holds in (("2020-07-01", True), ("2020-01-05", False)):
            second = ["--with-date", date, "--with-time", "12:00", "--with-zone", "0"]
            self.assertEqual(self.checked("yogas explain", *rule, *second)["holds"], holds)
        self.assertFalse(self.checked("yogas explain", *rule)["holds"])
        # The mahadashas of a life: one lord rules at a moment.
        lords = [lord for lord in ("Sun", "Moo", "Mar", "Mer", "Jup", "Ven", "Sat", "Rah", "Ket")
                 if self.checked("yogas explain", "--rule", "Dasha,," + lord + ",1,0", "--at",
                                 "2010-01-01T06:00", *EXAMPLE)["holds"]]
        self.assertEqual(len(lords), 1)
        self.assertFails(2, "--at", "yogas", "explain", "--at", "2010-02-30", *rule)

    def test_search(self):
        database = self.database()
        words = ["--rule", "InSign,,Sun,mov", *database]
        found = self.checked("yogas search", *words)
        self.assertEqual(found["recomputed"], 0)
        self.assertGreater(len(found["found"]), 0)
        self.assertLess(len(found["found"]), found["searched"])
        title = f"Natives with Yoga ({len(found['found'])} of {found['searched']})\n"
        self.assertTrue(self.text("yogas", "search", *words).startswith(title))
        # Charts one by one agree, also where they have to be computed.
        rule = ["--rule", "InSign,,Sun,mov\\Shadbala,,Sun,60"]
        computed = self.checked("yogas search", *rule, *database, "--without-reasons")
        self.assertEqual(computed["recomputed"], len(found["found"]))
        lines = {one["line"] for one in computed["found"]}
        for line in range(1, 21):
            one = self.checked("yogas explain", *rule, *database, "--line", str(line))
            self.assertEqual(one["holds"], line in lines, line)

        result = self.start("yogas", "search", *words, "--make-group-b", "--yes")
        self.assertEqual(result.returncode, 0)
        charts = self.json("db", "list", *database)["charts"]
        self.assertEqual({chart["line"] for chart in charts if chart["tag"] == "B"},
                         {one["line"] for one in found["found"]})
        self.assertIn("up to date", self.text("db", "refresh", *database))
        group = self.checked("yogas search", *words, "--group", "B")
        self.assertEqual(group["searched"], len(found["found"]))

    def test_search_without_finds_or_research_lines(self):
        shutil.copy(BIN / "Sample.ksc", self.work / "my.ksc")
        words = ["yogas", "search", "--rule", "InSign,,Sun,Leo\\InSign,!,Sun,Leo", "--db",
                 "my.ksc"]
        result = self.start(*words)
        self.assertEqual(result.returncode, 1)
        self.assertIn(b"Your Research Database needs refreshing. Go ahead?", result.stderr)
        result = self.start(*words, "--yes")
        self.assertEqual(result.returncode, 0)
        self.assertIn(b"Natives with Yoga (0 of ", result.stdout)
        self.assertIn(b"Try refreshing your Research Database?", result.stderr)

    def test_kinds(self):
        kinds = self.checked("yogas kinds")["kinds"]
        self.assertGreater(len(kinds), 40)
        for kind in kinds:
            self.assertEqual(self.start("yogas", "check", "--rule", kind["example"]).returncode, 0,
                             kind["example"])
        one = self.checked("yogas kinds", "InHouse", "1")["kinds"]
        self.assertEqual([kind["keyword"] for kind in one], ["InHouse", "InSign"])
        self.assertIn("InHouse", self.text("yogas", "kinds", "InHouse"))
        self.assertFails(2, "no kind", "yogas", "kinds", "InHaus")

    def test_table(self):
        database = self.database()
        rows = self.checked("yogas table", *database, "--column", "name", "--column", "sun.sign",
                            "--by", "sun.sign")
        self.assertEqual(len(rows["rows"]), rows["charts"])
        signs = [row["values"][1] for row in rows["rows"]]
        self.assertEqual(signs, sorted(signs))
        groups = self.checked("yogas table", *database, "--count", "sun.sign", "--average",
                              "ayanamsa")["groups"]
        self.assertEqual({group["value"]: group["count"] for group in groups},
                         {sign: signs.count(sign) for sign in set(signs)})
        bars = self.checked("yogas table", *database, "--graph", "sun.sign")["bars"]
        self.assertEqual([bar["count"] for bar in bars],
                         [signs.count(sign) for sign in range(1, 13)])
        hours = self.checked("yogas table", *database, "--graph", "birth-time", "--bars", "4")
        self.assertEqual([bar["low"] for bar in hours["bars"]], [0, 6, 12, 18])
        self.assertEqual(sum(bar["count"] for bar in hours["bars"]), rows["charts"])
        text = self.text("yogas", "table", *database, "--count", "sex")
        self.assertRegex(text, r"\ASex +Charts\n(\S+ +\d+\n)+\Z")
        text = self.text("yogas", "table", *database, "--count", "sex", "--average", "sun.longitude")
        self.assertRegex(text, r"\ASex +Charts  Sun longitude\n(\S+ +\d+ +\S+\n)+\Z")
        lines = self.text("yogas", "table", *database, "--column", "name", "--by",
                          "name").splitlines()
        self.assertEqual(lines[0], "Line  Name")
        names = [line[6:].casefold() for line in lines[1:]]
        self.assertEqual(len(names), rows["charts"])
        self.assertEqual(names[:5], sorted(names)[:5])
        self.assertFails(2, "'sun' is no column", "yogas", "table", *database, "--column", "sun")
        self.assertFails(2, "give one of", "yogas", "table", *database)


if __name__ == "__main__":
    unittest.main()
