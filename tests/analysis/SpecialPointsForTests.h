// The two printed horoscopes as bare positions, and computed charts with their special points.
#pragma once

#include "analysis/ComputeChart.h"
#include "analysis/SpecialPoints.h"
#include "tests/analysis/AnalysisCharts.h"
#include "tests/astro/SeriesForTests.h"

#include <vector>

namespace kestrav::tests
{

/// A chart of which only positions are known: points 0, 1, 2 ..., a negative one being missing.
inline core::Chart bareChart(const std::vector<double>& longitudes)
{
    core::Chart chart = analysis::chartOf(longitudes);
    chart.hasMoment = false;
    return chart;
}

/// Printed horoscope of 1918 October 16, by day.
inline core::Chart printedDayChart()
{
    core::Chart chart = analysis::printedHoroscope();
    chart.hasMoment = false;
    return chart;
}

/// Printed horoscope of 1981 September 13, by night; the nodes are not printed.
inline core::Chart printedNightChart()
{
    return bareChart({86.43, 146.38, 309.50, 103.18, 170.53, 170.45, 186.27, 166.43});
}

struct PlaceForTests
{
    double geoLongitude;
    double geoLatitude;
    double zone;
};

inline constexpr PlaceForTests kNewDelhi = {77.209, 28.6139, 5.5};
inline constexpr PlaceForTests kBangalore = {77.5833, 13.0, 5.17222};
inline constexpr PlaceForTests kTromso = {18.95, 69.65, 1.0};

/// A chart computed from its birth data, special points included.
inline core::Chart chartAt(const PlaceForTests& place, int year, int month, int day, double hour,
                           const core::Settings& settings = {})
{
    core::Chart chart;
    chart.time.year = year;
    chart.time.month = month;
    chart.time.day = day;
    chart.time.localTime = hour;
    chart.geoLongitude = place.geoLongitude;
    chart.geoLatitude = place.geoLatitude;
    chart.zone = place.zone;
    astro::EphemerisContext context(seriesForTests());
    analysis::ComputeChart(chart, settings, context);
    analysis::computeSpecialPoints(chart, settings, context);
    return chart;
}

} // namespace kestrav::tests
