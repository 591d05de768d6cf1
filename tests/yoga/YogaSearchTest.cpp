#include "yoga/YogaSearch.h"
#include "analysis/AnalyseChart.h"
#include "analysis/ComputeChart.h"
#include "astro/Engine.h"
#include "data/ResearchRebuild.h"
#include "tests/astro/SeriesForTests.h"
#include "tests/data_floor/Folders.h"
#include "tests/data_floor/PreparedMessages.h"
#include "tests/data_floor/Records.h"
#include "yoga/YogaLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <vector>

namespace kestrav::yoga
{

namespace
{

using core::Answer;
using data::PreparedMessages;

data::ChartDatabase randomDatabase(int count)
{
    data::RandomRecords records(20261121);
    data::ChartDatabase database;
    for (int i = 0; i < count; ++i) {
        core::Chart chart = records.record();
        chart.identity.tag = i % 3 == 0 ? L'A' : L' ';
        chart.time.year = records.whole(1850, 2050);
        chart.time.day = records.whole(1, 28);
        chart.geoLatitude = records.whole(-60 * 60, 60 * 60) / 60.0;
        database.add(chart);
    }
    return database;
}

// A database of random charts with its research lines, and every chart computed.
class SearchTest : public data::FolderTest
{
protected:
    static constexpr int kCharts = 120;

    SearchTest() : database(randomDatabase(kCharts))
    {
        database.replaceLine(5, "too short");
        PreparedMessages messages({Answer::Ok});
        const auto lines =
            data::rebuildResearch(database, settings, tests::seriesForTests(), messages);
        for (const std::string& line : *lines) {
            research.append(line);
        }
    }

    YogaSearch searchFor(const YogaRule& rule)
    {
        return {rule, research, database, settings, tests::seriesForTests()};
    }

    // What a chart by chart computation of the whole database finds.
    std::vector<std::size_t> computedAll(const YogaRule& rule)
    {
        std::vector<std::size_t> found;
        astro::EphemerisContext context(tests::seriesForTests());
        Subject subject(settings, &tests::seriesForTests());
        core::Chart chart;
        for (std::size_t i = 0; i < database.size(); ++i) {
            if (data::isShortLine(database.line(i))) {
                continue;
            }
            database.read(i, chart);
            analysis::ComputeChart(chart, settings, context);
            analysis::AnalyseChart(chart, settings, context);
            subject.setChart(chart);
            if (ruleHolds(rule, subject)) {
                found.push_back(i);
            }
        }
        return found;
    }

