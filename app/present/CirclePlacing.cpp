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
// Before lines cross, labels become at least this small.
constexpr double kLargestCrossing = 0.8;
constexpr double kLineSpacing = 1.15;
constexpr double kAngleStep = 1.5; // degrees
constexpr int kClosePlaces = 5;    // to either side, with lines that do not cross
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
    {
        spread();
    }

    // Whether all labels found a place. Those that find none without crossing lines take one with
    // them when that is allowed.
    bool place(bool crossingAllowed)
    {
        places_.assign(task_.angles.size(), {});
        bool all = true;
        for (std::size_t i = 0; i < places_.size(); ++i) {
            const double edge = task_.fromOutside ? task_.ring.outer : task_.ring.inner;
            places_[i].tick = task_.ring.spotAt(task_.angles[i], edge);
            findPlace(i, kClosePlaces, true);
            if (!places_[i].placed && crossingAllowed) {
                findPlace(i, kFarPlaces, false);
            }
            all = all && places_[i].placed;
            if (!all && !crossingAllowed) {
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
    // The angle that a label takes up near its degree: beside its neighbours at the sides of the
    // ring, partly below them where the ring runs level.
    [[nodiscard]] double room(std::size_t i) const
    {
        const double angle = task_.angles[i] * kRadians;
        const double radius = task_.ring.outer - 0.5 * size_;
        const double tiers =
            std::max(1.0, std::floor((task_.ring.outer - task_.ring.inner) / (1.2 * size_)));
        const double beside = kLineSpacing * size_ / std::max(std::fabs(std::cos(angle)), 0.1);
        const double below = kLineSpacing * task_.widths[i] * size_ /
                             (std::max(std::fabs(std::sin(angle)), 0.1) * tiers);
        return std::min(beside, below) / radius / kRadians;
    }

    // Moves the angles apart as little as possible without changing their order: neighbours that
    // are too close become a group around their mean.
    void spread()
    {
        struct Group
        {
            double mean;
            int count;
        };
        std::vector<double> shift(task_.angles.size(), 0.0);
        std::vector<Group> groups;
        for (std::size_t i = 0; i < task_.angles.size(); ++i) {
            if (i > 0) {
                shift[i] = shift[i - 1] + 0.5 * (room(i - 1) + room(i));
            }
            groups.push_back({task_.angles[i] - shift[i], 1});
            while (groups.size() > 1 && groups[groups.size() - 2].mean > groups.back().mean) {
                const Group last = groups.back();
                groups.pop_back();
                Group& before = groups.back();
                before.mean = (before.mean * before.count + last.mean * last.count) /
                              (before.count + last.count);
                before.count += last.count;
            }
        }
        wanted_.clear();
        for (const Group& group : groups) {
            for (int i = 0; i < group.count; ++i) {
                wanted_.push_back(group.mean + shift[wanted_.size()]);
            }
        }
    }

    void findPlace(std::size_t i, int most, bool strict)
    {
        for (int step = 0; step < 2 * most && !places_[i].placed; ++step) {
            const int turns = (step + 1) / 2 * (step % 2 == 0 ? 1 : -1);
            tryAngle(i, wanted_[i] + turns * kAngleStep, strict);
        }
    }

    void tryAngle(std::size_t i, double angle, bool strict)
    {
        const Spot middle = task_.ring.middle;
        const Spot edge = task_.ring.spotAt(angle, 1.0);
        const Spot unit{edge.x - middle.x, edge.y - middle.y};
        const double halfWidth = task_.widths[i] * size_ / 2.0;
        const double halfHeight = size_ / 2.0;
        // The farthest corner of the box reaches the outer edge.
        const double b = std::fabs(unit.x) * halfWidth + std::fabs(unit.y) * halfHeight;
        const double corner = halfWidth * halfWidth + halfHeight * halfHeight;
        const double outer = task_.ring.outer;
        const double farthest =
            std::sqrt(std::max(b * b + outer * outer - corner, 0.0)) - b - 1e-9 * outer;
        const double step = task_.characterGrid ? 1.0 : 0.4 * size_;
        const int count = std::max(1, int((farthest - task_.ring.inner) / step) + 1);
        for (int k = 0; k < count && !places_[i].placed; ++k) {
            const double radius = farthest - step * (task_.fromOutside ? k : count - 1 - k);
            const Spot spot{middle.x + unit.x * radius, middle.y + unit.y * radius};
            tryBox(i, boxAround(spot, 2.0 * halfWidth, size_, task_.characterGrid), strict);
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
                           leadersCross(place.tick, end, other))) {
                return;
            }
        }
        place.placed = true;
        place.box = box;
        place.end = end;
    }

    // Two lines from one degree meet there and nowhere else.
    static bool leadersCross(Spot tick, Spot end, const RingPlace& other)
    {
        const bool sameTick =
            std::fabs(tick.x - other.tick.x) + std::fabs(tick.y - other.tick.y) < 1e-6;
        return !sameTick && segmentsCross(tick, end, other.tick, other.end);
    }

    const RingTask& task_;
    double size_;
    std::vector<double> wanted_;
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
    for (const bool crossingAllowed : {false, true}) {
        for (const double scale : scales) {
            if (crossingAllowed && scale > kLargestCrossing && scales.size() > 1) {
                continue;
            }
            size = scale * task.size;
            RingPlacer placer(task, size);
            const bool all = placer.place(crossingAllowed);
            if (all || (crossingAllowed && scale == scales.back())) {
                return placer.places();
            }
        }
    }
    return {};
}

} // namespace kestrav::present
