#include "analysis/Arudhas.h"
#include "analysis/Ashtakavarga.h"
#include "analysis/AspectTable.h"
#include "analysis/CharaKarakas.h"
#include "analysis/Dignities.h"
#include "analysis/Explain.h"
#include "analysis/FunctionalNature.h"
#include "analysis/Rashmis.h"
#include "analysis/Sahams.h"
#include "analysis/Shadbala.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "analysis/Vimshopaka.h"
#include "core/Angles.h"
#include "core/NumberText.h"
#include "core/PointNames.h"
#include "core/TextForms.h"
#include "tests/analysis/ExplainCharts.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrav::analysis
{

namespace
{

using core::at;
using testing::HasSubstr;
using testing::StartsWith;

// Two decimals are shown.
constexpr double kShown = 0.005001;

std::string utf8(std::wstring_view text)
{
    return core::toUtf8(text);
}

// The number after the last occurrence of a mark in a line.
double numberAfter(const std::string& line, const std::string& mark)
{
    const std::size_t found = line.rfind(mark);
    return found == std::string::npos ? 0.0
                                      : core::readLeadingNumber(line.substr(found + mark.size()));
}

double sumAfter(const Explanation& explanation, const std::string& contained,
                const std::string& mark)
{
    double sum = 0.0;
    for (const std::wstring& step : explanation.steps) {
        const std::string line = utf8(step);
        sum += line.find(contained) == std::string::npos ? 0.0 : numberAfter(line, mark);
    }
    return sum;
}

int count(const std::string& text, const std::string& part)
{
    int found = 0;
    for (std::size_t place = text.find(part); place != std::string::npos;
         place = text.find(part, place + 1)) {
        ++found;
    }
    return found;
}

void expectStrength(const core::Chart& chart, const std::string& text, const Strength& value)
{
    const std::string result = resultOf(chart, text);
    if (!value) {
        EXPECT_EQ(result, "not computed") << text;
        return;
    }
    EXPECT_NEAR(core::readLeadingNumber(result), *value, kShown) << text;
}

TEST(ExplainValues, PlacementsAreThoseOfTheChart)
{
    for (const core::Chart& chart : chartsToExplain()) {
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            for (int point = 0; point < core::kYogiPoint + 1; ++point) {
                if (!chart.computed(point)) {
                    continue;
                }
                const core::VargaPlacement& placement = at(at(chart.vargas, varga), point);
                std::wstring position;
                core::FormatDegMinSec(std::fmax(placement.position, 0.0), position);
                const Explanation explanation =
                    explained(chart, query(point, std::to_string(varga)));
                const std::string result = utf8(explanation.result);
                EXPECT_THAT(result, StartsWith(utf8(core::signNameLong(placement.sign)) +
                                               ", position " + utf8(position)));
                EXPECT_EQ(count(result, "near") == 1, at(at(chart.nearBoundary, varga), point));
                EXPECT_THAT(stepsOf(explanation),
                            HasSubstr("): " + std::to_string(placement.strengthStep) + "."));
            }
        }
    }
}

// The steps of a counted varga name the part and the sign from which it is counted; both are worked
// out here from the degree and the classical rule.
TEST(ExplainValues, CountedPlacementsNamePartAndStart)
{
    struct Counted
    {
        int varga;
        int division;
        int (*start)(int);
    };
    const std::vector<Counted> cases = {
        {core::kDashamamsha, 10,
         [](int sign) {
             return sign % 2 == 1 ? sign : sign + 8;
         }},
        {core::kDwadashamsha, 12,
         [](int sign) {
             return sign;
         }},
        {core::kSiddhamsha, 24,
         [](int sign) {
             return sign % 2 == 1 ? 5 : 4;
         }},
        {core::kBhamsha, 27,
         [](int sign) {
             return (sign - 1) % 4 * 3 + 1;
         }},
        {core::kChatvarimshamsha, 40,
         [](int sign) {
             return sign % 2 == 1 ? 1 : 7;
         }},
        {core::kAkshaVedamsha, 45,
         [](int sign) {
             return (sign - 1) % 3 * 4 + 1;
         }},
    };
    for (const core::Chart& chart : chartsToExplain()) {
        for (const Counted& each : cases) {
            for (int point = core::kSun; point <= core::kSaturn; ++point) {
                const int part = int(at(chart.degreeInSign, point) * each.division / 30.0);
                const int start = core::norm12(each.start(at(chart.rashi, point)));
                const std::string steps = stepsOf(chart, query(point, std::to_string(each.varga)));
                const std::string name = std::to_string(part + 1);
                EXPECT_TRUE(count(steps, "the " + name + "th part of ") == 1 ||
                            count(steps, "the " + name + "st part of ") == 1 ||
                            count(steps, "the " + name + "nd part of ") == 1 ||
                            count(steps, "the " + name + "rd part of ") == 1)
                    << steps;
                EXPECT_THAT(steps, HasSubstr("counted from " + utf8(core::signNameLong(start)) +
                                             ", gives " +
                                             utf8(core::signNameLong(core::norm12(start + part)))));
            }
        }
    }
}

TEST(ExplainValues, ReversedPlacementsNameTheHalfAndTheStart)
{
    core::Settings settings;
    settings.shodashamshaVariant = 1;
    // Mars at 4 degrees Taurus, Mercury at 4 degrees Gemini.
    core::Chart chart = chartOf({10, 20, 200, 34, 64, 100, 130, 160, 190, 10});
    chart.hasMoment = false;
    chart = analysedFully(chart, settings);
    EXPECT_THAT(stepsOf(chart, "mars:hora"), HasSubstr("the first half of Taurus"));
    EXPECT_EQ(resultOf(chart, "mars:hora").substr(0, 6), "Cancer");
    EXPECT_THAT(stepsOf(chart, "mercury:hora"), HasSubstr("the first half of Gemini"));
    EXPECT_EQ(resultOf(chart, "mercury:hora").substr(0, 3), "Leo");
    // Third part of an even sign: Leo, Cancer, Gemini; of an odd one: Gemini, Cancer, Leo.
    const std::string even = stepsOf(chart, "mars:D-16", settings);
    EXPECT_THAT(even, HasSubstr("the 3rd part of Taurus"));
    EXPECT_THAT(even, HasSubstr("here from Leo, which gives Gemini"));
    EXPECT_THAT(even, HasSubstr("counted backwards, that is the position"));
    EXPECT_THAT(stepsOf(chart, "mercury:D-16", settings),
                HasSubstr("here from Gemini, which gives Leo"));
}

TEST(ExplainValues, StrengthsAreThoseOfShadbala)
{
    for (const core::Chart& chart : chartsToExplain()) {
        const ShadbalaTable table = computeShadbala(chart, strengthInputs(chart));
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            const Shadbala& bala = at(table.planets, planet);
            const std::vector<std::pair<std::string, Strength>> parts = {
                {"uccha", bala.sthana.uccha},
                {"saptavargaja", bala.sthana.saptavargaja},
                {"ojayugma", bala.sthana.ojayugma},
                {"kendradi", bala.sthana.kendradi},
                {"strength:drekkana", bala.sthana.drekkana},
                {"sthana", bala.sthana.total()},
                {"dig", bala.dig},
                {"nathonnatha", bala.kala.nathonnatha},
                {"paksha", bala.kala.paksha},
                {"tribhaga", bala.kala.tribhaga},
                {"varsha", bala.kala.varsha},
                {"masa", bala.kala.masa},
                {"vara", bala.kala.vara},
                {"strength:hora", bala.kala.hora},
                {"ayana", bala.kala.ayana},
                {"yuddha", bala.kala.yuddha},
                {"kala", bala.kala.total()},
                {"cheshta", bala.cheshta},
                {"naisargika", bala.naisargika},
                {"drik", bala.drik},
                {"total", bala.total},
                {"ishta", bala.phala.ishta},
                {"kashta", bala.phala.kashta},
            };
            for (const auto& [part, value] : parts) {
                expectStrength(chart, query(planet, part), value);
            }
            // The lines of the sums add up to what they explain.
            if (bala.sthana.saptavargaja) {
                EXPECT_NEAR(
                    sumAfter(explained(chart, query(planet, "saptavargaja")), ", lord ", ": "),
                    *bala.sthana.saptavargaja, 1e-9);
            }
            if (bala.drik) {
                EXPECT_NEAR(sumAfter(explained(chart, query(planet, "drik")), "fic: ", "fic: ") /
                                4.0,
                            *bala.drik, 2 * kShown);
            }
        }
    }
}

