"""The commands on chart databases, on files in a folder of their own."""

import json
import os
import pathlib
import pty
import select
import shutil
import signal
import subprocess
import time
import unittest

import jsonschema

from program import EXAMPLE, PROGRAM, ProgramTest
from schema_test import SCHEMA

NO_BODY = 65534


def line(name, date="1/2/1990", time_text="5:30", order="EB", rest="", tag=" "):
    """A chart line as the file has it, without line end."""
    return (f'{tag}\t""\t"{name}"\t"M"\t""\t{date}\t"{time_text}"\t"Pune"\t"India"\t"5:30:00"\t0\t'
            f' 73E51\'00"\t18N31\'00"\t""\t""\t""\t""\t0/0/0\t"{rest}"/""\t0/0\t"{order}"/0/0/0'
            + "\t" * 39).encode("cp1252")


class DatabaseTest(ProgramTest):
    def setUp(self):
        super().setUp()
        self.file = self.work / "my.ksc"

    def write(self, *lines, end=b"\r\n"):
        self.file.write_bytes(b"".join(each + end for each in lines))

    def db(self, command, *words, code=0, told=()):
        """Standard output of a call with the exit code, whose messages are these patterns."""
        result = self.start("db", *command.split(), "--db", "my.ksc", *words)
        errors = result.stderr.decode("utf-8")
        self.assertEqual(result.returncode, code, errors)
        self.assertEqual(len(errors.splitlines()), len(told), errors)
        for message, pattern in zip(errors.splitlines(), told):
            self.assertRegex(message, pattern)
        return result.stdout.decode("utf-8")

    def data(self, command, *words, **how):
        """The JSON of a call, checked against its schema."""
        output = json.loads(self.db(command, *words, "--json", **how))
        name = "command-db-" + command.split()[0]
        self.assertEqual(list(output), SCHEMA["$defs"][name]["required"])
        jsonschema.validate(output, {"$defs": SCHEMA["$defs"], "$ref": "#/$defs/" + name})
        return output

    def names(self, command="list", *words, **how):
        return [chart["name"] for chart in self.data(command, *words, **how)["charts"]]

    def lines(self):
        return self.file.read_bytes().splitlines(keepends=True)


