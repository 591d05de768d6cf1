#include "analysis/Sahams.h"

#include "tests/analysis/SpecialPointsForTests.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrav::tests
{

namespace
{

using namespace analysis;

struct Row
{
    std::wstring_view name;
    double day;     // the printed day chart
    double asNight; // the same positions taken by night
    double night;   // the printed night chart
};

// Computed from the written formulas by an independent script.
// clang-format off
constexpr std::array<Row, kSahamCount> kRows = {{
    {L"Punya",        68.8400, 198.0600, 283.3100},
    {L"Vidya",       198.0600,  68.8400, 279.5500},
    {L"Yashas",      343.6236,  82.4964, 229.2900},
    {L"Mitra",       216.3392, 285.2120, 299.1300},
    {L"Mahatmya",    137.7806, 359.8994, 266.3000},
    {L"Asha",        193.3187,  73.5813,  23.1800},
    {L"Samartha",     73.5813, 193.3187, 183.7800},
    {L"Bhratri",     258.0855, 258.0855, 120.4500},
    {L"Gaurava",     343.6236,  48.1736, 315.4300},
    {L"Pitri",       241.9295,  24.9705,  66.3800},
    {L"Rajya",       241.9295,  24.9705,  66.3800},
    {L"Matri",        78.5730, 188.3270, 323.2000},
    {L"Putra",       101.1750, 165.7250, 255.4800},
    {L"Jiva",          8.8145, 258.0855, 120.4500},
    {L"Karma",        16.4333, 250.4667, 183.7800},
    {L"Roga",        285.6114, 285.6114, 223.3600},
    {L"Kali",        152.9542, 113.9458,  19.1600},
    {L"Shastra",     141.1616, 251.8906, 166.5100},
    {L"Bandhu",      198.6875,  68.2125, 255.4000},
    {L"Mrityu",      165.6114, 165.6114,  73.3600},
    {L"Paradesha",   295.3739, 295.3739, 276.4300},
    {L"Artha",       142.5219, 142.5219, 253.3600},
    {L"Paradara",    288.7170, 338.1830,  46.5400},
    {L"Vanik",        68.2125, 198.6875, 307.4600},
    {L"Karyasiddhi", 144.6451, 297.4676,  23.3600},
    {L"Vivaha",       15.2375, 251.6625,  66.5900},
    {L"Santapa",     261.5395, 305.3605,  19.5000},
    {L"Shraddha",    240.1062,  26.7938,   3.3400},
    {L"Priti",        40.7716, 244.6194, 233.2300},
    {L"Jadya",       286.6574, 106.3948, 263.7800},
    {L"Vyapara",      73.5813,  73.5813,  23.1800},
    {L"Shatru",       73.5813, 193.3187, 179.6800},
    {L"Jalapatana",  279.0719, 347.8281, 177.8600},
    {L"Bandhana",    242.9119, 224.7681, 329.5500},
    {L"Apamrityu",   217.3906,  49.5094, 253.1800},
    {L"Labha",       337.3906, 337.3906,  39.6800},
}};
// clang-format on

int placeOf(std::wstring_view name)
{
    const auto& names = sahamNames();
    for (int saham = 0; saham < kSahamCount; ++saham) {
        if (core::at(names, saham) == name) {
            return saham;
        }
    }
    ADD_FAILURE() << "no saham " << std::string(name.begin(), name.end());
    return 0;
}

TEST(Sahams, OfThePrintedHoroscopes)
{
    const core::Chart day = printedDayChart();
    const core::Chart night = printedNightChart();
    const auto ofDay = sahams(day);
    const auto ofNight = sahams(night);
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const Row& row = kRows[i];
        SCOPED_TRACE(std::string(row.name.begin(), row.name.end()));
        EXPECT_EQ(sahamNames()[i], row.name);
        EXPECT_NEAR(ofDay[i].value(), row.day, 1e-4);
        EXPECT_NEAR(ofNight[i].value(), row.night, 1e-4);
        EXPECT_NEAR(sahamLongitude(day, int(i), true).value(), row.asNight, 1e-4);
    }
}

TEST(Sahams, OfAPrintedAnnualChartByNight)
{
    constexpr double kMissing = -1.0;
    const core::Chart chart =
        bareChart({280.0 + 49.0 / 60.0, kMissing, 345.0 + 13.0 / 60.0, 354.0 + 58.0 / 60.0,
                   311.0 + 27.0 / 60.0, kMissing, kMissing, 19.0 + 9.0 / 60.0});
    EXPECT_NEAR(sahamLongitude(chart, placeOf(L"Artha"), true).value(), 212.48, 0.005);
    EXPECT_NEAR(sahamLongitude(chart, placeOf(L"Samartha"), true).value(), 335.00, 0.005);
    EXPECT_NEAR(sahamLongitude(chart, placeOf(L"Vanik"), true).value(), 247.05, 0.005);
    // The Sun was not given.
    EXPECT_FALSE(sahamLongitude(chart, placeOf(L"Punya"), true));
    EXPECT_FALSE(sahamLongitude(chart, placeOf(L"Priti"), true));
}

TEST(Sahams, SamarthaWhenMarsOwnsTheAscendant)
{
    // 200 - 40 + 10, and 30 for an ascendant that does not lie between 40 and 200.
    const core::Chart chart = bareChart({10.0, -1.0, -1.0, 40.0, -1.0, 200.0});
    EXPECT_NEAR(sahamLongitude(chart, placeOf(L"Samartha"), false).value(), 200.0, 1e-9);
    EXPECT_NEAR(sahamLongitude(chart, placeOf(L"Samartha"), true).value(), 210.0, 1e-9);
}

TEST(Sahams, TwoBecomePoints)
{
    core::Chart chart = printedDayChart();
    computeSahamPoints(chart, kVivahaSaham, kKarmaSaham);
    EXPECT_NEAR(chart.longitude[core::kSaham2], 15.2375, 1e-4);
    EXPECT_NEAR(chart.longitude[core::kSaham3], 16.4333, 1e-4);
    EXPECT_EQ(chart.rashi[core::kSaham2], 1);
    computeSahamPoints(chart, placeOf(L"Putra"), kSahamCount);
    EXPECT_NEAR(chart.longitude[core::kSaham2], 101.1750, 1e-4);
    EXPECT_FALSE(chart.computed(core::kSaham3));
}

TEST(Sahams, AreChosenByTheNamesOfTheSettings)
{
    core::Settings settings;
    for (int saham = 0; saham < kSahamCount; ++saham) {
        const std::wstring_view name = core::at(sahamNames(), saham);
        const std::string text(name.begin(), name.end());
        ASSERT_TRUE(core::setSetting(settings, "saham2", text)) << text;
        EXPECT_EQ(settings.saham2, saham) << text;
    }
    settings.saham3 = placeOf(L"Artha");
    const core::Chart chart = chartAt(kNewDelhi, 2022, 1, 24, 12.0, settings);
    EXPECT_EQ(chart.longitude[core::kSaham2], sahamLongitude(chart, kSahamCount - 1, false));
    EXPECT_EQ(chart.longitude[core::kSaham3], sahamLongitude(chart, settings.saham3, false));
    EXPECT_EQ(core::Settings{}.saham2, kVivahaSaham);
    EXPECT_EQ(core::Settings{}.saham3, kKarmaSaham);
}

} // namespace

} // namespace kestrav::tests
