"""The table and report commands in every format."""

import csv
import io
import json
import re
import subprocess
import unittest
from html.parser import HTMLParser

from program import EXAMPLE, EXAMPLE_POSITIONS, HOROSCOPE_R, TROMSO_IN_JUNE, ProgramTest

AWKWARD = ["--name", 'Ra"n&i <o> \\{} देवी']
THEN = ["--at", "2026-11-21"]
SECOND = ["--with-date", "1995-03-02", "--with-time", "4:05", "--with-zone", "+5:30"]
MAY_BE_EMPTY = ("contact", "events")


class Balanced(HTMLParser):
    """Raises for an element that is not closed, or closed in the wrong place."""

    VOID = {"meta", "line", "rect", "polygon"}

    def __init__(self, page):
        super().__init__(convert_charrefs=True)
        self.open = []
        self.text = ""
        self.feed(page)
        if self.open:
            raise ValueError("never closed: " + " ".join(self.open))

    def handle_starttag(self, tag, attrs):
        if tag not in self.VOID:
            self.open.append(tag)

    def handle_endtag(self, tag):
        if tag not in self.VOID and self.open.pop() != tag:
            raise ValueError(f"</{tag}> at {self.getpos()}")

    def handle_startendtag(self, tag, attrs):
        pass

    def handle_data(self, data):
        self.text += data


class ReportTest(ProgramTest):
    def yogas(self):
        """A yoga file of which the first yoga holds in the example and the second does not."""
        return self.file("""<?xml version="1.0" encoding="UTF-8"?>
<ksy><ver>1</ver><yg><tl>Guru &amp; Dhanus</tl><ch>Signs</ch><rl>InSign,,Jup,Sag</rl></yg>
<yg><tl>Not here</tl><rl>InSign,,Jup,Ari</rl></yg></ksy>""", "own.ksy")


