"""The search key of a place name, as data/PlaceText.cpp makes it, for the scripts of this folder.

Run as a program it prints the table of data/FoldTable.h.
"""

import unicodedata

RANGES = ((0xC0, 0x250), (0x1E00, 0x1F00))
# Letters that Unicode does not take apart.
LETTERS = {"ß": "ss", "ẞ": "ss", "æ": "ae", "ø": "o", "œ": "oe", "đ": "d", "ð": "d", "þ": "th", "ħ": "h",
           "ı": "i", "ł": "l", "ŋ": "n", "ŧ": "t", "ə": "e", "ƒ": "f", "ɓ": "b", "ƙ": "k", "ƴ": "y",
           "ɗ": "d", "ơ": "o", "ư": "u", "ĸ": "k", "ɨ": "i", "ɖ": "d", "ǝ": "e", "ɛ": "e", "ɔ": "o",
           "ƀ": "b", "ƶ": "z", "ɣ": "g", "ʉ": "u", "ŉ": "n"}


def base_letters(code):
    """At most two small ASCII letters for a letter with marks; empty when it has none."""
    text = unicodedata.normalize("NFKD", chr(code)).lower()
    text = "".join(LETTERS.get(c, c) for c in text)
    text = "".join(LETTERS.get(c, c) for c in unicodedata.normalize("NFKD", text))
    text = "".join(c for c in text if c.isascii() and c.isalpha())
    return text if len(text) <= 2 else ""


def fold_character(character):
    code = ord(character)
    if character in "'`." or code == 0xB4 or 0x2018 <= code <= 0x201B or 0x2B0 <= code <= 0x36F:
        return ""
    if code < 0x80:
        return character.lower() if character.isalnum() else " "
    if any(low <= code < high for low, high in RANGES):
        return base_letters(code) or character
    if code == 0xA0 or 0x2010 <= code <= 0x2015:
        return " "
    if 0x391 <= code <= 0x3A9 or 0x410 <= code <= 0x42F:
        return chr(code + 0x20)
    if 0x400 <= code <= 0x40F:
        return chr(code + 0x50)
    return character


def fold(text):
    return " ".join("".join(map(fold_character, text)).split())


def main():
    print("// Letters with marks as plain small letters, two characters a code point, blank for nothing.")
    print("// Printed by tools/place_text.py from the decompositions of Unicode", end=" ")
    print(f"{unicodedata.unidata_version}.")
    print("#pragma once\n\n#include <string_view>\n\nnamespace kestrav::data\n{\n\n// clang-format off")
    for low, high in RANGES:
        print(f"/// From U+{low:04X} on.")
        print(f"inline constexpr std::string_view kFoldFrom{low:04X} =")
        rows = []
        for start in range(low, high, 32):
            cells = "".join(f"{base_letters(code):<2}" for code in range(start, min(start + 32, high)))
            rows.append(f'    "{cells}"')
        print("\n".join(rows) + ";")
        print(f"static_assert(kFoldFrom{low:04X}.size() == {2 * (high - low)});\n")
    print("// clang-format on\n\n} // namespace kestrav::data")


if __name__ == "__main__":
    main()
