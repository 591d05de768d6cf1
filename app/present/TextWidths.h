// How wide texts are: by the advances of DejaVu Sans, or in columns of a terminal.
#pragma once

#include <functional>
#include <string_view>

namespace kestrav::present
{

/// The width of a text in em, that is for a font of size 1. Widths grow in proportion to the size,
/// so a window passes metrics without hinting.
using MeasureText = std::function<double(std::wstring_view text)>;

/// The part of a text's height above its baseline; a text of size 1 is 1 high.
inline constexpr double kAscent = 0.77;

/// The width in em in the font DejaVu Sans. Characters that it lacks are taken as wide as they
/// usually are: 1 for those of East Asia, 0 for combining marks, 0.75 for the rest.
[[nodiscard]] double textWidth(std::wstring_view text);

/// The columns of a terminal that a character takes: 0, 1 or 2.
[[nodiscard]] int columnsOf(wchar_t character);

/// The columns of a text.
[[nodiscard]] int columnsOf(std::wstring_view text);

} // namespace kestrav::present
