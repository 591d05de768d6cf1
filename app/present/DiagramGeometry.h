// Convex areas, and where a box fits into them.
#pragma once

#include "app/present/DisplayList.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace kestrav::present
{

/// A span of x; empty when `low` is above `high`.
struct Interval
{
    double low = 0.0;
    double high = -1.0;

    [[nodiscard]] double length() const
    {
        return high - low;
    }
};

/// The inside of a convex polygon, moved inwards from its edges.
class ConvexArea
{
public:
    static constexpr std::size_t kMostEdges = 8;

    /// `marginX` is the margin at an upright edge, `marginY` at a level one; between them the sum
    /// of their shares counts. At most kMostEdges corners.
    ConvexArea(const std::vector<Spot>& polygon, double marginX, double marginY);

    /// The span that lies inside at every height from `top` to `bottom`.
    [[nodiscard]] Interval across(double top, double bottom) const;

    [[nodiscard]] bool holds(const Box& box) const;

    /// The extent in height.
    [[nodiscard]] double top() const
    {
        return top_;
    }
    [[nodiscard]] double bottom() const
    {
        return bottom_;
    }

    /// The area before it was moved inwards.
    [[nodiscard]] double area() const
    {
        return area_;
    }

private:
    // a x + b y >= c
    struct Edge
    {
        double a;
        double b;
        double c;
    };

    [[nodiscard]] std::span<const Edge> edges() const
    {
        return {edges_.data(), count_};
    }

    std::array<Edge, kMostEdges> edges_;
    std::size_t count_ = 0;
    double top_ = 0.0;
    double bottom_ = 0.0;
    double area_ = 0.0;
};

/// The centre of gravity.
[[nodiscard]] Spot centreOf(const std::vector<Spot>& polygon);

/// Every spot times `scale`.
[[nodiscard]] std::vector<Spot> scaled(std::span<const Spot> polygon, double scale);

} // namespace kestrav::present
