// Comparisons, events, tried birth times and the heat table.
#include "analysis/Dignities.h"
#include "app/present/CompareTables.h"
#include "app/present/DignityTables.h"
#include "app/present/EventTables.h"
#include "app/present/LifeBar.h"
#include "core/Angles.h"
#include "core/PointNames.h"
#include "tests/present/WorkingCharts.h"
#include "timing/DashaQuery.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cmath>

namespace kestrav::present
{

namespace
{

using core::at;

std::size_t columnNamed(const Table& table, std::wstring_view heading)
{
    return std::size_t(
        std::find_if(table.columns.begin(), table.columns.end(),
                     [&](const Column& column) { return column.heading == heading; }) -
        table.columns.begin());
}

ComputedChart delhiAt(double localTime)
{
    ComputedChart computed = delhiChart();
    computed.chart.time.localTime = localTime;
    astro::EphemerisContext context(tests::seriesForTests());
    computeFromBirthData(computed, context);
    return computed;
}

} // namespace

TEST(CompareTables, PositionsFallInTheHousesOfTheOtherChart)
{
    const ComputedChart one = delhiChart();
    // Two hours later the ascendant is in Libra; the Moon is still in Aquarius.
    const ComputedChart other = delhiAt(16.5);
    ASSERT_EQ(at(other.chart.rashi, core::kAscendant), 7);
    const Table table = positionsInChart(one.chart, other.chart);
    const Row& mars = *rowOf(table, L"Mars"); // in Pisces
    EXPECT_EQ(mars[2].text, L"6");
    EXPECT_EQ(mars[3].text, L"2");
    const Row& ascendant = *rowOf(table, L"Ascendant"); // in Virgo
    EXPECT_EQ(ascendant[2].text, L"12");
    EXPECT_EQ(rowOf(positionsInChart(other.chart, one.chart), L"Ascendant")->at(2).text, L"2");
    EXPECT_NE(rowOf(table, L"Jupiter")->at(4).text.find(L"Sun"), std::wstring::npos);
    ComputedChart bare = other;
    at(bare.chart.degreeInSign, core::kAscendant) = core::kNotComputed;
    EXPECT_EQ(rowOf(positionsInChart(one.chart, bare.chart), L"Mars")->at(2).text, L"--");
}

TEST(CompareTables, DifferencesAreExactlyWhatChanges)
{
    const ComputedChart one = delhiChart();
    const double moment = 2457350.0;
    const Table same = differencesTable(one, one, tests::seriesForTests(), moment);
    EXPECT_TRUE(same.rows.empty());
    EXPECT_EQ(same.notes.size(), 1U);

    core::Settings settings = one.settings;
    settings.ayanamsaRow = 2; // a degree and a half from that of row 1
    settings.dashaSystem = 1;
    const ComputedChart other = delhiChart(settings);
    const Table table = differencesTable(one, other, tests::seriesForTests(), moment);
    std::size_t signs = 0;
    std::size_t navamshas = 0;
    std::size_t changed = 0;
    for (const Row& row : table.rows) {
        EXPECT_NE(row[2].text, row[3].text);
        signs += row[1].text == L"Sign" ? 1U : 0U;
        navamshas += row[1].text == L"Navamsha" ? 1U : 0U;
    }
    std::size_t changedSigns = 0;
    for (const int point : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 32, 33, 34}) {
        changedSigns += at(one.chart.rashi, point) != at(other.chart.rashi, point) ? 1U : 0U;
        changed += at(at(one.chart.vargas, core::kNavamsha), point).sign !=
                           at(at(other.chart.vargas, core::kNavamsha), point).sign
                       ? 1U
                       : 0U;
    }
    EXPECT_EQ(signs, changedSigns);
    EXPECT_EQ(navamshas, changed);
    EXPECT_GT(changed, 0U);
    // Another system has other lords in 2015.
    EXPECT_EQ(table.rows.back()[0].text, L"Dasha");
}

TEST(EventTables, EventsHaveTheirDashasAndTransits)
{
    const ComputedChart computed = delhiChart();
    const Table table = eventTransitsTable(computed, tests::seriesForTests());
    ASSERT_EQ(table.rows.size(), 2U);
    const Row& wedding = table.rows[1];
    EXPECT_EQ(wedding[0].text, L"2015-11-23");
    EXPECT_EQ(wedding[1].text, L"Wedding");
    // Saturn until 2025, Venus in it until June 2016.
    EXPECT_EQ(wedding[2].text, L"Saturn");
    EXPECT_EQ(wedding[3].text, L"Venus");
    // 2015 November 23: the Sun in Scorpio, Jupiter in Leo, Saturn in Scorpio, Rahu in Virgo; the
    // ascendant is Virgo and the Moon in Aquarius.
    EXPECT_EQ(wedding[columnNamed(table, L"Sun")].text, L"Sco 3/10");
    EXPECT_EQ(wedding[columnNamed(table, L"Jupiter")].text, L"Leo 12/7");
    EXPECT_EQ(wedding[columnNamed(table, L"Saturn")].text, L"Sco 3/10");
    EXPECT_EQ(wedding[columnNamed(table, L"Rahu")].text, L"Virg 1/8");

    const Table sky = skyTable(computed, tests::seriesForTests(), wedding[0].link.moment);
    EXPECT_EQ(rowOf(sky, L"Jupiter")->at(2).text, L"12");
    EXPECT_EQ(sky.rows.size(), core::kBodies.size());

    ComputedChart bare = computed;
    bare.chart.hasMoment = false;
    EXPECT_TRUE(eventTransitsTable(bare, tests::seriesForTests()).explainsItsEmptiness());
}