class Editing(DatabaseTest):
    def test_round_trip(self):
        before = [line("Zoë\xa0"), line("No zone").replace(b"5:30:00", b"LMT"), b"half a line",
                  line("Andrew")]
        self.write(*before)
        original = self.file.read_bytes()
        added = self.data("add", "--name", 'Mira "M" Example', *EXAMPLE[:6], "--dst", "1",
                          "--lat", "13N05:16", "--lon", "80W16:43", "--place", "Chennai",
                          "--country", "India", "--sex", "F", "--tag", "P", "--code", "AB1",
                          "--sound", "kh", "--notes", "one\ntwo", "--numbers", "3,-4",
                          "--second-date", "2001-02-03", "--event", "2010-05-01T10:30=Wedding",
                          "--event", "2012-01-09=Move", "--contact", "email=m@example.org")
        self.assertEqual(self.file.with_suffix(".BAK").read_bytes(), original)
        self.assertTrue(self.file.read_bytes().startswith(original))
        self.assertEqual(added["line"], 5)
        shown = self.data("show", "--line", "5")
        self.assertEqual(shown["chart"], added["chart"])
        chart = shown["chart"]
        for key, value in (("name", "Mira 'M' Example"), ("year", 1996), ("month", 12), ("day", 7),
                           ("timeText", "10:34"), ("zone", 5.5), ("daylightSaving", 1),
                           ("longitudeText", " 80W16'43\""), ("latitudeText", "13N 5'16\""),
                           ("place", "Chennai"), ("country", "India"), ("notes", "one\r\ntwo"),
                           ("numbers", [3, -4]), ("tag", "P"), ("sound", "kh")):
            self.assertEqual(chart[key], value)
        self.assertEqual(chart["secondDate"], {"year": 2001, "month": 2, "day": 3})
        self.assertEqual([(event["name"], event["hours"]) for event in chart["events"]],
                         [("Wedding", 10.5), ("Move", 0)])
        self.assertEqual(chart["contact"]["email"], "m@example.org")

        self.db("update", "--name", "mira 'm' example", "--time", "10:35:20", "--new-name",
                "Mira", "--clear-events", "--event", "2020-01-01=Prize", "--tag", "")
        changed = self.data("show", "--name", "Mira")["chart"]
        self.assertEqual((changed["timeText"], changed["zone"], changed["tag"]),
                         ("10:35:20", 5.5, " "))
        self.assertEqual([event["name"] for event in changed["events"]], ["Prize"])
        same = {key for key in chart if chart[key] == changed[key]}
        self.assertEqual(chart.keys() - same,
                         {"name", "localTime", "timeText", "events", "tag"})
        self.assertTrue(self.file.read_bytes().startswith(original))

        self.db("delete", "--name", "Mira", "--yes", told=["Delete 'Mira' from file.* .yes"])
        self.assertEqual(self.file.read_bytes(), original)
        self.db("delete", "--line", "4", "--yes", told=["Delete 'Andrew'"])
        self.assertEqual(self.lines(), [each + b"\r\n" for each in before[:3]])

    def test_questions_are_asked_first(self):
        self.write(line("Anna"))
        before = self.lines()
        anna = ["add", "--name", "Anna", *EXAMPLE]
        exists = r"\ANotice: Name already exists, update\? Click \[No\] to save as Nnnnnn~ .*"
        for told, words in (
                (exists + r"\(cancel; --yes agrees\)", anna),
                (r"\AWarning: The year you have entered has less than four digits.*Continue\?",
                 ["add", "--name", "B", "--date", "0960-01-01", *EXAMPLE[2:]]),
                (r"\ANotice: Save as 'Now' record\?", [*anna[:2], "B", *EXAMPLE, "--tag", "N"]),
                (r"\ANotice: Delete 'Anna' from file\? \(no", ["delete", "--name", "Anna"]),
                (r"\ANotice: No need to Delete because not yet saved\Z",
                 ["delete", "--name", "Bert", "--yes"]),
                (r"\ANotice: Change A group tags and update file\?",
                 ["group", "A", "--line", "1"]),
                (r"\AWarning: File exists. Overwrite\?", ["new"])):
            with self.subTest(told):
                self.assertEqual(self.db(words[0], *words[1:], code=1, told=[told]), "")
                self.assertEqual(self.lines(), before)
        self.db(*anna, "--keep-both", told=[exists + r"\(no\)"])
        self.assertEqual(self.names(), ["Anna", "Anna~"])
        self.assertEqual(self.lines()[0], before[0])
        self.db(*anna, "--yes", told=[exists + r"\(yes\)"])
        self.assertEqual((len(self.lines()), self.names()), (2, ["Anna", "Anna~"]))
        self.assertEqual(self.data("show", "--line", "1")["chart"]["year"], 1996)
        self.db("new", "--yes", told=["Overwrite"])
        self.assertEqual(self.file.read_bytes(), b"")

    def test_groups_and_date_order(self):
        self.write(line("A"), line("B", tag="A"), line("C", date="1/13/1990", order="UN"))
        self.data("group", "A", "--name", "C", "--line", "1", "--yes", told=["Change A"])
        self.assertEqual([each[:1] for each in self.lines()], [b"A", b" ", b"A"])
        self.assertEqual([each[1:-2] for each in self.lines()],
                         [line("A")[1:], line("B")[1:],
                          line("C", date="1/13/1990", order="UN")[1:]])
        self.assertEqual(self.names("sort", "--by", "a GROUP"), ["A", "C"])
        self.db("group", "A", "--clear", "--yes", told=["Change A"])
        self.assertEqual(self.names("sort", "--by", "group-a"), [])
        self.data("order", "day-first")
        self.assertIn(b'\t13/1/1990\t', self.lines()[2])
        self.assertIn("13/ 1/1990", self.db("list").splitlines()[2])
        self.data("order", "month-first")
        self.assertIn(b'"UN"/', self.lines()[0])
        self.assertIn(b'\t2/1/1990\t', self.lines()[0])
        self.assertIn(" 2/ 1/1990", self.db("list", "--set", "monthFirst=1").splitlines()[0])

    def test_wrong_usage_changes_nothing(self):
        self.write(line("Anna"), line("anna"), b"short")
        before = self.lines()
        for code, pattern, words in (
                (2, "by --name or by --line", ["show"]),
                (2, "not both", ["delete", "--name", "Anna", "--line", "1"]),
                (2, "no chart 'Otto'", ["show", "--name", "Otto"]),
                (2, "in the lines 1 2", ["show", "--name", "ANNA"]),
                (2, "no line 4", ["show", "--line", "4"]),
                (2, "'0' is not a line", ["show", "--line", "0"]),
                (1, r"my\.ksc:3: .*too short", ["show", "--line", "3"]),
                (2, "nothing to change", ["update", "--line", "1"]),
                (2, "line 2 has the name", ["update", "--line", "1", "--new-name", "anna"]),
                (2, "neither letter nor digit", ["update", "--line", "1", "--new-name", "--"]),
                (2, "'1990-02-31' does not exist", ["update", "--line", "1", "--date",
                                                   "1990-02-31"]),
                (2, "--label is longer than 29", ["update", "--line", "1", "--label", "x" * 30]),
                (2, "the character |", ["update", "--line", "1", "--notes", "a|b"]),
                (2, "neither M nor F", ["update", "--line", "1", "--sex", "X"]),
                (2, "--contact 'phone=1'", ["update", "--line", "1", "--contact", "phone=1"]),
                (2, "--name is missing", ["add", *EXAMPLE]),
                (2, "--clear", ["group", "A"]), (2, "'C' is neither A", ["group", "C"]),
                (2, "'backwards'", ["sort", "--by", "backwards"]),
                (2, "'maybe'", ["merge", "my.ksc", "--changed", "maybe"])):
            with self.subTest(words):
                self.db(words[0], *words[1:], code=code, told=[pattern])
        self.assertEqual(self.lines(), before)
        self.assertFalse(self.file.with_suffix(".BAK").exists())
        self.assertFails(2, "--db is missing", "db", "list")
        self.assertEqual(self.text("db", "show", "my.ksc", "--line", "1"),
                         self.db("show", "--line", "1"))
        self.db("list", "other.ksc", code=2, told=["named twice"])
        self.assertFails(2, "db import", "db", "list", "--db", "old.QCK")
        self.assertFails(1, "Error: This file is not found, please use 'File/Open Database'", "db",
                         "list", "--db", "none.ksc")


