#!/usr/bin/env python3
"""Writes the coefficients of the lunar theory ELP/MPP02 as plain text.

Usage: convert_elp.py elpMppDe.js elpmpp02-de405.txt

The input is data/elpMppDe.js of the npm package astronomia 4.2.0: an object with the mean
longitude W1 (radians) and the series L, B (arc seconds) and R (kilometres) by power of T. Every
number is written with the digits that give the same double back.
"""

import json
import re
import sys

HEADER = """\
# Lunar theory ELP/MPP02 (Chapront and Francou 2003), constants fitted to the JPL ephemeris DE405: {count} terms
# A T^k sin(c0 + c1 T + c2 T^2 + c3 T^3 + c4 T^4), T in Julian centuries TT from J2000.0, k the power of the block;
# A in arc seconds (L, B) or kilometres (R), phase in radians. Longitude: W1 + L, from the equinox of J2000.0.
# Converted by tools/convert_elp.py from data/elpMppDe.js of the npm package astronomia 4.2.0.
# That package: The MIT License, Copyright (c) 2013 Sonia Keys, Copyright (c) 2016 Commenthol.
# The line "W1" holds c0 to c4 of the mean longitude in radians; a line "block COORDINATE POWER COUNT" opens a block,
# then COUNT lines: A c0 c1 c2 c3 c4.
"""


def read_series(text):
    """The object literal of the data file as a dictionary of lists."""
    literal = text[text.index("{") : text.rindex("}") + 1]
    return json.loads(re.sub(r"\b(name|W1|L|B|R):", r'"\1":', literal))


def number(value):
    """The shortest text that reads back as the same double; 0 for zero."""
    return "0" if value == 0 else repr(float(value))


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    with open(sys.argv[1], encoding="utf-8") as source:
        series = read_series(source.read())
    lines = ["W1 " + " ".join(number(value) for value in series["W1"])]
    count = 0
    for coordinate in "LBR":
        for power, rows in sorted(series[coordinate].items(), key=lambda item: int(item[0])):
            lines.append(f"block {coordinate} {power} {len(rows)}")
            for row in rows:
                if len(row) != 6:
                    sys.exit(f"block {coordinate} {power}: a row of {len(row)} numbers")
                lines.append(" ".join(number(value) for value in row))
            count += len(rows)
    with open(sys.argv[2], "w", encoding="utf-8", newline="\n") as target:
        target.write(HEADER.format(count=count) + "\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
