#include "data/ResearchDatabase.h"

#include "analysis/SignPositions.h"
#include "core/DisplayFlags.h"
#include "data/BirthTexts.h"
#include "data/CheckDatabaseLine.h"
#include "data/DatabaseMessages.h"
#include "data/DecimalText.h"
#include "data/ResearchLabels.h"
#include "data/ResearchLine.h"
#include "data/ResearchRebuild.h"
#include "tests/astro/SeriesForTests.h"
#include "tests/data_floor/Folders.h"
#include "tests/data_floor/PreparedMessages.h"
#include "tests/data_floor/Records.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace kestrav::data
{
namespace
{

namespace fs = std::filesystem;
using core::Answer;

// A chart of positions that are easy to write down: point i of the line at 30 i + i / 2 degrees.
core::Chart plainChart()
{
    core::Chart chart;
    chart.name = L"Mira";
    chart.identity.label = L"label";
    chart.identity.sex = L"F";
    for (std::size_t i = 0; i < kResearchPoints.size(); ++i) {
        core::at(chart.longitude, kResearchPoints[i]) = std::fmod(30.5 * double(i), 360.0);
        core::at(chart.speed, kResearchPoints[i]) = 0.25 * double(i);
    }
    chart.motion[core::kMars] = core::Motion::Retrograde;
    chart.motion[core::kMercury] = core::Motion::Station;
    chart.motion[core::kJupiter] = core::Motion::Direct;
    chart.motion[core::kVenus] = core::Motion::Fast;
    chart.longitude[core::kGulika] = 100.51;
    analysis::computeSignData(chart, core::kGulika);
    chart.ayanamsa = 23.5;
    chart.geoLongitude = 77.25;
    chart.geoLatitude = -8.5;
    chart.localSiderealTime = 3.125;
    chart.midheaven = 271.0625;
    chart.time.localTime = 14.25;
    chart.sunrise = 6.5;
    chart.zone = 5.5;
    chart.daylightSaving = 1;
    chart.time.dayCount = 27456.75;
    return chart;
}

TEST(ResearchLine, WritesTheExactFields)
{
    EXPECT_EQ(FormatResearchLine(plainChart()),
              // The Sun at 30.5 sidereal is at 54 tropical.
              "Mira\t \tlabel\t2\t"
              "1\t2\t3\t4\t5\t6\t7\t8\t9\t10\t11\t12\t1\t"
              "1\t10\t7\t4\t1\t10\t7\t5\t2\t11\t8\t5\t2\t"
              "1\t3\t5\t7\t10\t12\t14\t17\t19\t21\t23\t26\t1\t"
              "0.000000\t30.500000\t61.000000\t91.500000\t122.000000\t152.500000\t183.000000\t"
              "213.500000\t244.000000\t274.500000\t305.000000\t335.500000\t6.000000\t"
              "0.250000\t0.500000\t0.750000\t1.000000\t1.250000\t1.500000\t1.750000\t2.500000\t"
              "2.750000\t3.000000\t"
              "R\tM\tD\tF\t \t \t \t \t \t \t"
              "4\t6030\t23.500000\tF\t77.250000\t-8.500000\t 8S30' 0\"\t 77E15' 0\"\t3.125000\t"
              "271.062500\t14.250000\t6.500000\t-1.000000\t5.500000\t1.000000\t27456.750000\t \t");
}

TEST(ResearchLine, FastDecimalsAreThoseOfTheFormat)
{
    constexpr unsigned kSeed = 9;
    RandomRecords numbers(kSeed);
    std::vector<double> values = {0.0,       -0.0,        0.0000005, 0.0000015, 0.5,
                                  1.0000005, 359.9999995, 2.5e-7,    1e8,       123456789.9999999,
                                  1e9,       1e300,       -1e-9,     0.9999999, 1e-300};
    for (int i = 0; i < 20000; ++i) {
        values.push_back(numbers.whole(-360'000'000, 360'000'000) / 1.0e6);
        values.push_back(numbers.whole(-360'000'000, 360'000'000) / 0.77e6);
        values.push_back((2 * numbers.whole(0, 1 << 29) + 1) / 128.0 / 15625.0);
    }
    for (const double value : values) {
        std::string fast;
        appendSixDecimals(fast, value);
        EXPECT_EQ(fast, fixedDecimals(value, 6));
        if (testing::Test::HasFailure()) {
            break;
        }
    }
}

TEST(ResearchLine, WithoutSunriseThereIsNoGulika)
{
    core::Chart written = plainChart();
    written.degreeInSign[core::kGulika] = core::kNotComputed;
    const std::string line = FormatResearchLine(written);
    EXPECT_EQ(researchField(line, 76), "0");
    EXPECT_EQ(researchField(line, 77), "-1");
    core::Chart chart;
    ASSERT_TRUE(ParseResearchLine(line, chart));
    EXPECT_FALSE(chart.computed(core::kGulika));
    ASSERT_TRUE(ParseResearchLine(FormatResearchLine(plainChart()), chart));
    EXPECT_TRUE(chart.computed(core::kGulika));
}

TEST(ResearchLine, ReadsBackWhatItHolds)
{
    const core::Chart written = plainChart();
    const std::string line = FormatResearchLine(written);
    EXPECT_EQ(std::count(line.begin(), line.end(), '\t'), 93);
    core::Chart chart;
    ASSERT_TRUE(ParseResearchLine(line, chart));
    EXPECT_EQ(chart.name, L"Mira");
    EXPECT_EQ(chart.identity.sex, L"F");
    for (const int point : kResearchPoints) {
        EXPECT_EQ(core::at(chart.longitude, point), core::at(written.longitude, point));
        EXPECT_TRUE(chart.computed(point));
    }
    EXPECT_EQ(chart.rashi[core::kPluto], 1);
    EXPECT_EQ(chart.speed[core::kPluto], 3.0);
    EXPECT_EQ(chart.speed[core::kRahu], 0.0);
    EXPECT_EQ(chart.motion[core::kMars], core::Motion::Retrograde);
    EXPECT_EQ(chart.motion[core::kMercury], core::Motion::Retrograde) << "an M too";
    EXPECT_EQ(chart.motion[core::kJupiter], core::Motion::Direct);
    EXPECT_EQ(chart.motion[core::kVenus], core::Motion::None);
    EXPECT_EQ(chart.longitude[core::kGulika], 100.5) << "whole minutes";
    EXPECT_EQ(chart.geoLatitude, -8.5);
    EXPECT_EQ(chart.identity.longitudeText, L" 77E15' 0\"");
    EXPECT_EQ(chart.midheaven, 271.0625);
    EXPECT_EQ(chart.sunrise, 6.5);
    EXPECT_EQ(chart.sunset, std::nullopt);
    EXPECT_EQ(chart.daylightSaving, 1);
    EXPECT_EQ(chart.time.dayCount, 27456.75);
}

TEST(ResearchLine, EveryFieldIsNeeded)
{
    const std::string line = FormatResearchLine(plainChart());
    core::Chart chart;
    for (std::size_t length = 0; length < line.size(); ++length) {
        ASSERT_FALSE(ParseResearchLine(line.substr(0, length), chart)) << length;
    }
    EXPECT_TRUE(ParseResearchLine(line, chart));
    EXPECT_TRUE(ParseResearchLine(line + "more", chart));
    EXPECT_FALSE(ParseResearchLine(lineOf("Mira"), chart));
    EXPECT_EQ(researchField(line, 0), "Mira");
    EXPECT_EQ(researchField(line, kLongitudeFields + 1), "30.500000");
    EXPECT_EQ(researchField(line, 92), " ");
    EXPECT_EQ(researchField(line, 93), "");
}

TEST(ResearchLine, RoundingDoesNotMoveAPointToAnotherSign)
{
    core::Chart chart = plainChart();
    core::Chart read;
    for (const double longitude :
         {359.9999999, 29.9999999, 30.0, 13.3333330, 13.3333334, 26.6666667,
          std::nextafter(360.0, 0.0), std::nextafter(120.0, 0.0), 0.0}) {
        SCOPED_TRACE(longitude);
        chart.longitude[core::kMoon] = longitude;
        ASSERT_TRUE(ParseResearchLine(FormatResearchLine(chart), read));
        EXPECT_NEAR(read.longitude[core::kMoon], longitude, 1.0e-6);
        EXPECT_LT(read.longitude[core::kMoon], 360.0);
        EXPECT_EQ(read.rashi[core::kMoon], int(longitude / 30.0) + 1);
        EXPECT_EQ(std::floor(read.nakshatraPosition[core::kMoon]), std::floor(longitude * 0.075));
        EXPECT_EQ(read.navamshaSign[core::kMoon], int(std::floor(longitude * 0.3)) % 12 + 1);
        // What was read back is written with the same numbers.
        EXPECT_EQ(researchField(FormatResearchLine(read), kSignFields + 2),
                  researchField(FormatResearchLine(chart), kSignFields + 2));
    }
    // A line whose parts contradict each other is believed in its longitude.
    std::string line = FormatResearchLine(chart);
    line.replace(line.find("\t1\t2\t"), 5, "\t7\t-99999999999\t");
    ASSERT_TRUE(ParseResearchLine(line, read));
    EXPECT_EQ(read.rashi[core::kAscendant], 1);
}

// A database of random records whose dates are computable.
ChartDatabase randomDatabase(int count)
{
    RandomRecords records(5);
    ChartDatabase database;
    for (int i = 0; i < count; ++i) {
        core::Chart chart = records.record();
        chart.time.year = records.whole(1850, 2050);
        chart.time.day = records.whole(1, 28);
        chart.geoLatitude = records.whole(-89 * 60, 89 * 60) / 60.0;
        database.add(chart);
    }
    return database;
}

std::optional<ResearchLines> rebuild(ChartDatabase& database, core::Messages& messages,
                                     const LongWork& work = {})
{
    return rebuildResearch(database, core::Settings(), tests::seriesForTests(), messages, work);
}

TEST(ResearchRebuild, ThreadsAndTheWalkOverLinesAgree)
{
    ChartDatabase database = randomDatabase(150);
    LineParts bare;
    bare.order = "\"\"/0/0/0";
    // Each of these flips the order for those after it.
    for (const char* date : {"5/6/1960", "5/13/1960", "5/6/1960", "13/13/1960", "5/6/1960"}) {
        bare.date = date;
        database.addLine(bare.line());
    }
    database.addLine("short");
    database.addLine(lineOf("Last"));

    PreparedMessages messages({Answer::Ok, Answer::Ok, Answer::Ok});
    ChartDatabase first = database;
    std::size_t last = 0;
    const std::optional<ResearchLines> one =
        rebuild(first, messages, {[&](std::size_t done, std::size_t) { last = done; }, nullptr, 1});
    ChartDatabase second = database;
    const std::optional<ResearchLines> three = rebuild(second, messages, {{}, nullptr, 3});
    ASSERT_TRUE(one && three);
    EXPECT_EQ(last, database.size());
    EXPECT_EQ(*one, *three);
    EXPECT_EQ(one->size(), database.size());
    EXPECT_EQ(one->at(database.size() - 2), "") << "the short line keeps its place";
    EXPECT_EQ(first.order(), second.order());

    astro::EphemerisContext context(tests::seriesForTests());
    core::Chart chart;
    for (std::size_t i = 0; i < database.size(); ++i) {
        const LineCheck check =
            CheckDatabaseLine(database, i, CheckMode::Research, {}, context, chart, messages);
        EXPECT_EQ(check.researchLine, one->at(i)) << "line " << i;
        EXPECT_EQ(check.computed, i != database.size() - 2);
    }
    EXPECT_EQ(messages.shown.size(), 3U);
}

TEST(ResearchRebuild, DamagedLinesAreToldAndCancelStops)
{
    ChartDatabase database;
    database.addLine(lineOf("Mira"));
    database.addLine(lineOf(""));
    database.addLine("too short");
    database.addLine(lineOf("Sam"));
    const std::string nameless(database.line(1));
    {
        PreparedMessages messages({Answer::Ok, Answer::Cancel});
        ChartDatabase copy = database;
        EXPECT_FALSE(rebuild(copy, messages));
        EXPECT_EQ(messages.shown.at(0).text, noNameMessage(1, nameless));
        EXPECT_EQ(messages.shown.at(1).text, shortLineMessage(2, "too short", true));
        for (const PreparedMessages::Shown& shown : messages.shown) {
            EXPECT_EQ(shown.caption, L"Notice");
            EXPECT_EQ(shown.buttons, core::Buttons::OkCancel);
        }
    }
    PreparedMessages messages({Answer::Ok, Answer::Ok});
    const std::optional<ResearchLines> lines = rebuild(database, messages);
    ASSERT_TRUE(lines);
    EXPECT_EQ(database.line(1), lineOf("No Name"));
    EXPECT_EQ(researchField(lines->at(1), 0), "No Name");
    EXPECT_EQ(lines->at(2), "");
    EXPECT_EQ(researchField(lines->at(3), 0), "Sam");

    astro::EphemerisContext context(tests::seriesForTests());
    core::Chart chart;
    PreparedMessages cancel({Answer::Cancel});
    EXPECT_TRUE(
        CheckDatabaseLine(database, 2, CheckMode::Compute, {}, context, chart, cancel).cancelled);
}

TEST(ResearchRebuild, StopsWhenCancelled)
{
    ChartDatabase database = randomDatabase(300);
    PreparedMessages messages;
    std::atomic<bool> cancel = false;
    std::size_t calls = 0;
    const auto progress = [&](std::size_t done, std::size_t total) {
        EXPECT_LE(done, total);
        EXPECT_EQ(total, 300U);
        cancel = true;
        ++calls;
    };
    EXPECT_FALSE(rebuild(database, messages, {progress, &cancel, 1}));
    EXPECT_LE(calls, 2U);
}

using ResearchFileTest = FolderTest;

TEST_F(ResearchFileTest, KnowsWhenItIsStale)
{
    ChartDatabase database;
    ASSERT_TRUE(database.load(put("my.charts.ksc", lineOf("Mira") + "\n" + lineOf("Sam") + "\n")));
    core::Settings settings;
    const auto state = [&] {
        return researchState(database, settings);
    };
    EXPECT_EQ(researchPath(database.path()), folder / "my.charts.txt");
    EXPECT_EQ(state(), ResearchState::Missing);
    PreparedMessages messages({Answer::Yes, Answer::No});
    const std::optional<ResearchLines> lines = rebuild(database, messages);
    put("my.charts.BAK", "backup of the database");
    ASSERT_TRUE(saveResearch(database, settings, *lines));
    ASSERT_TRUE(saveResearch(database, settings, *lines)) << "its own file is written over";
    EXPECT_EQ(get("my.charts.BAK"), "backup of the database");
    EXPECT_EQ(names(), (std::set<std::string>{"my.charts.ksc", "my.charts.BAK", "my.charts.txt",
                                              "my.charts.research"}));
    EXPECT_EQ(state(), ResearchState::Fresh);
    EXPECT_TRUE(researchStateText(state()).empty());
    EXPECT_EQ(loadResearch(database.path()).value().size(), 2U);

    core::Settings before = settings;
    settings.dashaLevels = 4;
    settings.monthFirst = true;
    EXPECT_EQ(state(), ResearchState::Fresh) << "such settings move nothing";
    EXPECT_FALSE(agreesToRefreshAfter(before, settings, messages));
    for (const auto& change : std::vector<std::function<void(core::Settings&)>>{
             [](auto& s) { s.ayanamsaRow = 2; },
             [](auto& s) { s.ayanamsaTable[1].valueAtEpoch += 1.0; },
             [](auto& s) { s.preciseMoon = !s.preciseMoon; },
             [](auto& s) { s.deltaTOn = !s.deltaTOn; },
             [](auto& s) {
                 s.upagrahaAtMiddle = !s.upagrahaAtMiddle;
             }}) {
        settings = before;
        change(settings);
        EXPECT_EQ(state(), ResearchState::SettingsChanged);
    }
    EXPECT_TRUE(agreesToRefreshAfter(before, settings, messages));
    EXPECT_FALSE(agreesToRefreshAfter(before, settings, messages));
    EXPECT_EQ(messages.shown.size(), 2U);
    EXPECT_EQ(messages.shown.back().text, kOptionsMovePlanets);
    settings = before;
    database.setTag(0, L'A');
    EXPECT_EQ(state(), ResearchState::Fresh) << "a group moves nothing";
    const std::string line(database.line(0));
    database.replaceLine(0, line + "x");
    EXPECT_EQ(state(), ResearchState::ChartsChanged);
    database.replaceLine(0, line);
    EXPECT_EQ(state(), ResearchState::Fresh);
    put("my.charts.txt", get("my.charts.txt") + "more\n");
    EXPECT_EQ(state(), ResearchState::UnknownOrigin);
}

TEST_F(ResearchFileTest, LinesWithoutAnOrderDependOnTheOrderInForce)
{
    LineParts bare;
    bare.order = "\"\"/0/0/0";
    ChartDatabase database;
    ASSERT_TRUE(database.load(put("a.ksc", bare.line() + "\n")));
    PreparedMessages messages;
    ASSERT_TRUE(saveResearch(database, {}, *rebuild(database, messages)));
    EXPECT_EQ(researchState(database, {}), ResearchState::Fresh);
    EXPECT_EQ(researchState(database, {.monthFirst = true}), ResearchState::SettingsChanged);

    LineParts quoted;
    quoted.date = "\"5\"/3/1975";
    ASSERT_TRUE(database.load(put("a.ksc", quoted.line() + "\n")));
    ASSERT_TRUE(saveResearch(database, {}, *rebuild(database, messages)));
    EXPECT_EQ(researchState(database, {.monthFirst = true}), ResearchState::Fresh);
}

TEST_F(ResearchFileTest, ARefreshThatFailsOrIsKilledIsNeverTakenForAFreshOne)
{
    ChartDatabase database;
    ASSERT_TRUE(database.load(put("a.ksc", lineOf("Mira") + "\n")));
    PreparedMessages messages;
    ASSERT_TRUE(saveResearch(database, {}, *rebuild(database, messages)));
    const std::string old = get("a.txt");
    database.addLine(lineOf("Sam"));
    const std::optional<ResearchLines> lines = rebuild(database, messages);
    const auto refresh = [&] {
        return saveResearch(database, {}, *lines) ? 0 : 1;
    };
    const rlim_t size = lines->at(0).size() + lines->at(1).size() + 2;
    for (rlim_t limit = 0; limit < size; limit += 199) {
        EXPECT_EQ(inChild([&] {
                      const rlimit room{limit, limit};
                      return ::setrlimit(RLIMIT_FSIZE, &room) == 0 ? refresh() : 2;
                  }),
                  -1)
            << limit;
        EXPECT_EQ(get("a.txt"), old) << limit;
        EXPECT_NE(researchState(database, {}), ResearchState::Fresh) << limit;
        EXPECT_EQ(onFullDisk(limit, refresh), 1) << limit;
        EXPECT_EQ(get("a.txt"), old) << limit;
    }
    EXPECT_EQ(refresh(), 0);
    EXPECT_EQ(researchState(database, {}), ResearchState::Fresh);
}

TEST_F(ResearchFileTest, NeverWritesOverAnotherTextFile)
{
    ChartDatabase database;
    for (const std::string& text :
         {std::string("shopping list\n"), lineOf("Sam") + "\n", std::string(100000, 'x')}) {
        ASSERT_TRUE(database.load(put("notes.ksc", lineOf("Mira") + "\n")));
        put("notes.txt", text);
        EXPECT_EQ(researchState(database, {}), ResearchState::Foreign);
        const core::Result<void> saved = saveResearch(database, {}, {});
        ASSERT_FALSE(saved);
        EXPECT_EQ(saved.error().file, (folder / "notes.txt").string());
        EXPECT_EQ(get("notes.txt"), text);
    }
    ASSERT_TRUE(database.load(put("charts.txt", lineOf("Mira") + "\n")));
    EXPECT_FALSE(saveResearch(database, {}, {})) << "the database itself";
    EXPECT_EQ(get("charts.txt"), lineOf("Mira") + "\n");
}

TEST(ResearchMessages, ExactTexts)
{
    PreparedMessages messages({Answer::Cancel});
    EXPECT_FALSE(agreesToRefresh(messages));
    messages.expectOne(L"notice", L"Your Research Database needs refreshing. Go ahead?");
    suggestRefreshing(messages);
    messages.expectOne(L"Notice",
                       L"Try refreshing your Research Database?\n\nYou may have found no charts "
                       L"because this needs refreshing.\nAfter refreshing, search again.");
    EXPECT_TRUE(std::wstring(kOptionsMovePlanets)
                    .starts_with(L"The Option changes you made could affect planetary positions in "
                                 L"signs and\nNakshatras. This requires the research database to "
                                 L"be refreshed for\naccurate sorting, Yoga and Time Search and "
                                 L"Research Table and Graph results. "));
}

TEST(ResearchLabels, SortsAndLabels)
{
    const core::DisplayFlagsOverride english(core::kEnglishNames);
    using Kind = ResearchKey::Kind;
    EXPECT_EQ(researchLabel(5, {Kind::TropicalSun, 1}), L"Leo  (Trop. Sun)");
    EXPECT_EQ(researchLabel(5, {Kind::Sign, core::kSun}), L"Leo  (Sid. Sun)");
    EXPECT_EQ(researchLabel(5, {Kind::Sign, core::kMoon}), L"Leo  (Sid. Moon)");
    EXPECT_EQ(researchLabel(5, {Kind::Sign, core::kAscendant}), L"Leo  (Sid. Asc.)");
    EXPECT_EQ(researchLabel(5, {Kind::Sign, core::kMars}), L"Leo  (Sid. Mar.)");
    EXPECT_EQ(researchLabel(1, {Kind::Nakshatra, core::kMoon}), L"Ashwini (Moon)");
    EXPECT_EQ(researchLabel(27, {Kind::Nakshatra, core::kMars}), L"Revati (Mar.)");

    ChartDatabase database;
    LineList research;
    core::Chart chart = plainChart();
    const auto add = [&](const char* name, double moon) {
        database.addLine(lineOf(name));
        chart.longitude[core::kMoon] = moon;
        research.append(FormatResearchLine(chart));
    };
    add("c", 100.0);
    add("b", 10.0);
    database.addLine("short");
    research.append("");
    add("a", 100.0);
    add("d", 340.0);
    database.addLine(lineOf("e"));
    const ChooserList list = listCharts(database);
    std::vector<std::pair<std::size_t, int>> found;
    for (const LabelledRow& row : rowsByResearch(list, research, {Kind::Sign, core::kMoon})) {
        found.emplace_back(row.row, row.value);
    }
    EXPECT_EQ(found,
              (std::vector<std::pair<std::size_t, int>>{{1, 1}, {2, 4}, {0, 4}, {3, 12}, {4, 0}}));
    EXPECT_EQ(researchValue(research.line(0), {Kind::Nakshatra, core::kMoon}), 8);
    EXPECT_EQ(researchValue(research.line(0), {Kind::TropicalSun, 0}), 2);
    EXPECT_EQ(researchValue(research.line(0), {Kind::Sign, core::kGulika}), std::nullopt);
}

} // namespace
} // namespace kestrav::data
