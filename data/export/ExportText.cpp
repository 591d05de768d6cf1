#include "data/export/ExportText.h"

#include "core/FileText.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kestrav::data
{

namespace
{

bool beginsFormula(std::wstring_view text)
{
    constexpr std::wstring_view kStarts = L"=+-@";
    return !text.empty() && kStarts.find(text.front()) != std::wstring_view::npos;
}

std::wstring heldBack(std::wstring_view text)
{
    return beginsFormula(text) ? L"'" + std::wstring(text) : std::wstring(text);
}

// The byte of a character, found by decoding all of them.
char singleByte(wchar_t character)
{
    static const std::array<wchar_t, 128> kHigh = [] {
        std::array<wchar_t, 128> table{};
        for (std::size_t i = 0; i < table.size(); ++i) {
            // Two equal bytes are never UTF-8 above 0x7F.
            const std::string pair(2, char(0x80 + i));
            table[i] = core::fromFileBytes(pair).front();
        }
        return table;
    }();
    if (character < 0x80) {
        return char(character);
    }
    const auto* const found = std::find(kHigh.begin(), kHigh.end(), character);
    return found == kHigh.end() ? '?' : char(0x80 + (found - kHigh.begin()));
}

} // namespace

std::string plainCell(std::wstring_view text)
{
    std::wstring cell = heldBack(text);
    std::replace_if(
        cell.begin(), cell.end(), [](wchar_t c) { return c < 0x20; }, L' ');
    return core::toUtf8(cell);
}

std::string csvCell(std::wstring_view text)
{
    std::string cell = core::toUtf8(heldBack(text));
    if (cell.find_first_of(",\"\r\n\t") == std::string::npos) {
        return cell;
    }
    std::string quoted = "\"";
    for (const char byte : cell) {
        quoted += byte;
        if (byte == '"') {
            quoted += byte;
        }
    }
    return quoted + '"';
}

std::string jsonText(std::wstring_view text)
{
    constexpr std::string_view kHexDigits = "0123456789abcdef";
    std::string json = "\"";
    for (const char byte : core::toUtf8(text)) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\') {
            json += '\\';
            json += byte;
        } else if (byte == '\n') {
            json += "\\n";
        } else if (byte == '\r') {
            json += "\\r";
        } else if (code < 0x20) {
            json += "\\u00";
            json += kHexDigits[code >> 4U];
            json += kHexDigits[code & 15U];
        } else {
            json += byte;
        }
    }
    return json + '"';
}

std::string singleByteText(std::wstring_view text)
{
    std::string bytes;
    std::transform(text.begin(), text.end(), std::back_inserter(bytes), singleByte);
    return bytes;
}

} // namespace kestrav::data
