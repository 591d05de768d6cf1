// A drawing without a toolkit: what painters, writers, hit tests and screen readers work from.
//
// x runs to the right and y down, in one unit that the maker of the list chooses (pixels, points).
// The parts are painted in the order shapes, lines, texts.
#pragma once

#include "app/present/Colour.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::present
{

struct Spot
{
    double x = 0.0;
    double y = 0.0;
};

struct Box
{
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;

    [[nodiscard]] double width() const
    {
        return right - left;
    }
    [[nodiscard]] double height() const
    {
        return bottom - top;
    }
    [[nodiscard]] Spot centre() const
    {
        return {(left + right) / 2.0, (top + bottom) / 2.0};
    }
    /// Whether the insides have a part in common.
    [[nodiscard]] bool overlaps(const Box& other) const
    {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
};

/// A closed polygon, filled or outlined or both.
struct Shape
{
    std::vector<Spot> points;
    std::optional<ColourRole> fill;
    std::optional<ColourRole> stroke;
    double width = 0.0; ///< of the outline
};

struct Line
{
    Spot from;
    Spot to;
    ColourRole role = ColourRole::Border;
    double width = 1.0;
    bool dashed = false;
    bool arrow = false; ///< an arrow head at `to`
};

/// One line of text. Its box is as high as the font's size; the baseline lies kAscent sizes below
/// the box's top, and the text is centred in the box.
struct Text
{
    std::wstring text;
    Box box;
    double size = 0.0;
    ColourRole role = ColourRole::Text;
    int region = -1;                ///< the region of the list that holds the text; -1 for none
    std::optional<ColourRole> halo; ///< the area around its letters, which keeps lines away
};

enum class RegionKind : std::uint8_t
{
    Sign,   ///< index 1 to 12
    House,  ///< index 1 to 12
    Centre, ///< the middle with the data of the chart
    Point,  ///< index 0 to 62, one point of a chart
    More,   ///< points for which there was no room; index is their count
    Span,   ///< a stretch of time; index into the spans of a strip
};

/// An area that means something: it can be pointed at, and it is read aloud.
struct Region
{
    RegionKind kind = RegionKind::Sign;
    int index = 0;
    int house = 0; ///< house 1 to 12 that the area belongs to; 0 for none
    int layer = 0; ///< 0 the chart, 1 the second chart of a diagram
    std::vector<Spot> polygon;
    std::wstring tip;    ///< to show beside the pointer; lines end with a line feed
    std::wstring spoken; ///< to read aloud
    int sign = 0;        ///< sign 1 to 12 in which the area lies, or that a house has; 0 for none
    std::vector<int> points = {}; ///< of a More, the points that it stands for
};

struct DisplayList
{
    double width = 0.0;
    double height = 0.0;
    ColourScheme scheme = ColourScheme::Light;
    std::wstring title;       ///< one line
    std::wstring description; ///< sentences, one a line
    std::vector<Shape> shapes;
    std::vector<Line> lines;
    std::vector<Text> texts;
    std::vector<Region> regions; ///< later ones lie above earlier ones
};

/// The index of the topmost region that holds the spot, or -1.
[[nodiscard]] int regionAt(const DisplayList& list, Spot spot);

/// Whether a spot lies inside a polygon, which need not be convex.
[[nodiscard]] bool contains(const std::vector<Spot>& polygon, Spot spot);

/// The area of a polygon that does not cross itself.
[[nodiscard]] double areaOf(const std::vector<Spot>& polygon);

/// The corners of a box, top left first and clockwise as seen.
[[nodiscard]] std::vector<Spot> cornersOf(const Box& box);

/// The names that files and options use: "sign", "paper" and so on.
[[nodiscard]] std::string_view regionKindName(RegionKind kind);
[[nodiscard]] std::string_view colourRoleName(ColourRole role);

} // namespace kestrav::present
