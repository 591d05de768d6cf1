#include "app/present/DiagramGeometry.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace kestrav::present
{

ConvexArea::ConvexArea(const std::vector<Spot>& polygon, double marginX, double marginY)
{
    assert(polygon.size() >= 3 && polygon.size() <= kMostEdges);
    const Spot middle = centreOf(polygon);
    area_ = areaOf(polygon);
    top_ = bottom_ = polygon.front().y;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Spot from = polygon[i];
        const Spot to = polygon[(i + 1) % polygon.size()];
        top_ = std::min(top_, from.y);
        bottom_ = std::max(bottom_, from.y);
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        if (length <= 0.0) {
            continue;
        }
        Edge edge{(from.y - to.y) / length, (to.x - from.x) / length, 0.0};
        edge.c = edge.a * from.x + edge.b * from.y;
        if (edge.a * middle.x + edge.b * middle.y < edge.c) {
            edge = {-edge.a, -edge.b, -edge.c};
        }
        edge.c += std::fabs(edge.a) * marginX + std::fabs(edge.b) * marginY;
        edges_[count_++] = edge;
    }
}

Interval ConvexArea::across(double top, double bottom) const
{
    Interval interval{-1e9, 1e9};
    for (const Edge& edge : edges()) {
        // The worse of the two heights.
        const double rest = edge.c - edge.b * (edge.b > 0.0 ? top : bottom);
        if (std::fabs(edge.a) < 1e-9) {
            if (rest > 1e-9) {
                return {0.0, -1.0};
            }
        } else if (edge.a > 0.0) {
            interval.low = std::max(interval.low, rest / edge.a);
        } else {
            interval.high = std::min(interval.high, rest / edge.a);
        }
    }
    return interval;
}

bool ConvexArea::holds(const Box& box) const
{
    const Interval interval = across(box.top, box.bottom);
    return interval.low <= box.left + 1e-9 && box.right <= interval.high + 1e-9;
}

Spot centreOf(const std::vector<Spot>& polygon)
{
    double twice = 0.0;
    Spot sum;
    for (std::size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
        const Spot a = polygon[j];
        const Spot b = polygon[i];
        const double cross = a.x * b.y - b.x * a.y;
        twice += cross;
        sum.x += (a.x + b.x) * cross;
        sum.y += (a.y + b.y) * cross;
    }
    return {sum.x / (3.0 * twice), sum.y / (3.0 * twice)};
}

std::vector<Spot> scaled(std::span<const Spot> polygon, double scale)
{
    std::vector<Spot> result(polygon.begin(), polygon.end());
    for (Spot& spot : result) {
        spot = {spot.x * scale, spot.y * scale};
    }
    return result;
}

} // namespace kestrav::present
