"""Desktop entry, metainfo, media types and icons agree with each other and with the program."""

import configparser
import os
import pathlib
import re
import shutil
import struct
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

BIN = pathlib.Path(os.environ["KESTRAV_BIN"])
TREE = pathlib.Path(os.environ["KESTRAV_TREE"])
PACKAGING = TREE / "packaging"
ICONS = TREE / "resources" / "icons"
ID = "org.kestrav.Kestrav"
MIME = "{http://www.freedesktop.org/standards/shared-mime-info}"
SYSTEM_TYPES = pathlib.Path("/usr/share/mime/packages/freedesktop.org.xml")


def run(*words, **how):
    return subprocess.run([str(word) for word in words], capture_output=True, text=True,
                          timeout=60, **how)


def size_of(png):
    head = png.read_bytes()[:24]
    assert head[:8] == b"\x89PNG\r\n\x1a\n", png
    return struct.unpack(">II", head[16:24])


class DesktopFiles(unittest.TestCase):
    def setUp(self):
        self.entry = configparser.ConfigParser(interpolation=None, delimiters="=")
        self.entry.optionxform = str
        self.entry.read(PACKAGING / f"{ID}.desktop", encoding="utf-8")
        self.main = self.entry["Desktop Entry"]
        self.info = ElementTree.parse(PACKAGING / f"{ID}.metainfo.xml").getroot()
        self.types = {node.get("type") for node in
                      ElementTree.parse(PACKAGING / f"{ID}.xml").iter(f"{MIME}mime-type")}

    def test_validators(self):
        for command in (["desktop-file-validate", PACKAGING / f"{ID}.desktop"],
                        ["appstreamcli", "validate", "--no-net", PACKAGING / f"{ID}.metainfo.xml"]):
            result = run(*command)
            self.assertEqual(result.returncode, 0, result.stdout + result.stderr)

    def test_they_agree(self):
        listed = {media for media in self.main["MimeType"].split(";") if media}
        provided = {node.text for node in self.info.iter("mediatype")}
        self.assertEqual(listed, self.types)
        self.assertEqual(provided, self.types)
        self.assertEqual(self.info.findtext("id"), ID)
        self.assertEqual(self.info.findtext("launchable"), f"{ID}.desktop")
        self.assertEqual(self.main["Icon"], ID)
        release = self.info.find("releases/release").get("version")
        self.assertEqual(run(BIN / "kestrav", "--version").stdout, f"kestrav {release}\n")
        for node in self.info.iter("binary"):
            self.assertTrue(os.access(BIN / node.text, os.X_OK), node.text)

    def test_actions_are_options_of_the_program(self):
        help_text = run(BIN / "kestrav", "--help").stdout
        actions = [name for name in self.main["Actions"].split(";") if name]
        self.assertEqual({f"Desktop Action {name}" for name in actions},
                         set(self.entry.sections()) - {"Desktop Entry"})
        for name in actions:
            program, option = self.entry[f"Desktop Action {name}"]["Exec"].split()
            self.assertEqual(program, "kestrav")
            self.assertRegex(help_text, rf"(?m)^  {option}\b")

    def test_media_types_are_recognised(self):
        with tempfile.TemporaryDirectory() as folder:
            mime = pathlib.Path(folder) / "mime"
            (mime / "packages").mkdir(parents=True)
            for source in (SYSTEM_TYPES, PACKAGING / f"{ID}.xml"):
                shutil.copy(source, mime / "packages")
            environment = {"PATH": os.environ["PATH"], "HOME": folder, "LC_ALL": "C.UTF-8",
                           "XDG_DATA_HOME": folder, "XDG_DATA_DIRS": folder}
            self.assertEqual(run("update-mime-database", mime, env=environment).returncode, 0)

            def type_of(path):
                result = run("gio", "info", "-a", "standard::content-type", path, env=environment)
                return re.search(r"standard::content-type: (\S+)", result.stdout).group(1)

            self.assertEqual(type_of(BIN / "Sample.ksc"), "application/x-kestrav-charts")
            for yogas in sorted((TREE / "resources" / "yogas").iterdir()):
                self.assertEqual(type_of(yogas), "application/x-kestrav-yogas+xml", yogas.name)
            # A file of the other software with this extension is not ours.
            other = pathlib.Path(folder) / "other.ksy"
            other.write_text("meta:\n  id: other\n  endian: le\n", encoding="utf-8")
            self.assertNotEqual(type_of(other), "application/x-kestrav-yogas+xml")
            self.assertIn("application/x-kestrav-charts text/plain",
                          (mime / "subclasses").read_text(encoding="utf-8"))


class Icons(unittest.TestCase):
    def test_sizes_of_the_theme(self):
        for folder in (ICONS / "hicolor").iterdir():
            side = int(folder.name.split("x")[0])
            for png in folder.rglob("*.png"):
                self.assertEqual(size_of(png), (side, side), png)
        for side in (16, 24, 32, 48, 64, 128, 256, 512):
            self.assertTrue((ICONS / f"hicolor/{side}x{side}/apps/{ID}.png").is_file(), side)
        for side in (16, 32, 48, 256):
            for name in ("charts", "yogas+xml"):
                png = ICONS / f"hicolor/{side}x{side}/mimetypes/application-x-kestrav-{name}.png"
                self.assertTrue(png.is_file(), png)

    def test_every_icon_of_the_window_is_drawn(self):
        drawn = {path.stem for path in (ICONS / "symbols").glob("*.svg")}
        for scheme in ("light", "dark"):
            files = {path.name: size_of(path) for path in (ICONS / scheme).iterdir()}
            self.assertEqual(files, {**{f"{name}.png": (22, 22) for name in drawn},
                                     **{f"{name}@2x.png": (44, 44) for name in drawn}})
        # Names of the freedesktop scheme begin with the thing that is dealt with.
        name = re.compile(r'"((?:application|appointment|document|edit|folder|format|go|help|'
                          r'insert|list|media|object|preferences|system|tab|view|window|zoom)'
                          r'-[a-z-]+)"')
        asked = {match for source in (TREE / "app" / "desktop").rglob("*.cpp")
                 for match in name.findall(source.read_text(encoding="utf-8"))}
        self.assertIn("document-open", asked)
        self.assertEqual(asked - drawn, set())


if __name__ == "__main__":
    unittest.main()
