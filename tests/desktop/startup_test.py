"""How the window's program starts when something is missing, damaged or wrong."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

BIN = pathlib.Path(os.environ["KESTRAV_BIN"])


class StartupTest(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)
        for name in ["work", "home", "empty"]:
            (self.folder / name).mkdir()
        self.work = self.folder / "work"

    def run_program(self, *words, program=BIN / "kestrav", platform="offscreen"):
        environment = {"PATH": os.environ["PATH"], "QT_QPA_PLATFORM": platform,
                       "KESTRAV_CLOCK": "1768478400"}
        for name in ["HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"]:
            environment[name] = str(self.folder / "home")
        return subprocess.run([str(program), *words], cwd=self.work, env=environment,
                              capture_output=True, text=True, timeout=60)

    def picture(self, *words, **options):
        done = self.run_program("--batch", "--screenshot", "Chart", "picture.png", *words, **options)
        return done, (self.work / "picture.png").exists()

    def test_missing_data_file_is_told_and_ends_the_program_with_0(self):
        alone = self.folder / "empty" / "kestrav"
        shutil.copy(BIN / "kestrav", alone)
        done, made = self.picture(program=alone)
        self.assertIn("Notice: Can't find the Ram file", done.stderr)
        self.assertEqual((done.returncode, made), (0, False))

    def test_damaged_data_file_is_told_and_ends_the_program_with_1(self):
        data = bytearray((BIN / "JRaam.nam").read_bytes())
        data[2000] ^= 0x55
        (self.work / "JRaam.nam").write_bytes(data)
        done, made = self.picture()
        self.assertIn("JRaam.nam: is damaged", done.stderr)
        self.assertEqual((done.returncode, made), (1, False))

    def test_broken_settings_database_and_pages_do_not_stop_it(self):
        (self.work / "KESTRAV6.ENV").write_bytes(b"this is no settings file at all")
        (self.work / "broken.ksc").write_bytes(b"short\n\x00\xff\n" * 3)
        done, made = self.picture("broken.ksc")
        self.assertIn("KESTRAV6.ENV: is damaged or no settings file", done.stderr)
        self.assertIn("a very short line was detected", done.stderr)
        self.assertEqual((done.returncode, made), (0, True))
        done, made = self.picture("missing.ksc")
        self.assertIn("This file is not found", done.stderr)
        self.assertEqual(done.returncode, 0)

    def test_pictures_need_no_display_and_a_window_says_that_it_does(self):
        done, made = self.picture(platform="")
        self.assertEqual((done.returncode, made), (0, True), done.stderr)
        listed = self.run_program("--screenshot", "list", platform="")
        self.assertEqual(listed.returncode, 0, listed.stderr)
        self.assertIn("Panchanga", listed.stdout.splitlines())
        done = self.run_program(platform="")
        self.assertEqual(done.returncode, 1)
        self.assertIn("there is no display to show a window on", done.stderr)

    def test_wrong_words_are_usage_errors(self):
        done = self.run_program("--bogus")
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        self.assertIn("--bogus", done.stderr)
        done = self.run_program("--batch", "--screenshot", "Nothing", "picture.png")
        self.assertEqual(done.returncode, 1)
        self.assertIn("no page, form or dialog 'Nothing'", done.stderr)
        names = self.run_program("--batch", "--screenshot", "list").stdout.splitlines()
        self.assertIn("Chart", names)
        self.assertIn("OptionsDlg", names)


if __name__ == "__main__":
    unittest.main()
