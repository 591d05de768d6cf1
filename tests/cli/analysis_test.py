"""What is derived from the positions, against printed examples."""

import re
import unittest

from program import EXAMPLE, HOROSCOPE_J, HOROSCOPE_R, TROMSO_IN_JUNE, ProgramTest

COMMANDS = ("chart", "vargas", "dignities", "strengths", "ashtakavarga", "points")


class Printed(ProgramTest):
    def horoscope(self, command, longitudes, *words):
        return self.json(command, "--positions", self.positions(longitudes), *words)

    def assertAllNear(self, values, printed, delta=0.05):
        self.assertEqual(len(values), len(printed))
        for value, expected in zip(values, printed):
            self.assertAlmostEqual(value, expected, delta=delta)

    def test_place_and_aspect_strengths(self):
        for longitudes, sthana, drik in (
                (HOROSCOPE_R, [198.03, 126.51, 172.17, 279.49, 157.59, 178.19, 177.29],
                 [15.87, -21.73, 0.96, 15.64, -16.02, 18.45, 7.20]),
                (HOROSCOPE_J, [172.04, 77.17, 184.94, 238.16, 152.98, 198.08, 206.31],
                 [11.24, -0.32, -5.10, 4.28, 4.31, -2.86, 5.82])):
            shadbala = self.horoscope("strengths", longitudes)["shadbala"]
            self.assertAllNear([sum(planet["sthana"].values()) for planet in shadbala], sthana)
            self.assertAllNear([planet["drik"] for planet in shadbala], drik)
            self.assertEqual([planet["required"] for planet in shadbala],
                             [390, 360, 300, 420, 390, 330, 300])
        self.assertAllNear([planet["sthana"]["uccha"] for planet in
                            self.horoscope("strengths", HOROSCOPE_R)["shadbala"]],
                           [3.03, 32.76, 37.17, 54.49, 56.34, 1.94, 34.79])

    def test_rays_states_and_war(self):
        strengths = self.horoscope("strengths", HOROSCOPE_R)
        self.assertAllNear(strengths["rashmis"]["planets"],
                           [0.51, 2.46, 4.65, 6.05, 2.63, 0.26, 2.90], 0.01)
        self.assertEqual([states["baladi"] for states in strengths["avasthas"]][:7],
                         ["Bala", "Kumara", "Kumara", "Bala", "Mrita", "Kumara", "Bala"])
        self.assertTrue(strengths["avasthas"][3]["deeptadi"]["kopa"])
        self.assertEqual(strengths["war"], [])
        # Without latitudes nobody wins.
        self.assertEqual(self.horoscope("strengths", HOROSCOPE_J)["war"],
                         [{"planets": [4, 5], "winner": None, "loser": None, "bala": None}])
        text = self.text("strengths", "--positions", "positions.json")
        self.assertRegex(text, r"\nMercury +Jupiter +not computed +--\n")

    def test_ashtakavarga(self):
        table = self.horoscope("ashtakavarga", HOROSCOPE_R, "--reductions")["ashtakavarga"]
        self.assertEqual(table["bindus"][1], [5, 3, 5, 4, 5, 3, 3, 6, 4, 1, 5, 4])
        self.assertEqual(table["trikona"][1], [1, 2, 2, 0, 1, 2, 0, 2, 0, 0, 2, 0])
        self.assertEqual(table["ekadhipatya"][1], [0, 2, 2, 0, 1, 2, 0, 2, 0, 0, 2, 0])
        self.assertEqual(table["pinda"][1], {"rashi": 94, "graha": 65, "total": 159})
        self.assertEqual(table["ekadhipatya"][5], [0, 0, 3, 3, 2, 0, 2, 1, 2, 3, 0, 0])
        self.assertEqual(table["pinda"][5]["total"], 179)
        self.assertEqual(table["sarva"], [sum(row[sign] for row in table["bindus"][1:])
                                          for sign in range(12)])
        self.assertEqual(sum(table["sarva"]), 337)
        text = self.text("ashtakavarga", "--positions", "positions.json", "--reductions")
        self.assertRegex(text, r"\nSun +5 +3 +5 +4 +5 +3 +3 +6 +4 +1 +5 +4 +48\n")
        self.assertRegex(text, r"\nJupiter +111 +68 +179\n")
        self.assertNotIn("Pinda", self.text("ashtakavarga", "--positions", "positions.json"))

    def test_special_points(self):
        points = self.horoscope("points", HOROSCOPE_R)
        signs = [point["rashi"] for point in points["points"]]
        self.assertEqual(signs[47:59], [12, 8, 3, 3, 10, 11, 6, 9, 8, 5, 5, 6])
        self.assertEqual((signs[31], signs[27]), (12, 6))
        longitudes = [point["longitude"] for point in points["points"]]
        self.assertAlmostEqual(longitudes[30], 166.05, 9)
        self.assertAlmostEqual(longitudes[59], 225.5206, 3)
        self.assertAlmostEqual(longitudes[60], 68.84, 9)
        self.assertEqual(points["karakas"]["seven"], [5, 6, 3, 2, 7, 4, 1])
        text = self.text("points", "--positions", "positions.json", "--set", "saham2=Punya")
        self.assertRegex(text, r"\nAtma +Jupiter +24° +0' Gem\n")
        self.assertRegex(text, r"S2 \(Punya saham\) +8° 50' Gem")
        self.assertRegex(text, r"Duplicate Yogi +Mars\n")
        self.assertNotIn("Putra    ", self.text("points", *EXAMPLE, "--set", "charaKarakas=8")
                         .split("Pitri")[0].split("Chara")[1])

    def test_dignities(self):
        dignities = self.horoscope("dignities", HOROSCOPE_R)
        rashi = {entry["point"]: entry for entry in dignities["dignities"] if entry["varga"] == 0}
        for planet in (1, 6):  # both debilitated, both cancelled
            self.assertEqual((rashi[planet]["code"], rashi[planet]["word"]),
                             (-3, "Debil. Cancelled"))
        labels = [entry["label"] for entry in dignities["functional"]]
        self.assertEqual((labels[5], labels[7], labels[8]), ("YogK", "Papa", "Benef"))
        compound = dignities["relationships"]["compound"]
        self.assertEqual([compound[planet][planet] for planet in range(7)], [3] * 7)
        text = self.text("dignities", "--positions", "positions.json")
        self.assertRegex(text, r"\nVenus +Virgo +Debil\. Cancelled +combust +YogK +Functional B")


