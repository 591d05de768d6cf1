#include "app/present/TextWidths.h"

#include "app/present/TextWidthsTable.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <type_traits>

namespace kestrav::present
{

namespace
{

struct CharacterRange
{
    std::uint32_t first;
    std::uint32_t last;
};

// Marks that stand over or under another character, joiners and variation selectors.
// clang-format off
constexpr std::array<CharacterRange, 21> kCombining = {{
    {0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x064B, 0x065F}, {0x0900, 0x0902},
    {0x093A, 0x093A}, {0x093C, 0x093C}, {0x0941, 0x0948}, {0x094D, 0x094D}, {0x0951, 0x0957},
    {0x0962, 0x0963}, {0x0981, 0x0981}, {0x09BC, 0x09BC}, {0x09C1, 0x09C4}, {0x09CD, 0x09CD},
    {0x0B82, 0x0B82}, {0x0BC0, 0x0BC0}, {0x0BCD, 0x0BCD}, {0x200B, 0x200F}, {0x20D0, 0x20FF},
    {0xFE00, 0xFE0F},
}};

// Characters twice as wide as a letter of a terminal.
constexpr std::array<CharacterRange, 10> kWide = {{
    {0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3}, {0xF900, 0xFAFF}, {0xFE30, 0xFE6F},
    {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F}, {0x1F900, 0x1F9FF},
    {0x20000, 0x3FFFD},
}};
// clang-format on

template <typename Ranges>
bool within(const Ranges& ranges, std::uint32_t code)
{
    const auto after =
        std::upper_bound(ranges.begin(), ranges.end(), code,
                         [](std::uint32_t c, const auto& range) { return c < range.first; });
    return after != ranges.begin() && code <= std::prev(after)->last;
}

// The code of a character; the type of wide characters is signed on this system.
constexpr std::uint32_t codeOf(wchar_t character)
{
    return static_cast<std::make_unsigned_t<wchar_t>>(character);
}

constexpr double kUnknownWidth = 0.75;

double tableWidth(wchar_t character)
{
    const auto code = codeOf(character);
    const std::span<const WidthRun> runs = widthRuns();
    const auto after =
        std::upper_bound(runs.begin(), runs.end(), code,
                         [](std::uint32_t c, const WidthRun& run) { return c < run.first; });
    if (after != runs.begin() && code <= std::prev(after)->last) {
        return std::prev(after)->advance / double(kUnitsPerEm);
    }
    if (within(kCombining, code)) {
        return 0.0;
    }
    return within(kWide, code) ? 1.0 : kUnknownWidth;
}

// Nearly every text is made of these.
constexpr std::size_t kQuickCharacters = 256;

const std::array<double, kQuickCharacters>& quickWidths()
{
    static const std::array<double, kQuickCharacters> kWidths = [] {
        std::array<double, kQuickCharacters> widths{};
        for (std::size_t i = 0; i < kQuickCharacters; ++i) {
            widths[i] = tableWidth(static_cast<wchar_t>(i));
        }
        return widths;
    }();
    return kWidths;
}

} // namespace

double textWidth(std::wstring_view text)
{
    const std::array<double, kQuickCharacters>& quick = quickWidths();
    double width = 0.0;
    for (const wchar_t character : text) {
        const auto code = std::size_t{codeOf(character)};
        width += code < kQuickCharacters ? quick[code] : tableWidth(character);
    }
    return width;
}

int columnsOf(wchar_t character)
{
    const auto code = codeOf(character);
    if (within(kCombining, code)) {
        return 0;
    }
    return within(kWide, code) ? 2 : 1;
}

int columnsOf(std::wstring_view text)
{
    int columns = 0;
    for (const wchar_t character : text) {
        columns += columnsOf(character);
    }
    return columns;
}

} // namespace kestrav::present
