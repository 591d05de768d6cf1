// Charts of several kinds, and short ways to read their explanations, for the tests of
// explanations.
#pragma once

#include "analysis/AnalyseChart.h"
#include "analysis/Explain.h"
#include "core/FileText.h"
#include "tests/analysis/SpecialPointsForTests.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kestrav::analysis
{

inline core::Chart analysedFully(core::Chart chart, const core::Settings& settings)
{
    astro::EphemerisContext context(tests::seriesForTests());
    AnalyseChart(chart, settings, context);
    return chart;
}

/// By day in Delhi, by night before sunrise in Bangalore, in the polar night, and two charts of
/// positions only, of which the second lacks the nodes.
inline std::vector<core::Chart> chartsToExplain(const core::Settings& settings = {})
{
    std::vector<core::Chart> charts = {
        tests::chartAt(tests::kNewDelhi, 1990, 6, 15, 14.536, settings),
        tests::chartAt(tests::kBangalore, 1975, 11, 2, 4.25, settings),
        tests::chartAt(tests::kTromso, 2001, 12, 20, 13.0, settings), tests::printedDayChart(),
        tests::printedNightChart()};
    for (core::Chart& chart : charts) {
        chart = analysedFully(chart, settings);
    }
    return charts;
}

/// The explanation of a query that must succeed.
inline Explanation explained(const core::Chart& chart, const std::string& query,
                             const core::Settings& settings = {})
{
    const core::Result<Explanation> result = explain(chart, settings, query);
    EXPECT_TRUE(result.ok()) << query << ": " << (result.ok() ? "" : result.error().message);
    return result.ok() ? result.value() : Explanation{};
}

inline std::string resultOf(const core::Chart& chart, const std::string& query,
                            const core::Settings& settings = {})
{
    return core::toUtf8(explained(chart, query, settings).result);
}

/// All steps as one text, each on its line.
inline std::string stepsOf(const Explanation& explanation)
{
    std::string text;
    for (const std::wstring& step : explanation.steps) {
        text += core::toUtf8(step) + "\n";
    }
    return text;
}

inline std::string stepsOf(const core::Chart& chart, const std::string& query,
                           const core::Settings& settings = {})
{
    return stepsOf(explained(chart, query, settings));
}

inline std::string query(int point, const std::string& result)
{
    return std::to_string(point) + ":" + result;
}

} // namespace kestrav::analysis
