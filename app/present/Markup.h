// Texts made fit for XML, HTML and Rich Text Format.
#pragma once

#include <string>
#include <string_view>

namespace kestrav::present
{

/// The text in UTF-8 with "&", "<", ">" and double quotes as entities, so that it can stand in an
/// element of XML or HTML or in an attribute between double quotes. Control characters and others
/// that these have no place for become U+FFFD; tabs and line ends stay.
[[nodiscard]] std::string xmlText(std::wstring_view text);

/// The text in ASCII with the escapes of Rich Text Format; line breaks become new lines of the same
/// paragraph and tabs stay tabs.
[[nodiscard]] std::string rtfText(std::wstring_view text);

/// The words that set the size of text in half points, in scripts written from right to left or
/// with joined letters, too, which have a size of their own.
[[nodiscard]] std::string rtfSize(int halfPoints);

} // namespace kestrav::present
