#include "app/present/Colour.h"

#include "core/Angles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace kestrav::present
{

namespace
{

struct ColourRow
{
    ColourRole role;
    std::uint32_t light;
    std::uint32_t dark;
    std::uint32_t print;
};

// clang-format off
constexpr std::array<ColourRow, kColourRoles> kColours = {{
    {ColourRole::Paper,         0xFFFFFF, 0x1E1F22, 0xFFFFFF},
    {ColourRole::Panel,         0xF5F3EC, 0x26282C, 0xFFFFFF},
    {ColourRole::AscendantCell, 0xFFF4DC, 0x35301F, 0xFFFFFF},
    {ColourRole::Favourable,    0xEAF6E6, 0x1F3324, 0xFFFFFF},
    {ColourRole::Unfavourable,  0xFFEDE8, 0x402524, 0xFFFFFF},
    {ColourRole::Night,         0xECEEF8, 0x252A3D, 0xFFFFFF},
    {ColourRole::Border,        0x5A4A35, 0xB9A98C, 0x000000},
    {ColourRole::Division,      0x736B5E, 0xA79E91, 0x606060},
    {ColourRole::Leader,        0x736B5E, 0xA79E91, 0x606060},
    {ColourRole::Label,         0x6B6357, 0xA9A194, 0x505050},
    {ColourRole::Text,          0x1B1B1B, 0xEDEDED, 0x000000},
    {ColourRole::Ascendant,     0xA31515, 0xFF9C8F, 0x000000},
    {ColourRole::Arudha,        0x6A2C91, 0xD3A9F0, 0x303030},
    {ColourRole::Minor,         0x2F5D50, 0x93CDBB, 0x303030},
    {ColourRole::Outer,         0x0B57A8, 0x8FC2FF, 0x303030},
    {ColourRole::Bindu,         0x8A4B00, 0xF2BE6E, 0x000000},
    {ColourRole::Aspect,        0x2D6FA3, 0x78AEDB, 0x606060},
    {ColourRole::Cursor,        0xB00020, 0xFF8A80, 0x000000},
}};

// For -3 to 4, light and dark; 0 is the paper.
constexpr int kLowestShade = -3;
constexpr std::array<std::array<std::uint32_t, 2>, 8> kShades = {{
    {0xF4B8AE, 0x6B2A24},
    {0xF8D0C8, 0x57302B},
    {0xFCE6E1, 0x3B2A28},
    {0xFFFFFF, 0x1E1F22},
    {0xE6F4E1, 0x24352A},
    {0xCDEAC4, 0x27492F},
    {0xAFDDA3, 0x2A5C34},
    {0x8FCF83, 0x2C6E3A},
}};
// clang-format on

constexpr bool inOrderOfTheRoles()
{
    for (std::size_t i = 0; i < kColours.size(); ++i) {
        if (static_cast<std::size_t>(kColours[i].role) != i) {
            return false;
        }
    }
    return true;
}
static_assert(inOrderOfTheRoles());

Colour colourOfValue(std::uint32_t value)
{
    return {static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
            static_cast<std::uint8_t>(value)};
}

// One channel as light, after sRGB.
double linear(std::uint8_t channel)
{
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(Colour colour)
{
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) +
           0.0722 * linear(colour.blue);
}

} // namespace

Colour colourOf(ColourRole role, ColourScheme scheme)
{
    const ColourRow& row = kColours[static_cast<std::size_t>(role)];
    const std::uint32_t value = scheme == ColourScheme::Light  ? row.light
                                : scheme == ColourScheme::Dark ? row.dark
                                                               : row.print;
    return colourOfValue(value);
}

Colour colourOfShade(int shade, ColourScheme scheme)
{
    const int index = core::ClampRange(0, int(kShades.size()) - 1, shade - kLowestShade);
    return colourOfValue(
        kShades[static_cast<std::size_t>(index)][scheme == ColourScheme::Dark ? 1 : 0]);
}

double contrast(Colour one, Colour other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

std::string hexColour(Colour colour)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text = "#";
    for (const std::uint8_t channel : {colour.red, colour.green, colour.blue}) {
        text += kDigits[channel >> 4];
        text += kDigits[channel & 15];
    }
    return text;
}

} // namespace kestrav::present
