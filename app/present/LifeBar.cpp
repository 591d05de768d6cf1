#include "app/present/LifeBar.h"

#include "app/present/DashaTables.h"
#include "app/present/TextValues.h"
#include "core/PointNames.h"
#include "timing/SiderealSky.h"

#include <cmath>

namespace kestrav::present
{

namespace
{

constexpr long long kMostPeriods = 5000;
constexpr double kLifeOfYears = 20.0; ///< above this not every year of age is marked
constexpr int kYearsOfTicks = 5;

// The name of a lord where there is hardly room for it.
std::wstring tinyName(timing::LordKind kind, int lord)
{
    switch (kind) {
    case timing::LordKind::Planet:
        return withoutEndBlanks(core::PointName(2, lord));
    case timing::LordKind::Sign:
        return withoutEndBlanks(core::SignName2(lord));
    case timing::LordKind::House:
        break;
    }
    return dashaLordShortName(kind, lord);
}

std::wstring ageText(double age)
{
    return fixedNumber(age, 2);
}

TimeSpan barOf(const timing::Dasha& dasha, const timing::DashaPeriod& period)
{
    const timing::LordKind kind = dasha.plan.lordKind;
    TimeSpan span;
    span.from = period.startJulianDay;
    span.to = dasha.calendar.julianDayOf(period.endAge());
    span.text = period.level == 1 ? dashaLordName(kind, period.lord())
                                  : dashaLordShortName(kind, period.lord());
    span.brief = tinyName(kind, period.lord());
    span.tip = dashaPeriodName(kind, period) + L"\n" + dateText(dasha.calendar.dateOf(span.from)) +
               L" to " + dateText(dasha.calendar.dateOf(span.to)) + L"\nage " +
               ageText(period.startAge) + L" to " + ageText(period.endAge()) + L"\n";
    span.number = period.lord();
    span.about = dashaLordLink(kind, period.lord());
    return span;
}

Lane eventLane(const ComputedChart& computed, const timing::Dasha& dasha)
{
    Lane lane{"event", L"Events", {}};
    int slot = 0;
    for (const core::LifeEvent& event : computed.chart.identity.events) {
        ++slot;
        const std::optional<double> moment = momentOfEvent(computed.chart, event);
        if (!moment) {
            continue;
        }
        TimeSpan mark;
        mark.from = *moment;
        mark.to = *moment;
        mark.text = event.name;
        mark.tip = event.name + L"\n" + dateText(dasha.calendar.dateOf(*moment)) + L"\nage " +
                   ageText(dasha.calendar.ageAt(*moment)) + L"\n";
        mark.area = ColourRole::Favourable;
        mark.number = slot;
        mark.about = {Subject::Moment, 0, 0, *moment};
        lane.spans.push_back(std::move(mark));
    }
    return lane;
}

} // namespace

std::optional<double> momentOfEvent(const core::Chart& chart, const core::LifeEvent& event)
{
    if (!event.usable() || !core::dateExists(event.date.year, event.date.month, event.date.day)) {
        return std::nullopt;
    }
    core::DateTimeRecord record;
    record.year = event.date.year;
    record.month = event.date.month;
    record.day = event.date.day;
    return timing::julianDayOf(record, chart.zone) + event.hours / 24.0;
}

core::Result<StripModel> lifeBar(const ComputedChart& computed, const timing::Dasha& dasha,
                                 std::optional<double> cursor, double years)
{
    if (!computed.chart.hasMoment) {
        return core::Error{"a chart of bare positions has ages, but no dates"};
    }
    StripModel model;
    model.title = dashaSystemName(dasha.plan.system);
    model.from = dasha.calendar.julianDayOf(0.0);
    model.to = dasha.calendar.julianDayOf(years);
    model.cursor = cursor;
    model.lanes = {{"dasha", L"Dasha", {}}, {"sub-dasha", L"Sub-period", {}}};
    const timing::DashaSpan span{2, 0.0, years, kMostPeriods};
    for (const timing::DashaPeriod& period : timing::DashaList(dasha, span)) {
        model.lanes[std::size_t(period.level - 1)].spans.push_back(barOf(dasha, period));
    }
    if (Lane events = eventLane(computed, dasha); !events.spans.empty()) {
        model.lanes.push_back(std::move(events));
    }
    const int step = years > kLifeOfYears ? kYearsOfTicks : 1;
    for (int age = 0; age <= int(std::floor(years)); age += step) {
        model.ticks.push_back({dasha.calendar.julianDayOf(age), std::to_wstring(age)});
    }
    return model;
}

} // namespace kestrav::present
