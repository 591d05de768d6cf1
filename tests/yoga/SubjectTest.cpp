#include "yoga/Subject.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/BhavaBala.h"
#include "analysis/Dignities.h"
#include "analysis/Shadbala.h"
#include "analysis/Vimshopaka.h"
#include "data/ResearchLine.h"
#include "tests/yoga/ConditionCharts.h"
#include "timing/DashaQuery.h"

#include <cmath>
#include <map>
#include <string>

namespace kestrav::yoga
{

namespace
{

// Conditions that a research line can answer, of many kinds, points and sets.
const std::vector<std::string> kLineConditions = {
    "InSign,,Mar,mov",
    "InHouse,,L9,Asc,kentri",
    "InHouse,,min2.ben,Moo,ken",
    "InHouse,,no.mal,Asc,dus",
    "InHouse,,Ven,ArL,1,7",
    "InHouse,,D.UpL,UpL,upa",
    "InHouse,,AK,a7,tri",
    "InNakshatra,,Moo,1,5,9,13,17,21,25",
    "InPada,,Moo,1,2",
    "InDegree,,L1,0,12,30",
    "With,,any.fben,L1",
    "Near,,Sun,any.tara,8",
    "Between,,min5.pla,Rah,Ket",
    "Gandanta,,any.pla",
    "Vargottama,,any.pla",
    "Hemmed,,Moo,pla-Sun",
    "Occupied,,pla,5,5",
    "Cluster,,pla,3",
    "Aspect,,any.ben,L1,value,30",
    "Mutual,,any.pla,any.pla",
    "Related,,any.kenL,any.triL",
    "Parivartana,",
    "Dignity,,any.pla,exa,own",
    "DignityMin,,L10,fri",
    "Regards,,L1,L7,fri,gfr",
    "DebCancelled,,any.pla",
    "Retrograde,,any.tara",
    "Combust,,any.pla",
    "Bindus,,L1,5",
    "Sarva,,B11,29",
    "Strongest,,Mar,pla,bind",
    "Functional,,Rah,benef",
    "Natural,,Mer,benef",
    "Tithi,,1,2,3,4,5,6,7,8",
    "Karana,,2,3,4,8",
    "Sex,,female",
    "*-1,Nava,Nava,Jup,Asc,,2,,ken,tri",
    "*-1,Dasa,Dasa,,,,2,,L10,Asc,ken",
    "*-1,Nava,Nava,,,,50,,any.pla,exa,own",
    "*-1,Nava,Nava,Ven,ArL,,2,,ken",
    "*-3,Hora,Hora,Sun,,,1,,Leo",
    "*-9,Ekad,Ekad,Sun,,,1,,odd",
    "*-1,Drek,Nava,Sun,Moo,,7,",
};

TEST(Subject, aResearchLineAnswersAsTheWholeChart)
{
    std::mt19937 random(6);
    const core::Settings settings;
    Subject whole(settings);
    Subject line(settings);
    std::vector<Condition> conditions;
    for (const std::string& text : kLineConditions) {
        conditions.push_back(conditionOf(text));
        EXPECT_TRUE(needsOf(conditions.back()).researchSuffices()) << text;
    }
    std::map<std::string, std::array<int, 2>> truths;
    for (int i = 0; i < 150; ++i) {
        const core::Chart chart = randomChart(random, settings);
        const std::string text = data::FormatResearchLine(chart);
        whole.setChart(chart);
        ASSERT_TRUE(line.setResearchLine(text));
        for (const Condition& condition : conditions) {
            const bool truth = testCondition(condition, whole);
            EXPECT_EQ(testCondition(condition, line), truth) << condition.text << "\n" << text;
            ++truths[condition.text][truth ? 1 : 0];
        }
    }
    // The comparison says little about a condition that is always true or always false.
    for (const auto& [text, counts] : truths) {
        EXPECT_GT(counts[0], 0) << text;
        EXPECT_GT(counts[1], 0) << text;
    }
}

TEST(Subject, aBrokenResearchLineHoldsNothing)
{
    std::mt19937 random(7);
    const core::Settings settings;
    const std::string text = data::FormatResearchLine(randomChart(random, settings));
    const Condition anySign = conditionOf("InSign,,Sun,mov,fix,dua");
    const Condition degree = conditionOf("InDegree,,Sun,0,30");
    Subject subject(settings);
    EXPECT_FALSE(testCondition(anySign, subject));
    for (const std::size_t length : {std::size_t{0}, std::size_t{5}, std::size_t{20}}) {
        EXPECT_FALSE(subject.setResearchLine(std::string_view(text).substr(0, length)));
        EXPECT_FALSE(testCondition(anySign, subject));
    }
    // Signs without longitudes.
    ASSERT_TRUE(subject.setResearchLine(std::string_view(text).substr(0, 150)));
    EXPECT_TRUE(testCondition(anySign, subject));
    EXPECT_FALSE(testCondition(degree, subject));
    ASSERT_TRUE(subject.setResearchLine(text));
    EXPECT_TRUE(testCondition(degree, subject));
    // What only a chart has.
    EXPECT_FALSE(testCondition(conditionOf("InSign,,Gul,mov,fix,dua"), subject));
    EXPECT_FALSE(testCondition(conditionOf("Weekday,,1,2,3,4,5,6,7"), subject));
    EXPECT_FALSE(testCondition(conditionOf("Required,,Sun,0"), subject));
}

TEST(Subject, nothingOfTheChartBeforeIsLeft)
{
    std::mt19937 random(8);
    const core::Settings settings;
    Subject used(settings);
    std::vector<Condition> conditions;
    for (const Kind& kind : kinds()) {
        conditions.push_back(conditionOf(kind.example));
    }
    for (const std::string& text : kLineConditions) {
        conditions.push_back(ParseCondition(text, kCatalogueNames));
    }
    for (int i = 0; i < 20; ++i) {
        const core::Chart chart = randomChart(random, settings);
        const std::string text = data::FormatResearchLine(chart);
        const bool asLine = i % 3 == 1;
        Subject fresh(settings);
        for (Subject* const subject : {&used, &fresh}) {
            if (asLine) {
                EXPECT_TRUE(subject->setResearchLine(text));
            } else {
                subject->setChart(chart);
            }
        }
        for (const Condition& condition : conditions) {
            EXPECT_EQ(testCondition(condition, used), testCondition(condition, fresh))
                << condition.text;
        }
    }
}

TEST(Subject, anOptionIsPreparedOnceAndForgotten)
{
    const core::Settings settings;
    std::mt19937 random(9);
    const core::Chart chart = randomChart(random, settings);
    Subject subject(settings);
    subject.setChart(chart);
    for (int method = 0; method < 4; ++method) {
        core::Settings changed = settings;
        changed.horaMethod = method;
        core::Chart other = chart;
        analysis::analyseSigns(other, changed);
        for (int point = core::kAscendant; point <= core::kKetu; ++point) {
            const int sign = core::at(core::at(other.vargas, core::kHora), point).sign;
            Condition condition = conditionOf("*-1,Hora,Hora,Sun,,,1,," + std::to_string(sign));
            condition.option = method + 2;
            condition.points[0] = point;
            EXPECT_TRUE(testCondition(condition, subject)) << method << ' ' << point;
        }
        EXPECT_EQ(subject.optionsPrepared(), method + 1);
    }
    subject.resetOption();
    EXPECT_EQ(subject.optionsPrepared(), 5);
    subject.resetOption();
    EXPECT_EQ(subject.optionsPrepared(), 5);
}

TEST(Subject, strengthsAreComparedInTheirUnits)
{
    std::mt19937 random(10);
    const core::Settings settings;
    constexpr std::array<const char*, 8> kNames = {"Asc", "Sun", "Moo", "Mar",
                                                   "Mer", "Jup", "Ven", "Sat"};
    for (int i = 0; i < 5; ++i) {
        const core::Chart chart = randomChart(random, settings);
        const auto inputs = analysis::strengthInputs(chart);
        const auto table = analysis::computeShadbala(chart, inputs);
        const auto bindus = analysis::computeAshtakavarga(chart, core::kRashi, false);
        // The whole number below a value is reached, the one above it is not.
        const auto expectAt = [&](const std::string& condition, double value) {
            const int below = int(std::floor(value));
            EXPECT_TRUE(holds(condition + "," + std::to_string(below), chart)) << condition;
            EXPECT_FALSE(holds(condition + "," + std::to_string(below + 1), chart)) << condition;
            if (below > 0) {
                EXPECT_FALSE(holds(condition + ",0," + std::to_string(below - 1), chart));
            }
        };
        double most = 0.0;
        int strongest = 0;
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            const std::string name = core::at(kNames, planet);
            const analysis::Shadbala& bala = core::at(table.planets, planet);
            ASSERT_TRUE(bala.total.has_value());
            expectAt("Shadbala,," + name, *bala.total / 6.0);
            expectAt("Required,," + name, *bala.ratio * 100.0);
            expectAt("Ishta,," + name, *bala.phala.ishta);
            constexpr std::array<const char*, 4> kSets = {"vim16", "vim10", "vim7", "vim6"};
            for (int set = 0; set < 4; ++set) {
                expectAt(
                    "Vimshopaka,," + name + "," + core::at(kSets, set),
                    analysis::vimshopakaPoints(core::at(core::at(chart.vimshopaka, planet), set)));
            }
            const int sign = core::at(chart.rashi, planet);
            const int own = core::at(core::at(bindus.bindus, planet), sign - 1);
            EXPECT_TRUE(holds(
                "Bindus,," + name + "," + std::to_string(own) + "," + std::to_string(own), chart));
            EXPECT_TRUE(holds("BindusAt,," + name + "," + name + "," + std::to_string(own) + "," +
                                  std::to_string(own),
                              chart));
            const int sarva = core::at(bindus.sarva, sign - 1);
            EXPECT_TRUE(
                holds("Sarva,," + name + "," + std::to_string(sarva) + "," + std::to_string(sarva),
                      chart));
            EXPECT_FALSE(holds("Sarva,," + name + "," + std::to_string(sarva + 1), chart));
            if (*bala.total > most) {
                most = *bala.total;
                strongest = planet;
            }
            EXPECT_EQ(holds("DebCancelled,," + name, chart),
                      analysis::vargaDignity(chart, planet, sign, core::kRashi, settings) ==
                              analysis::kDebilitated &&
                          analysis::debilitationCancelledBy(chart, planet, settings) != 0);
        }
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            EXPECT_EQ(
                holds("Strongest,," + std::string(core::at(kNames, planet)) + ",pla,shad", chart),
                planet == strongest);
        }
        const auto houses = analysis::computeBhavaBala(chart, table);
        for (int house = 1; house <= 12; ++house) {
            if (const auto total = core::at(houses, house - 1).total) {
                expectAt("BhavaBala,," + std::to_string(house), *total / 6.0);
            }
        }
    }
}

