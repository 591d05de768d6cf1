"""Chart diagrams: the drawing for the terminal, the picture, and what goes wrong."""

import os
import re
import struct
import subprocess
import unicodedata
import unittest
import xml.etree.ElementTree as tree
import zlib

from program import EXAMPLE, HOROSCOPE_J, HOROSCOPE_R, ProgramTest

STYLES = ("north", "south", "east", "circle")
SVG = "{http://www.w3.org/2000/svg}"
AWKWARD = ("O'Neil \"Ann\" <b>&amp;", "\u0926\u0947\u0935\u0928\u093e\u0917\u0930\u0940",
           "\u4e2d" * 46, "W" * 46)


def columns(line):
    return sum(0 if unicodedata.combining(letter) else
               2 if unicodedata.east_asian_width(letter) in "WF" else 1 for letter in line)


def pixels(png):
    """Width and height of a picture of eight bits a channel, and how many rows differ."""
    position, data = 8, b""
    width, height, depth, kind = struct.unpack(">IIBB", png[16:26])
    while position < len(png):
        length, name = struct.unpack(">I4s", png[position:position + 8])
        if name == b"IDAT":
            data += png[position + 8:position + 8 + length]
        position += length + 12
    assert depth == 8
    channels = {2: 3, 6: 4}[kind]
    raw = zlib.decompress(data)
    row = 1 + width * channels
    # A filtered row of one colour, or like the one above it, is zero behind its first pixel.
    marked = sum(any(raw[y * row + 1 + channels:(y + 1) * row]) for y in range(height))
    return width, height, marked


