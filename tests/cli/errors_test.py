"""Every failure is one line on standard error with its exit code."""

import shutil
import unittest

from program import BIN, EXAMPLE, PROGRAM, ProgramTest


class Usage(ProgramTest):
    def test_birth_data(self):
        moment = ["--date", "1990-01-01", "--time", "1:00", "--zone", "0"]
        place = ["--lat", "1", "--lon", "1"]
        for pattern, words in (
                ("--date, --time and --zone are missing", place),
                ("--zone is missing", moment[:4] + place),
                ("--lon and --lat are missing", moment),
                ("no place 'Nowhereville'", moment + ["--place", "Nowhereville"]),
                ("--lon is missing", moment + ["--lat", "1"]),
                ("2001-02-30.* does not exist", ["--date", "2001-02-30"] + moment[2:] + place),
                ("1582-10-10.* does not exist", ["--date", "1582-10-10"] + moment[2:] + place),
                ("no year 0", ["--date", "0000-01-01"] + moment[2:] + place),
                ("'24:00'", moment[:2] + ["--time", "24:00", "--zone", "0"] + place),
                ("zone '16'", moment[:4] + ["--zone", "16"] + place),
                ("saving time '4'", moment + place + ["--dst", "4"]),
                ("latitude '91'", moment + ["--lat", "91", "--lon", "1"]),
                ("longitude '-180.5'", moment + ["--lat", "1", "--lon", "-180.5"]),
                ("longitude 'x'", moment + ["--lat", "1", "--lon", "x"]),
                ("--name holds", moment + place + ["--name", "a\nb"]),
                ("--now", ["--now"] + moment + place)):
            with self.subTest(pattern):
                self.assertFails(2, pattern, "chart", *words)

    def test_options_and_commands(self):
        for pattern, words in (
                ("no command", []), ("bogus", ["bogus"]), ("no command", ["settings"]),
                ("--bogus", ["chart", "--bogus"]), ("sun", ["chart", "sun"]),
                ("--date", ["chart", "--date"]), ("--date=", ["chart", "--date=", "--json"]),
                ("--date .* --json", ["chart", "--date", "--json"]),
                ("--lat", ["chart", *EXAMPLE, "--lat", "2"]),
                ("'nope'", ["chart", *EXAMPLE, "--set", "nope=1"]),
                ("'houseSystem'", ["chart", *EXAMPLE, "--set", "houseSystem"]),
                ("houseSystem: '5'", ["chart", *EXAMPLE, "--set", "houseSystem=5"]),
                ("'latin'", ["chart", *EXAMPLE, "--language", "latin"]),
                ("a b", ["chart", "a\nb"]),
                ("NAME", ["settings", "get"]),
                ("'nope'", ["settings", "get", "nope"]),
                ("'nope'", ["settings", "reset", "houseSystem", "nope"]),
                ("sandhiMinutes: '-5'", ["settings", "set", "sandhiMinutes", "-5"]),
                ("'Sri Patti'", ["settings", "set", "houseSystem", "Sri", "Patti"]),
                ("row '10'", ["settings", "ayanamsa", "set", "10", "--rate", "1"]),
                ("nothing to change", ["settings", "ayanamsa", "set", "1"]),
                ("--minutes '60'", ["settings", "ayanamsa", "set", "1", "--minutes", "60"]),
                ("--rate 'nan'", ["settings", "ayanamsa", "set", "1", "--rate", "nan"]),
                ("16 bytes", ["settings", "ayanamsa", "set", "1", "--name", "é" * 9])):
            with self.subTest(words):
                self.assertFails(2, pattern, *words)


class Files(ProgramTest):
    def moved_program(self):
        # Without the data file beside it.
        folder = self.folder / "alone"
        folder.mkdir()
        return shutil.copy(PROGRAM, folder)

    def test_missing_data_file(self):
        program = self.moved_program()
        self.assertFails(1, r"\ANotice: Can't find the Ram file.*JRaam\.nam.*alone", "chart",
                         *EXAMPLE, program=program)
        data = self.home / ".local" / "share" / "kestrav"
        data.mkdir(parents=True)
        shutil.copy(BIN / "JRaam.nam", data)
        self.assertEqual(self.text("chart", *EXAMPLE, program=program),
                         self.text("chart", *EXAMPLE))

    def test_damaged_data_file(self):
        content = (BIN / "JRaam.nam").read_bytes()
        for damaged in (content[:-1], content[:30000] + b"\x55" + content[30001:]):
            self.assertNotEqual(damaged, content)
            (self.work / "JRaam.nam").write_bytes(damaged)
            self.assertFails(1, r"JRaam\.nam: is damaged", "chart", *EXAMPLE)

    def test_wrong_usage_is_told_before_a_missing_file(self):
        self.assertFails(2, "houseSystem", "chart", *EXAMPLE, "--set", "houseSystem=5",
                         program=self.moved_program())

    def test_settings_file(self):
        self.assertFails(1, "nowhere.env", "chart", *EXAMPLE, "--settings", "nowhere.env")
        self.assertFails(1, "nowhere.env", "settings", "list", "--settings", "nowhere.env")
        self.assertFails(1, "home", "settings", "list", "--settings", str(self.home))
        (self.work / "file").write_text("")
        self.assertFails(1, "file", "settings", "set", "dashaLevels", "3", "--settings",
                         "file/KESTRAV6.ENV")

    def test_full_output(self):
        with open("/dev/full", "wb") as full:
            self.assertFails(1, "cannot write", "chart", *EXAMPLE, stdout=full)


if __name__ == "__main__":
    unittest.main()