TEST(Subject, cancelledDebilitationAgreesWithTheAnalysis)
{
    const core::Settings settings;
    std::mt19937 random(12);
    std::uniform_int_distribution<int> sign(1, 12);
    std::array<int, 2> counts{};
    for (int i = 0; i < 300; ++i) {
        // The Sun in Libra, all others anywhere. Jupiter would not do: the lord of his exaltation
        // sign is the Moon, who is always in a kendra from herself.
        std::string text = "Sun 7:" + std::to_string(i % 30);
        for (const char* const name : {"Asc", "Moo", "Mar", "Mer", "Jup", "Ven", "Sat"}) {
            text += std::string(" ") + name + " " + std::to_string(sign(random));
        }
        const core::Chart chart = chartOf(text);
        const bool cancelled = analysis::debilitationCancelledBy(chart, core::kSun, settings) != 0;
        EXPECT_EQ(holds("DebCancelled,,Sun", chart), cancelled) << text;
        ++counts[cancelled ? 1 : 0];
    }
    EXPECT_GT(counts[0], 0);
    EXPECT_GT(counts[1], 0);
}

TEST(Subject, dayNativeAndDashaAreThoseOfTheChart)
{
    const core::Settings settings;
    std::mt19937 random(13);
    for (int i = 0; i < 10; ++i) {
        const core::Chart chart = randomChart(random, settings);
        for (int day = 1; day <= 7; ++day) {
            EXPECT_EQ(holds("Weekday,," + std::to_string(day), chart), day == chart.weekday);
        }
        EXPECT_EQ(holds("Sex,,male", chart), chart.identity.sex == L"M");
        EXPECT_EQ(holds("Sex,,female", chart), chart.identity.sex == L"F");

        Subject subject(settings, &tests::seriesForTests());
        subject.setChart(chart);
        const Condition sunRules = conditionOf("Dasha,,Sun,1,0");
        EXPECT_FALSE(testCondition(sunRules, subject)); // without a moment
        const core::Chart later = randomChart(random, settings);
        const double moment = *analysis::strengthInputs(later).julianDay;
        timing::DashaOptions options = timing::dashaOptions(settings);
        for (const int system : {0, 12, 15}) {
            options.system = system;
            for (int level = 1; level <= 3; ++level) {
                const int lord = timing::lordAtMoment(chart, settings, options,
                                                      tests::seriesForTests(), moment, level);
                subject.setSecondChart(&later);
                int ruling = 0;
                for (const char* const name :
                     {"Sun", "Moo", "Mar", "Mer", "Jup", "Ven", "Sat", "Rah", "Ket"}) {
                    const int point = pointOfShortName(name);
                    const bool rules =
                        system == 15 ? core::at(chart.rashi, point) == lord : point == lord;
                    const std::string words = std::string("Dasha,,") + name + "," +
                                              std::to_string(level) + "," + std::to_string(system);
                    EXPECT_EQ(testCondition(conditionOf(words), subject), rules) << words;
                    ruling += rules ? 1 : 0;
                }
                if (system != 15) {
                    EXPECT_EQ(ruling, lord == timing::kNoLord ? 0 : 1);
                }
            }
        }
    }
}

} // namespace

} // namespace kestrav::yoga