class Research(DatabaseTest):
    def setUp(self):
        super().setUp()
        # The Sun of December 7 is in tropical Sagittarius; the rest are the printed positions.
        self.write(line("Zed", date="1/8/1990"))
        self.db("add", "--name", "Example", *EXAMPLE)

    def test_labels(self):
        self.db("refresh", "--yes", told=[r"\Anotice: Your Research Database needs refreshing. "
                                          r"Go ahead\? \(ok\)"])
        self.assertIn("up to date", self.db("refresh"))
        for word, label in (("trop-sun", "Sagittarius  (Trop. Sun)"),
                            ("sid-sun", "Scorpio  (Sid. Sun)"), ("sid-moon", "Libra  (Sid. Moon)"),
                            ("sid-asc", "Capricorn  (Sid. Asc.)"),
                            ("sign:mars", "Leo  (Sid. Mar.)"),
                            ("nakshatra:moon", "Swati (Moon)")):
            charts = self.data("sort", "--by", word)["charts"]
            self.assertEqual({chart["name"]: chart["label"] for chart in charts}["Example"], label)
            self.assertRegex(self.db("sort", "--by", word), r"2  Example +.*    " +
                             label.replace("(", r"\(").replace(")", r"\)") + "\n")
        # Cancer, where the Sun is on August 1, comes before Scorpio.
        self.assertEqual(self.names("sort", "--by", "sid-sun"), ["Zed", "Example"])
        self.assertEqual(self.names("sort"), ["Example", "Zed"])

    def test_stale_research_is_told(self):
        suggestion = r"Try refreshing your Research Database\?.*search again\."
        self.assertEqual(self.db("sort", "--by", "sid-sun", code=1,
                                 told=["no research database yet", suggestion]), "")
        self.db("refresh", code=1, told=["cancel; --yes agrees"])
        self.assertFalse((self.work / "my.txt").exists())
        self.db("refresh", "--yes", told=["needs refreshing"])
        self.db("update", "--line", "1", "--date", "1990-12-24")
        self.db("sort", "--by", "sid-sun", told=["Charts were changed", suggestion])
        self.assertIn("Charts were changed", self.data("check")["research"])
        self.db("refresh", "--yes", told=["needs refreshing"])
        self.db("sort", "--by", "sid-sun", "--set", "ayanamsaRow=2",
                told=["Settings were changed", suggestion])

    def test_a_foreign_text_file_stays(self):
        (self.work / "my.txt").write_text("my letters\n")
        self.db("refresh", "--yes", code=1,
                told=["Go ahead", r"\AError: Saving File Error : .*my\.txt: is no research"])
        self.assertEqual((self.work / "my.txt").read_text(), "my letters\n")

    def test_damage(self):
        self.write(line("Anna"), b"short line", line(""), line("Otto", date="31/2/1990"),
                   line("Lone").replace(b'"5:30:00"', b'"LMT"'))
        before = self.lines()
        told = [r'\ANotice: Your database may be corrupted, a very short line was detected and '
                r'processing stopped\. .*\.BAK.*Line #2 "short line"\Z',
                r"\ANotice: Your database may be corrupted, a record seems to have no name.*#3 "]
        check = self.data("check", code=1, told=told + ["'No Name' .*--yes agrees"])
        self.assertEqual((check["lines"], check["charts"]), (5, 4))
        self.assertEqual([problem["line"] for problem in check["problems"]], [2, 3, 4, 5])
        self.assertIn("1990-2-31 does not exist", check["problems"][2]["text"])
        self.assertIn("'LMT' is not understood", check["problems"][3]["text"])
        self.assertEqual(self.lines(), before)
        self.assertEqual(self.names(told=["a very short line was detected\\. "]),
                         ["Anna", "No Name", "Otto", "Lone"])
        # Without an answer the walk ends at the first damage.
        self.db("refresh", code=1, told=["cancel"])
        self.db("refresh", "--yes", told=["Go ahead", "Line #2", "Line #3"])
        self.assertEqual((self.work / "my.txt").read_bytes().splitlines()[1], b"")
        self.assertEqual([i for i in range(5) if self.lines()[i] != before[i]], [2])


