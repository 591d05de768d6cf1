// What a chart diagram shows and how.
#pragma once

#include "app/present/Colour.h"
#include "app/present/TextWidths.h"
#include "core/Points.h"
#include "core/Settings.h"

#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::present
{

enum class DiagramStyle : std::uint8_t
{
    North,  ///< houses stand still, house 1 on top, counter-clockwise
    South,  ///< signs stand still in a ring of squares, clockwise
    East,   ///< signs stand still in nine squares with cut corners, counter-clockwise
    Circle, ///< true longitudes, the ascendant at nine o'clock, counter-clockwise
};

inline constexpr int kDiagramStyles = 4;

/// "north", "south", "east", "circle"; and as titles show it, "North Indian".
[[nodiscard]] std::string_view diagramStyleName(DiagramStyle style);
[[nodiscard]] std::wstring_view diagramStyleTitle(DiagramStyle style);

/// The style of a name, or nothing.
[[nodiscard]] std::optional<DiagramStyle> findDiagramStyle(std::string_view name);

using PointSet = std::bitset<static_cast<std::size_t>(core::kPointCount)>;

/// The ascendant and the planets Sun to Ketu.
[[nodiscard]] PointSet mainDiagramPoints();

/// The arudha padas of the houses 1 to 12.
[[nodiscard]] PointSet arudhaPoints();

enum class DegreeForm : std::uint8_t
{
    None,
    Degrees, ///< whole degrees that were passed
    Minutes, ///< with minutes
};

enum class CellLabel : std::uint8_t
{
    None,
    Signs,
    Houses,
};

/// Where the houses of a circle begin and end.
enum class CircleBounds : std::uint8_t
{
    Automatic, ///< Sandhis where the chart has them, Cusps under Placidus (KP), else Signs
    Signs,     ///< every house is a sign
    Equal,     ///< 30 degrees each from the degree of the ascendant
    Cusps,     ///< from cusp to cusp
    Sandhis,   ///< from sandhi to sandhi, the cusps being the middles
};

/// The number that every sign carries.
struct BinduChoice
{
    static constexpr int kSarva = -1;
    int receiver = kSarva; ///< 0 the ascendant, 1 to 7 the planets, or the sum of the planets
};

struct DiagramOptions
{
    PointSet points = mainDiagramPoints();
    bool arudhas = false;                ///< adds the arudha padas of the houses
    std::optional<PointSet> outerPoints; ///< of the second chart; none for the same as here
    DegreeForm degrees = DegreeForm::Degrees;
    bool retrograde = true;  ///< "(R)" after planets; the nodes always are and get no mark
    bool combust = true;     ///< "c"
    bool dignity = true;     ///< arrows for exalted and debilitated
    PointSet changed;        ///< points of the chart with a longitude of the user's, marked "*"
    bool boundaries = false; ///< "~" after points that stand near the boundary of a part
    CellLabel labels = CellLabel::Signs;
    PointSet aspectsOf;                ///< planets 1 to 9 whose full aspects are drawn
    std::optional<BinduChoice> bindus; ///< of the varga that is shown
    CircleBounds bounds = CircleBounds::Automatic;
    bool navamshaRing = false; ///< a ring of navamshas around a circle of the rashi

    int nameStyle = 2; ///< 2 or 3 letters
    bool glyphs = false;
    bool english = true;
    ColourScheme scheme = ColourScheme::Light;

    /// The sign that is made the first house; 0 for that of the ascendant. Without an ascendant
    /// North begins with Aries, and no house is named.
    int firstSign = 0;

    /// The lines of the middle, where the style has one. See centreLines in Diagram.h.
    std::vector<std::wstring> centre;

    double fontSize = 0.0; ///< 0 for one that suits the size; never below 8 then
    MeasureText measure;   ///< empty for textWidth

    /// Every text takes whole cells of a grid of characters, 1 unit wide and 2 high, whose first
    /// centre is the corner of the diagram. For drawings in a terminal, of 72 units.
    bool characterGrid = false;
};

/// What the settings of the user say about diagrams. The middle is left to the caller.
[[nodiscard]] DiagramOptions diagramOptionsOf(const core::Settings& settings);

} // namespace kestrav::present