class Tables(ReportTest):
    def test_every_table_in_every_format(self):
        names = [row[0]["text"] for row in self.json("table", "--list")["tables"][0]["rows"]]
        self.assertIn("dashas", names)
        yogas = self.yogas()
        for name in names:
            words = ["table", name, *EXAMPLE, *AWKWARD, *THEN, *SECOND, "--yogas", yogas]
            with self.subTest(table=name):
                table = self.json(*words)["tables"][0]
                width = len(table["columns"])
                self.assertEqual({len(row) for row in table["rows"]} - {width}, set())
                headed = 1 if any(column["heading"] for column in table["columns"]) else 0
                self.assertTrue(table["rows"] or table["notes"] or name in MAY_BE_EMPTY)
                rows = list(csv.reader(io.StringIO(self.text(*words, "--format", "csv"))))
                self.assertEqual(len(rows), len(table["rows"]) + headed)
                self.assertEqual([cell["text"] for cell in table["rows"][-1]] if table["rows"]
                                 else [], [cell.removeprefix("'") for cell in rows[-1]]
                                 if table["rows"] else [])

    def test_choices_of_tables(self):
        nine = self.text("table", "varga", *EXAMPLE, "--varga", "navamsha")
        self.assertIn("(D-9)", nine)
        three = self.json("table", "dashas", *EXAMPLE, "--levels", "3", "--lines", "17")
        self.assertEqual(len(three["tables"][0]["rows"]), 17)
        counted = self.json("table", "dashas", *EXAMPLE, "--levels", "1", "--lines", "30")
        self.assertEqual(len(counted["tables"][0]["rows"]), 30)
        running = self.json("table", "running-dashas", *EXAMPLE, *THEN)["tables"][0]
        moment = running["rows"][0][1]["about"]["moment"]
        self.assertLess(moment, 2461365.5)
        self.assertEqual(running["rows"][0][1]["sortKey"], moment)

    def table(self, name, *words):
        return self.json("table", name, *EXAMPLE, *THEN, *words)["tables"][0]

    def cells(self, name, *words):
        return [[cell["text"] for cell in row] for row in self.table(name, *words)["rows"]]

    def test_tables_of_days(self):
        ephemeris = self.table("ephemeris", "--days", "3")["rows"]
        self.assertEqual([row[0]["text"] for row in ephemeris],
                         ["2026-11-21", "2026-11-22", "2026-11-23"])
        for name in ("transits", "transit-kakshyas", "moon-phases", "eclipses"):
            few, more = (self.cells(name, "--days", days) for days in ("40", "400"))
            self.assertEqual(few, more[:len(few)], name)
            self.assertLess(len(few), len(more), name)
        # Total eclipse of the Sun on 2027 August 2, of the Moon on 2028 December 31.
        dates = [row[0] for row in self.cells("eclipses", "--days", "800")]
        self.assertTrue({"2027-08-02", "2028-12-31"} <= {date[:10] for date in dates}, dates)

    def test_kakshyas(self):
        # Eighths of a sign; their lords in the order of the text books.
        lords = "Saturn Jupiter Mars Sun Venus Mercury Moon Ascendant".split()
        for planet, _, part, lord, _ in self.cells("kakshyas"):
            degrees = EXAMPLE_POSITIONS[planet][1] + EXAMPLE_POSITIONS[planet][2] / 60
            self.assertEqual((int(part), lord),
                             (int(degrees / 3.75) + 1, lords[int(degrees / 3.75)]))

    def test_parts_of_the_day(self):
        horas = self.cells("horas")
        self.assertEqual([row[0] for row in horas], [str(hora) for hora in range(1, 13)])
        # A Saturday: its lord has the first hora, and those of the night go on from the twelfth.
        self.assertEqual([horas[0][2], horas[1][2], horas[0][4]], ["Sat", "Jup", "Mer"])
        polar = self.json("table", "horas", *TROMSO_IN_JUNE)["tables"][0]
        self.assertEqual(polar["rows"], [])
        stays = self.json("table", "panchanga", *TROMSO_IN_JUNE)["tables"][0]["rows"]
        self.assertIn("does not set on this day", [row[1]["text"] for row in stays])

    def test_matching(self):
        totals = []
        for words in ([], ["--bride-first"]):
            match = self.json("match", *EXAMPLE, *SECOND, *words)
            rows = self.cells("kutas", *SECOND, *words)
            totals.append(float(rows[-1][1]))
            self.assertEqual(totals[-1], match["total"])
            self.assertEqual([row[3] for row in rows[:-1]],
                             [kuta["why"] for kuta in match["kutas"]])
        self.assertNotEqual(totals[0], totals[1])

    def test_comparison_of_positions(self):
        # Where a point of one chart falls in the other, and the other way round: houses counted
        # forwards and backwards make 14, or 2 in the same sign.
        second = [*SECOND, "--with-lat", "23N02", "--with-lon", "72E35"]
        there = dict((row[0], int(row[2])) for row in self.cells("compare", *second))
        back = dict((row[0], int(row[2])) for row in self.cells("compare-back", *second))
        self.assertIn(there["Ascendant"] + back["Ascendant"], (2, 14))
        self.assertEqual(there.keys(), back.keys())

    def test_yogas_have_reasons(self):
        table = self.table("yogas", "--yogas", self.yogas())
        self.assertEqual(table["title"], "1 of 2 yogas hold")
        self.assertEqual([cell["text"] for cell in table["rows"][0]],
                         ["Guru & Dhanus", "Signs", "Jupiter is in Sagittarius"])

    def test_errors(self):
        for words, text in (
                (["table", *EXAMPLE], "name a table"),
                (["table", "nothing", *EXAMPLE], "there is no table 'nothing'"),
                (["table", "positions", *EXAMPLE, "--format", "xml"], "--format 'xml'"),
                (["table", "positions", *EXAMPLE, "--levels", "6"], "--levels '6'"),
                (["table", "kutas", *EXAMPLE], "kutas: needs a second chart"),
                (["table", "compare", *EXAMPLE], "compare: needs a second chart"),
                (["table", "tithis", *EXAMPLE[:6]], "tithis: a panchanga needs"),
                (["table", "transits", *EXAMPLE, "--at", "8500-01-01"], "outside the years"),
                (["report", *EXAMPLE, "--section", "nothing"], "no report section 'nothing'"),
                (["report", *EXAMPLE, "--style", "west"], "--style 'west'"),
                (["report", *EXAMPLE, "--json", "--format", "rtf"], "contradict")):
            with self.subTest(words=words):
                self.assertFails(2, text, *words)


