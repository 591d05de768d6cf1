#include "analysis/AspectTable.h"

#include "analysis/Aspects.h"
#include "analysis/BhavaBala.h"
#include "analysis/SignStrength.h"
#include "core/Angles.h"
#include "core/SignData.h"

#include <optional>

namespace kestrav::analysis
{

namespace
{

using core::at;

// What is aspected.
struct Target
{
    int point = 0;
    int sign = 0;
    std::optional<double> longitude;
};

std::optional<Target> houseTarget(const core::Chart& chart, int house)
{
    const int point = core::cuspPoint(house);
    if (const std::optional<double> middle = houseMiddle(chart, house)) {
        return Target{point, core::signOfLongitude(*middle), middle};
    }
    if (chart.computed(core::kAscendant)) {
        return Target{point, core::norm12(chart.rashi[core::kAscendant] + house - 1), {}};
    }
    return std::nullopt;
}

std::optional<Target> targetAt(const core::Chart& chart, int point)
{
    if (point >= core::kCusp1 && point <= core::kCusp12) {
        return houseTarget(chart, point - core::kCusp1 + 1);
    }
    if (!chart.computed(point)) {
        return std::nullopt;
    }
    return Target{point, at(chart.rashi, point), at(chart.longitude, point)};
}

Aspect aspectOn(const core::Chart& chart, int from, const Target& target,
                const core::Settings& settings)
{
    Aspect aspect;
    aspect.from = from;
    aspect.to = target.point;
    aspect.graha = fullyAspects(chart, from, target.sign, settings);
    aspect.rashi = signAspects(at(chart.rashi, from), target.sign);
    if (from <= core::kSaturn && target.longitude) {
        aspect.value = aspectValueOn(chart, from, *target.longitude);
    }
    return aspect;
}

} // namespace

std::optional<Aspect> aspectOnPoint(const core::Chart& chart, int from, int to,
                                    const core::Settings& settings)
{
    const std::optional<Target> target = targetAt(chart, to);
    if (!target || !chart.computed(from)) {
        return std::nullopt;
    }
    return aspectOn(chart, from, *target, settings);
}

std::vector<Aspect> bodyAspects(const core::Chart& chart, const core::Settings& settings)
{
    std::vector<Aspect> aspects;
    for (int from = core::kSun; from <= core::kKetu; ++from) {
        for (int to = core::kSun; to <= core::kKetu; ++to) {
            const std::optional<Aspect> aspect = aspectOnPoint(chart, from, to, settings);
            if (from != to && aspect) {
                aspects.push_back(*aspect);
            }
        }
    }
    return aspects;
}

std::vector<Aspect> houseAspects(const core::Chart& chart, const core::Settings& settings)
{
    std::vector<Aspect> aspects;
    for (int from = core::kSun; from <= core::kKetu; ++from) {
        for (int house = 1; house <= 12; ++house) {
            if (const auto aspect = aspectOnPoint(chart, from, core::cuspPoint(house), settings)) {
                aspects.push_back(*aspect);
            }
        }
    }
    return aspects;
}

} // namespace kestrav::analysis