class Exchange(DatabaseTest):
    def test_merge(self):
        self.write(line("Anna"), line("Otto"))
        other = self.work / "other.ksc"
        other.write_bytes(line("Otto", time_text="6:00") + b"\n" + b"damaged\n" + line("Anna") +
                          b"\n" + line("Nina") + b"\n")
        before = self.lines()
        preview = self.data("merge", "other.ksc", "--preview")
        self.assertEqual([(entry["line"], entry["kind"], entry["ourLine"])
                          for entry in preview["entries"]],
                         [(1, "changed", 2), (2, "damaged", None), (3, "equal", 1),
                          (4, "new", None)])
        text = self.db("merge", "other.ksc", code=1, told=[r"Add 1 and replace 0 charts in my.ksc"])
        self.assertRegex(text, r"   1  changed  Otto\n")
        self.assertIn("new: 1, changed: 1, equal: 1, damaged: 1\n", text)
        self.assertEqual(self.lines(), before)
        self.db("merge", "other.ksc", "--changed", "both", "--yes", told=["Add 2 and replace 0"])
        self.assertEqual(self.names(), ["Anna", "Otto", "Otto~", "Nina"])
        self.assertEqual(self.lines()[:2], before)
        self.db("merge", "other.ksc", "--changed", "replace", "--yes", told=["Add 0 and replace 1"])
        self.assertEqual(self.data("show", "--name", "Otto")["chart"]["timeText"], "6:00")
        self.assertEqual(self.data("merge", "other.ksc")["added"], 0)

    def test_import(self):
        self.write(line("Anna"))
        before = self.lines()
        folder = self.work / "old"
        folder.mkdir()
        packed = "6\n15\n1990\n14.32100\n-5.30\n-72.35\n23.02\n"
        (folder / "Mira.jhd").write_text(packed)
        (folder / "Bad.jhd").write_text(packed.replace("6\n", "13\n", 1))
        (folder / "notes.doc").write_text("no chart")
        keys = ("name: Nils Typed\ndate: 1990-06-15\ntime: 14:32:10\nplace: Pune\n"
                "country: India\nlongitude: 73E51\nlatitude: 18N31\nzone: 5:30\ndst: 0\n")
        (self.work / "Birthdat.txt").write_text(keys)
        (self.work / "odd.txt").write_text("nothing of the kind\n")
        report = self.data("import", "Birthdat.txt", "old", "odd.txt", "gone.qck", "--yes", code=1,
                           told=[r"\ANotice: Add Birthdat.txt to my.ksc\? \(yes\)",
                                 r"\ANotice: Add old to my.ksc\?", "Add odd.txt", "not a chart",
                                 r"\AError: Can't find the file\Z"])
        self.assertEqual(report["added"], 2)
        self.assertEqual([(pathlib.Path(file["file"]).name, file["taken"], len(file["refused"]))
                          for file in report["files"]],
                         [("Birthdat.txt", 1, 0), ("Bad.jhd", 0, 1), ("Mira.jhd", 1, 0),
                          ("odd.txt", 0, 1)])
        self.assertIn("does not exist", report["files"][1]["refused"][0]["text"])
        self.assertEqual(self.names(), ["Anna", "Nils Typed", "Mira"])
        self.assertEqual(self.lines()[:1], before)
        again = self.db("import", "old", "--yes", code=1, told=["Add old"])
        self.assertRegex(again, r"Mira.jhd: chart of packed numbers\n  taken: 0, refused: 1\n"
                                r".*in the database already")

    def test_export_and_import_back(self):
        self.write(line("Anna"), line("Otto", rest="a|b"))
        self.db("update", "--line", "1", "--contact", "email==1+1", "--contact", "city=Pune")
        for name in ("out.qck", "out.csv", "out.json", "out.txt"):
            self.assertEqual(self.data("export", name)["written"], 1 if name == "out.txt" else 2)
        self.assertEqual((self.work / "out.txt").read_text().splitlines(),
                         ["Name\tStreet\tCity\tState\tZip/PC\tCountry\tTel1\tTel2\tFax\tEmail\t"
                          "SortCode", "Anna\t\tPune\t\t\t\t\t\t\t'=1+1\t"])
        exported = json.loads((self.work / "out.json").read_text())["charts"]
        self.assertEqual(exported[1], self.data("show", "--line", "2")["chart"])
        self.assertEqual(exported[1]["notes"], "a\r\nb")
        self.db("export", "out.csv", code=1, told=["File exists. Overwrite"])
        self.db("export", "x.jdf", "--format", "contacts", code=1,
                told=[r"\AError: Can't export to this name, don't use '.jdf' extension\Z"])
        self.db("export", "my.ksc", "--format", "csv", "--yes", code=1, told=["database itself"])
        self.db("export", "out", code=2, told=["--format is missing"])
        back = self.work / "back.ksc"
        self.text("db", "new", "--db", "back.ksc")
        self.start("db", "import", "out.qck", "--db", "back.ksc", "--yes")
        self.assertEqual(len(back.read_bytes().splitlines()), 2)
        shown = self.json("db", "show", "--db", "back.ksc", "--line", "2")["chart"]
        for key in ("name", "year", "month", "day", "localTime", "zone", "longitude", "latitude"):
            self.assertEqual(shown[key], exported[1][key])

    def test_backup_and_restore(self):
        self.write(line("Anna"), b"\xff odd", line("Otto"))
        original = self.file.read_bytes()
        (self.work / "stick").mkdir()
        insert = r"\ANotice: Insert a flash drive, CD or other memory device in a USB port"
        self.data("backup", "stick", told=[insert])
        self.assertEqual((self.work / "stick" / "my.ksc").read_bytes(), original)
        self.db("backup", "stick", code=1, told=[insert, "Overwrite"])
        self.db("delete", "--line", "1", "--yes", told=["Delete"])
        self.db("restore", "stick", code=1, told=["Overwrite"])
        self.data("restore", "stick", "--yes", told=["Overwrite"])
        self.assertEqual(self.file.read_bytes(), original)
        self.file.unlink()
        self.db("restore", "stick/my.ksc")
        self.assertEqual(self.file.read_bytes(), original)


