#include "timing/DashaQuery.h"

#include <algorithm>

namespace kestrav::timing
{

namespace
{

using Path = std::array<DashaNode, kDashaLevels>;

// The periods running at an age, one of each level; false where there are none. The sums are those
// of the list, so both agree to the last bit.
bool findPath(const DashaPlan& plan, double age, int levels, Path& path)
{
    MahadashaWalk mahadashas(plan);
    if (!(age >= mahadashas.node().start) || age > kLastAge) {
        return false;
    }
    while (!(mahadashas.node().end() > age)) {
        mahadashas.next();
    }
    path[0] = mahadashas.node();
    for (int level = 1; level < levels; ++level) {
        const DashaNode& parent = core::at(path, level - 1);
        DashaNode child = childOf(plan, parent, 0, parent.start);
        for (int number = 1; number < plan.childCount() && !(child.end() > age); ++number) {
            child = childOf(plan, parent, number, child.end());
        }
        core::at(path, level) = child;
    }
    return true;
}

} // namespace

std::optional<DashaPeriod> periodAtAge(const Dasha& dasha, double age, int level)
{
    Path path = {};
    level = std::min(level, kDashaLevels);
    if (level < 1 || !findPath(dasha.plan, age, level, path)) {
        return std::nullopt;
    }
    DashaPeriod period;
    period.level = level;
    for (int i = 0; i < level; ++i) {
        core::at(period.lords, i) = core::at(path, i).lord;
    }
    const DashaNode& node = core::at(path, level - 1);
    period.startAge = node.start;
    period.length = node.length;
    period.startJulianDay = dasha.calendar.julianDayOf(node.start);
    period.kalaChakraRow = node.kalaChakraRow;
    return period;
}

int lordAtAge(const Dasha& dasha, double age, int level, int offset)
{
    Path path = {};
    level = std::min(level, kQueryLevels);
    if (level < 1 || !findPath(dasha.plan, age, level, path)) {
        return kNoLord;
    }
    const DashaNode* const parent = level > 1 ? &core::at(path, level - 2) : nullptr;
    return lordBeside(dasha.plan, parent, core::at(path, level - 1), offset);
}

int lordAtMoment(const Dasha& dasha, double julianDay, int level, int offset)
{
    return lordAtAge(dasha, dasha.calendar.ageAt(julianDay), level, offset);
}

int lordAtMoment(const core::Chart& chart, const core::Settings& settings,
                 const DashaOptions& options, const astro::Series& series, double julianDay,
                 int level, int offset)
{
    const core::Result<Dasha> dasha = dashaOf(chart, settings, options, series);
    return dasha ? lordAtMoment(dasha.value(), julianDay, level, offset) : kNoLord;
}

} // namespace kestrav::timing
