// The colours of drawings by what they colour, for light and dark screens and for paper.
#pragma once

#include <cstdint>
#include <string>

namespace kestrav::present
{

/// What a colour is for. The first six are areas on which texts stand.
enum class ColourRole : std::uint8_t
{
    Paper,         ///< background of everything
    Panel,         ///< the middle of a diagram, with name and date
    AscendantCell, ///< the cell that holds the ascendant, where signs stand still
    Favourable,    ///< a stretch of time that is good to use
    Unfavourable,  ///< one that is avoided
    Night,
    Border,   ///< outlines of cells
    Division, ///< lines inside a cell
    Leader,   ///< from a degree of the circle to what stands there
    Label,    ///< numbers of houses and signs
    Text,     ///< planets, and texts in general
    Ascendant,
    Arudha,
    Minor, ///< upagrahas, special lagnas and other points
    Outer, ///< the second chart
    Bindu,
    Aspect,
    Cursor, ///< the moment that everything on a page follows
};

inline constexpr int kColourRoles = 18;

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

/// The area behind the cells of a table by how good or bad they are, -3 to 4; texts in the role
/// Text stand on it. Others are brought into this range.
[[nodiscard]] Colour colourOfShade(int shade, ColourScheme scheme);

/// Whether the role colours an area that texts may stand on, not a text or a line.
[[nodiscard]] constexpr bool isArea(ColourRole role)
{
    return role <= ColourRole::Night;
}

/// Contrast of two colours, 1 to 21, as the Web Content Accessibility Guidelines define it.
[[nodiscard]] double contrast(Colour one, Colour other);

/// "#rrggbb".
[[nodiscard]] std::string hexColour(Colour colour);

} // namespace kestrav::present