TEST(ExplainValues, VimshopakaLinesAddUpToTheTotal)
{
    for (const core::Chart& chart : chartsToExplain()) {
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            for (int set = 0; set < kVimshopakaSets; ++set) {
                const int total = at(at(chart.vimshopaka, planet), set);
                const std::string text =
                    query(planet, "vimshopaka:" + utf8(vimshopakaSetName(set)));
                const Explanation explanation = explained(chart, text);
                EXPECT_NEAR(core::readLeadingNumber(utf8(explanation.result)),
                            vimshopakaPoints(total), kShown);
                EXPECT_EQ(sumAfter(explanation, " times weight ", " = "), total) << text;
            }
        }
    }
}

TEST(ExplainValues, BindusAreCountedByTheirContributors)
{
    for (const core::Chart& chart : chartsToExplain()) {
        const Ashtakavarga table = computeAshtakavarga(chart, core::kRashi, true);
        for (int receiver = 0; receiver < kAshtakavargaPoints; ++receiver) {
            for (int sign = 1; sign <= 12; ++sign) {
                const std::string text = query(receiver, "bindu:" + std::to_string(sign));
                const int bindus = at(at(table.bindus, receiver), sign - 1);
                EXPECT_EQ(core::readLeadingInteger(resultOf(chart, text)), bindus);
                EXPECT_EQ(count(stepsOf(chart, text), "gives a bindu"), bindus);
            }
            EXPECT_THAT(
                resultOf(chart, query(receiver, "ashtakavarga")),
                StartsWith("pinda " + std::to_string(at(table.pinda, receiver).total()) + ","));
        }
    }
}

