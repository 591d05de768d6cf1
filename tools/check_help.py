#!/usr/bin/python3
"""Checks the help pages in resources/help: their form, links, anchors and what they must cover."""

import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

# What the help window can show.
TAGS = {"html", "head", "meta", "title", "link", "body", "h1", "h2", "h3", "p", "ul", "ol", "li",
        "table", "tr", "th", "td", "a", "b", "i", "code"}
PROPERTIES = {"margin", "margin-top", "margin-bottom", "font-size", "font-weight", "font-family",
              "padding", "text-align", "vertical-align", "border-collapse", "border-style",
              "border-width"}
# Words of unfinished work, written so that they do not stand here, and what this version has not.
FORBIDDEN = re.compile(r"\b(to[d]o|fix[m]e|x{3}|ha[c]k|stu[b]|place[h]older|lorem|tbd|coming soon"
                       r"|specificatio[n]|annual chart|solar return|varshaph?al|tajik yoga"
                       r"|muhurta search|group muhurta)\b", re.I)
# Pages of another kind than a topic, which is a page of a few hundred words.
OTHER_PAGES = {"index.html", "settings.html", "glossary.html"}
SHORTEST, LONGEST = 150, 500
FEWEST_TOPICS = 28
TIPS = 30


class Page:
    def __init__(self, path):
        self.name = path.name
        self.text = path.read_text(encoding="utf-8")
        self.root = ElementTree.fromstring(self.text)
        self.body = self.root.find("body")
        self.anchors = [node.get("id") for node in self.root.iter() if node.get("id")]
        self.links = [node.get("href") for node in self.body.iter("a")]

    def words(self):
        return len("".join(self.body.itertext()).split())


def check_form(page):
    for node in page.root.iter():
        if node.tag not in TAGS:
            yield f"the element {node.tag} is not shown by the help window"
    title = page.root.findtext("head/title")
    headings = ["".join(node.itertext()) for node in page.body.iter("h1")]
    if headings != [title]:
        yield f"title '{title}' and headings {headings} are not the same"
    sheets = [node.get("href") for node in page.root.iter("link")]
    if sheets != ["help.css"]:
        yield f"style sheets {sheets}"
    if len(page.body) < 2 or page.body[1].tag != "p":
        yield "no first sentence below the heading"
    for anchor in {name for name in page.anchors if page.anchors.count(name) > 1}:
        yield f"the anchor {anchor} is there twice"
    for match in FORBIDDEN.finditer(page.text):
        yield f"forbidden words '{match.group()}'"
    words = page.words()
    if page.name not in OTHER_PAGES and not SHORTEST <= words <= LONGEST:
        yield f"{words} words"
    see_also = "See also: " in "".join(page.body.itertext())
    if page.name != "index.html" and not see_also:
        yield "no links to related pages"


def check_links(page, pages):
    for link in page.links:
        target, _, anchor = link.partition("#")
        target = target or page.name
        if target not in pages:
            yield f"the link {link} leads nowhere"
        elif anchor and anchor not in pages[target].anchors:
            yield f"the link {link} has no anchor"


class Setting:
    """A row of the settings table with the names of its values and its default as help tells it."""

    def __init__(self, name, low, choices, kind, default):
        self.name = name
        self.choices = choices.split("|") if choices else []
        if kind == "bool":
            self.default = {"true": "on", "false": "off"}[default]
        elif kind == "std::string":
            self.default = "empty" if default == "{}" else default
        elif self.choices:
            self.default = self.choices[int(default) - low]
        else:
            # A name in place of a number is explained by the page alone.
            self.default = f"{float(default):g}" if re.match(r"[-\d]", default) else None


def read_settings(top):
    """The settings by name, from the source of the table and of the defaults."""
    source = (top / "core/Settings.cpp").read_text(encoding="utf-8")
    literal = r'((?:\s*"[^"]*")+)'
    joined = lambda text: "".join(re.findall(r'"([^"]*)"', text))
    lists = {name: joined(text)
             for name, text in re.findall(r"string_view (k\w+) =" + literal, source)}
    header = (top / "core/Settings.h").read_text(encoding="utf-8")
    fields = {name: (kind, default) for kind, name, default in
              re.findall(r"^    (bool|int|double|std::string) (\w+) = ([^;]+);", header, re.M)}
    row = re.compile(r'\{"(\w+)", &S::(\w+), (-?\d+), -?\d+,' + literal +
                     r'(?:,(?:' + literal + r'|\s*(k\w+)))?\}')
    rows = row.findall(source)
    if len(rows) != source.count("&S::") or not rows:
        raise ValueError("core/Settings.cpp: not every row of the table was understood")
    return {name: Setting(name, int(low), joined(text) or lists.get(named, ""), *fields[field])
            for name, field, low, _, text, named in rows}


