// The colours of diagrams by what they colour, for light and dark screens and for paper.
#pragma once

#include <cstdint>
#include <string>

namespace kestrav::present
{

/// What a colour is for. The first three are areas on which texts stand.
enum class ColourRole : std::uint8_t
{
    Paper,         ///< background of everything
    Panel,         ///< the middle of a diagram, with name and date
    AscendantCell, ///< the cell that holds the ascendant, where signs stand still
    Border,        ///< outlines of cells
    Division,      ///< lines inside a cell
    Leader,        ///< from a degree of the circle to what stands there
    Label,         ///< numbers of houses and signs
    Text,          ///< planets, and texts in general
    Ascendant,
    Arudha,
    Minor, ///< upagrahas, special lagnas and other points
    Outer, ///< the second chart
    Bindu,
    Aspect,
};

inline constexpr int kColourRoles = 14;

enum class ColourScheme : std::uint8_t
{
    Light,
    Dark,
    Print, ///< for paper: no tinted areas but the panel
};

struct Colour
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Colour&) const = default;
};

/// The colour of a role.
[[nodiscard]] Colour colourOf(ColourRole role, ColourScheme scheme);

/// Whether the role colours an area that texts may stand on, not a text or a line.
[[nodiscard]] constexpr bool isArea(ColourRole role)
{
    return role <= ColourRole::AscendantCell;
}

/// Contrast of two colours, 1 to 21, as the Web Content Accessibility Guidelines define it.
[[nodiscard]] double contrast(Colour one, Colour other);

/// "#rrggbb".
[[nodiscard]] std::string hexColour(Colour colour);

} // namespace kestrav::present