class Diagram(ProgramTest):
    def chart(self, *words):
        return ["diagram", *EXAMPLE, *words]

    def picture(self, *words, name="picture.svg"):
        """Writes a picture, checks it with two other programs and returns its root."""
        self.assertEqual(self.text(*words, "--svg", name), "")
        path = self.work / name
        subprocess.run(["xmllint", "--noout", "--nonet", str(path)], check=True, timeout=60)
        png = subprocess.run(["rsvg-convert", str(path)], check=True, timeout=60,
                             stdout=subprocess.PIPE).stdout
        width, height, marked = pixels(png)
        root = tree.parse(path).getroot()
        self.assertAlmostEqual(width, float(root.get("width")), delta=1)
        self.assertAlmostEqual(height, float(root.get("height")), delta=1)
        self.assertGreater(marked, height * 0.3)
        return root

    def test_drawing(self):
        for style in STYLES:
            text = self.text(*self.chart("--style", style, "--labels", "none"))
            for line in text.splitlines():
                self.assertLessEqual(columns(line), 80)
            for label in ("As 22\u00b0", "Su 21\u00b0", "Mo 6\u00b0", "Ma 25\u00b0", "Ke 10\u00b0"):
                self.assertEqual(text.count(label), 1, (style, label))
        south = self.text(*self.chart("--style", "south", "--name", "Anna"))
        self.assertRegex(south, r"\AAnna: Rashi \(D-1\), South Indian\n\u250c\u2500{17}\u252c")
        for line in ("Anna", "1996-12-07 10:34", "Balance of Rahu Dasha"):
            self.assertIn(line, south)

    def test_spoken(self):
        spoken = self.text(*self.chart("--spoken", "--style", "east"))
        self.assertIn("House 1, Capricorn: Ascendant 22 degrees 26 minutes\n", spoken)
        self.assertIn("House 8, Leo: Mars 25 degrees 32 minutes\n", spoken)
        sanskrit = self.text(*self.chart("--spoken", "--language", "sanskrit", "--degrees", "none"))
        self.assertIn("Bhava 12, Dhanus: Budha, Guru\n", sanskrit)
        navamsha = self.text(*self.chart("--spoken", "--varga", "D9"))
        self.assertRegex(navamsha, r"\ANavamsha \(D-9\), North Indian\nHouse 1, Cancer: Ascendant ")

    def test_pictures(self):
        second = ["--with-positions", self.positions(HOROSCOPE_J, "second.json")]
        for style in STYLES:
            for words in ([], ["--aspects", "all", "--colours", "dark"], ["--glyphs"],
                          ["--points", "none", "--bindus", "sarva"], second,
                          ["--points", "all", "--degrees", "minutes", "--navamshas"]):
                with self.subTest(style=style, words=words):
                    call = self.chart("--style", style, *words)
                    root = self.picture(*call)
                    drawing = self.json(*call)
                    texts = [text.text.replace("\ufe0e", "") for text in root.iter(SVG + "text")]
                    self.assertEqual(texts, [text["text"] for text in drawing["texts"]])
                    self.assertEqual(root.find(SVG + "title").text, drawing["title"])
                    self.assertEqual(root.find(SVG + "desc").text,
                                     self.text(*call, "--spoken"))
                    tips = {tip.text for tip in root.iter(SVG + "title")}
                    self.assertLessEqual({region["tip"] for region in drawing["regions"]
                                          if region["tip"]}, tips)

    def test_awkward_names(self):
        for name in AWKWARD:
            for style in STYLES:
                root = self.picture(*self.chart("--style", style, "--name", name))
                self.assertTrue(root.find(SVG + "title").text.startswith(name + ": "))
                text = self.text(*self.chart("--style", style, "--name", name))
                for line in text.splitlines()[1:]:
                    self.assertLessEqual(columns(line), 80)
        root = self.picture(*self.chart("--style", "south", "--name", AWKWARD[2]))
        shown = "".join(text.text for text in root.iter(SVG + "text"))
        self.assertEqual(shown.count("\u4e2d"), 46)

    def test_same_bytes_everywhere(self):
        comma = {"LC_ALL": "de_DE.UTF-8", "LOCPATH": os.environ["KESTRAV_TEST_LOCPATH"],
                 "TZ": "America/Los_Angeles"}
        for style in STYLES:
            call = self.chart("--style", style, "--svg", "-")
            first = self.text(*call)
            self.assertEqual(first, self.text(*call))
            self.assertEqual(first, self.text(*call, environment=comma))
            for points in re.findall(r'points="([^"]*)"', first):
                self.assertRegex(points, r"\A(-?\d+(\.\d{1,3})?[, ]?)+\Z")

    def test_what_a_chart_lacks(self):
        call = ["diagram", "--positions", self.positions(HOROSCOPE_R), "--points", "main,gulika"]
        self.assertIn("\nWithout a place here: Gulika.\n", self.text(*call))
        placeless = self.text("diagram", *EXAMPLE[:6], "--spoken")
        self.assertIn("Without a place here: Ascendant.\n", placeless)
        self.assertIn("\nScorpio: Sun 21 degrees 33 minutes\n", placeless)
        circle = self.text(*self.chart("--style", "circle", "--bounds", "sandhis", "--spoken"))
        self.assertIn("Every house is a sign", circle)
        vedic = self.json(*self.chart("--style", "circle", "--set", "houseSystem=3"))
        self.assertIsNone(vedic["description"])

    def test_files(self):
        for content in ("old", "older"):
            (self.work / "kept.svg").write_text(content, encoding="utf-8")
        self.picture(*self.chart(), name="kept.svg")
        self.assertEqual((self.work / "kept.BAK").read_text(encoding="utf-8"), "older")
        self.assertFails(1, "missing/a.svg", *self.chart("--svg", "missing/a.svg"))

    def test_wrong_usage(self):
        for words, message in ((["--style", "west"], "--style 'west' is none of north, south"),
                               (["--points", "main,vulcan"], "no point or group 'vulcan'"),
                               (["--aspects", "uranus"], "'uranus' is no planet"),
                               (["--bindus", "rahu"], "--bindus 'rahu'"),
                               (["--first", "13"], "--first '13'"),
                               (["--size", "nan"], "--size 'nan'"),
                               (["--varga", "D99"], "'D99'"),
                               (["--svg", "-", "--json"], "both write")):
            self.assertFails(2, message, *self.chart(*words))


if __name__ == "__main__":
    unittest.main()
