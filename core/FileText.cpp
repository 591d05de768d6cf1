#include "core/FileText.h"

#include <array>
#include <bit>
#include <cstdint>

namespace kestrav::core
{

namespace
{

constexpr std::uint32_t kReplacement = 0xFFFD;

// Windows-1252 from 0x80 to 0x9F; 0 marks the undefined bytes.
constexpr std::array<std::uint16_t, 32> kWindows1252 = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

bool exists(std::uint32_t code)
{
    return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

bool continuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

char low6(std::uint32_t bits)
{
    return static_cast<char>(0x80U | (bits & 0x3FU));
}

} // namespace

std::string toUtf8(std::wstring_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (const wchar_t character : text) {
        auto code = std::bit_cast<std::uint32_t>(character);
        if (!exists(code)) {
            code = kReplacement;
        }
        if (code < 0x80) {
            bytes += static_cast<char>(code);
        } else if (code < 0x800) {
            bytes += static_cast<char>(0xC0U | (code >> 6));
            bytes += low6(code);
        } else if (code < 0x10000) {
            bytes += static_cast<char>(0xE0U | (code >> 12));
            bytes += low6(code >> 6);
            bytes += low6(code);
        } else {
            bytes += static_cast<char>(0xF0U | (code >> 18));
            bytes += low6(code >> 12);
            bytes += low6(code >> 6);
            bytes += low6(code);
        }
    }
    return bytes;
}

std::optional<std::wstring> fromUtf8(std::string_view bytes)
{
    std::wstring text;
    text.reserve(bytes.size());
    std::size_t i = 0;
    while (i < bytes.size()) {
        const std::uint32_t lead = static_cast<unsigned char>(bytes[i++]);
        if (lead < 0x80) {
            text += static_cast<wchar_t>(lead);
            continue;
        }
        const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
        constexpr std::array<std::uint32_t, 4> kSmallest = {0, 0x80, 0x800, 0x10000};
        if (lead < 0xC2 || lead > 0xF4 || bytes.size() - i < more) {
            return std::nullopt;
        }
        std::uint32_t code = lead & (0x3FU >> more);
        for (std::size_t k = 0; k < more; ++k) {
            if (!continuation(bytes[i])) {
                return std::nullopt;
            }
            code = code << 6 | (static_cast<unsigned char>(bytes[i++]) & 0x3FU);
        }
        if (code < kSmallest[more] || !exists(code)) {
            return std::nullopt;
        }
        text += static_cast<wchar_t>(code);
    }
    return text;
}

std::wstring fromFileBytes(std::string_view bytes)
{
    if (std::optional<std::wstring> text = fromUtf8(bytes)) {
        return *std::move(text);
    }
    std::wstring text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const unsigned code = static_cast<unsigned char>(byte);
        const unsigned mapped = code >= 0x80 && code < 0xA0 ? kWindows1252[code - 0x80] : 0;
        text += static_cast<wchar_t>(mapped != 0 ? mapped : code);
    }
    return text;
}

std::string_view cutUtf8(std::string_view text, std::size_t limit)
{
    if (text.size() <= limit) {
        return text;
    }
    while (limit > 0 && continuation(text[limit])) {
        --limit;
    }
    return text.substr(0, limit);
}

} // namespace kestrav::core