    core::Settings settings;
    data::ChartDatabase database;
    data::LineList research;
};

YogaRule ruleOf(const char* text)
{
    EXPECT_THAT(ruleProblems(text), testing::IsEmpty()) << text;
    return readCheckedRule(text).value();
}

} // namespace

TEST_F(SearchTest, FindsWhatTheComputedChartsHave)
{
    const struct
    {
        const char* rule;
        bool computes;
    } cases[] = {
        {"InHouse,,Jup,Moo,ken", false},
        {"InSign,,Sun,1,2,3,4\\OR\\InNakshatra,,Moo,Rohini,13\\OR\\Retrograde,,Mer", false},
        {"(\\InHouse,,Mar,1,4,7,10\\OR\\InHouse,,Sat,1,4,7,10\\)\\InSign,!,Moo,Leo", false},
        {"*o1,Nava,Nava,Sun,,,1,,1,2,3,4,5", false},
        {"Shadbala,,Sun,75", true},
        {"InHouse,,Jup,Moo,ken\\DayBirth", true},
    };
    for (const auto& one : cases) {
        const YogaRule rule = ruleOf(one.rule);
        const auto expected = computedAll(rule);
        YogaSearch search = searchFor(rule);
        for (const unsigned threads : {1U, 3U}) {
            data::LongWork work;
            work.threads = threads;
            const auto finds = search.run(work);
            ASSERT_TRUE(finds);
            EXPECT_EQ(finds->lines, expected) << one.rule;
            EXPECT_EQ(finds->searched, kCharts - 1U);
            EXPECT_EQ(finds->recomputed > 0, one.computes) << one.rule;
        }
        EXPECT_FALSE(expected.empty()) << one.rule;
        EXPECT_LT(expected.size(), kCharts - 1U) << one.rule;
        EXPECT_TRUE(search.explain(expected.front()).truth) << one.rule;
    }
}

TEST_F(SearchTest, ComputesOnlyChartsThatAreAskedForMore)
{
    const YogaRule rule = ruleOf("InHouse,,Jup,Moo,ken\\Shadbala,,Sun,75");
    const YogaRule first = ruleOf("InHouse,,Jup,Moo,ken");
    const auto finds = searchFor(rule).run();
    const auto asked = searchFor(first).run();
    EXPECT_EQ(finds->recomputed, asked->lines.size());
}

TEST_F(SearchTest, ExplainsTestedConditions)
{
    const YogaRule rule = ruleOf("InSign,,Sun,1\\InSign,,Moo,1\\OR\\InSign,!,Sun,1");
    YogaSearch search = searchFor(rule);
    const auto finds = search.run();
    const std::size_t line = finds->lines.front();
    const RuleOutcome outcome = search.explain(line);
    ASSERT_EQ(outcome.conditions.size(), 3U);
    EXPECT_TRUE(outcome.truth);
    for (const ConditionOutcome& condition : outcome.conditions) {
        EXPECT_EQ(condition.reason.empty(), !condition.tested);
    }
    const bool sunInAries = outcome.conditions[0].truth;
    EXPECT_EQ(outcome.conditions[1].tested, sunInAries);
    EXPECT_EQ(outcome.conditions[2].tested, !sunInAries);
    EXPECT_FALSE(search.explain(5).truth) << "a line that was skipped has no chart";
    EXPECT_FALSE(search.explain(999).truth);
}

TEST_F(SearchTest, GroupsAndCancel)
{
    const YogaRule rule = ruleOf("InSign,,Sun,mov");
    YogaSearch search = searchFor(rule);
    const auto all = search.run();
    search.setGroup(L'A');
    const auto group = search.run();
    EXPECT_EQ(group->searched, 40U);
    std::vector<std::size_t> expected;
    for (const std::size_t line : all->lines) {
        if (line % 3 == 0) {
            expected.push_back(line);
        }
    }
    EXPECT_EQ(group->lines, expected);

    std::atomic<bool> cancel{true};
    data::LongWork work;
    work.cancel = &cancel;
    EXPECT_FALSE(search.run(work));
    cancel = false;
    std::size_t last = 0;
    work.progress = [&](std::size_t done, std::size_t total) {
        EXPECT_LE(done, total);
        last = done;
    };
    EXPECT_TRUE(search.run(work));
    EXPECT_EQ(last, std::size_t(kCharts));
}

TEST_F(SearchTest, Messages)
{
    YogaFinds finds;
    finds.lines = {1, 2};
    finds.searched = 9;
    EXPECT_EQ(searchTitle(finds), L"Natives with Yoga (2 of 9)");
    PreparedMessages messages({Answer::Yes, Answer::Yes});
    EXPECT_TRUE(triesRefreshing(messages));
    messages.expectOne(L"Notice", L"Try refreshing your Research Database?\n\nYou may have found "
                                  L"no charts because this needs refreshing.\nAfter refreshing, "
                                  L"search again.");
    ASSERT_TRUE(database.save(folder / "my.ksc").ok());
    EXPECT_TRUE(makeGroupB(database, finds, messages));
    EXPECT_EQ(data::tagOfLine(database.line(1)), L'B');
    EXPECT_EQ(data::tagOfLine(database.line(3)), L'A');
}

class Library : public data::FolderTest
{};

TEST_F(Library, LoadsFilesAndFindsTheirYogas)
{
    const auto good = put("good.ksy", "<ksy><yg tl='Sun in Leo' rl='InSign,,Sun,Leo'/>"
                                      "<yg tl='Broken' rl='(\\DayBirth'/>"
                                      "<yg tl='Sun elsewhere' rl='InSign,!,Sun,Leo'/></ksy>");
    YogaLibrary library;
    ASSERT_TRUE(library.load(good).ok());
    ASSERT_EQ(library.files().size(), 1U);
    EXPECT_TRUE(library.files()[0].rules[0]);
    EXPECT_FALSE(library.files()[0].rules[1]);

    // What cannot be read leaves everything as it is.
    for (const char* const text : {"meta:\n id: x\n", "<ksy><yg>",
                                   "<!DOCTYPE ksy [<!ENTITY a 'b'>]><ksy><yg tl='&a;'/></ksy>"}) {
        put("good.ksy", text);
        EXPECT_FALSE(library.load(good).ok());
        EXPECT_EQ(library.all().size(), 3U);
    }
    EXPECT_FALSE(library.load(folder / "none.ksy").ok());
    put("good.ksy",
        "<ksy><yg tl='Sun in Leo' rl='InSign,,Sun,Leo'/>"
        "<yg tl='sun IN leo' rl='DayBirth'/><yg tl='Else' rl='InSign,!,Sun,Leo'/></ksy>");
    ASSERT_TRUE(library.load(good).ok());
    EXPECT_EQ(library.files().size(), 1U) << "loaded again in its place";

    EXPECT_EQ(library.find("Sun in Leo")->yoga, 0U);
    EXPECT_EQ(library.find("ELSE")->yoga, 2U);
    EXPECT_FALSE(library.find("SUN IN LEO")) << "two titles are alike";
    EXPECT_FALSE(library.find("none"));

    core::Settings settings;
    astro::EphemerisContext context(tests::seriesForTests());
    core::Chart chart;
    data::DateOrder order = data::DateOrder::DayFirst;
    data::ParseChartLine(data::LineParts().line(), chart, order);
    analysis::ComputeChart(chart, settings, context);
    analysis::AnalyseChart(chart, settings, context);
    Subject subject(settings, &tests::seriesForTests());
    subject.setChart(chart);
    const auto holding = library.holding(subject);
    ASSERT_EQ(holding.size(), 2U) << "a birth in March by day, the Sun in Aquarius";
    EXPECT_EQ(holding[0].yoga, 1U);
    EXPECT_EQ(holding[1].yoga, 2U);
}

} // namespace kestrav::yoga