class Whole(DatabaseTest):
    """What happens to the files when something comes in between."""

    def terminal(self, *words):
        """Starts the program at a terminal of its own; the other end of it, and the process."""
        ours, its = pty.openpty()
        self.addCleanup(os.close, ours)
        process = subprocess.Popen([str(PROGRAM), *words], cwd=self.work, stdin=its, stderr=its,
                                   stdout=subprocess.PIPE, env={"HOME": str(self.home)})
        self.addCleanup(process.stdout.close)
        os.close(its)
        return ours, process

    def wait_for(self, terminal, text):
        seen = b""
        end = time.monotonic() + 60
        while text not in seen and time.monotonic() < end:
            if select.select([terminal], [], [], 1)[0]:
                try:
                    seen += os.read(terminal, 4096)
                except OSError:
                    break
        self.assertIn(text, seen)
        return seen

    def test_interrupted_refresh(self):
        self.write(*(line(f"Chart {i}", date=f"{i % 28 + 1}/{i % 12 + 1}/{1900 + i % 100}")
                     for i in range(40_000)))
        before = self.file.read_bytes()
        ours, process = self.terminal("db", "refresh", "--db", "my.ksc", "--yes")
        self.wait_for(ours, b"upd count ")
        process.send_signal(signal.SIGINT)
        self.wait_for(ours, b"Error: interrupted; no file was changed")
        self.assertEqual(process.wait(60), 1)
        self.assertEqual(process.stdout.read(), b"")
        self.assertEqual(self.file.read_bytes(), before)
        self.assertEqual([path.name for path in self.work.iterdir()], ["my.ksc"])

    def test_change_while_a_question_waits(self):
        self.write(line("Anna"))
        for answer, code, names in ((b"n\n", 1, ["Other"]), (b"y\n", 0, ["Anna", "Otto"])):
            self.write(line("Anna"))
            ours, process = self.terminal("db", "add", "--db", "my.ksc", "--name", "Otto",
                                          "--date", "0990-01-01", *EXAMPLE[2:])
            self.wait_for(ours, b"[yes/no]")
            self.write(line("Other"))
            os.write(ours, b"yes\n")
            self.wait_for(ours, b"was changed by another program since it was opened")
            os.write(ours, answer)
            self.assertEqual(process.wait(60), code)
            self.assertEqual(self.names(), names)
        self.assertIn(b"Other", self.file.with_suffix(".BAK").read_bytes())

    def test_read_only_folder(self):
        self.write(line("Anna"))
        before = self.file.read_bytes()
        # The superuser writes anywhere, so that somebody else has to try.
        program = self.folder / "bin"
        program.mkdir()
        shutil.copy(PROGRAM, program)
        for path in (self.folder, self.work, self.home, program):
            path.chmod(0o555)
        self.addCleanup(lambda: [path.chmod(0o755) for path in (self.folder, self.work, program)])
        somebody = {"user": NO_BODY, "group": NO_BODY, "extra_groups": []} \
            if os.geteuid() == 0 else {}
        for words in (["add", "--name", "Otto", *EXAMPLE], ["delete", "--line", "1", "--yes"]):
            result = subprocess.run([str(program / PROGRAM.name), "db", *words, "--db", "my.ksc"],
                                    cwd=self.work, env={"HOME": str(self.home)},
                                    capture_output=True, timeout=60, check=False, **somebody)
            self.assertEqual(result.returncode, 1, result.stderr)
            self.assertRegex(result.stderr.decode().splitlines()[-1],
                             r"\AError: Saving File Error : .*my\.ksc.*Permission denied")
        self.assertEqual(self.file.read_bytes(), before)


