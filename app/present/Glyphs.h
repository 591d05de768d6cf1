// The characters that stand for the codes of the astrological glyph font.
#pragma once

#include <string>
#include <string_view>

namespace kestrav::present
{

/// The Unicode character of a code of the glyph font: 208 to 216 the Sun to Ketu, 217 to 219 Uranus
/// to Pluto, 220 to 231 the signs, 238 to 246 the Sun to Ketu once more. 0 for every other code;
/// 237, the ascendant, has no symbol in Unicode.
[[nodiscard]] wchar_t glyphCharacter(int code);

/// A name as PointName or SignName2 gives it in glyph mode, with the code replaced by its
/// character; names in letters stay as they are, without a blank at the end.
[[nodiscard]] std::wstring glyphText(std::wstring_view name);

/// Whether the character is one of the symbols above.
[[nodiscard]] bool isGlyph(wchar_t character);

} // namespace kestrav::present