TEST(ExplainValues, DignitiesAndOtherStatesAreThoseOfTheAnalysis)
{
    const core::Settings settings;
    for (const core::Chart& chart : chartsToExplain()) {
        const Rashmis rashmis = computeRashmis(chart, settings);
        const NatureTable natures = chartNatures(chart);
        const auto karakas = sevenKarakas(chart);
        for (int point = core::kSun; point <= core::kKetu; ++point) {
            if (!chart.computed(point)) {
                continue;
            }
            EXPECT_EQ(resultOf(chart, query(point, "dignity")),
                      utf8(dignityWord(reportDignity(chart, point, settings), false)));
            EXPECT_EQ(
                resultOf(chart, query(point, "dignity:navamsha")),
                utf8(dignityWord(shownDignity(chart, point, core::kNavamsha, settings), false)));
            EXPECT_THAT(resultOf(chart, query(point, "nature")),
                        HasSubstr("(" + utf8(natureLabel(at(natures, point))) + ")"));
            if (point > core::kSaturn) {
                continue;
            }
            expectStrength(chart, query(point, "rashmi"), at(rashmis.planets, point));
            for (int rank = 0; rank < 7; ++rank) {
                const bool own = at(*karakas, rank) == point;
                EXPECT_EQ(resultOf(chart, query(point, "karaka")) ==
                              utf8(at(std::array<std::wstring_view, 7>{L"Atma", L"Amatya",
                                                                       L"Bhratri", L"Matri",
                                                                       L"Putra", L"Jnati", L"Dara"},
                                      rank)) +
                                  " karaka",
                          own);
            }
            if (point != core::kSun) {
                EXPECT_EQ(resultOf(chart, query(point, "combust")),
                          at(chart.combust, point) ? "combust" : "not combust");
            }
        }
        for (const Aspect& aspect : bodyAspects(chart, settings)) {
            const std::string result =
                resultOf(chart, query(aspect.from, "aspect:" + std::to_string(aspect.to)));
            EXPECT_EQ(count(result, "graha aspect full") == 1, aspect.graha);
            EXPECT_EQ(count(result, "rashi aspect yes") == 1, aspect.rashi);
            EXPECT_NEAR(numberAfter(result, "value "), aspect.value.value_or(0.0), kShown);
        }
        for (int point = 0; point < core::kPointCount; ++point) {
            if (chart.computed(point)) {
                const std::wstring place = core::FormatSignPosition(at(chart.longitude, point));
                const std::string shown = utf8(place.substr(place.find_first_not_of(L' ')));
                EXPECT_THAT(resultOf(chart, query(point, "longitude")), StartsWith(shown));
            }
        }
    }
}

