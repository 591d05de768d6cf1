// Charts for the tests of diagrams.
#pragma once

#include "app/present/Diagram.h"
#include "tests/analysis/AnalysisCharts.h"

#include <cstdint>
#include <random>
#include <vector>

namespace kestrav::present
{

/// A number from 0 to under 1 that is the same with every standard library.
inline double share(std::mt19937& random)
{
    return double(random()) / 4294967296.0;
}

/// Points 0 to 9 and 32 to 34 anywhere, or crowded into a stretch of the zodiac; some retrograde,
/// some combust. Only what a diagram of the rashi reads is filled.
inline core::Chart chartForFitting(std::mt19937& random)
{
    core::Chart chart;
    const double span = random() % 3 == 0 ? 1.0 + 40.0 * share(random) : 360.0;
    const double start = 360.0 * share(random);
    for (int point = core::kAscendant; point <= core::kPluto; ++point) {
        if (point > core::kKetu && point < core::kUranus) {
            continue;
        }
        analysis::place(chart, point, std::fmod(start + span * share(random), 360.0));
        core::at(chart.retrograde, point) = random() % 3 == 0;
        core::at(chart.combust, point) = random() % 4 == 0;
    }
    return chart;
}

/// A chart with everything that follows from its longitudes.
inline core::Chart analysedChart(const std::vector<double>& longitudes,
                                 const core::Settings& settings)
{
    core::Chart chart = analysis::chartOf(longitudes);
    for (const int node : {core::kRahu, core::kKetu}) {
        core::at(chart.retrograde, node) = true;
    }
    analysis::analyse(chart, settings);
    return chart;
}

/// The printed horoscope of 1918 October 16 with a name and a place.
inline core::Chart namedChart(const core::Settings& settings)
{
    core::Chart chart = analysedChart({298.45, 180.8986, 311.2886, 229.5094, 181.5261, 84.0136,
                                       171.1656, 124.3781, 234.3964, 54.3964},
                                      settings);
    chart.name = L"Horoscope of 1918";
    chart.place = L"Bangalore, India";
    chart.time.year = 1918;
    chart.time.month = 10;
    chart.time.day = 16;
    chart.time.localTime = 14.0 + 20.0 / 60.0;
    return chart;
}

/// The ascendant and nine planets within a sign.
inline core::Chart crowdedChart(const core::Settings& settings)
{
    return analysedChart({95.0, 92.3, 99.9, 93.1, 101.5, 112.2, 118.1, 104.9, 96.2, 97.5},
                         settings);
}

} // namespace kestrav::present
