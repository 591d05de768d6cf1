// Where the point expressions of conditions lead in a chart.
#pragma once

#include "yoga/Subject.h"
#include "yoga/conditions/Frame.h"

namespace kestrav::yoga
{

/// A point of one of the two charts, or a place so many signs from it.
struct Place
{
    Frame* frame = nullptr;
    int point = -1; ///< 0 to 62; -1 when the expression leads nowhere
    int shift = 0;  ///< signs from the point, 0 to 11

    /// The sign in a divisional chart, 0 without position.
    [[nodiscard]] int sign(int varga) const;
    /// The longitude in a divisional chart, negative without position.
    [[nodiscard]] double longitude(int varga) const;
    /// The planet 1 to 9 that the expression names; 0 for a mere place and other points.
    [[nodiscard]] int planet() const;

    bool operator==(const Place&) const = default;
};

/// The point of a point expression, found in a divisional chart of the native (or, when the charts
/// are exchanged, the second) chart.
[[nodiscard]] Place placeOf(int code, Frame& native, Frame& second, int varga);

} // namespace kestrav::yoga