class Computing(DatabaseTest):
    def test_charts_of_the_database(self):
        self.write(line("Anna"), line("Otto", date="30/2/1990"))
        self.db("add", "--name", "Example", *EXAMPLE, "--place", "Chennai", "--country", "India")
        typed = self.json("chart", *EXAMPLE[:6], "--lat", "13N05:16", "--lon", "80E16:43")
        for how in (["--name", "Example"], ["--line", "3"], ["--name", "EXAMPLE"]):
            stored = self.json("chart", "--db", "my.ksc", *how)
            self.assertEqual(stored["input"]["place"], "Chennai, India")
            self.assertEqual(stored["points"], typed["points"])
        self.assertFails(2, "--zone cannot stand beside --db", "chart", "--db", "my.ksc", "--name",
                         "Anna", "--zone", "1")
        self.assertFails(2, "--line needs --db", "chart", *EXAMPLE, "--line", "1")
        self.assertFails(1, r"my\.ksc:2: the date 1990-2-30 does not exist", "sun", "--db",
                         "my.ksc", "--line", "2")

    def test_match(self):
        self.write(line("Anna"), line("Otto", date="9/9/1985"))
        stored = self.json("match", "--db", "my.ksc", "--name", "Anna", "--with", "Otto")
        otto = ["--date", "1985-09-09", "--time", "5:30", "--zone", "5:30"]
        second = ["--with" + word[1:] if word.startswith("--") else word for word in otto]
        self.assertEqual(self.json("match", "--db", "my.ksc", "--name", "Anna", *second)["kutas"],
                         stored["kutas"])
        turned = self.json("match", *otto, "--db", "my.ksc", "--with-line", "1", "--bride-first")
        self.assertEqual(turned["kutas"], stored["kutas"])
        self.assertFails(2, "--with needs --db", "match", *otto, "--with", "Anna")


if __name__ == "__main__":
    unittest.main()
