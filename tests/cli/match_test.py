"""The comparison of two charts."""

import unittest

from program import EXAMPLE, ProgramTest


class Match(ProgramTest):
    def moon(self, longitude, name):
        """A chart of which only the Moon matters."""
        return self.positions([0, 0, longitude, 60, 0, 0, 0, 0, 0, 180], name)

    def pair(self, groom, bride, *words):
        return ["match", "--positions", self.moon(groom, "groom.json"), "--with-positions",
                self.moon(bride, "bride.json"), *words]

    def test_worked_examples(self):
        # Worked by hand from the tables of the eight kutas.
        for groom, bride, points in ((10, 95, [0, 1, 1.5, 2, 4, 6, 7, 8]),
                                     (311.29, 186.96, [1, 2, 3, 0, 5, 0, 0, 8])):
            match = self.json(*self.pair(groom, bride))
            self.assertEqual([kuta["points"] for kuta in match["kutas"]], points)
            self.assertEqual(match["total"], sum(points))
            self.assertEqual(sum(kuta["maximum"] for kuta in match["kutas"]), 36)
            self.assertRegex(self.text(*self.pair(groom, bride)),
                             rf"\nTotal +{sum(points):g} +36\n")

    def test_who_is_the_groom(self):
        forward = self.json(*self.pair(10, 95))
        turned = self.json(*self.pair(95, 10, "--bride-first"))
        self.assertEqual(forward, turned)
        self.assertNotEqual(forward["total"], self.json(*self.pair(95, 10))["total"])
        text = self.text(*self.pair(95, 10, "--bride-first", "--name", "Anna", "--with-name", "Om"))
        self.assertRegex(text, r"\AGroom +Om, Moon +10° +0' Ari, Ashwini 4\nBride +Anna, ")

    def test_birth_data(self):
        second = ["--with" + word[1:] if word.startswith("--") else word for word in EXAMPLE]
        match = self.json("match", *EXAMPLE, *second)
        doshas = {dosha["name"]: dosha for dosha in match["doshas"]}
        # The same star and pada: the worst for Nadi. Mars stands in house 8 from Capricorn.
        self.assertEqual((doshas["Nadi"]["holds"], doshas["Nadi"]["cancelled"]), (True, False))
        self.assertTrue(doshas["Mangal of the groom"]["cancelled"])
        self.assertIn("both charts have it", doshas["Mangal of the bride"]["why"])
        placeless = self.json("match", *EXAMPLE[:6], *second[:6])
        self.assertEqual(placeless["kutas"], match["kutas"])
        self.assertIn("not known from the ascendant", placeless["doshas"][4]["why"])


if __name__ == "__main__":
    unittest.main()
