#include "app/present/TablesOfDays.h"

#include "app/present/EclipseTables.h"
#include "app/present/EphemerisTables.h"
#include "app/present/TransitTables.h"
#include "timing/TransitListing.h"
#include "timing/TransitSearch.h"

#include <vector>

namespace kestrav::present
{

namespace
{

using Made = core::Result<Table>;

// The days of each table when the source names none. Saturn goes round once in the longest.
constexpr int kUsualDays = 30;
constexpr int kYear = 366;
constexpr int kTenYears = 3653;
constexpr int kSaturnDays = 10958;

// The sky and the days of a table.
class Days
{
public:
    Days(const TableSource& source, int usualDays)
        : sky(source.series, source.computed.settings,
              source.computed.chart.hasMoment ? source.computed.chart.zone : 0.0),
          clock(source.computed.chart.hasMoment ? source.computed.chart.zone : 0.0),
          first(timing::civilDayOf(source.moment, clock)),
          count(source.days > 0 ? source.days : usualDays)
    {}

    // The whole days as moments of Universal Time.
    [[nodiscard]] timing::Span span() const
    {
        return {first - clock / 24.0, first - clock / 24.0 + count};
    }

    [[nodiscard]] bool inTables() const
    {
        return timing::isInTables(timing::recordOfDay(first)) &&
               timing::isInTables(timing::recordOfDay(first + count));
    }

    timing::SiderealSky sky;
    double clock;
    double first; ///< 0h of the first civil day
    int count;
};

template <typename Make>
Made ofDays(const TableSource& source, int usualDays, const Make& make)
{
    Days days(source, usualDays);
    if (!days.inTables()) {
        return core::Error{"the days lie outside the years of the ephemeris"};
    }
    return make(days);
}

std::vector<int> bodies(bool withMoon)
{
    std::vector<int> list(core::kBodies.begin(), core::kBodies.end());
    if (!withMoon) {
        std::erase(list, int(core::kMoon));
    }
    return list;
}

std::vector<ShownEclipse> eclipses(const TableSource& source, Days& days)
{
    const core::Chart& chart = source.computed.chart;
    std::vector<ShownEclipse> list;
    for (const timing::Eclipse& eclipse : timing::eclipsesIn(days.sky, days.span())) {
        ShownEclipse shown{eclipse, {}, timing::eclipsedPoints(eclipse, chart)};
        if (source.computed.hasPlace) {
            astro::Observer observer = astro::observerOf(chart);
            observer.clockOffset = days.clock;
            shown.seen = timing::eclipseAtPlace(days.sky, eclipse, observer);
        }
        list.push_back(std::move(shown));
    }
    return list;
}

EclipseClock eclipseClock(const TableSource& source, const Days& days)
{
    return {days.clock, source.computed.settings.twelveHourClock};
}

} // namespace

core::Result<timing::PanchangaDay> panchangaDay(const TableSource& source)
{
    if (!source.computed.chart.hasMoment || !source.computed.hasPlace) {
        return core::Error{"a panchanga needs the moment and the place"};
    }
    timing::Panchanga maker(source.series, source.computed.settings);
    return maker.dayOf(source.computed.chart);
}

Made transitsOfDays(const TableSource& source)
{
    return ofDays(source, kUsualDays, [&](Days& days) {
        const core::Chart& chart = source.computed.chart;
        timing::TransitOptions options;
        // The Moon would fill the list with an event every few hours.
        options.bodies = bodies(false);
        options.targets = bodies(true);
        if (chart.computed(core::kAscendant)) {
            options.targets.insert(options.targets.begin(), core::kAscendant);
        }
        const timing::TransitLineStyle style{timing::TransitMode::Native, options.orbDegrees,
                                             source.computed.settings.twelveHourClock};
        Table table = transitTable(timing::listTransits(days.sky, &chart, options,
                                                        {days.first, days.first + days.count - 1},
                                                        days.clock),
                                   style);
        table.notes.emplace_back(L"The Moon's transits are left out.");
        return table;
    });
}

Made transitKakshyasOfDays(const TableSource& source)
{
    return ofDays(source, kUsualDays, [&](Days& days) {
        std::vector<int> planets = bodies(false);
        std::erase_if(planets, [](int planet) { return planet > core::kSaturn; });
        Table table = kakshyaStaysTable(
            timing::transitKakshyas(days.sky, source.computed.chart, planets, days.span()),
            days.clock, source.computed.settings.twelveHourClock);
        table.notes.emplace_back(L"The Moon's kakshyas are left out.");
        return table;
    });
}

Made sadeSatiOfDays(const TableSource& source)
{
    const core::Chart& chart = source.computed.chart;
    if (!chart.computed(core::kMoon)) {
        return core::Error{"the Moon has no position"};
    }
    return ofDays(source, kSaturnDays, [&](Days& days) {
        return sadeSatiTable(
            timing::sadeSati(days.sky, core::at(chart.rashi, core::kMoon), days.span()), days.clock,
            source.computed.settings.twelveHourClock);
    });
}

Made eclipsesOfDays(const TableSource& source)
{
    return ofDays(source, kTenYears, [&](Days& days) {
        return eclipsesTable(eclipses(source, days), eclipseClock(source, days));
    });
}

Made eclipsedPointsOfDays(const TableSource& source)
{
    return ofDays(source, kTenYears, [&](Days& days) {
        return eclipsedPointsTable(eclipses(source, days), source.computed.chart,
                                   eclipseClock(source, days));
    });
}

Made ephemerisOfDays(const TableSource& source)
{
    return ofDays(source, kUsualDays, [&](Days& days) {
        timing::EphemerisPlan plan;
        plan.first = timing::recordOfDay(days.first);
        plan.last = timing::recordOfDay(days.first + days.count - 1);
        plan.clockOffset = days.clock;
        plan.bodies = bodies(true);
        timing::EphemerisRows walk(days.sky, plan);
        std::vector<timing::EphemerisRow> rows;
        while (std::optional<timing::EphemerisRow> row = walk.next()) {
            rows.push_back(std::move(*row));
        }
        return ephemerisTable(rows, {});
    });
}

Made ephemerisEventsOfDays(const TableSource& source)
{
    return ofDays(source, kYear, [&](Days& days) {
        return ephemerisEventsTable(timing::ephemerisEventsIn(days.sky, bodies(false), days.span()),
                                    days.clock, source.computed.settings.twelveHourClock);
    });
}

Made moonPhasesOfDays(const TableSource& source)
{
    return ofDays(source, kYear, [&](Days& days) {
        return moonPhasesTable(timing::moonPhasesIn(days.sky, days.span()), days.clock,
                               source.computed.settings.twelveHourClock);
    });
}

} // namespace kestrav::present
