// Charts and conditions written as short texts, for the tests of the catalogue.
#pragma once

#include "analysis/AnalyseChart.h"
#include "analysis/Arudhas.h"
#include "analysis/ComputeChart.h"
#include "analysis/SignPositions.h"
#include "core/Chart.h"
#include "core/NumberText.h"
#include "core/Settings.h"
#include "tests/astro/SeriesForTests.h"
#include "yoga/ParseCondition.h"
#include "yoga/Subject.h"
#include "yoga/YogaRule.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::yoga
{

/// A chart of positions: "Asc 1 Sun 5:10.5 Mar 8R" names points with their sign, their degree in it
/// (15 when none is given), and R for a retrograde one. `divisor` 9 places the points so that their
/// navamshas are what is written.
inline core::Chart chartOf(const std::string& text, const core::Settings& settings = {},
                           double divisor = 1.0)
{
    core::Chart chart;
    chart.hasMoment = false;
    std::istringstream words(text);
    std::string name;
    std::string place;
    while (words >> name >> place) {
        const int point = pointOfShortName(name);
        EXPECT_GE(point, 0) << name;
        const std::size_t colon = place.find(':');
        const int sign = std::stoi(place);
        const double degree =
            colon == std::string::npos ? 15.0 : core::readLeadingNumber(place.substr(colon + 1));
        core::at(chart.longitude, point) = (30.0 * (sign - 1) + degree) / divisor;
        analysis::computeSignData(chart, point);
        if (place.back() == 'R') {
            core::at(chart.retrograde, point) = true;
            core::at(chart.motion, point) = core::Motion::Retrograde;
        }
    }
    analysis::computeArudhaPoints(chart, settings);
    analysis::analyseSigns(chart, settings);
    return chart;
}

inline Condition conditionOf(std::string_view text)
{
    std::vector<std::string> unknown;
    Condition condition = ParseCondition(text, kCatalogueNames, &unknown);
    EXPECT_TRUE(unknown.empty()) << text << ": " << (unknown.empty() ? "" : unknown[0]);
    EXPECT_EQ(conditionProblem(condition), "") << text;
    return condition;
}

/// The truth of a condition on a chart; that of the explanation has to be the same.
inline bool holds(std::string_view text, const core::Chart& chart,
                  const core::Chart* second = nullptr, const core::Settings& settings = {})
{
    Subject subject(settings);
    subject.setChart(chart);
    subject.setSecondChart(second);
    const Condition condition = conditionOf(text);
    const bool truth = testCondition(condition, subject);
    const ConditionResult result = explainCondition(condition, subject);
    EXPECT_EQ(truth, result.truth) << text;
    EXPECT_FALSE(result.reason.empty()) << text;
    return truth;
}

inline std::wstring reason(std::string_view text, const core::Chart& chart)
{
    Subject subject{core::Settings{}};
    subject.setChart(chart);
    return explainCondition(conditionOf(text), subject).reason;
}

/// A whole chart of a random moment between 1900 and 2050 at a random place.
inline core::Chart randomChart(std::mt19937& random, const core::Settings& settings = {})
{
    const auto number = [&](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    core::Chart chart;
    chart.time.year = number(1900, 2050);
    chart.time.month = number(1, 12);
    chart.time.day = number(1, 28);
    chart.time.localTime = number(0, 86399) / 3600.0;
    chart.geoLatitude = number(-55, 55);
    chart.geoLongitude = number(-180, 179);
    chart.zone = number(-11, 11);
    chart.identity.sex = number(0, 1) == 0 ? L"M" : L"F";
    astro::EphemerisContext context(tests::seriesForTests());
    analysis::ComputeChart(chart, settings, context);
    analysis::AnalyseChart(chart, settings, context);
    return chart;
}

} // namespace kestrav::yoga