class Tables(ProgramTest):
    def test_boundary_marks(self):
        for minutes in ("0", "10"):
            words = EXAMPLE + ["--set", "sandhiMinutes=" + minutes]
            placements = [placement for varga in self.json("vargas", *words)["vargas"]
                          for placement in varga["placements"]]
            near = sum(placement["nearBoundary"] is True for placement in placements)
            text = self.text("vargas", *words)
            self.assertEqual(text.count("*") - 1, near)
            self.assertIn(f"within {minutes}'", text)

    def test_one_varga(self):
        expected = self.json("vargas", *EXAMPLE)["vargas"][5]
        for name in ("5", "D9", "d-9", "NAVAMSHA", "nava"):
            self.assertEqual(self.json("vargas", *EXAMPLE, "--varga", name)["vargas"], [expected])
        sun = expected["placements"][1]
        text = self.text("vargas", *EXAMPLE, "--varga", "9")
        self.assertTrue(text.split("\n\n")[1].startswith("Vimshamsha (D-20), Worship\n"))
        self.assertRegex(self.text("vargas", *EXAMPLE, "--varga", "D9"),
                         rf"\nSun +Capricorn +{int(sun['position'])}°.* {sun['strengthStep']}  ")

    def test_tables_fit_the_terminal(self):
        for words in (EXAMPLE, EXAMPLE + ["--language", "sanskrit"], TROMSO_IN_JUNE):
            for command in COMMANDS:
                longest = max(self.text(command, *words).splitlines(), key=len)
                self.assertLessEqual(len(longest), 110, longest)

    def test_chart_prints_the_analysis(self):
        chart = self.json("chart", *EXAMPLE)
        text = self.text("chart", *EXAMPLE)
        for heading in ("Special points", "Divisional charts", "Vimshopak (max 20)",
                        "Ashtakavarga, Rashi", "Chara karakas", "Shadbala"):
            self.assertIn("\n" + heading, text)
        total = chart["vimshopaka"][2]["total"][0] / 1000
        self.assertRegex(text, rf"\nMars +{total:.2f}  full ")
        self.assertRegex(text, r"\nSarva +" + " +".join(map(str, chart["ashtakavarga"]["sarva"])))
        shadbala = self.json("strengths", *EXAMPLE)["shadbala"]
        ratios = " +".join(f"{planet['ratio']:.2f}" for planet in shadbala)
        self.assertRegex(text, r"\nRatio +" + ratios + r"\n")
        for planet in shadbala:
            parts = [*planet["sthana"].values(), *planet["kala"].values()]
            parts += [planet[key] for key in ("dig", "cheshta", "naisargika", "drik")]
            self.assertAlmostEqual(sum(parts), planet["total"], 9)

    def test_where_no_day_runs(self):
        points = self.json("points", *TROMSO_IN_JUNE)
        missing = [point["index"] for point in points["points"] if point["longitude"] is None]
        self.assertEqual(missing, [*range(15, 27), 29])
        names = [sphuta["name"] for sphuta in points["sphutas"] if sphuta["longitude"] is None]
        self.assertEqual(names, ["Tri", "Chatur", "Pancha", "Prana", "Deha", "Mrityu"])
        self.assertRegex(self.text("points", *TROMSO_IN_JUNE), r"\nGulika +--.*\n[^$]*-- not comp")
        sun = self.json("strengths", *TROMSO_IN_JUNE)["shadbala"][0]
        self.assertIsNone(sun["kala"]["hora"])
        self.assertIsNone(sun["total"])
        self.assertIsNotNone(sun["kala"]["ayana"])

    def test_combustion(self):
        combust = [point["combust"] for point in self.json(
            "points", "--positions", self.positions(HOROSCOPE_R))["points"]]
        self.assertEqual([index for index, value in enumerate(combust) if value], [4, 6])
        self.assertEqual((combust[1], combust[0], combust[33]), (False, None, None))