TEST(ExplainValues, RelationshipsNameTheTemporaryOneByTheCount)
{
    for (const core::Chart& chart : chartsToExplain()) {
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            for (int other = core::kSun; other <= core::kSaturn; ++other) {
                if (planet == other) {
                    continue;
                }
                const int house =
                    core::norm12(at(chart.rashi, planet) - at(chart.rashi, other) + 1);
                const bool isFriend = (house >= 2 && house <= 4) || house >= 10;
                const Explanation explanation =
                    explained(chart, query(planet, "relationship:" + std::to_string(other)));
                EXPECT_THAT(stepsOf(explanation), HasSubstr("the " + std::to_string(house)));
                EXPECT_THAT(stepsOf(explanation),
                            HasSubstr(isFriend ? "temporary friend (2" : "temporary enemy (1"));
                const int compound = at(at(chart.compound, planet), other);
                EXPECT_THAT(utf8(explanation.result),
                            StartsWith(utf8(dignityWord(compound + 3, false)) + " (by nature"));
            }
        }
    }
}

// Worked examples of the printed horoscope of 1918.
TEST(ExplainValues, WorkedExamplesReadAsInTheTextbook)
{
    core::Chart chart = chartsToExplain()[3];
    EXPECT_EQ(resultOf(chart, "venus:dignity"), "Debil. Cancelled");
    EXPECT_THAT(stepsOf(chart, "venus:dignity"),
                HasSubstr("cancelled, because the lord of its sign is in a kendra"));
    EXPECT_THAT(stepsOf(chart, "sun:dignity"), HasSubstr("the lord of its exaltation sign"));
    EXPECT_THAT(stepsOf(chart, "rahu:nature"), HasSubstr("in the 11th house"));
    EXPECT_THAT(stepsOf(chart, "ketu:nature"),
                HasSubstr("in its sign are but for yogakaraka: none"));
    EXPECT_THAT(stepsOf(chart, "arudha:longitude"),
                StartsWith("House 1 is Capricorn; its lord is Saturn.\nSaturn is in Leo, the 8th "
                           "from Capricorn; as far on from there is Pisces.\nThe degree"));
    // House 11 is Scorpio with its lord in it, house 5 Taurus with its lord in the 5th.
    EXPECT_THAT(stepsOf(chart, "a11:longitude"), HasSubstr("moves on to the 10th from there, Leo"));
    EXPECT_THAT(stepsOf(chart, "yogi:longitude"), HasSubstr("93\u00B020'"));
    EXPECT_THAT(stepsOf(chart, "moon:kakshya"), HasSubstr("in the 4th, that of the Sun"));
    EXPECT_THAT(stepsOf(chart, "fortune:longitude"), HasSubstr("It is day"));
}

