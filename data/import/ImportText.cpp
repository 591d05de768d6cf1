#include "data/import/ImportText.h"

#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/import/BirthEntry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace kestrav::data
{

namespace
{

// Code page 850 from 0x80 on, as its registration in the IANA list of character sets has it.
// clang-format off
constexpr std::array<char16_t, 128> kCodePage850 = {
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x00E0, 0x00E5, 0x00E7,
    0x00EA, 0x00EB, 0x00E8, 0x00EF, 0x00EE, 0x00EC, 0x00C4, 0x00C5,
    0x00C9, 0x00E6, 0x00C6, 0x00F4, 0x00F6, 0x00F2, 0x00FB, 0x00F9,
    0x00FF, 0x00D6, 0x00DC, 0x00F8, 0x00A3, 0x00D8, 0x00D7, 0x0192,
    0x00E1, 0x00ED, 0x00F3, 0x00FA, 0x00F1, 0x00D1, 0x00AA, 0x00BA,
    0x00BF, 0x00AE, 0x00AC, 0x00BD, 0x00BC, 0x00A1, 0x00AB, 0x00BB,
    0x2591, 0x2592, 0x2593, 0x2502, 0x2524, 0x00C1, 0x00C2, 0x00C0,
    0x00A9, 0x2563, 0x2551, 0x2557, 0x255D, 0x00A2, 0x00A5, 0x2510,
    0x2514, 0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x00E3, 0x00C3,
    0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550, 0x256C, 0x00A4,
    0x00F0, 0x00D0, 0x00CA, 0x00CB, 0x00C8, 0x0131, 0x00CD, 0x00CE,
    0x00CF, 0x2518, 0x250C, 0x2588, 0x2584, 0x00A6, 0x00CC, 0x2580,
    0x00D3, 0x00DF, 0x00D4, 0x00D2, 0x00F5, 0x00D5, 0x00B5, 0x00FE,
    0x00DE, 0x00DA, 0x00DB, 0x00D9, 0x00FD, 0x00DD, 0x00AF, 0x00B4,
    0x00AD, 0x00B1, 0x2017, 0x00BE, 0x00B6, 0x00A7, 0x00F7, 0x00B8,
    0x00B0, 0x00A8, 0x00B7, 0x00B9, 0x00B3, 0x00B2, 0x25A0, 0x00A0,
};
// clang-format on

std::string toUtf8Text(std::string_view bytes, ByteEncoding encoding)
{
    if (encoding == ByteEncoding::Windows1252 || core::fromUtf8(bytes)) {
        return core::toUtf8(core::fromFileBytes(bytes));
    }
    std::wstring text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        text += code < 0x80 ? wchar_t(code) : wchar_t(kCodePage850[code - 0x80U]);
    }
    return core::toUtf8(text);
}

std::string_view withoutBar(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('|')) {
        text.remove_prefix(1);
    }
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    return text;
}

} // namespace

std::vector<std::string> textLines(std::span<const std::uint8_t> bytes, ByteEncoding encoding)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    const std::string text =
        toUtf8Text({reinterpret_cast<const char*>(bytes.data()), bytes.size()}, encoding);
    std::string_view rest = text;
    if (rest.starts_with(kByteOrderMark)) {
        rest.remove_prefix(kByteOrderMark.size());
    }
    std::vector<std::string> lines;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view line = rest.substr(0, end);
        while (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return lines;
}

std::vector<std::string_view> wordsOf(std::string_view line)
{
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t start = line.find_first_not_of(" \t");
        if (start == std::string_view::npos) {
            return words;
        }
        line.remove_prefix(start);
        const std::size_t end = std::min(line.find_first_of(" \t"), line.size());
        words.push_back(line.substr(0, end));
        line.remove_prefix(end);
    }
}

int monthOfName(std::string_view text)
{
    constexpr std::string_view kMonths = "janfebmaraprmayjunjulaugsepoctnovdec";
    constexpr std::size_t kLetters = 3;
    if (text.size() < kLetters) {
        return 0;
    }
    const std::size_t place = kMonths.find(lowered(text.substr(0, kLetters)));
    return place == std::string_view::npos || place % kLetters != 0 ? 0 : int(place / kLetters) + 1;
}

std::optional<double> unpackNumber(std::string_view text)
{
    const std::optional<double> value = plainNumber(text);
    constexpr double kLargest = 100000.0;
    if (!value || std::fabs(*value) > kLargest) {
        return std::nullopt;
    }
    const double size = std::fabs(*value);
    const double whole = std::floor(size);
    // Thousandths of a second: 14.199999999999999 is 14:20.
    const double seconds = std::round((size - whole) * 6000.0 * 1000.0) / 1000.0;
    if (seconds >= 3600.0) {
        return std::nullopt;
    }
    const double units = (whole * 3600.0 + seconds) / 3600.0;
    return withoutBar(text).starts_with('-') && units > 0.0 ? -units : units;
}

std::optional<double> plainNumber(std::string_view text)
{
    return core::parseNumber(withoutBar(text));
}

std::string shown(std::string_view text)
{
    constexpr std::size_t kMost = 60;
    std::string result = "'" + std::string(core::cutUtf8(text, kMost)) + "'";
    std::replace_if(
        result.begin(), result.end(), [](char byte) { return byte >= 0 && byte < ' '; }, ' ');
    return result;
}

} // namespace kestrav::data
