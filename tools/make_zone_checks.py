#!/usr/bin/python3
"""Makes tests/data/zones.csv: local moments with the offsets that Python's zoneinfo gives for them.

    make_zone_checks.py --zoneinfo /usr/share/zoneinfo --out tests/data/zones.csv

zoneinfo reads the compiled files of the same tz database by itself, so it checks both the table
and its reader. Of a time that the clock shows twice it is asked for the first, as our look-up does.
"""

import argparse
import datetime
import pathlib
import random
import zoneinfo

MOMENTS = {
    "Asia/Kolkata": "1850-06-01T12:00 1854-06-28T12:00 1870-01-01T12:00 1905-12-31T12:00 1906-01-02T12:00 "
                    "1941-10-02T12:00 1942-06-01T12:00 1943-01-01T12:00 1945-10-14T23:30 1945-10-16T12:00 "
                    "1990-06-15T14:32 2035-07-01T12:00 2040-07-01T12:00",
    "Europe/London": "1846-07-01T12:00 1850-07-01T12:00 1916-05-21T02:30 1930-07-01T12:00 1941-07-01T12:00 "
                     "1942-12-31T12:00 1944-08-01T12:00 1945-07-20T12:00 1947-05-01T12:00 1968-12-01T12:00 "
                     "1970-07-01T12:00 1971-12-01T12:00 1990-10-28T01:30 2035-07-01T12:00 2040-07-01T12:00 "
                     "2040-12-01T12:00",
    "America/New_York": "1883-11-18T11:00 1883-11-18T12:02 1918-07-01T12:00 1942-03-01T12:00 1945-08-20T12:00 "
                        "1967-07-01T12:00 1974-01-20T12:00 1974-11-15T12:00 2006-04-02T02:30 2007-03-11T02:30 "
                        "2007-11-04T01:30 2038-07-01T12:00 2040-12-01T12:00",
    "America/Chicago": "1883-11-18T12:05 1936-07-01T12:00 1943-07-01T12:00 1975-03-01T12:00",
    "America/Los_Angeles": "1883-11-18T12:05 1948-07-01T12:00 1950-07-01T12:00 2035-11-04T01:30",
    "Europe/Amsterdam": "1900-07-01T12:00 1937-06-30T12:00 1937-07-01T12:00 1941-07-01T12:00 1969-07-01T12:00",
    "Europe/Oslo": "1940-08-11T12:00 1943-01-01T12:00 1960-07-01T12:00",
    "Europe/Stockholm": "1878-06-01T12:00 1916-07-01T12:00 1945-07-01T12:00",
    "Europe/Berlin": "1893-03-31T23:59 1945-06-01T12:00 1947-06-01T12:00 1980-04-06T02:30 1980-09-28T02:30",
    "Europe/Moscow": "1918-07-01T12:00 1919-07-02T12:00 1930-07-01T12:00 1991-07-01T12:00 2012-01-01T12:00 "
                     "2015-01-01T12:00",
    "Europe/Dublin": "1916-01-01T12:00 1916-05-21T12:00 1969-01-01T12:00 1972-07-01T12:00 2020-01-01T12:00 "
                     "2020-07-01T12:00",
    "Europe/Prague": "1946-12-10T12:00",
    "Asia/Kathmandu": "1985-12-31T12:00 1986-01-02T12:00",
    "Asia/Karachi": "1948-01-01T12:00 1970-01-01T12:00 2008-07-01T12:00",
    "Asia/Dhaka": "1935-01-01T12:00 1941-11-01T12:00 2009-07-01T12:00",
    "Asia/Colombo": "1890-01-01T12:00 1942-02-01T12:00 1996-06-01T12:00 2007-01-01T12:00",
    "Asia/Yangon": "1900-01-01T12:00 1943-01-01T12:00",
    "Asia/Singapore": "1904-01-01T12:00 1934-01-01T12:00 1942-01-01T12:00 1943-01-01T12:00 1981-12-31T12:00 "
                      "1982-01-02T12:00",
    "Asia/Manila": "1844-12-30T12:00 1845-01-02T12:00 1936-12-01T12:00",
    "Australia/Lord_Howe": "1981-06-01T12:00 1982-01-01T12:00 2020-01-01T12:00 2040-01-01T12:00",
    "America/Montevideo": "1968-07-01T12:00 1974-03-12T12:00 2010-01-01T12:00",
    "Africa/Casablanca": "2018-06-01T12:00 2019-05-20T12:00 2025-03-10T12:00 2035-07-01T12:00",
    "Africa/Accra": "1942-11-01T12:00 1950-11-01T12:00",
    "Africa/Windhoek": "1993-01-01T12:00 1994-07-01T12:00",
    "America/Juneau": "1867-10-17T12:00 1867-10-19T12:00",
    "Pacific/Apia": "1892-07-05T12:00 2011-12-29T12:00 2011-12-30T12:00 2012-01-01T12:00",
    "Antarctica/Troll": "2030-07-01T12:00",
    "America/Nuuk": "2045-07-01T12:00",
    "Asia/Gaza": "2045-07-20T12:00",
}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--zoneinfo", type=pathlib.Path, required=True)
    parser.add_argument("--out", type=pathlib.Path, required=True)
    options = parser.parse_args()
    zoneinfo.reset_tzpath([str(options.zoneinfo.resolve())])

    listed = sorted(line.split("\t")[2] for line in (options.zoneinfo / "zone.tab").read_text(
        encoding="utf-8").splitlines() if not line.startswith("#"))
    moments = [(zone, moment) for zone, each in MOMENTS.items() for moment in each.split()]
    named = len(moments)
    # One moment in each zone of the list.
    choice = random.Random(1850)
    first = datetime.datetime(1850, 1, 1)
    for zone in listed:
        minutes = choice.randrange(200 * 365 * 1440)
        moment = first + datetime.timedelta(minutes=minutes)
        moments.append((zone, moment.isoformat(timespec="minutes")))

    version = (options.zoneinfo / "tzdata.zi").read_text(encoding="ascii").split("\n")[0].split()[-1]
    lines = [f"# Python zoneinfo on the compiled files of tz database {version}; made by",
             "# tools/make_zone_checks.py: zone, local time, seconds east of Greenwich, and whether the",
             "# clock shows the time once, twice or never (skipped)."]
    for name, moment in moments:
        zone = zoneinfo.ZoneInfo(name)
        local = datetime.datetime.fromisoformat(moment)
        offset, other = (int(local.replace(tzinfo=zone, fold=fold).utcoffset().total_seconds())
                         for fold in (0, 1))
        clock = "once" if offset == other else "twice" if offset > other else "skipped"
        lines.append(f"{name},{moment},{offset},{clock}")
    options.out.write_text("\n".join(lines) + "\n", encoding="ascii", newline="\n")
    print(f"{named} chosen moments, {len(moments) - named} random ones")


if __name__ == "__main__":
    main()
