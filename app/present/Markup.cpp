#include "app/present/Markup.h"

#include "core/FileText.h"

#include <cstdint>

namespace kestrav::present
{

namespace
{

// One UTF-16 unit as RTF writes it: a signed 16-bit number and a character for old readers.
std::string rtfUnit(std::uint32_t unit)
{
    const int number = unit < 0x8000U ? int(unit) : int(unit) - 0x10000;
    return "\\u" + std::to_string(number) + "?";
}

std::string rtfCharacter(wchar_t character)
{
    const auto code = static_cast<std::uint32_t>(character);
    if (code < 0x10000U) {
        return rtfUnit(code);
    }
    const std::uint32_t rest = code - 0x10000U;
    return rtfUnit(0xD800U + (rest >> 10U)) + rtfUnit(0xDC00U + (rest & 0x3FFU));
}

} // namespace

std::string xmlText(std::wstring_view text)
{
    std::wstring safe;
    safe.reserve(text.size());
    for (const wchar_t character : text) {
        switch (character) {
        case L'&':
            safe += L"&amp;";
            break;
        case L'<':
            safe += L"&lt;";
            break;
        case L'>':
            safe += L"&gt;";
            break;
        case L'"':
            safe += L"&quot;";
            break;
        default: {
            const bool control = (character < L' ' && character != L'\t' && character != L'\n') ||
                                 (character >= 0x7F && character <= 0x9F);
            const bool noCharacter = (character & 0xFFFE) == 0xFFFE;
            safe += control || noCharacter ? wchar_t{0xFFFD} : character;
        }
        }
    }
    return core::toUtf8(safe);
}

std::string rtfText(std::wstring_view text)
{
    std::string escaped;
    for (const wchar_t character : text) {
        switch (character) {
        case L'\\':
        case L'{':
        case L'}':
            escaped += '\\';
            escaped += char(character);
            break;
        case L'\n':
            escaped += "\\line ";
            break;
        case L'\t':
            escaped += "\\tab ";
            break;
        case L'\u00A0':
            escaped += "\\~";
            break;
        default:
            if (character < L' ' || character == 0x7F) {
                escaped += ' ';
            } else if (character < 0x7F) {
                escaped += char(character);
            } else {
                escaped += rtfCharacter(character);
            }
        }
    }
    return escaped;
}

std::string rtfSize(int halfPoints)
{
    const std::string number = std::to_string(halfPoints);
    return "\\fs" + number + "\\afs" + number + " ";
}

} // namespace kestrav::present
