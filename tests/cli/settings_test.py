"""The commands that keep settings."""

import unittest

from program import EXAMPLE, ProgramTest

FILE = "KESTRAV6.ENV"


class Stored(ProgramTest):
    def setUp(self):
        super().setUp()
        self.stored = self.home / ".config" / "kestrav" / FILE

    def system(self, **how):
        return self.json("houses", *EXAMPLE, **how)["houses"]["system"]

    def test_set_get_reset(self):
        self.assertEqual(self.text("settings", "set", "houseSystem", "sri", "pati"),
                         "houseSystem = 2 (Sri Pati)\n")
        before = self.stored.read_bytes()
        self.text("settings", "set", "customYearDays", "360.5")
        self.assertEqual(self.stored.with_suffix(".BAK").read_bytes(), before)
        self.assertEqual(self.system(), 2)
        self.assertEqual(self.json("settings", "get", "customYearDays")["settings"],
                         {"customYearDays": {"value": 360.5, "default": 365.25,
                                             "range": [200.0, 500.0],
                                             "meaning": "days of the custom dasha year"}})
        self.assertIn("houseSystem = 0", self.text("settings", "reset", "houseSystem"))
        values = self.json("settings", "list")["settings"]
        self.assertEqual((values["houseSystem"]["value"], values["customYearDays"]["value"]),
                         (0, 360.5))
        self.text("settings", "reset")
        for name, setting in self.json("settings", "list")["settings"].items():
            self.assertEqual(setting["value"], setting["default"], name)

    def test_list_shows_values_in_columns(self):
        self.text("settings", "set", "monthFirst", "yes")
        lines = self.text("settings", "list").splitlines()
        column = lines[0].index("Default")
        rows = {line.split()[0]: line for line in lines[1:]}
        self.assertEqual(set(rows), set(self.json("settings", "list")["settings"]))
        self.assertRegex(rows["monthFirst"], r"true +false +false, true +whether dates")
        self.assertRegex(rows["houseSystem"], r"0 \(By Rashi\) +0 +0 to 4 +how")
        for line in lines[1:]:
            self.assertEqual((line[column - 1], line[column] != " "), (" ", True), line)

    def test_which_file_is_used(self):
        self.text("settings", "set", "houseSystem", "2")
        self.text("settings", "set", "houseSystem", "3", "--settings", "mine.env")
        self.assertEqual(self.system(), 2)
        self.assertEqual(self.json("houses", *EXAMPLE, "--settings", "mine.env")["houses"]["system"],
                         3)
        elsewhere = {"XDG_CONFIG_HOME": str(self.folder / "xdg")}
        self.assertEqual(self.system(environment=elsewhere), 0)
        self.text("settings", "set", "houseSystem", "1", environment=elsewhere)
        self.assertTrue((self.folder / "xdg" / "kestrav" / FILE).exists())
        (self.work / "mine.env").rename(self.work / FILE)
        self.assertEqual(self.system(), 3)  # the current folder wins
        self.text("settings", "set", "houseSystem", "4")
        (self.work / FILE).unlink()
        self.assertEqual(self.system(), 2)

    def test_options_of_a_call_are_not_stored(self):
        words = ["houses", *EXAMPLE, "--set", "houseSystem=2", "--set", "ayanamsaRow=2"]
        houses = self.json(*words)
        self.assertEqual((houses["houses"]["system"], houses["ayanamsa"]["row"]), (2, 2))
        self.assertFalse(self.stored.exists())

    def test_damaged_file_gives_defaults(self):
        self.text("settings", "set", "houseSystem", "2")
        content = self.stored.read_bytes()
        self.stored.write_bytes(b"\x00" * 8 + content[8:])
        self.assertEqual(self.system(warning=FILE + ".*damaged.*defaults"), 0)
        self.text("settings", "set", "dashaLevels", "3", warning="damaged")
        self.assertEqual(self.json("settings", "get", "dashaLevels")["settings"]["dashaLevels"]
                         ["value"], 3)


class Ayanamsas(ProgramTest):
    def table(self):
        return self.json("settings", "ayanamsa", "list")["ayanamsaTable"]

    def test_edited_row_is_used(self):
        factory = self.table()
        self.assertEqual((factory[1]["name"], factory[1]["rate"]), ("Lahiri", 50.27))
        self.text("settings", "ayanamsa", "set", "1", "--name", "Mine", "--epoch", "1996",
                  "--degrees", "24", "--minutes", "30", "--rate", "50")
        self.assertEqual(self.table()[1], {"row": 1, "name": "Mine", "epochYear": 1996,
                                           "value": 24.5, "rate": 50.0})
        ayanamsa = self.json("chart", *EXAMPLE)["ayanamsa"]
        self.assertEqual(ayanamsa["name"], "Mine")
        # December 7, 5:04 UT is 0.9333 of the year at 50 seconds a year.
        self.assertAlmostEqual(ayanamsa["degrees"], 24.5 + 0.9333 * 50 / 3600, delta=2e-5)
        self.text("settings", "ayanamsa", "set", "1", "--name", "Yours")
        self.assertEqual(self.table()[1]["value"], 24.5)
        self.text("settings", "reset")
        self.assertEqual(self.table()[1]["name"], "Yours")
        self.text("settings", "ayanamsa", "reset")
        self.assertEqual(self.table(), factory)

    def test_row_without_rate_is_warned_about(self):
        text = self.text("settings", "ayanamsa", "set", "2", "--degrees", "24", "--rate", "0",
                         warning="row 2.*tropical")
        self.assertRegex(text, r"\n +2  BV Raman +1950 +24° 0' 0\" +0  tropical\n")
        ayanamsa = self.json("chart", *EXAMPLE, "--set", "ayanamsaRow=2")["ayanamsa"]
        self.assertLess(abs(ayanamsa["degrees"]), 0.006)


class SavingTime(ProgramTest):
    def test_saving_time_in_force_is_that_of_the_setting(self):
        typed = self.json("positions", *EXAMPLE, "--dst", "2")
        self.assertEqual(typed, self.json("positions", *EXAMPLE, "--dst", "on", "--set",
                                          "daylightSavingHours=2"))
        self.assertEqual(self.json("positions", *EXAMPLE, "--dst", "on")["input"]["daylightSaving"],
                         1)
        self.assertFails(2, "is not a whole number from 0 to 3 and not 'on'", "positions",
                         *EXAMPLE, "--dst", "yes")


if __name__ == "__main__":
    unittest.main()