class Reports(ReportTest):
    def report(self, form, *words):
        return self.text("report", *EXAMPLE, *AWKWARD, *THEN, "--format", form, *words)

    def test_html(self):
        page = self.report("html", "--report", "full")
        read = Balanced(page)
        self.assertIn('Ra"n&i <o> \\{} देवी', read.text)
        self.assertEqual(page.count("<svg"), 3)
        self.assertEqual(len(set(re.findall(r' id="([^"]+)"', page))),
                         len(re.findall(r' id="([^"]+)"', page)))
        self.assertGreater(page.count('class="page"'), 3)
        for picture in re.findall(r"<svg.*?</svg>", page, re.S):
            subprocess.run(["xmllint", "--noout", "-"], input=picture.encode(), check=True)

    def test_rtf(self):
        rtf = self.report("rtf", "--report", "full")
        rtf.encode("ascii")
        depth = 0
        for brace in re.findall(r"(?<!\\)(?:\\\\)*([{}])", rtf):
            depth += 1 if brace == "{" else -1
            self.assertGreaterEqual(depth, 0)
        self.assertEqual(depth, 0)
        self.assertIn("\\u2342?", rtf)
        for row in re.findall(r"\\trowd.*?\\row\n", rtf, re.S):
            self.assertEqual(row.count("\\cellx"), row.count("\\cell\n"))

    def test_text_and_sections(self):
        full = self.report("text", "--report", "full")
        for heading in ("Chart", "Positions", "Strengths", "Dashas", "Panchanga of the day",
                        "Transits"):
            self.assertRegex(full, r"(?m)^\f?%s\n-+$" % heading)
        self.assertIn("Ayanamsa Lahiri  23°48'51\"", full)
        self.assertIn("Kestrav ", full)
        self.assertLessEqual(max(map(len, full.splitlines())), 120)
        two = self.report("text", "--section", "notes", "--section", "events")
        self.assertEqual(re.findall(r"(?m)^(\w+)\n-+$", two), ["Notes", "Events"])
        # The same bytes in every zone, locale and run.
        self.assertEqual(full, self.report("text", "--report", "full"))

    def test_positions_alone(self):
        text = self.text("report", "--positions", self.positions(HOROSCOPE_R), *THEN, "--report",
                         "full")
        self.assertIn("Not computed: a panchanga needs the moment and the place", text)
        head = text[:text.index("\n\n")]
        for part in ("Positions of positions.json", "Ayanamsa Lahiri", "Houses ", "sunrise",
                     "Kestrav "):
            self.assertIn(part, head)

    def test_without_place(self):
        text = self.text("report", *EXAMPLE[:6], *THEN, "--report", "full")
        self.assertIn("No place: no ascendant, no houses and no sunrise", text)
        self.assertNotIn("neither rises nor sets", text)

    def test_own_report(self):
        self.file("Kestrav report 1\nname Mine\n# two charts\n"
                              "chart varga=D-9,D-60 style=south\n", "own.txt")
        report = json.loads(self.text("report", *EXAMPLE, "--report", "own.txt", "--json"))
        self.assertEqual([block["kind"] for block in report["report"]["blocks"]],
                         ["heading", "diagrams"])
        self.assertIn("D-60", report["report"]["blocks"][1]["diagrams"][1]["title"])
        self.file("Kestrav report 1\nname Mine\ndashas levels=6\n", "bad.txt")
        self.assertFails(2, "bad.txt:3: levels=6", "report", *EXAMPLE, "--report", "bad.txt")

    def test_output_keeps_the_previous_file(self):
        self.file("old", "chart.html")
        self.text("report", *EXAMPLE, "--format", "html", "--output", "chart.html")
        self.assertTrue((self.work / "chart.html").read_text("utf-8").startswith("<!DOCTYPE"))
        self.assertEqual((self.work / "chart.BAK").read_text("utf-8"), "old")


if __name__ == "__main__":
    unittest.main()
