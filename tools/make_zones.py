#!/usr/bin/python3
"""Makes resources/places/zones.txt from the compiled files of the tz database.

    make_zones.py --zoneinfo /usr/share/zoneinfo --cities resources/places/cities.txt --out zones.txt

Every zone of zone.tab and every zone that the city list uses is written with its changes, and
every older name as an alias. The files of the folder right/, which count leap seconds, are never
read. The form is described in docs/places.md.
"""

import argparse
import calendar
import datetime
import pathlib
import re
import struct
import sys

HOUR = 3600
FIRST_YEAR = 1700  # earlier moments in the files stand for "always"
LAST_YEAR = 2100  # no file lists changes after it


def read_tzif(path):
    """The changes (UTC seconds, offset, daylight flag, abbreviation), the first type, the rule."""
    data = path.read_bytes()

    def head(at):
        if data[at:at + 4] != b"TZif" or data[at + 4:at + 5] < b"2":
            sys.exit(f"{path}: not a TZif file of version 2 or later")
        return struct.unpack_from(">6I", data, at + 20)

    utc, standard, leap, times, types, chars = head(0)
    at = 44 + times * 5 + types * 6 + chars + leap * 8 + standard + utc
    utc, standard, leap, times, types, chars = head(at)
    if leap:
        sys.exit(f"{path}: counts leap seconds")
    at += 44
    moments = struct.unpack_from(f">{times}q", data, at)
    at += times * 8
    indexes = data[at:at + times]
    at += times
    kinds = [struct.unpack_from(">iBB", data, at + 6 * i) for i in range(types)]
    at += types * 6
    names = data[at:at + chars]
    at += chars + leap * 12 + standard + utc
    rule = data[at:].strip(b"\n").decode("ascii")

    def kind(index):
        offset, daylight, name = kinds[index]
        return offset, daylight, names[name:names.index(0, name)].decode("ascii")

    changes = [(moment, *kind(index)) for moment, index in zip(moments, indexes)]
    return kind(0), changes, rule


# ---- the rule for the future -------------------------------------------------------------------

NAME = r"(?:<[^>]+>|[A-Za-z]+)"
CLOCK = r"[+-]?\d+(?::\d+){0,2}"
RULE = re.compile(rf"{NAME}({CLOCK})(?:{NAME}({CLOCK})?,([^,/]+)(?:/({CLOCK}))?,([^,/]+)(?:/({CLOCK}))?)?$")


def clock(text):
    sign = -1 if text.startswith("-") else 1
    parts = [int(part) for part in text.lstrip("+-").split(":")] + [0, 0]
    return sign * (parts[0] * HOUR + parts[1] * 60 + parts[2])


def day_of(text, year):
    """Seconds of 0h UTC of the day that "Mm.w.d" names."""
    month, week, weekday = map(int, re.fullmatch(r"M(\d+)\.(\d)\.(\d)", text).groups())
    first = datetime.date(year, month, 1)
    day = 1 + (weekday - first.isoweekday()) % 7 + 7 * (week - 1)
    while day > calendar.monthrange(year, month)[1]:
        day -= 7
    return calendar.timegm((year, month, day, 0, 0, 0))


def rule_changes(rule, year):
    """The changes of one year: UTC seconds, offset, offset of the other half of the year."""
    match = RULE.match(rule)
    if not match:
        sys.exit(f"unknown rule {rule}")
    standard, daylight, start, start_time, end, end_time = match.groups()
    if start is None:
        return []
    standard = -clock(standard)
    daylight = -clock(daylight) if daylight else standard + HOUR
    return sorted([
        (day_of(start, year) + clock(start_time or "2") - standard, daylight),
        (day_of(end, year) + clock(end_time or "2") - daylight, standard),
    ])


# ---- standard time and saving -----------------------------------------------------------------


def saving_minutes(rows, index):
    """Minutes of saving in a row (offset, daylight flag): standard time is the last one before the
    row, or, when the difference is not above 0 and at most two hours, the next one after it.
    Saving below zero is no saving: the whole offset is then standard time."""
    offset, daylight = rows[index]
    if not daylight:
        return 0
    before = next((o for o, d in reversed(rows[:index]) if not d), None)
    after = next((o for o, d in rows[index + 1:] if not d), None)
    for standard in (before, after):
        if standard is not None and 0 < offset - standard <= 2 * HOUR:
            return (offset - standard) // 60
    return 0


