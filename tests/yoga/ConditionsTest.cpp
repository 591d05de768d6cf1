#include "tests/yoga/ConditionCharts.h"

#include "core/Angles.h"

#include <set>
#include <string>

namespace kestrav::yoga
{

namespace
{

// A condition, positions on which it holds, and positions that differ in one thing.
struct Case
{
    std::string condition;
    std::string holds;
    std::string misses;
    bool onlyRashi = false; ///< the example does not carry over to a divisional chart
};

// clang-format off
const std::vector<Case> kCases = {
    {"InSign,,Mar,Ari,Sco", "Mar 8", "Mar 9"},
    {"InSign,,min2.ben,mov", "Sun 1 Moo 4 Mer 3 Jup 7 Ven 2", "Sun 1 Moo 4 Mer 3 Jup 8 Ven 2"},
    {"InSign,,no.Mar+Sat,4", "Mar 3 Sat 5", "Mar 3 Sat 4"},
    {"InSign,,all.Mar+Sat,odd", "Mar 3 Sat 5", "Mar 3 Sat 6"},
    {"InSign,,all.Mar+Sat,odd", "Mar 3 Sat 5", "Mar 3"},
    {"InSign,,max1.Mar+Sat,odd", "Mar 3 Sat 6", "Mar 3 Sat 5"},
    {"InSign,,eqs1.Mar+Sat,odd", "Mar 4 Sat 5", "Mar 4 Sat 6"},
    {"InHouse,,Jup,Moo,ken", "Moo 2 Jup 5", "Moo 2 Jup 6"},
    {"InHouse,,Mar,7", "Asc 1 Mar 7", "Asc 2 Mar 7"},
    {"InHouse,,L9,Asc,10", "Asc 1 Jup 10", "Asc 1 Jup 9"},
    {"InHouse,,L5.Moo,Moo,11", "Moo 1 Sun 11", "Moo 1 Sun 10"},
    {"InHouse,,D.Mar,Asc,1", "Asc 6 Mar 4 Moo 6", "Asc 6 Mar 4 Moo 5"},
    {"InHouse,,D.L9,Asc,1", "Asc 1 Jup 4 Moo 1", "Asc 1 Jup 4 Moo 2"},
    {"InHouse,,A.Sun,Asc,3", "Asc 7 Sun 1", "Asc 8 Sun 1"},
    {"InHouse,,ArL,3", "Asc 1 Mar 2", "Asc 1 Mar 3", true},
    {"InHouse,,Sat,ArL,1,7", "Asc 1 Mar 2 Sat 9", "Asc 1 Mar 2 Sat 8", true},
    {"InHouse,,no.pla-Sun,Moo,2,12", "Sun 3 Moo 2 Mar 5 Mer 4 Jup 6 Ven 8 Sat 9", "Sun 3 Moo 2 Mar 5 Mer 3 Jup 6 Ven 8 Sat 9"},
    {"InHouse,,any.dusL,Asc,8", "Asc 1 Mer 8 Mar 1 Jup 2", "Asc 1 Mer 7 Mar 1 Jup 2"},
    {"InNakshatra,,Moo,Rohini,13", "Moo 2:12", "Moo 2:24"},
    {"InPada,,Moo,1,4", "Moo 1:1", "Moo 1:5"},
    {"InDegree,,Sun,9,10,30", "Sun 1:9.6", "Sun 1:9.4"},
    {"InDegree,,Sun,9,10,30", "Sun 7:9.99", "Sun 7:10"},
    {"InArc,,Moo,350,10", "Moo 12:25", "Moo 1:11"},
    {"With,,Moo,any.mal", "Sun 1 Moo 3 Mar 3", "Sun 1 Moo 3 Mar 4"},
    {"With,,any.lum,any.Mar+Sat", "Sun 1 Moo 2 Mar 2 Sat 5", "Sun 1 Moo 2 Mar 3 Sat 5"},
    {"Near,,Sun,Moo,12", "Sun 12:25 Moo 1:6", "Sun 12:25 Moo 1:8"},
    {"Apart,,Moo,Sun,168,192", "Sun 1:0.1 Moo 6:20", "Sun 1:0.1 Moo 6:17"},
    {"Between,,all.pla,Rah,Ket", "Rah 1 Ket 7 Sun 1:20 Moo 2 Mar 3 Mer 4 Jup 5 Ven 6 Sat 7:10", "Rah 1 Ket 7 Sun 1:20 Moo 2 Mar 3 Mer 4 Jup 5 Ven 6 Sat 7:20"},
    {"Between,,all.pla,Ket,Rah", "Rah 7 Ket 1 Sun 1:20 Moo 2 Mar 3 Mer 4 Jup 5 Ven 6 Sat 7:10", "Rah 7 Ket 1 Sun 1:20 Moo 2 Mar 8 Mer 4 Jup 5 Ven 6 Sat 7:10"},
    {"Sandhi,,Asc,30", "Asc 3:29.6", "Asc 3:29.4"},
    {"Sandhi,,Asc", "Asc 3:0.9", "Asc 3:1.1"},
    {"Gandanta,,Moo", "Moo 4:27", "Moo 4:26"},
    {"Gandanta,,Moo", "Moo 9:3", "Moo 8:3"},
    {"Vargottama,,Asc", "Asc 1:1", "Asc 1:5", true},
    {"NakshatraFrom,,Mar,Moo,3,5", "Moo 1:1 Mar 2:1", "Moo 1:1 Mar 1:20"},
    {"Is,,AK,any.lum", "Sun 1:29 Moo 2:5 Mar 3:4 Mer 4:3 Jup 5:2 Ven 6:1 Sat 7:0.5", "Sun 1:29 Moo 2:5 Mar 3:29.5 Mer 4:3 Jup 5:2 Ven 6:1 Sat 7:0.5", true},
    {"Is,,L9,L12", "Asc 1 Jup 4", "Asc 2 Sat 5 Mar 3"},
    {"Is,,E.Moo,Sun", "Moo 1 Sun 5", "Moo 2 Sun 5"},
    {"Is,,X.Mar,D.Jup", "Mar 1 Jup 11 Sat 3", "Mar 1 Jup 12 Sat 3"},
    {"Is,,N.Moo,Ket", "Moo 1:5 Ket 3 Ven 4", "Moo 1:15 Ket 3 Ven 4"},
    {"Is,,V.Moo,Mar", "Moo 1:1 Mar 3 Ven 4", "Moo 1:5 Mar 3 Ven 4", true},

    {"Hemmed,,Moo,mal", "Sun 4 Moo 5 Mar 6", "Sun 4 Moo 5 Mar 7"},
    {"Hemmed,,B7,Mar+Sat", "Asc 1 Mar 6 Sat 8", "Asc 1 Mar 6 Sat 7"},
    {"Fill,,pla,h1+4", "Asc 1 Sun 1 Moo 4 Mar 1 Mer 1 Jup 4 Ven 1 Sat 4", "Asc 1 Sun 1 Moo 4 Mar 1 Mer 1 Jup 4 Ven 1 Sat 5"},
    {"Fill,,pla,h1+4", "Asc 4 Sun 4 Moo 4 Mar 7 Mer 4 Jup 4 Ven 4 Sat 4", "Asc 4 Sun 4 Moo 4 Mar 4 Mer 4 Jup 4 Ven 4 Sat 4"},
    {"Run,,pla,7,pan,apo", "Asc 1 Sun 2 Moo 3 Mar 4 Mer 5 Jup 6 Ven 7 Sat 8", "Asc 2 Sun 2 Moo 3 Mar 4 Mer 5 Jup 6 Ven 7 Sat 8"},
    {"Run,,pla,7", "Asc 1 Sun 11 Moo 12 Mar 1 Mer 2 Jup 3 Ven 4 Sat 5", "Asc 1 Sun 11 Moo 12 Mar 1 Mer 2 Jup 3 Ven 4 Sat 6"},
    {"Occupied,,pla,5,5", "Asc 1 Sun 1 Moo 2 Mar 3 Mer 4 Jup 5 Ven 1 Sat 2", "Asc 1 Sun 1 Moo 2 Mar 3 Mer 4 Jup 5 Ven 6 Sat 2"},
    {"Occupied,,Mer+Jup+Ven,Asc,3,3,ken", "Asc 1 Mer 1 Jup 4 Ven 7", "Asc 1 Mer 1 Jup 4 Ven 4"},
    {"Cluster,,pla,4,ken", "Asc 1 Sun 4 Moo 4 Mar 4 Mer 4 Jup 1 Ven 2 Sat 3", "Asc 1 Sun 4 Moo 4 Mar 4 Mer 5 Jup 1 Ven 2 Sat 3"},
    {"Strongest,,Mar,cluP,degree", "Sun 4:1 Moo 4:2 Mar 4:9 Mer 4:3 Jup 1:20 Ven 2 Sat 3", "Sun 4:1 Moo 4:2 Mar 4:9 Mer 4:3 Jup 4:20 Ven 2 Sat 3"},

    {"Aspect,,Jup,Moo", "Jup 1 Moo 5", "Jup 1 Moo 6"},
    {"Aspect,,Jup,Moo,value,45", "Jup 1:0 Moo 5:5", "Jup 1:0 Moo 4:5"},
    {"Aspect,,Sun,Moo,sign", "Sun 1 Moo 5", "Sun 1 Moo 2"},
    {"Aspect,,Sun,Moo,share,50", "Sun 1 Moo 5", "Sun 1 Moo 3"},
    {"Aspect,,all.Mar+Sat,B4", "Asc 1 Mar 1 Sat 7", "Asc 1 Mar 2 Sat 7"},
    {"Mutual,,Mar,Sat", "Mar 1 Sat 4", "Mar 1 Sat 8"},
    {"Influences,,no.mal,B7", "Asc 1 Sun 2 Moo 3 Mar 2 Mer 3 Jup 3 Ven 4 Sat 2 Rah 2 Ket 8", "Asc 1 Sun 2 Moo 3 Mar 2 Mer 3 Jup 3 Ven 4 Sat 10 Rah 2 Ket 8"},
    {"Influences,,Jup,Moo", "Jup 3 Moo 3", "Jup 3 Moo 4"},
    {"Related,,L9,L10", "Asc 1 Jup 3 Sat 3", "Asc 1 Jup 3 Sat 4"},
    {"Related,,L9,L10", "Asc 1 Jup 10 Sat 9", "Asc 1 Jup 10 Sat 8"},
    {"Related,,any.kenL,any.triL", "Asc 2 Sun 4 Mer 10 Mar 9 Ven 7 Sat 11", "Asc 2 Sun 4 Mer 6 Mar 9 Ven 7 Sat 11"},

    {"Exchange,,L1,L4", "Asc 1 Mar 4 Moo 1", "Asc 1 Mar 4 Moo 2"},
    {"Parivartana,,maha", "Asc 1 Mar 4 Moo 1", "Asc 1 Mer 9 Jup 6"},
    {"Parivartana,,dainya,6,9", "Asc 1 Mer 9 Jup 6", "Asc 1 Mer 9 Jup 3"},
    {"Parivartana,,khala", "Asc 1 Mer 2 Ven 3", "Asc 1 Mer 2 Ven 6"},
    {"Parivartana,,,2", "Asc 1 Mer 2 Ven 3", "Asc 1 Mar 4 Moo 1"},
    {"FinalDispositor,,Ven", "Sun 2 Moo 5 Mar 4 Mer 7 Jup 2 Ven 2 Sat 9", "Sun 2 Moo 5 Mar 4 Mer 7 Jup 2 Ven 2 Sat 10"},
    {"Owns,,any.ben,9,10", "Asc 1 Jup 3 Ven 3", "Asc 2 Jup 3 Ven 3"},
    {"InSignOf,,Moo,any.ben", "Moo 9 Jup 1", "Moo 8 Jup 1"},

    {"Dignity,,Mar,own,exa", "Mar 8", "Mar 9"},
    {"Dignity,,Mar,own", "Mar 1:5", "Mar 10:5"},
    {"Dignity,,Mar,mul", "Mar 1:5", "Mar 1:13", true},
    {"DignityMin,,L1,fri", "Asc 1 Mar 5 Sun 6", "Asc 1 Mar 3 Mer 9"},
    {"DignityMax,,Moo,ene", "Moo 8", "Moo 4"},
    {"InHouse,,any.exaP,1", "Asc 1 Sun 1 Moo 3", "Asc 2 Sun 1 Moo 3"},
    {"InHouse,,any.debP,1", "Asc 7 Sun 7 Moo 3", "Asc 8 Sun 7 Moo 3"},
    {"Regards,,Sun,L1,nat,fri", "Asc 1 Mar 3 Sun 4", "Asc 2 Ven 3 Sun 4"},
    {"Regards,,Sun,Mar,gfr", "Sun 1 Mar 2", "Sun 1 Mar 5"},
    {"DebCancelled,,any.pla", "Asc 1 Sun 7 Ven 7", "Asc 1 Sun 7 Ven 9 Moo 5 Mar 3 Sat 6"},
    {"Retrograde,,any.tara", "Mar 3R Sat 4", "Mar 3 Sat 4"},
    {"InHouse,,any.retP,8", "Asc 1 Mar 8R Sat 4", "Asc 1 Mar 8 Sat 4"},
    {"Motion,,Sat,retro,station", "Sat 3R", "Sat 3"},
    {"Combust,,L1", "Asc 1 Sun 3:10 Mar 3:15", "Asc 1 Sun 3:10 Mar 3:28"},
    {"AtWar,,Mar", "Mar 3:10 Mer 3:10.5", "Mar 3:10 Mer 3:12"},

    {"Strongest,,Sun,lum,degree", "Sun 1:20 Moo 2:10", "Sun 1:20 Moo 2:25"},
    {"Weakest,,Sun,lum,degree", "Sun 1:10 Moo 2:20", "Sun 1:25 Moo 2:20"},
    {"Stronger,,Sun,Moo,degree", "Sun 1:20 Moo 2:10", "Sun 1:20 Moo 2:25"},

    {"Functional,,Sat,yogak", "Asc 2 Sat 3", "Asc 1 Sat 3"},
    {"InHouse,,any.fyog,Asc,9", "Asc 2 Sat 10", "Asc 2 Sat 9", true},
    {"Natural,,Mer,malef", "Sun 1 Mer 1", "Sun 1 Mer 2"},
    {"DayBirth,,night", "Asc 1 Sun 3", "Asc 1 Sun 10"},
    {"DayBirth,", "Asc 1 Sun 10", "Asc 1 Sun 3"},
    {"Tithi,,15", "Sun 1:1 Moo 6:21", "Sun 1:1 Moo 6:16"},
    {"Paksha,,wax", "Sun 1 Moo 4", "Sun 4 Moo 1"},
    {"NityaYoga,,1", "Sun 1:3 Moo 1:5", "Sun 1:3 Moo 1:11"},
    {"Karana,,8", "Sun 1:1 Moo 2:14", "Sun 1:1 Moo 2:20"},
};
// clang-format on

// Kinds whose tests need more than positions; they follow below and in StrengthConditionsTest.
const std::set<std::string_view> kTestedElsewhere = {
    "InBhava",  "SameBhava", "Shadbala",   "Required", "Ishta", "BhavaBala", "Bindus",
    "BindusAt", "Sarva",     "Vimshopaka", "Weekday",  "Sex",   "Dasha"};

std::string keywordOf(const std::string& condition)
{
    return condition.substr(0, condition.find(','));
}

// The same condition with a prefix that leaves its points to the parameters.
std::string prefixed(const std::string& condition, const std::string& varga)
{
    const Kind* const kind = findKind(keywordOf(condition));
    return "*-1," + varga + "," + varga + ",,,," + std::to_string(kind->number) +
           condition.substr(condition.find(','));
}

TEST(ConditionKinds, holdAndMissByOneThing)
{
    std::set<std::string_view> seen(kTestedElsewhere);
    for (const Case& test : kCases) {
        SCOPED_TRACE(test.condition + " on " + test.holds);
        EXPECT_TRUE(holds(test.condition, chartOf(test.holds)));
        EXPECT_FALSE(holds(test.condition, chartOf(test.misses)));
        seen.insert(findKind(keywordOf(test.condition))->keyword);
    }
    for (const Kind& kind : kinds()) {
        EXPECT_TRUE(seen.contains(kind.keyword)) << kind.keyword;
    }
}

TEST(ConditionKinds, meanTheSameWithAPrefixAndInADivisionalChart)
{
    for (const Case& test : kCases) {
        SCOPED_TRACE(test.condition + " on " + test.holds);
        const std::string rashi = prefixed(test.condition, "Rasi");
        EXPECT_TRUE(holds(rashi, chartOf(test.holds)));
        EXPECT_FALSE(holds(rashi, chartOf(test.misses)));
        if (!test.onlyRashi && !findKind(keywordOf(test.condition))->rashiOnly) {
            const std::string navamsha = prefixed(test.condition, "Nava");
            EXPECT_TRUE(holds(navamsha, chartOf(test.holds, {}, 9.0)));
            EXPECT_FALSE(holds(navamsha, chartOf(test.misses, {}, 9.0)));
        }
    }
}

TEST(ConditionKinds, areTestedOnTheSecondChart)
{
    for (const Case& test : kCases) {
        SCOPED_TRACE("T." + test.condition + " on " + test.holds);
        const core::Chart good = chartOf(test.holds);
        const core::Chart bad = chartOf(test.misses);
        EXPECT_TRUE(holds("T." + test.condition, bad, &good));
        EXPECT_FALSE(holds("T." + test.condition, good, &bad));
        EXPECT_FALSE(holds("T." + test.condition, good));
    }
}

TEST(ConditionKinds, comparePointsOfTwoChartsAndTwoDivisions)
{
    const core::Chart native = chartOf("Asc 4 Moo 3 Sat 10 Jup 2:1");
    const core::Chart transit = chartOf("Asc 7 Moo 9 Sat 4 Mar 3 Ven 3 Jup 5");
    EXPECT_TRUE(holds("InHouse,,T.Sat,Moo,2", native, &transit));
    EXPECT_FALSE(holds("InHouse,,T.Sat,Moo,2", native));
    EXPECT_TRUE(holds("InHouse,,Sat,T.Moo,2", native, &transit));
    // The lord of the 7th of the native (Saturn) in the other chart, and the other way round.
    EXPECT_TRUE(holds("InSign,,T.L7,4", native, &transit));
    EXPECT_TRUE(holds("InSign,,L7.T.Asc,3", native, &transit));
    EXPECT_TRUE(holds("With,,min2.T.gra,Moo", native, &transit));
    EXPECT_FALSE(holds("With,,min2.gra,Moo", native, &transit));
    // In the exchanged form T. leads back to the native.
    EXPECT_TRUE(holds("T.InHouse,,T.Sat,Moo,2", native, &transit));

    // Jupiter at 1 degree of Taurus is in the navamsha of Capricorn.
    EXPECT_TRUE(holds("*-1,Nava,Rasi,Jup,Asc,,2,,7", native));
    EXPECT_TRUE(holds("*-1,Nava,Nava,Jup,,,1,,Cap", native));
    EXPECT_TRUE(holds("*-1,Nava,Rasi,Jup,Sat,,7,", native)); // both in Capricorn
    EXPECT_TRUE(holds("*-1,Rasi,Nava,Jup,Sat,,7,", native)); // its navamsha is Taurus
    EXPECT_FALSE(holds("*-1,Rasi,Rasi,Jup,Sat,,7,", native));
    // The lord of the 7th of the rashi, in the navamsha: Saturn at 15 Capricorn is in Taurus.
    EXPECT_TRUE(holds("*-1,Nava,,,,,1,,R.L7,Tau", native));
    EXPECT_TRUE(holds("*-1,Nava,Rasi,Jup,,,15,", chartOf("Jup 1:1")));
    EXPECT_FALSE(holds("*-1,Nava,Drek,Jup,,,15,", chartOf("Jup 1:11")));
}

TEST(ConditionKinds, neverHoldWithoutAPositionOrWithWordsThatDoNotFit)
{
    Subject subject{core::Settings{}};
    const core::Chart chart = chartOf("Asc 1 Moo 4 Mar 1");
    subject.setChart(chart);
    const auto truth = [&](std::string_view text) {
        return testCondition(ParseCondition(text, kCatalogueNames), subject);
    };
    ASSERT_TRUE(truth("InSign,,Moo,4"));
    for (const std::string_view text :
         {"InSign,,Sun,4", "InHouse,,Moo,Sun,1", "With,,Moo,Sun", "InSign,,no.Sun+Moo,1",
          "InSign,,all.Sun+Moo,4", "InSign,,L5,1", "With,,Moo,Moo", "Fill,,Sun+Moo,4", "Is,,AK,Moo",
          "InSign,,DayL,every", "Shadbala,,Moo,0", "DayBirth,", "Sex,,male", "Dasha,,Moo",
          "Hemmed,,Moo,Sun+Mar", "T.InSign,,Moo,4", "Dignity,,Asc,neu", "Dignity,,B4,neu"}) {
        EXPECT_FALSE(truth(text)) << text;
    }
    for (const std::string_view text :
         {"InSign,,Moo", "InSign,,4", "InSign,,Moo,ken", "InSign,,Moo,13", "InSign,,Moo,4,x",
          "InHouse,,Moo,every,Mar", "NoSuch,,Moo,4", "Hemmed,,Moo,any.mal", "With,,Moo,4",
          "With,,Moo,Mar,Sat", "Tithi,,31", "Sandhi,,Moo,0", "Dignity,,Moo,graha",
          "*-1,Rasi,Xxxx,Moo,,,1,,4", "*-1,Rasi,Rasi,Xxx,,,1,,4", "*-1,Rasi,Rasi,Moo,Mar,,1,,4",
          "*-1,Rasi,Rasi,Moo,,,19,,4", "*-1,Rasi,Rasi,Moo,,,627,,4", ""}) {
        const Condition condition = ParseCondition(text, kCatalogueNames);
        EXPECT_NE(conditionProblem(condition), "") << text;
        EXPECT_FALSE(testCondition(condition, subject)) << text;
        EXPECT_FALSE(explainCondition(condition, subject).truth) << text;
    }
}

TEST(ConditionKinds, houseByCuspsFollowTheHouseSystem)
{
    std::mt19937 random(11);
    for (int system = 0; system <= 4; ++system) {
        core::Settings settings;
        settings.houseSystem = system;
        for (int i = 0; i < 20; ++i) {
            core::Chart chart = randomChart(random, settings);
            if (!chart.cuspsComplete) {
                continue;
            }
            // A point at a cusp is in that house in every system; a little before it, it is in the
            // house before only where cusps begin the houses.
            for (int house = 1; house <= 12; ++house) {
                const double cusp = core::at(chart.longitude, core::cuspPoint(house));
                const auto moonAt = [&](double longitude) {
                    chart.longitude[core::kMoon] = core::Normalize360(longitude);
                    analysis::computeSignData(chart, core::kMoon);
                };
                moonAt(cusp + 0.001);
                const std::string number = std::to_string(house);
                EXPECT_TRUE(holds("InBhava,,Moo," + number, chart, nullptr, settings))
                    << system << ' ' << house;
                EXPECT_FALSE(holds("InBhava,,Moo," + std::to_string(core::norm12(house + 1)), chart,
                                   nullptr, settings));
                moonAt(cusp - 0.001);
                EXPECT_EQ(holds("InBhava,,Moo," + number, chart, nullptr, settings), system != 4)
                    << system << ' ' << house;
            }
            chart.longitude[core::kSun] = chart.longitude[core::kMoon];
            EXPECT_TRUE(holds("SameBhava,,Moo,Sun", chart, nullptr, settings));
            chart.longitude[core::kSun] = core::Normalize360(chart.longitude[core::kMoon] + 180.0);
            EXPECT_FALSE(holds("SameBhava,,Moo,Sun", chart, nullptr, settings));
        }
    }
}

TEST(ConditionKinds, sayWhy)
{
    const core::Chart chart =
        chartOf("Asc 1 Sun 9 Moo 3 Mar 9 Mer 10 Jup 5 Ven 11 Sat 4 Rah 2 Ket 8");
    EXPECT_EQ(reason("InHouse,,Mar,Moo,ken", chart), L"Mars is in the 7th from the Moon");
    EXPECT_EQ(reason("InHouse,,Jup,Moo,ken", chart),
              L"Jupiter is in the 3rd from the Moon, not in 1, 4, 7 or 10");
    EXPECT_EQ(reason("InHouse,,L9,Asc,h5+9", chart),
              L"The lord of the 9th from the ascendant (Jupiter) is in the 5th from the ascendant");
    EXPECT_EQ(reason("InSign,,min2.Mar+Sat,Sag", chart),
              L"Mars is in Sagittarius; Saturn is in Cancer, not in Sagittarius: 1, asked for at "
              L"least 2 of them");
    EXPECT_EQ(reason("InSign,,no.Mar+Sat,Sag", chart), L"Mars is in Sagittarius, but none may be");
    EXPECT_EQ(reason("*-1,Nava,Nava,Jup,,,1,,Leo", chart), L"In the Navamsha: Jupiter is in Leo");
    EXPECT_EQ(reason("InSign,,Gul,Leo", chart), L"Gulika has no position");
    EXPECT_EQ(reason("Parivartana,", chartOf("Asc 1 Mar 4 Moo 1")),
              L"Houses 1 and 4 exchange their lords Mars and the Moon (maha)");
    // Words that were left out are said as they are tested, or not at all.
    EXPECT_EQ(conditionWords(conditionOf("DayBirth")), L"The birth was by day");
    EXPECT_EQ(conditionWords(conditionOf("Mutual,,Mar,Sat")),
              L"Mars and Saturn aspect each other: a full graha aspect, at least 0");
    EXPECT_EQ(conditionWords(conditionOf("Parivartana,,maha")),
              L"Two houses exchange their lords: maha");
    EXPECT_EQ(conditionWords(conditionOf("InHouse,,any.ben-Moo,Moo,ken")),
              L"One of the natural benefics besides the Moon is in 1, 4, 7 or 10 from the Moon");
    EXPECT_EQ(conditionWords(conditionOf("*-1,Nava,Nava,Mar,,,50,!,exa")),
              L"Not: in the Navamsha: Mars is exalted");
}

} // namespace

} // namespace kestrav::yoga