TEST(ExplainValues, DebilitationWithoutCancellationShowsRetrogression)
{
    // Saturn in Aries: Mars, Venus and the Sun in no kendra from Cancer and Taurus, Mars without
    // aspect in the 9th sign, the navamsha Cancer, nobody else debilitated.
    core::Chart chart = chartOf({100, 60, 40, 250, 70, 320, 70, 11, 150, 330});
    chart.hasMoment = false;
    EXPECT_EQ(resultOf(analysedFully(chart, {}), "saturn:dignity"), "Debilitated");
    chart.retrograde[core::kSaturn] = true;
    chart = analysedFully(chart, {});
    EXPECT_EQ(resultOf(chart, "saturn:dignity"), "Debil. & Retrograde");
    EXPECT_THAT(stepsOf(chart, "saturn:dignity"),
                HasSubstr("None of the six conditions cancels the debilitation"));
}

TEST(ExplainValues, SahamsShowTheirThreePointsAndTheAddedSign)
{
    // A printed annual chart by night: Artha without, Samartha with the added 30 degrees.
    core::Chart chart = tests::bareChart({280 + 49 / 60.0, 320.0, 345 + 13 / 60.0, 354 + 58 / 60.0,
                                          311 + 27 / 60.0, 100.0, 300.0, 19 + 9 / 60.0});
    chart = analysedFully(chart, {});
    ASSERT_NEAR(*sahams(chart)[6], 335.0, 0.01);
    EXPECT_THAT(stepsOf(chart, "saham:samartha"), HasSubstr("so 30 degrees are added"));
    EXPECT_THAT(resultOf(chart, "saham:samartha"), HasSubstr("(335\u00B0"));
    EXPECT_THAT(stepsOf(chart, "saham:samartha"),
                HasSubstr("is the lord of house 1, Saturn less Mars plus the ascendant"));
    EXPECT_THAT(stepsOf(chart, "saham:artha"), HasSubstr("so nothing is added"));
}

TEST(ExplainValues, APlanetAcrossAriesIsSaidNotToBeCombust)
{
    core::Chart chart = chartOf({100, 359, 200, 34, 1, 100, 130, 160, 190, 10});
    chart.hasMoment = false;
    chart = analysedFully(chart, {});
    EXPECT_EQ(resultOf(chart, "mercury:combust"), "not combust");
    EXPECT_THAT(stepsOf(chart, "mercury:combust"), HasSubstr("opposite sides of 0 degrees Aries"));
}

