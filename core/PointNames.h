// Names of points and signs in both naming languages and in glyphs.
#pragma once

#include <string_view>

namespace kestrav::core
{

/// The text shown where there is no name.
inline constexpr std::wstring_view kNoName = L"--";

/// The number of entries of one language's table: long names, three-letter and two-letter
/// abbreviations of the 63 points, in this order.
inline constexpr int kPointNameEntries = 189;

/// Name of a point in the language of the display flags. Style 0, 1 or 2 gives two letters, 3 three
/// letters, any other the long name. An index from 63 to 129 addresses the whole 189-entry table,
/// whatever the style, so it reaches the abbreviations. Below 0 or above 129: "--".
/// In glyph mode a style below 4 gives the one-character glyph of points 1 to 9 and 32 to 34 and of
/// the further glyph numbers 63 to 72.
[[nodiscard]] std::wstring_view PointName(int style, int index);

/// Three-letter name of sign 1 to 12 (Virgo and Libra have four letters); 0 gives "x", anything
/// else "--". In glyph mode the one-character glyph of the sign.
[[nodiscard]] std::wstring_view SignName3(int sign);

/// Two-letter name of a sign, with the rules of SignName3.
[[nodiscard]] std::wstring_view SignName2(int sign);

/// Full name of a sign, never a glyph, with the rules of SignName3 otherwise.
[[nodiscard]] std::wstring_view signNameLong(int sign);

} // namespace kestrav::core
