// What the parts of a layout share while a diagram is made.
#pragma once

#include "app/present/Diagram.h"
#include "app/present/DiagramGeometry.h"
#include "app/present/DiagramLabels.h"
#include "app/present/DisplayList.h"
#include "core/Angles.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace kestrav::present
{

struct DiagramFrame
{
    const DiagramSubject& subject;
    const DiagramOptions& options;
    double size;   ///< the side of the square
    double font;   ///< the size of the labels
    double stroke; ///< the width of a border
    int first;     ///< the sign of house 1
    bool hasHouses;

    /// House 1 to 12 of a sign; 0 when no house is known.
    [[nodiscard]] int houseOf(int sign) const
    {
        return hasHouses ? core::norm12(sign - first + 1) : 0;
    }

    /// The degree of the zodiac that a circle has at nine o'clock: the ascendant's, unless another
    /// sign was made the first house.
    [[nodiscard]] double startOfCircle() const;

    /// The margin that labels keep from an upright and from a level border.
    [[nodiscard]] double marginX() const
    {
        return options.characterGrid ? 0.5 : std::max(0.008 * size, 0.2 * font);
    }
    [[nodiscard]] double marginY() const
    {
        return options.characterGrid ? 1.0 : std::max(0.006 * size, 0.12 * font);
    }

    /// A text of the list in a box of its own height.
    [[nodiscard]] Text text(std::wstring words, const Box& box, ColourRole role, int region) const
    {
        return {std::move(words), box, box.height(), role, region, std::nullopt};
    }
};

/// Adds the text of a point, or of bindus, and the region of a point.
void addPoint(const DiagramFrame& frame, DisplayList& list, const DiagramLabel& label,
              const Box& box, int region, int house);

/// Adds "+n" for labels that have no room, with their tips as its tip.
void addMore(const DiagramFrame& frame, DisplayList& list, std::span<const DiagramLabel> hidden,
             const Box& box, int region, int house);

/// "+n".
[[nodiscard]] std::wstring moreText(int hidden);

/// "Leo, house 1, lord Sun".
[[nodiscard]] std::wstring signTip(int sign, int house);

/// Lays the lines of the middle into a box: wrapped between words, shrunk to 70%, at last cut with
/// an ellipsis. The region's tip holds all of them.
void addCentre(const DiagramFrame& frame, DisplayList& list, const Box& box);

/// The full aspects that the options ask for, as pairs of a planet's label and the aspected sign.
struct DrawnAspect
{
    int planet;
    int from; ///< sign
    int to;   ///< sign
};

[[nodiscard]] std::vector<DrawnAspect> drawnAspects(const DiagramFrame& frame);

} // namespace kestrav::present
