// The text of a foreign file: its encoding, its lines, its ways of writing numbers.
#pragma once

#include "core/Result.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

/// How bytes that are no UTF-8 are read.
enum class ByteEncoding
{
    Windows1252,
    CodePage850, ///< files of DOS days
};

/// The lines of a text file in UTF-8, without line ends and without the mark of byte order.
[[nodiscard]] std::vector<std::string> textLines(std::span<const std::uint8_t> bytes,
                                                 ByteEncoding encoding);

/// The blank-separated words of a line.
[[nodiscard]] std::vector<std::string_view> wordsOf(std::string_view line);

/// The number of a month from its first three letters, in any case; 0 when it is none.
[[nodiscard]] int monthOfName(std::string_view text);

/// A packed number, D + minutes/100 + seconds/6000: the digits after the two minute digits are a
/// decimal fraction of a minute. Gives whole units; the sign comes from the text, so -0.30 stays
/// negative. A bar may stand before it. Nothing when it is no number or has 60 minutes or more.
[[nodiscard]] std::optional<double> unpackNumber(std::string_view text);

/// The number as it stands, with the same bar allowed.
[[nodiscard]] std::optional<double> plainNumber(std::string_view text);

/// A text of a file for a message: cut and in quotes.
[[nodiscard]] std::string shown(std::string_view text);

} // namespace kestrav::data