TEST(EventTables, TriedTimesAreChartsOfThoseTimes)
{
    const ComputedChart computed = delhiChart();
    // 14:32:10 and twelve steps of an hour to both sides, across midnight.
    const TrialTables tables = trialTables(computed, tests::seriesForTests(), {12, 3600.0, 3});
    ASSERT_EQ(tables.ascendants.rows.size(), 25U);
    ASSERT_EQ(tables.ascendants.columns.size(), 3U + core::kVargaCount);
    ASSERT_EQ(tables.lords.columns.size(), 4U);
    const Row& given = tables.ascendants.rows[12];
    EXPECT_EQ(given[0].text, L"0:00");
    EXPECT_EQ(given[1].text, L"14:32:10");
    EXPECT_EQ(given[3].text, L"Vg");
    const double local = computed.chart.time.localTime;
    for (const int step : {-12, -1, 1, 9}) {
        const Row& row = tables.ascendants.rows[std::size_t(12 + step)];
        const ComputedChart trial = delhiAt(local + step);
        EXPECT_NEAR(*row[2].sortKey, at(trial.chart.longitude, core::kAscendant), 1e-6) << step;
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            const int sign = at(at(trial.chart.vargas, varga), core::kAscendant).sign;
            const Cell& cell = row[3 + std::size_t(varga)];
            EXPECT_EQ(cell.link.index, sign);
            EXPECT_EQ(cell.text.back() == L'*', sign != given[3 + std::size_t(varga)].link.index);
        }
    }
    EXPECT_EQ(tables.ascendants.rows.front()[0].text, L"-720:00");
    EXPECT_EQ(tables.ascendants.rows.back()[1].text, L"2:32:10");
    // An hour of the Moon is a good month of Saturn's dasha: the third level at the wedding moves.
    // Venus in Saturn begins in April 2013 and lasts 1157 days, 925 of them to the end of Saturn.
    EXPECT_EQ(tables.lords.rows[12][3].text, L"Sat-Ven-Mer");
    EXPECT_NE(tables.lords.rows[0][3].text, tables.lords.rows[12][3].text);
    // The Moon's dasha at birth does not feel a second.
    const TrialTables close = trialTables(computed, tests::seriesForTests(), {1, 1.0, 2});
    EXPECT_EQ(close.lords.rows[0][3].text, L"Sat-Ven");
    // It is stopped between two times.
    std::size_t tried = 0;
    std::atomic<bool> stop = false;
    data::LongWork work;
    work.cancel = &stop;
    work.progress = [&](std::size_t done, std::size_t total) {
        EXPECT_EQ(total, 201U);
        tried = done;
        stop = done == 3;
    };
    EXPECT_TRUE(trialTables(computed, tests::seriesForTests(), {100, 60.0, 3}, work)
                    .ascendants.rows.empty());
    EXPECT_EQ(tried, 3U);
    ComputedChart nowhere = computed;
    nowhere.hasPlace = false;
    EXPECT_TRUE(
        trialTables(nowhere, tests::seriesForTests(), {}).ascendants.explainsItsEmptiness());
}

TEST(HeatTable, ShadesFollowTheDignities)
{
    const ComputedChart computed = delhiChart();
    const Table table = heatTable(computed);
    ASSERT_EQ(table.rows.size(), 20U);
    for (int varga = 0; varga < core::kScoredVargas; ++varga) {
        for (int point = core::kSun; point <= core::kKetu; ++point) {
            const Cell& cell = table.rows[std::size_t(varga)][1 + std::size_t(point)];
            const int sign = at(at(computed.chart.vargas, varga), point).sign;
            const int code =
                analysis::vargaDignity(computed.chart, point, sign, varga, computed.settings);
            const bool cancelled =
                varga == core::kRashi && code == analysis::kDebilitated &&
                analysis::debilitationCancelledBy(computed.chart, point, computed.settings) != 0;
            EXPECT_EQ(cell.shade, cancelled ? 0 : code) << varga << " " << point;
        }
    }
    for (std::size_t set = 16; set < 20; ++set) {
        for (std::size_t planet = 2; planet < 9; ++planet) {
            const Cell& cell = table.rows[set][planet];
            EXPECT_EQ(cell.shade, *cell.sortKey < 5.0    ? -2
                                  : *cell.sortKey < 10.0 ? -1
                                  : *cell.sortKey < 15.0 ? 1
                                                         : 3);
        }
        EXPECT_FALSE(table.rows[set][10].shade);
    }
}

} // namespace kestrav::present