// Each setting that takes part is named with its value, and the explanation changes with it.
TEST(ExplainValues, SettingsTakePart)
{
    struct Case
    {
        std::string setting;
        std::string value;
        std::string result;
        std::vector<int> points;
    };
    const std::vector<int> planets = {1, 2, 3, 4, 5, 6, 7};
    const std::vector<int> nodes = {8, 9};
    const std::vector<int> padas = {47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58};
    const std::vector<int> houses = {35, 36, 37, 38};
    const std::vector<Case> cases = {
        {"horaMethod", "1", "hora", planets},
        {"horaMethod", "2", "hora", planets},
        {"horaMethod", "3", "dignity:hora", planets},
        {"horaMethod", "3", "ashtakavarga:hora", planets},
        {"shodashamshaVariant", "1", "shodashamsha", planets},
        {"shodashamshaVariant", "1", "vimshopaka", planets},
        {"rudramshaVariant", "1", "D-11", planets},
        {"arudhasInVargas", "0", "navamsha", padas},
        {"coLords", "1", "longitude", padas},
        {"sandhiMinutes", "60", "D-60", planets},
        {"nodeDignityScheme", "2", "dignity", nodes},
        {"exaltedCountsAsOwn", "1", "vimshopaka:shodasha", planets},
        {"vargaCompoundRelationships", "0", "dignity:navamsha", planets},
        {"naturalRelationshipsOnly", "1", "dignity", planets},
        {"naturalRelationshipsOnly", "1", "rashmi", planets},
        {"naturalRelationshipsOnly", "1", "strength:saptavargaja", planets},
        {"naturalRelationshipsOnly", "1", "relationship:moon", {1, 3, 4, 5, 6, 7}},
        {"charaKarakas", "8", "karaka", planets},
        {"upagrahaAtMiddle", "1", "longitude", {15, 16, 17, 18, 19}},
        {"saham2", "0", "longitude", {61}},
        {"saham3", "Roga", "longitude", {62}},
        {"houseSystem", "2", "bhavabala", houses},
        {"houseSystem", "1", "longitude", houses},
        {"ayanamsaRow", "0", "longitude", planets},
        {"preciseMoon", "0", "longitude", {2, 60}},
    };
    const std::vector<core::Chart> before = chartsToExplain();
    for (const Case& each : cases) {
        core::Settings settings;
        ASSERT_TRUE(core::setSetting(settings, each.setting, each.value).ok());
        const std::vector<core::Chart> after = chartsToExplain(settings);
        const std::string named =
            each.setting + " = " + core::settingText(settings, *core::findSetting(each.setting));
        int changed = 0;
        // The first two charts have a moment; a chart of positions has no ayanamsa to name.
        for (std::size_t i = 0; i < 2; ++i) {
            for (const int point : each.points) {
                const std::string text = query(point, each.result);
                const Explanation first = explained(before[i], text);
                const Explanation second = explained(after[i], text, settings);
                changed += first.result != second.result || first.steps != second.steps ? 1 : 0;
                int lines = 0;
                for (const std::wstring& line : second.settings) {
                    const std::string shown = utf8(line);
                    lines += shown.substr(0, named.size()) == named ? 1 : 0;
                    EXPECT_NE(shown.find(": "), std::string::npos);
                }
                EXPECT_EQ(lines, 1) << text << " " << named;
            }
        }
        EXPECT_GT(changed, 0) << each.result << " " << named;
    }
}

TEST(ExplainValues, CoLordsBringTheNodeSchemeWithThem)
{
    core::Settings settings;
    for (const bool coLords : {false, true}) {
        settings.coLords = coLords;
        const core::Chart chart = chartsToExplain(settings)[0];
        for (const char* const each : {"arudha7:longitude", "arudha7:navamsha"}) {
            int lines = 0;
            for (const std::wstring& line : explained(chart, each, settings).settings) {
                lines += count(utf8(line), "nodeDignityScheme = 0");
            }
            EXPECT_EQ(lines, coLords ? 1 : 0) << each;
        }
    }
}

TEST(ExplainValues, NodesAspectAThirdHouseByTheSetting)
{
    const core::Chart chart = chartsToExplain()[0];
    core::Settings settings;
    for (const int wanted : {2, 3}) {
        settings.nodeAspectOption = wanted - 2;
        int full = 0;
        for (int house = 1; house <= 12; ++house) {
            const Explanation explanation =
                explained(chart, "rahu:aspect:house" + std::to_string(house), settings);
            full += count(utf8(explanation.result), "graha aspect full");
            EXPECT_THAT(utf8(explanation.settings.at(0)),
                        StartsWith("nodeAspectOption = " + std::to_string(wanted - 2)));
        }
        EXPECT_EQ(full, wanted);
    }
}

TEST(ExplainValues, OrbsOfDirectPlanetsCanServeRetrogradeOnes)
{
    core::Chart chart = chartOf({100, 50, 200, 34, 63, 100, 130, 160, 190, 10});
    chart.hasMoment = false;
    chart.retrograde[core::kMercury] = true;
    EXPECT_EQ(resultOf(analysedFully(chart, {}), "mercury:combust"), "not combust");
    core::Settings direct;
    direct.directCombustionOrbsOnly = true;
    const core::Chart other = analysedFully(chart, direct);
    EXPECT_EQ(resultOf(other, "mercury:combust", direct), "combust");
    EXPECT_THAT(stepsOf(other, "mercury:combust", direct), HasSubstr("that of a direct planet"));
}

} // namespace

} // namespace kestrav::analysis
