// Texts made fit for the files of other programs.
#pragma once

#include <string>
#include <string_view>

namespace kestrav::data
{

/// The text in UTF-8 without TABs and line breaks. A leading "=", "+", "-" or "@", which makes a
/// formula in a spreadsheet, gets an apostrophe before it.
[[nodiscard]] std::string plainCell(std::wstring_view text);

/// The text as a field of comma-separated values: in quotes when it needs them, line breaks kept,
/// formulas held back as in plainCell.
[[nodiscard]] std::string csvCell(std::wstring_view text);

/// The text as a JSON string with its quotes.
[[nodiscard]] std::string jsonText(std::wstring_view text);

/// The text in Windows-1252, one byte a character, others as "?".
[[nodiscard]] std::string singleByteText(std::wstring_view text);

} // namespace kestrav::data