class Explanations(ProgramTest):
    def test_explanations_come_last(self):
        words = ["vargas", *EXAMPLE, "--varga", "D9"]
        plain = self.text(*words)
        text = self.text(*words, "--explain", "mars:navamsha", "--explain", "moon:dignity")
        self.assertTrue(text.startswith(plain))
        chart = self.json(*words, "--explain", "mars:navamsha", "--explain", "moon:dignity")
        self.assertEqual(list(chart)[-1], "explanations")
        self.assertNotIn("explanations", self.json(*words))
        self.assertEqual(len(chart["explanations"]), 2)
        told = re.sub(r"\s+", " ", text[len(plain):])
        for explanation in chart["explanations"]:
            self.assertIn(explanation["subject"] + ": " + explanation["result"], told)
            for line in explanation["steps"] + explanation["settings"]:
                self.assertIn("- " + line, told)
        self.assertIn("Scorpio", chart["explanations"][0]["result"])

    def test_topics_and_their_examples(self):
        topics = self.json("chart", "--explain", "list")["topics"]
        text = self.text("chart", "--explain", "list")
        queries = []
        for topic in topics:
            self.assertIn(topic["form"], text)
            queries += ["--explain", topic["example"]]
        for chart in (EXAMPLE, ["--positions", self.positions(HOROSCOPE_R)]):
            explanations = self.json("points", *chart, *queries)["explanations"]
            self.assertEqual(len(explanations), len(topics))

    def test_unknown_query(self):
        for query in ("mars:nonsense", "nobody:navamsha", "mars"):
            self.assertFails(2, "--explain '" + query + "'", "chart", *EXAMPLE, "--explain", query)


if __name__ == "__main__":
    unittest.main()
