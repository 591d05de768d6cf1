"""Help, manual pages and completions of the program with the window name the same options."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest

PROGRAM = pathlib.Path(os.environ["KESTRAV_BIN"]) / "kestrav"
MANUAL = pathlib.Path(os.environ["KESTRAV_TREE"]) / "docs" / "man"


def printed(*words):
    return subprocess.run([str(PROGRAM), *words], check=True, capture_output=True, text=True,
                          timeout=60).stdout


class Options(unittest.TestCase):
    def setUp(self):
        # "--page NAME" -> "show this page"
        self.options = dict(re.findall(r"^  (-\S+(?: [A-Zx]+)*)  +(\S.*)$",
                                       printed("--help").split("Options:\n")[1], re.M))
        self.assertIn("--screenshot NAME FILE", self.options)
        self.names = {option.split()[0] for option in self.options}

    def test_manual_page(self):
        roff = (MANUAL / "kestrav.1").read_text(encoding="utf-8").replace("\\-", "-")
        section = roff.split(".SH OPTIONS\n")[1].split(".SH ")[0]
        tags = re.findall(r"^\.TP\n\.(?:B|BI|BR) (.+)$", section, re.M)
        named = [word.strip() for tag in tags for word in tag.replace('"', "").split(", ")]
        self.assertEqual(sorted(" ".join(name.split()) for name in named), sorted(self.options))
        self.assertIn('"Kestrav ' + printed("--version").split()[1] + '"', roff)

    def test_manual_pages_are_clean(self):
        pages = sorted(MANUAL.iterdir())
        self.assertEqual([page.name for page in pages],
                         ["kestrav-cli.1", "kestrav-files.5", "kestrav.1"])
        for page in pages:
            result = subprocess.run(["man", "--warnings", "-l", str(page)], capture_output=True,
                                    text=True, env={**os.environ, "LC_ALL": "C.UTF-8"}, timeout=60)
            self.assertEqual((result.returncode, result.stderr), (0, ""), page.name)

    def test_bash_completion(self):
        script = printed("--print-completion", "bash")
        with tempfile.TemporaryDirectory() as folder:
            for name in ("My Charts.ksc", "yogas.ksy", "letter.txt"):
                (pathlib.Path(folder) / name).touch()
            (pathlib.Path(folder) / "more").mkdir()

            def completed(*words):
                run = (script + "COMP_WORDS=(kestrav \"$@\"); COMP_CWORD=$#; _kestrav\n"
                       "printf '%s\\n' \"${COMPREPLY[@]}\"")
                result = subprocess.run(["bash", "-c", run, "bash", *words], cwd=folder,
                                        check=True, capture_output=True, text=True, timeout=60)
                self.assertEqual(result.stderr, "")
                return set(result.stdout.splitlines())

            self.assertEqual(completed("-"), self.names)
            self.assertEqual(completed("--batch", "--sc"), {"--screenshot", "--scheme", "--scale"})
            self.assertEqual(completed("--scheme", ""), {"light", "dark"})
            self.assertEqual(completed("--batch", ""), {"My Charts.ksc", "yogas.ksy", "more"})
            self.assertEqual(completed("My"), {"My Charts.ksc"})

    def test_other_completions(self):
        zsh = printed("--print-completion", "zsh")
        self.assertTrue(zsh.startswith("#compdef kestrav\n"))
        fish = printed("--print-completion", "fish")
        for option, meaning in self.options.items():
            name, value = (option.split(" ", 1) + [""])[:2]
            self.assertRegex(zsh, rf"(?m)^    '{name}\[[^'\[\]]+\]"
                                  rf"{':' + value + ':[^:]+' if value else ''}' \\$")
            short = f"-l {name[2:]}" if name.startswith("--") else f"-s {name[1:]}"
            self.assertRegex(fish, rf"(?m)^complete -c kestrav {short}"
                                   rf"{' -r' if value else ''} -d '[^']+'$")
        self.assertEqual(fish.count("\ncomplete "), len(self.options))
        unknown = subprocess.run([str(PROGRAM), "--print-completion", "csh"], capture_output=True,
                                 timeout=60)
        self.assertEqual((unknown.returncode, unknown.stdout), (2, b""))


if __name__ == "__main__":
    unittest.main()
