"""Runs kestrav-cli in a folder and a home of its own."""

import json
import os
import pathlib
import subprocess
import tempfile
import unittest

BIN = pathlib.Path(os.environ["KESTRAV_BIN"])
DOCS = pathlib.Path(os.environ["KESTRAV_DOCS"])
PROGRAM = BIN / "kestrav-cli"

# The example chart, with its printed positions in signs 1 to 12, degrees and minutes.
CHENNAI = ["--lat", "13.0878", "--lon", "80.2785"]
EXAMPLE = ["--date", "1996-12-07", "--time", "10:34", "--zone", "+5:30"] + CHENNAI
EXAMPLE_POSITIONS = {
    "Ascendant": (10, 22, 26), "Sun": (8, 21, 33), "Moon": (7, 6, 57), "Mars": (5, 25, 32),
    "Mercury": (9, 9, 55), "Jupiter": (9, 25, 49), "Venus": (7, 23, 42), "Saturn": (12, 6, 48),
    "Rahu": (6, 10, 33), "Ketu": (12, 10, 33),
}
TROMSO_IN_JUNE = ["--date", "1996-06-21", "--time", "10:34", "--zone", "1", "--lat", "69N36",
                  "--lon", "19E00"]


# Two horoscopes whose strengths are printed in textbooks: the longitudes of the points 0 to 9. The
# nodes of J are not printed; they stand in no sign where they would matter.
HOROSCOPE_R = [298.45, 180.8986, 311.2886, 229.5094, 181.5261, 84.0136, 171.1656, 124.3781,
               234.3964, 54.3964]
HOROSCOPE_J = [86.43, 146.38, 309.50, 103.18, 170.53, 170.45, 186.27, 166.43, 99.0, 279.0]


class ProgramTest(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)
        self.work = self.folder / "work"
        self.work.mkdir()
        self.home = self.folder / "home"
        self.home.mkdir()

    def start(self, *words, program=PROGRAM, environment=None, stdout=subprocess.PIPE):
        # What a sanitizer needs is passed on, nothing else of the outer environment.
        clean = {name: value for name, value in os.environ.items() if name.endswith("_OPTIONS")}
        clean["HOME"] = str(self.home)
        clean.update(environment or {})
        return subprocess.run([str(program), *words], cwd=self.work, env=clean, stdout=stdout,
                              stderr=subprocess.PIPE, timeout=60)

    def text(self, *words, warning=None, **how):
        """Standard output of a call that succeeds, with nothing or one warning on the other."""
        result = self.start(*words, **how)
        errors = result.stderr.decode("utf-8")
        self.assertEqual(result.returncode, 0, errors)
        if warning is None:
            self.assertEqual(errors, "")
        else:
            self.assertRegex(errors, r"\AWarning: .*" + warning + r".*\n\Z")
        return result.stdout.decode("utf-8")

    def json(self, *words, **how):
        def refuse(constant):
            raise ValueError(constant)
        return json.loads(self.text(*words, "--json", **how), parse_constant=refuse)

    def assertFails(self, code, pattern, *words, **how):
        """The call ends with the code and one line on standard error, and prints no result."""
        result = self.start(*words, **how)
        errors = result.stderr.decode("utf-8")
        self.assertEqual(result.returncode, code, errors)
        self.assertRegex(errors, r"\A[^\n]*" + pattern + r"[^\n]*\n\Z")
        if how.get("stdout", subprocess.PIPE) == subprocess.PIPE:
            self.assertEqual(result.stdout, b"")

    def positions(self, longitudes, name="positions.json", **more):
        """Writes a file of positions by index, with further keys of all entries."""
        points = [{"index": index, "longitude": longitude, **more}
                  for index, longitude in (longitudes.items() if isinstance(longitudes, dict)
                                           else enumerate(longitudes))]
        return self.file(json.dumps({"points": points}), name)

    def file(self, text, name="positions.json"):
        (self.work / name).write_text(text, encoding="utf-8")
        return name

    def point(self, chart, name):
        return next(point for point in chart["points"] if point["name"] == name)