def sections(page):
    """The texts of heading and paragraphs of each heading with an anchor, up to the next one."""
    found, current = {}, None
    for node in page.body:
        if node.tag in {"h1", "h2", "h3"}:
            current = node.get("id")
        if current:
            found.setdefault(current, []).append(" ".join("".join(node.itertext()).split()))
    return found


def check_settings(page, settings):
    described = sections(page)
    for name in sorted(settings.keys() - described.keys()):
        yield f"the setting {name} has no anchor"
    for name in sorted(described.keys() - settings.keys()):
        yield f"the anchor {name} is no setting"
    for name in settings.keys() & described.keys():
        setting, (heading, *text) = settings[name], described[name]
        default = text.pop() if text else ""
        if not default.startswith("Default: "):
            yield f"{name}: no default at the end"
        elif setting.default is not None and default != f"Default: {setting.default}.":
            yield f"{name}: the default is {setting.default}, not '{default}'"
        if not heading.endswith(f" ({name})"):
            yield f"{name}: the heading does not name it"
        for choice in setting.choices:
            if choice.lower() not in " ".join(text).lower():
                yield f"{name}: the choice '{choice}' is not described"


def read_topics(path):
    topics = {}
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("#"):
            continue
        name, tab, topic = line.partition("\t")
        if not tab or not name or name in topics:
            raise ValueError(f"topics.txt:{number}: '{line}' is not a new name, a tab and a topic")
        topics[name] = topic
    return topics


def check_topics(top, topics, pages):
    catalogue = (top / "app/present/TableCatalogue.cpp").read_text(encoding="utf-8")
    layout = (top / "app/present/PageLayout.cpp").read_text(encoding="utf-8")
    names = re.findall(r'^    \{"([a-z-]+)", L"', catalogue, re.M)
    if len(names) < 50:
        yield "the tables of TableCatalogue.cpp were not found"
    for table in re.findall(r"kTexts = \{([^}]*)\}|kViews = \{([^}]*)\}", layout):
        names += re.findall(r'"([a-z-]+)"', "".join(table))
    # The classes of forms and dialogs. What is no window of its own needs no topic.
    for source in sorted((top / "app/desktop").rglob("*.h")):
        names += re.findall(r"^class (T\w+(?:Form|Dlg|Box|form1))\b",
                            source.read_text(encoding="utf-8"), re.M)
    for name in names:
        if name not in topics:
            yield f"{name} has no topic"
    for name, topic in topics.items():
        if topic not in pages:
            yield f"{name} has the topic {topic}, which is not there"


def check_style(path):
    text = re.sub(r"/\*.*?\*/", "", path.read_text(encoding="utf-8"), flags=re.S)
    for name in re.findall(r"([\w-]+)\s*:", text):
        if name not in PROPERTIES:
            yield f"the property {name}"


def problems(top):
    folder = top / "resources/help"
    pages = {}
    for path in sorted(folder.glob("*.html")):
        try:
            pages[path.name] = Page(path)
        except ElementTree.ParseError as error:
            yield f"{path.name}: {error}"
    for page in pages.values():
        for problem in [*check_form(page), *check_links(page, pages)]:
            yield f"{page.name}: {problem}"
    for name in sorted(pages.keys() - set(pages["index.html"].links) - {"index.html"}):
        yield f"index.html: no link to {name}"
    if len(pages) < FEWEST_TOPICS:
        yield f"{len(pages)} pages"
    for problem in check_settings(pages["settings.html"], read_settings(top)):
        yield f"settings.html: {problem}"
    for problem in check_topics(top, read_topics(folder / "topics.txt"), pages):
        yield f"topics.txt: {problem}"
    for problem in check_style(folder / "help.css"):
        yield f"help.css: {problem}"
    tips = (folder / "tips.txt").read_text(encoding="utf-8").splitlines()
    if len(set(tips)) != TIPS or "" in tips:
        yield f"tips.txt: {len(set(tips))} tips"
    for match in FORBIDDEN.finditer("\n".join(tips)):
        yield f"tips.txt: forbidden words '{match.group()}'"


def main():
    top = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
    try:
        found = list(problems(top))
    except (KeyError, OSError, ValueError) as error:
        found = [str(error)]
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
