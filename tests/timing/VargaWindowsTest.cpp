#include "timing/VargaWindows.h"
#include "analysis/ComputeChart.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "core/Points.h"
#include "tests/astro/SeriesForTests.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace kestrav::timing
{
namespace
{

constexpr double kSecond = 1.0 / 3600.0; // hours

core::Chart chartOf(double latitude, double longitude, double zone, double localTime,
                    const core::Settings& settings)
{
    core::Chart chart;
    chart.geoLatitude = latitude;
    chart.geoLongitude = longitude;
    chart.zone = zone;
    chart.time.year = 1996;
    chart.time.month = 12;
    chart.time.day = 7;
    chart.time.localTime = localTime;
    astro::EphemerisContext context(tests::seriesForTests());
    analysis::ComputeChart(chart, settings, context);
    return chart;
}

// The sign of a chart cast anew for another moment of the day.
int signAt(core::Chart chart, int varga, double hour, const core::Settings& settings)
{
    const double days = std::floor(hour / 24.0);
    core::addDays(chart.time, int(days));
    chart.time.localTime = hour - 24.0 * days;
    astro::EphemerisContext context(tests::seriesForTests());
    analysis::ComputeChart(chart, settings, context);
    return analysis::divideInVarga(chart, varga, core::kAscendant, settings).sign;
}

TEST(VargaWindows, chartsCastAtTheEndsOfAWindowAgree)
{
    const core::Settings settings;
    const core::Chart chart = chartOf(13.0878, 80.2785, 5.5, 10.0 + 34.0 / 60.0, settings);
    const double birth = chart.time.localTime;
    const VargaWindows windows = vargaWindows(chart, settings);
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        SCOPED_TRACE(varga);
        const VargaWindow& window = core::at(windows, varga);
        EXPECT_EQ(window.varga, varga);
        EXPECT_EQ(window.sign,
                  analysis::divideInVarga(chart, varga, core::kAscendant, settings).sign);
        ASSERT_TRUE(window.begin && window.end);
        EXPECT_LT(*window.begin, birth);
        EXPECT_GT(*window.end, birth);
        // The ayanamsa of the chart is kept; that of another hour moves an end by microseconds.
        EXPECT_NE(signAt(chart, varga, *window.begin - kSecond, settings), window.sign);
        EXPECT_EQ(signAt(chart, varga, *window.begin + kSecond, settings), window.sign);
        EXPECT_EQ(signAt(chart, varga, *window.end - kSecond, settings), window.sign);
        EXPECT_NE(signAt(chart, varga, *window.end + kSecond, settings), window.sign);
        // Nothing between: steps of a quarter of the part's mean time.
        const double step = analysis::partSpan(varga) / 15.0 / 4.0;
        for (double hour = *window.begin + kSecond; hour < *window.end; hour += step) {
            EXPECT_EQ(signAt(chart, varga, hour, settings), window.sign);
        }
    }
    // The rashi ascendant of the example stands for two hours or so, the 144th for under a minute.
    const double rashi = *windows[core::kRashi].end - *windows[core::kRashi].begin;
    EXPECT_GT(rashi, 1.5);
    EXPECT_LT(rashi, 2.5);
    const VargaWindow& smallest = windows[core::kNavaDwadasha];
    EXPECT_LT(*smallest.end - *smallest.begin, 70.0 * kSecond);
}

// Where the ascendant runs fast, turns or stands, a scan in small steps decides.
TEST(VargaWindows, agreeWithAScanAtHighLatitudes)
{
    const core::Settings settings;
    constexpr double kScan = 2.0 * kSecond;
    for (const double latitude : {0.0, -45.0, 64.0, 69.65, -80.0}) {
        for (const double time : {0.1, 7.0, 23.9}) {
            const core::Chart chart = chartOf(latitude, 19.0, 1.0, time, settings);
            const VargaWindows windows = vargaWindows(chart, settings);
            for (const int varga : {core::kRashi, core::kHora, core::kNavamsha, core::kTrimshamsa,
                                    core::kShashtiamsha}) {
                const VargaWindow& window = core::at(windows, varga);
                for (const double direction : {-1.0, 1.0}) {
                    const std::optional<double> found = direction < 0.0 ? window.begin : window.end;
                    const double limit = found.value_or(time + direction * 24.0);
                    // Coarser inside long windows, so that the test stays short.
                    const double length = std::fabs(limit - time);
                    const double step = std::fmax(kScan, length / 400.0);
                    for (double away = 0.0; away < length - kSecond; away += step) {
                        ASSERT_EQ(signAt(chart, varga, time + direction * away, settings),
                                  window.sign)
                            << latitude << ' ' << time << ' ' << varga << ' ' << away;
                    }
                    if (found) {
                        EXPECT_NE(signAt(chart, varga, limit + direction * kSecond, settings),
                                  window.sign)
                            << latitude << ' ' << time << ' ' << varga;
                    }
                }
            }
        }
    }
}

} // namespace
} // namespace kestrav::timing
