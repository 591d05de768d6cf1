#include "timing/Dasha.h"

#include "core/FileText.h"
#include "core/PointNames.h"
#include "timing/KalaChakra.h"
#include "timing/MoolaDasha.h"
#include "timing/NakshatraStart.h"
#include "timing/SignDashas.h"
#include "timing/TithiDasha.h"

#include <optional>
#include <string>

namespace kestrav::timing
{

namespace
{

constexpr int kLongName = 4;

core::Error missing(int point)
{
    return {"no dasha without the position of " + core::toUtf8(core::PointName(kLongName, point))};
}

// The first of the points that has no position, or -1.
int firstMissing(const core::Chart& chart, int first, int last)
{
    for (int point = first; point <= last; ++point) {
        if (!chart.computed(point)) {
            return point;
        }
    }
    return -1;
}

double passedPart(const core::Chart& chart, const core::Settings& settings,
                  const DashaOptions& options, const astro::Series& series, double position)
{
    if (options.fractionByTime && options.startPoint == core::kMoon && chart.hasMoment) {
        const SunAndMoonAt sky(series, settings, chart.zone);
        const std::optional<double> passed = passedByTime(
            sky, chart.time.dayCount + core::kEpoch1900, stretchAt(options.system, position));
        if (passed) {
            return *passed;
        }
    }
    return passedByLongitude(options.system, position);
}

core::Result<DashaPlan> nakshatraPlan(const core::Chart& chart, const core::Settings& settings,
                                      const DashaOptions& options, const astro::Series& series)
{
    if (options.startPoint < core::kAscendant || options.startPoint > kAdhanaStart) {
        return core::Error{"there is no start point " + std::to_string(options.startPoint)};
    }
    const std::optional<double> position = startPosition(chart, options.startPoint);
    if (!position) {
        return missing(options.startPoint > core::kKetu ? int(core::kMoon) : options.startPoint);
    }
    const DashaRow& row = dashaRow(options.system);
    DashaPlan plan;
    plan.count = row.count;
    plan.cycles.fill({row.lords, row.years});
    const double passed = passedPart(chart, settings, options, series, *position);
    if (options.system == kKalaChakra) {
        const KalaChakraStart start = kalaChakraStart(int(*position), passed);
        plan.lordKind = LordKind::Sign;
        plan.division = Division::KalaChakra;
        plan.kalaChakraRow = start.row;
        plan.elapsed = start.elapsed;
        return plan;
    }
    const NakshatraStart start = nakshatraStart(options.system, *position, passed);
    plan.first = start.first;
    // The year's own cycle begins with the whole period of its first lord.
    plan.elapsed = options.system == kAnnualVimshottari ? 0.0 : start.elapsed;
    return plan;
}

// The houses follow each other from the first one on, a year each.
DashaPlan sudarshanaPlan()
{
    const DashaRow& row = dashaRow(kSudarshanaChakra);
    DashaPlan plan;
    plan.lordKind = LordKind::House;
    plan.count = row.count;
    plan.cycles.fill({row.lords, row.years});
    return plan;
}

core::Result<DashaPlan> unfinishedPlan(const core::Chart& chart, const core::Settings& settings,
                                       const DashaOptions& options, const astro::Series& series)
{
    if (startsFromNakshatra(options.system)) {
        return nakshatraPlan(chart, settings, options, series);
    }
    if (options.system == kSudarshanaChakra) {
        return sudarshanaPlan();
    }
    const bool tithi = options.system == kTithiAstottari;
    const int absent = tithi ? firstMissing(chart, core::kSun, core::kMoon)
                             : firstMissing(chart, core::kAscendant, core::kKetu);
    if (absent >= 0) {
        return missing(absent);
    }
    DashaPlan plan;
    if (tithi) {
        fillTithiDasha(chart, plan);
    } else if (options.system == kMoola) {
        fillMoolaDasha(chart, settings, plan);
    } else {
        fillSignDasha(chart, settings, options, plan);
    }
    return plan;
}

} // namespace

core::Result<DashaPlan> dashaPlan(const core::Chart& chart, const core::Settings& settings,
                                  const DashaOptions& options, const astro::Series& series)
{
    if (options.system < 0 || options.system >= kDashaSystems) {
        return core::Error{"there is no dasha system " + std::to_string(options.system)};
    }
    core::Result<DashaPlan> plan = unfinishedPlan(chart, settings, options, series);
    if (plan) {
        plan.value().system = options.system;
        if (!plan.value().finish(chosenCycleYears(options.totalLength))) {
            return core::Error{"the positions give the dasha no length"};
        }
    }
    return plan;
}

core::Result<Dasha> dashaOf(const core::Chart& chart, const core::Settings& settings,
                            const DashaOptions& options, const astro::Series& series)
{
    core::Result<DashaPlan> plan = dashaPlan(chart, settings, options, series);
    if (!plan) {
        return plan.error();
    }
    return Dasha{plan.value(), DashaCalendar::ofBirth(chart, settings, options, series)};
}

} // namespace kestrav::timing
