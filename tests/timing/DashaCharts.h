// Births whose dashas are printed, and the short way from one of them to a dasha.
#pragma once

#include "analysis/ComputeChart.h"
#include "tests/astro/SeriesForTests.h"
#include "timing/Dasha.h"
#include "timing/DashaWalk.h"

#include <gtest/gtest.h>

#include <vector>

namespace kestrav::timing
{

struct BirthForTests
{
    int year;
    int month;
    int day;
    double hour;
    double zone;
    double latitude;
    double longitude;
};

/// Hours of a clock time.
constexpr double clock(double hours, double minutes, double seconds = 0.0)
{
    return hours + minutes / 60.0 + seconds / 3600.0;
}

/// The chart of which most examples are worked out.
inline constexpr BirthForTests kBirthE = {1996, 12, 7, clock(10, 34), 5.5, 13.0878, 80.2785};

inline core::Chart chartOfBirth(const BirthForTests& birth, const core::Settings& settings = {})
{
    core::Chart chart;
    chart.time.year = birth.year;
    chart.time.month = birth.month;
    chart.time.day = birth.day;
    chart.time.localTime = birth.hour;
    chart.zone = birth.zone;
    chart.geoLatitude = birth.latitude;
    chart.geoLongitude = birth.longitude;
    astro::EphemerisContext context(tests::seriesForTests());
    analysis::ComputeChart(chart, settings, context);
    return chart;
}

inline const core::Chart& chartE()
{
    static const core::Chart kChart = chartOfBirth(kBirthE);
    return kChart;
}

inline DashaOptions optionsOf(int system)
{
    DashaOptions options;
    options.system = system;
    return options;
}

/// The dasha of a chart; a failure is reported and gives an empty one.
inline Dasha dashaFor(const core::Chart& chart, const DashaOptions& options,
                      const core::Settings& settings = {})
{
    core::Result<Dasha> dasha = dashaOf(chart, settings, options, tests::seriesForTests());
    EXPECT_TRUE(dasha.ok()) << dasha.error().text();
    return dasha.ok() ? dasha.value() : Dasha{};
}

inline Dasha dashaFor(const core::Chart& chart, int system)
{
    return dashaFor(chart, optionsOf(system));
}

inline std::vector<DashaPeriod> periodsOf(const Dasha& dasha, const DashaSpan& span)
{
    std::vector<DashaPeriod> periods;
    for (const DashaPeriod& period : DashaList(dasha, span)) {
        periods.push_back(period);
    }
    return periods;
}

inline std::vector<DashaPeriod> mahadashas(const Dasha& dasha, int count)
{
    DashaSpan span;
    span.levels = 1;
    span.startAge = -200.0;
    span.budget = count;
    return periodsOf(dasha, span);
}

/// A lord and the years of its period.
struct LordAndYears
{
    int lord;
    double years;

    bool operator==(const LordAndYears&) const = default;
};

inline void PrintTo(const LordAndYears& entry, std::ostream* out)
{
    *out << entry.lord << ": " << entry.years;
}

inline std::vector<LordAndYears> lordsAndYears(const Dasha& dasha, int count)
{
    std::vector<LordAndYears> list;
    for (const DashaPeriod& period : mahadashas(dasha, count)) {
        list.push_back({period.lord(), period.length});
    }
    return list;
}

inline constexpr int kAllSystems[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12,
                                      13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24};

} // namespace kestrav::timing