def zone_rows(path):
    """Rows (UTC seconds or None, offset, minutes of saving, local mean time) and the rule."""
    first, changes, rule = read_tzif(path)
    early = calendar.timegm((FIRST_YEAR, 1, 1, 0, 0, 0))
    late = calendar.timegm((LAST_YEAR + 1, 1, 1, 0, 0, 0))
    for change in changes:
        if change[0] < early:
            first = change[1:]
    kept = [(None, *first)] + [c for c in changes if early <= c[0] < late]
    flags = [(offset, daylight) for _, offset, daylight, _ in kept]
    rows = []
    for index, (moment, offset, _, name) in enumerate(kept):
        row = (moment, offset, saving_minutes(flags, index), name == "LMT")
        if not rows or rows[-1][1:] != row[1:]:
            rows.append(row)

    # The rows at the end that the rule gives too are left out.
    match = RULE.match(rule)
    standard = -clock(match.group(1))
    given = {}
    for year in range(1970, LAST_YEAR + 1):
        pair = rule_changes(rule, year)
        for moment, offset in pair:
            saving = offset - standard
            given[moment] = (offset, saving // 60 if 0 < saving <= 2 * HOUR else 0)
    while len(rows) > 1 and given.get(rows[-1][0]) == rows[-1][1:3]:
        last = rows.pop()
        between = [m for m in given if rows[-1][0] is not None and rows[-1][0] < m < last[0]]
        if between or rows[-1][0] is None:
            rows.append(last)
            break
    return rows, rule


# ---- text --------------------------------------------------------------------------------------


def offset_text(seconds):
    sign = "-" if seconds < 0 else ""
    hours, rest = divmod(abs(seconds), HOUR)
    minutes, seconds = divmod(rest, 60)
    return f"{sign}{hours}:{minutes:02d}" + (f":{seconds:02d}" if seconds else "")


def row_text(row):
    moment, offset, saving, mean = row
    when = "*"
    if moment is not None:
        when = (datetime.datetime(1970, 1, 1) + datetime.timedelta(seconds=moment)).isoformat()
    return f"{when} {offset_text(offset)}" + (" L" if mean else f" {saving}" if saving else "")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--zoneinfo", type=pathlib.Path, required=True)
    parser.add_argument("--cities", type=pathlib.Path, required=True)
    parser.add_argument("--out", type=pathlib.Path, required=True)
    options = parser.parse_args()

    source = (options.zoneinfo / "tzdata.zi").read_text(encoding="ascii").splitlines()
    version = source[0].split()[-1]
    links = dict(reversed(line.split()[1:3]) for line in source if line.startswith("L "))
    zones = {line.split("\t")[2] for line in (options.zoneinfo / "zone.tab").read_text(
        encoding="utf-8").splitlines() if not line.startswith("#")}
    listed = len(zones)
    for line in options.cities.read_text(encoding="utf-8").splitlines():
        if not line.startswith("#"):
            name = line.split("\t")[7]
            while name not in zones and name in links:
                name = links[name]
            zones.add(name)

    lines = []
    rows_written = 0
    for name in sorted(zones):
        rows, rule = zone_rows(options.zoneinfo / name)
        rows_written += len(rows)
        lines += [f"Z {name}", *map(row_text, rows), f"R {rule}"]
    aliases = []
    for old in sorted(links):
        new = links[old]
        while new not in zones and new in links:
            new = links[new]
        if old not in zones and new in zones:
            aliases.append(f"A {old} {new}")
    head = [
        "# Time zones: the changes of local time at the places of the city list.",
        f"# Version: tz database {version}, compiled with the histories before 1970 (backzone) for the",
        "# zones of zone.tab. Source: https://www.iana.org/time-zones, in the public domain.",
        "# Made by tools/make_zones.py; the form is described in docs/places.md.",
        f"S tz database {version}",
    ]
    options.out.write_text("\n".join(head + lines + aliases) + "\n", encoding="ascii", newline="\n")
    print(f"{len(zones)} zones ({listed} of zone.tab), {rows_written} rows, {len(aliases)} aliases")


if __name__ == "__main__":
    main()
