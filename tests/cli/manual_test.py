"""Help, documentation and man page name the same commands and options."""

import re
import unittest

from program import DOCS, ProgramTest


def unwrapped(block):
    """Entries "  left   right" of a help text, their broken lines joined."""
    entries = {}
    left = None
    for line in block.splitlines():
        match = re.match(r"  (\S.*?)(?:  +(\S.*))?$", line)
        if match:
            left = match.group(1)
            entries[left] = match.group(2) or ""
        elif line.strip():
            entries[left] = (entries[left] + " " + line.strip()).strip()
    return entries


class Manual(ProgramTest):
    def setUp(self):
        super().setUp()
        self.commands = unwrapped(
            self.text("--help").split("Commands:\n")[1].split("\n\n")[0])
        self.options = {}
        for command in self.commands:
            help_text = self.text(*command.split(), "--help")
            self.options[command] = unwrapped(help_text.split("Options:\n")[1])
            self.assertEqual(self.options[command].pop("--help"), "show this help")
        self.documentation = (DOCS / "command-line.md").read_text(encoding="utf-8")
        roff = (DOCS / "man" / "kestrav-cli.1").read_text(encoding="utf-8")
        self.page = roff.replace("\\-", "-").replace("\\fI", "").replace("\\fR", "")

    def test_the_help_lists_the_commands(self):
        self.assertGreaterEqual(len(self.commands), 19)
        self.assertIn("--rate NUMBER", self.options["settings ayanamsa set"])
        self.assertEqual(self.options["houses"], self.options["sun"])
        self.assertEqual(self.options["vargas"].keys() - self.options["chart"].keys(),
                         {"--varga NAME|INDEX", "--windows"})
        group = unwrapped(self.text("settings", "-h").split("Commands:\n")[1].split("\n\n")[0])
        self.assertEqual(group, {name: meaning for name, meaning in self.commands.items()
                                 if name.startswith("settings ")})

    def test_documentation(self):
        rows = dict(re.findall(r"^\| `([^`]+)` \| (.+) \|$", self.documentation, re.M))
        documented = {(name.replace("\\|", "|"), meaning) for name, meaning in
                      re.findall(r"^\| `(--[^`]+)` \| (.+) \|$", self.documentation, re.M)}
        self.assertEqual(documented, {entry for options in self.options.values()
                                      for entry in options.items()})
        for command, meaning in self.commands.items():
            usage = self.text(*command.split(), "--help").splitlines()[0]
            usage = re.fullmatch(r"Usage: kestrav-cli (.*) \[options\]", usage).group(1)
            self.assertEqual(rows.get(usage), meaning)

    def test_man_page(self):
        tagged = re.findall(r"^\.TP\n\.BR? (.+)|^\.TP\n\.BI (.+)", self.page, re.M)
        tags = {" ".join((plain or mixed).replace('"', "").split()) for plain, mixed in tagged}
        named = {tag for tag in tags if tag.startswith("--")}
        self.assertEqual(named - {"--help"}, {name for options in self.options.values()
                                              for name in options})
        words = " ".join(self.page.split())
        for command, meaning in self.commands.items():
            self.assertTrue(any(tag.startswith(command) for tag in tags), command)
            self.assertIn(meaning, words)
        for variable in ("KESTRAV_CLOCK", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "TZ"):
            self.assertIn(variable, tags)

    def test_version(self):
        version = self.text("--version")
        self.assertRegex(version, r"\Akestrav-cli \d+\.\d+\.\d+\n\Z")
        self.assertIn('"Kestrav ' + version.split()[1] + '"', self.page)


if __name__ == "__main__":
    unittest.main()
