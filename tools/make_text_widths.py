#!/usr/bin/python3
"""Writes the advances of DejaVu Sans as a table of runs of equal width.

Usage: make_text_widths.py FONT.ttf > app/present/TextWidthsTable.cpp

The font file is read here directly: the tables head, hhea, hmtx and cmap are all that is needed.
"""

import struct
import sys

# The characters that names, numbers and symbols of charts are written with.
BLOCKS = [
    (0x0020, 0x007E), (0x00A0, 0x017F), (0x0300, 0x036F), (0x0370, 0x03FF), (0x0400, 0x045F),
    (0x1E00, 0x1EFF), (0x2010, 0x2044), (0x2190, 0x21FF), (0x2600, 0x26FF),
]


class Font:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        count = struct.unpack_from(">H", self.data, 4)[0]
        self.tables = {}
        for i in range(count):
            tag, _, offset, _ = struct.unpack_from(">4sLLL", self.data, 12 + 16 * i)
            self.tables[tag.decode("ascii")] = offset
        self.units = struct.unpack_from(">H", self.data, self.tables["head"] + 18)[0]
        self.metrics = struct.unpack_from(">H", self.data, self.tables["hhea"] + 34)[0]

    def advance(self, glyph):
        index = min(glyph, self.metrics - 1)
        return struct.unpack_from(">H", self.data, self.tables["hmtx"] + 4 * index)[0]

    def characters(self):
        """Glyph numbers by character, from the Unicode subtable of format 12."""
        cmap = self.tables["cmap"]
        for i in range(struct.unpack_from(">H", self.data, cmap + 2)[0]):
            offset = cmap + struct.unpack_from(">HHL", self.data, cmap + 4 + 8 * i)[2]
            if struct.unpack_from(">H", self.data, offset)[0] != 12:
                continue
            found = {}
            for group in range(struct.unpack_from(">L", self.data, offset + 12)[0]):
                first, last, glyph = struct.unpack_from(">LLL", self.data, offset + 16 + 12 * group)
                for character in range(first, last + 1):
                    found[character] = glyph + character - first
            return found
        raise SystemExit("the font has no character table of format 12")


def runs(font):
    """(first, last, advance) of neighbouring characters of one width."""
    glyphs = font.characters()
    result = []
    for first, last in BLOCKS:
        for character in range(first, last + 1):
            if character not in glyphs:
                continue
            advance = font.advance(glyphs[character])
            if result and result[-1][1] == character - 1 and result[-1][2] == advance:
                result[-1][1] = character
            else:
                result.append([character, character, advance])
    return result


def main():
    font = Font(sys.argv[1])
    table = runs(font)
    total = sum((last - first + 1) * advance for first, last, advance in table)
    print("// Made by tools/make_text_widths.py from the font DejaVu Sans; not edited by hand.")
    print('#include "app/present/TextWidthsTable.h"\n')
    print("#include <array>\n\nnamespace kestrav::present\n{\n\nnamespace\n{\n")
    print("// clang-format off")
    print(f"constexpr std::array<WidthRun, {len(table)}> kRuns = {{{{")
    for first, last, advance in table:
        print(f"    {{0x{first:04X}, 0x{last:04X}, {advance:4}}},")
    print("}};\n// clang-format on\n")
    print(f"static_assert(kUnitsPerEm == {font.units});")
    print("static_assert(totalOfWidths(kRuns) == " + str(total) + ");")
    print("static_assert(inAscendingOrder(kRuns));\n\n} // namespace\n")
    print("std::span<const WidthRun> widthRuns()\n{\n    return kRuns;\n}\n")
    print("} // namespace kestrav::present")


if __name__ == "__main__":
    main()
