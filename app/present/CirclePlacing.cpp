#include "app/present/CirclePlacing.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kestrav::present
{

namespace
{

constexpr double kRadians = 3.14159265358979323846 / 180.0;
constexpr std::array<double, 4> kScales = {1.0, 0.9, 0.8, 0.7};
constexpr double kAngleStep = 1.5; // degrees
constexpr int kClosePlaces = 26;   // to either side, with lines that do not cross
constexpr int kFarPlaces = 60;

double cross(Spot a, Spot b, Spot c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool segmentsCross(Spot a, Spot b, Spot c, Spot d)
{
    return (cross(a, b, c) > 0.0) != (cross(a, b, d) > 0.0) &&
           (cross(c, d, a) > 0.0) != (cross(c, d, b) > 0.0);
}

bool segmentMeets(const Box& box, Spot a, Spot b)
{
    const Box span{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
    if (span.left > box.right || span.right < box.left || span.top > box.bottom ||
        span.bottom < box.top) {
        return false;
    }
    const Spot leftTop{box.left, box.top};
    const Spot rightTop{box.right, box.top};
    const Spot leftBottom{box.left, box.bottom};
    const Spot rightBottom{box.right, box.bottom};
    const auto inside = [&](Spot spot) {
        return spot.x > box.left && spot.x < box.right && spot.y > box.top && spot.y < box.bottom;
    };
    return inside(a) || inside(b) || segmentsCross(a, b, leftTop, rightBottom) ||
           segmentsCross(a, b, rightTop, leftBottom);
}

class RingPlacer
{
public:
    RingPlacer(const RingTask& task, double size) : task_(task), size_(size)
    {}

    // Whether all labels found a place.
    bool place(bool strict)
    {
        places_.assign(task_.angles.size(), {});
        bool all = true;
        for (std::size_t i = 0; i < places_.size(); ++i) {
            const double edge = task_.fromOutside ? task_.ring.outer : task_.ring.inner;
            places_[i].tick = task_.ring.spotAt(task_.angles[i], edge);
            const int most = strict ? kClosePlaces : kFarPlaces;
            for (int step = 0; step < 2 * most && !places_[i].placed; ++step) {
                const int turns = (step + 1) / 2 * (step % 2 == 0 ? 1 : -1);
                tryAngle(i, task_.angles[i] + turns * kAngleStep, strict);
            }
            all = all && places_[i].placed;
            if (strict && !all) {
                return false;
            }
        }
        return all;
    }

    [[nodiscard]] const std::vector<RingPlace>& places() const
    {
        return places_;
    }

private:
    void tryAngle(std::size_t i, double angle, bool strict)
    {
        const double depth = task_.ring.outer - task_.ring.inner;
        const double step = task_.characterGrid ? 1.0 : 0.4 * size_;
        const Spot unit = task_.ring.spotAt(angle, 1.0);
        const Spot middle = task_.ring.middle;
        for (double in = 0.5 * size_; in < depth && !places_[i].placed; in += step) {
            const double radius = task_.fromOutside ? task_.ring.outer - in : task_.ring.inner + in;
            const Spot spot{middle.x + (unit.x - middle.x) * radius,
                            middle.y + (unit.y - middle.y) * radius};
            tryBox(i, boxAround(spot, task_.widths[i] * size_, size_, task_.characterGrid), strict);
        }
    }

    void tryBox(std::size_t i, const Box& box, bool strict)
    {
        if (!task_.ring.holds(box)) {
            return;
        }
        RingPlace& place = places_[i];
        const Spot end{std::clamp(place.tick.x, box.left, box.right),
                       std::clamp(place.tick.y, box.top, box.bottom)};
        const double gap = task_.characterGrid ? 0.9 : 0.15 * size_;
        const Box wide{box.left - gap, box.top - (task_.characterGrid ? 0.0 : 0.3 * gap),
                       box.right + gap, box.bottom + (task_.characterGrid ? 0.0 : 0.3 * gap)};
        for (std::size_t j = 0; j < i; ++j) {
            const RingPlace& other = places_[j];
            if (!other.placed) {
                continue;
            }
            if (wide.overlaps(other.box)) {
                return;
            }
            if (strict && (segmentMeets(wide, other.tick, other.end) ||
                           segmentMeets(other.box, place.tick, end) ||
                           segmentsCross(place.tick, end, other.tick, other.end))) {
                return;
            }
        }
        place.placed = true;
        place.box = box;
        place.end = end;
    }

    const RingTask& task_;
    double size_;
    std::vector<RingPlace> places_;
};

} // namespace

bool Ring::holds(const Box& box) const
{
    const double left = box.left - middle.x;
    const double right = box.right - middle.x;
    const double top = box.top - middle.y;
    const double bottom = box.bottom - middle.y;
    const double farX = std::max(std::fabs(left), std::fabs(right));
    const double farY = std::max(std::fabs(top), std::fabs(bottom));
    const double nearX = left > 0.0 ? left : (right < 0.0 ? -right : 0.0);
    const double nearY = top > 0.0 ? top : (bottom < 0.0 ? -bottom : 0.0);
    return farX * farX + farY * farY <= outer * outer &&
           nearX * nearX + nearY * nearY >= inner * inner;
}

Spot Ring::spotAt(double angle, double radius) const
{
    return {middle.x + radius * std::cos(angle * kRadians),
            middle.y - radius * std::sin(angle * kRadians)};
}

Box boxAround(Spot spot, double width, double size, bool characterGrid)
{
    double left = spot.x - width / 2.0;
    double top = spot.y - size / 2.0;
    if (characterGrid) {
        left = std::floor(left) + 0.5;
        top = 2.0 * std::floor(top / 2.0) + 1.0;
    }
    return {left, top, left + width, top + size};
}

std::vector<RingPlace> placeInRing(const RingTask& task, double& size)
{
    const std::span<const double> scales =
        std::span<const double>(kScales).first(task.characterGrid ? 1 : kScales.size());
    for (const double scale : scales) {
        size = scale * task.size;
        RingPlacer placer(task, size);
        if (placer.place(true)) {
            return placer.places();
        }
    }
    RingPlacer placer(task, size);
    placer.place(false);
    return placer.places();
}

} // namespace kestrav::present
