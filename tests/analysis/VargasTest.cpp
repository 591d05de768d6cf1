#include "analysis/Vargas.h"

#include "AnalysisCharts.h"
#include "analysis/Arudhas.h"
#include "analysis/VargaNames.h"
#include "core/Angles.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace kestrav::analysis
{
namespace
{

using core::at;
using core::norm12;

// The classical way to write a divisional chart: the sign of the first part of each sign, and how
// far the sign moves from part to part.
struct Rule
{
    int varga;
    int parts;
    std::array<int, 12> firstSigns; // Aries to Pisces
    std::array<int, 2> steps;       // odd and even signs
    bool throughZodiac = false;     // the parts are found from the longitude, not in the sign
    int lowStarts = 0;              // exact part starts of the zodiac that fall one part low
    core::Settings settings = {};
    std::array<bool, 2> reversed = {}; // positions run backwards in odd and even signs
};

core::Settings with(int core::Settings::*field, int value)
{
    core::Settings settings;
    settings.*field = value;
    return settings;
}

// Where the exact starts fall one part low was found by computing them with plain IEEE doubles, in
// the stated order of operations.
std::vector<Rule> rules()
{
    using S = core::Settings;
    // clang-format off
    constexpr std::array<int, 12> kOwn         = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    constexpr std::array<int, 12> kLeoCancer   = {5, 4, 5, 4, 5, 4, 5, 4, 5, 4, 5, 4};
    constexpr std::array<int, 12> kAriesLibra  = {1, 7, 1, 7, 1, 7, 1, 7, 1, 7, 1, 7};
    constexpr std::array<int, 12> kOwnSeventh  = {1, 8, 3, 10, 5, 12, 7, 2, 9, 4, 11, 6};
    constexpr std::array<int, 12> kOwnNinth    = {1, 10, 3, 12, 5, 2, 7, 4, 9, 6, 11, 8};
    constexpr std::array<int, 12> kByElement   = {1, 10, 7, 4, 1, 10, 7, 4, 1, 10, 7, 4};
    constexpr std::array<int, 12> kFire        = {1, 5, 9, 1, 5, 9, 1, 5, 9, 1, 5, 9};
    constexpr std::array<int, 12> kFireBack    = {1, 9, 5, 1, 9, 5, 1, 9, 5, 1, 9, 5};
    return {
        {1,   2, kLeoCancer, {-1, 1}, false, 0, {}, {false, true}},
        {1,   2, {1, 3, 5, 7, 9, 11, 1, 3, 5, 7, 9, 11}, {1, 1}, true, 0, with(&S::horaMethod, 1)},
        {1,   2, {7, 2, 9, 4, 5, 12, 7, 2, 9, 4, 5, 12}, {6, 6}, false, 0, with(&S::horaMethod, 2)},
        {2,   3, kOwn, {4, 4}},
        {3,   4, kOwn, {3, 3}},
        {4,   7, kOwnSeventh, {1, 1}, true, 2},
        {5,   9, kByElement, {1, 1}, true},
        {6,  10, kOwnNinth, {1, 1}},
        {7,  12, kOwn, {1, 1}},
        {8,  16, kFire, {1, 1}, true},
        {8,  16, {1, 5, 3, 7, 5, 9, 7, 11, 9, 1, 11, 3}, {1, -1}, true, 0,
            with(&S::shodashamshaVariant, 1), {false, true}},
        {9,  20, kFireBack, {1, 1}, true},
        {10, 24, kLeoCancer, {1, 1}},
        {11, 27, {1, 4, 7, 10, 1, 4, 7, 10, 1, 4, 7, 10}, {1, 1}},
        {13, 40, kAriesLibra, {1, 1}},
        {14, 45, kFire, {1, 1}},
        {15, 60, kOwn, {1, 1}},
        {16,  5, {1, 6, 11, 4, 9, 2, 7, 12, 5, 10, 3, 8}, {1, 1}, true},
        {17,  6, kAriesLibra, {1, 1}, true},
        {18,  8, kFireBack, {1, 1}, true},
        {19, 11, {1, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2}, {1, 1}, true, 12},
        {19, 11, {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}, {-1, -1}, false, 48,
            with(&S::rudramshaVariant, 1), {true, true}},
    };
    // clang-format on
}

// The sign of a part 0, 1, 2 ... counted from 0 degrees Aries.
int signOfPart(const Rule& rule, int part)
{
    const int rashi = part / rule.parts;
    const int inSign = part % rule.parts;
    return norm12(at(rule.firstSigns, rashi) + at(rule.steps, rashi % 2) * inSign);
}

// A point whose degree in sign is given as such, so that it does not carry the rounding of a
// longitude.
core::VargaPlacement placed(const Rule& rule, int part, double degreesIntoPart)
{
    core::Chart chart;
    const int rashi = part / rule.parts;
    const double degree = 30.0 * (part % rule.parts) / rule.parts;
    chart.rashi[core::kSun] = rashi + 1;
    chart.degreeInSign[core::kSun] = degree + degreesIntoPart;
    chart.longitude[core::kSun] = 30.0 * part / rule.parts + degreesIntoPart;
    computeVarga(chart, rule.varga, core::kSun, rule.settings);
    return at(chart.vargas, rule.varga)[core::kSun];
}

int signAt(const core::Settings& settings, int varga, double longitude)
{
    core::Chart chart;
    place(chart, core::kSun, longitude);
    computeVarga(chart, varga, core::kSun, settings);
    return at(chart.vargas, varga)[core::kSun].sign;
}

TEST(Vargas, PartsBeginAndEndWhereTheRulesSay)
{
    constexpr double kHair = 1e-9;
    for (const Rule& rule : rules()) {
        int low = 0;
        const double span = 30.0 / rule.parts;
        for (int part = 0; part < 12 * rule.parts; ++part) {
            SCOPED_TRACE("varga " + std::to_string(rule.varga) + " part " + std::to_string(part));
            const int sign = signOfPart(rule, part);
            const bool reversed = at(rule.reversed, part / rule.parts % 2);
            const core::VargaPlacement start = placed(rule, part, 0.0);
            if (start.sign == sign) {
                EXPECT_TRUE(start.strengthStep == 6 || part % rule.parts != 0);
                EXPECT_NEAR(start.position, reversed ? 29.99999 : 0.0, 1e-9);
            } else {
                ++low;
                EXPECT_EQ(start.sign, signOfPart(rule, part - 1));
            }
            EXPECT_EQ(placed(rule, part, kHair).sign, sign);
            EXPECT_EQ(placed(rule, part, span - kHair).sign, sign);
            const core::VargaPlacement quarter = placed(rule, part, 0.25 * span);
            EXPECT_EQ(quarter.sign, sign);
            EXPECT_EQ(quarter.strengthStep, 4);
            EXPECT_NEAR(quarter.position, reversed ? 22.49999 : 7.5, 1e-8);
            EXPECT_EQ(placed(rule, part, 0.5 * span).strengthStep, 2);
            EXPECT_EQ(placed(rule, part, 0.9 * span).strengthStep, 0);
        }
        EXPECT_EQ(low, rule.lowStarts) << "varga " << rule.varga;
    }
}

TEST(Vargas, HoraOfDayAndNightSigns)
{
    // First and second half of Aries to Pisces: the two signs of one lord.
    constexpr std::array<int, 24> kHalves = {8, 1, 2, 7, 6,  3, 4,  5,  5,  4,  3, 6,
                                             7, 2, 1, 8, 12, 9, 10, 11, 11, 10, 9, 12};
    const core::Settings settings = with(&core::Settings::horaMethod, 3);
    for (int half = 0; half < 24; ++half) {
        EXPECT_EQ(signAt(settings, core::kHora, 15.0 * half), at(kHalves, half));
        EXPECT_EQ(signAt(settings, core::kHora, 15.0 * half + 14.999999), at(kHalves, half));
    }
}

TEST(Vargas, TrimshamsaHasUnequalParts)
{
    struct Case
    {
        double degree;
        int odd;
        double oddPosition;
        int even;
        double evenPosition;
    };
    // 5 degrees belongs to the second part, every later boundary to the part before it.
    constexpr std::array<Case, 13> kCases = {{
        {0.0, 1, 0.0, 2, 0.0},
        {4.999999, 1, 29.999994, 2, 29.999994},
        {5.0, 11, 0.0, 6, 0.0},
        {10.0, 11, 30.0, 6, 30.0 * 5 / 7},
        {10.001, 9, 0.00375, 6, 30.0 * 5.001 / 7},
        {12.0, 9, 7.5, 6, 30.0},
        {12.001, 9, 7.50375, 12, 0.00375},
        {18.0, 9, 30.0, 12, 22.5},
        {20.0, 3, 30.0 * 2 / 7, 12, 30.0},
        {20.001, 3, 30.0 * 2.001 / 7, 10, 0.006},
        {25.0, 3, 30.0, 10, 30.0},
        {25.001, 7, 0.006, 8, 0.006},
        {29.999999, 7, 29.999994, 8, 29.999994},
    }};
    for (const Case& c : kCases) {
        for (int sign = 1; sign <= 12; ++sign) {
            core::Chart chart;
            place(chart, core::kMoon, (sign - 1) * 30.0 + c.degree);
            computeVarga(chart, core::kTrimshamsa, core::kMoon, {});
            const core::VargaPlacement& placement = chart.vargas[core::kTrimshamsa][core::kMoon];
            EXPECT_EQ(placement.sign, sign % 2 != 0 ? c.odd : c.even) << sign << " " << c.degree;
            EXPECT_NEAR(placement.position, sign % 2 != 0 ? c.oddPosition : c.evenPosition, 1e-8);
        }
    }
    core::Chart chart;
    place(chart, core::kMoon, 10.0);
    EXPECT_TRUE(computeVarga(chart, core::kTrimshamsa, core::kMoon, {}));
    EXPECT_EQ(chart.vargas[core::kTrimshamsa][core::kMoon].strengthStep, 0);
}

TEST(Vargas, NavaDwadashaCountsTwelvePartsFromTheNavamshaSign)
{
    for (int part = 0; part < 1296; ++part) {
        const int navamsha = part / 12;
        EXPECT_EQ(signAt({}, core::kNavaDwadasha, (part + 0.5) / 3.6),
                  norm12(navamsha % 12 + 1 + part % 12));
    }
    // The seventh navamsha start is a little low as a double: the Navamsha chart has passed it, the
    // navamsha sign has not, and the count follows the latter.
    const double start = 70.0 / 3.0;
    EXPECT_EQ(signAt({}, core::kNavamsha, start), 8);
    EXPECT_EQ(signAt({}, core::kNavaDwadasha, start), 7);
}

TEST(Vargas, RashiHasTheStepsOfItsFifths)
{
    struct Case
    {
        double degree;
        std::array<int, 2> steps; // even and odd signs
    };
    for (const Case& c : {Case{0.0, {0, 1}},
                          {3.0, {0, 1}},
                          {9.0, {0, 2}},
                          {12.0, {4, 4}},
                          {15.0, {4, 4}},
                          {21.0, {2, 0}},
                          {27.0, {1, 0}},
                          {29.99995, {1, 0}}}) {
        for (int sign = 1; sign <= 12; ++sign) {
            core::Chart chart;
            place(chart, core::kSun, (sign - 1) * 30.0 + c.degree);
            computeVarga(chart, core::kRashi, core::kSun, {});
            const core::VargaPlacement& placement = chart.vargas[core::kRashi][core::kSun];
            EXPECT_EQ(placement.strengthStep, at(c.steps, sign % 2)) << c.degree;
            EXPECT_EQ(placement.sign, sign);
            EXPECT_EQ(placement.position, chart.degreeInSign[core::kSun]);
        }
    }
}

TEST(Vargas, FlagPlacementsNearABoundary)
{
    // Arc minutes from the nearest end of a part, cut to whole ones, against the setting.
    const auto flagged = [](int varga, double longitude, int minutes) {
        core::Chart chart;
        place(chart, core::kSun, longitude);
        const bool flag =
            computeVarga(chart, varga, core::kSun, with(&core::Settings::sandhiMinutes, minutes));
        EXPECT_EQ(flag, at(chart.nearBoundary, varga)[core::kSun]);
        return flag;
    };
    constexpr double kMinute = 1.0 / 60.0;
    struct Boundary
    {
        int varga;
        double longitude;
    };
    for (const Boundary& b : {Boundary{core::kRashi, 60.0},
                              {core::kHora, 45.0},
                              {core::kNavamsha, 43.0 + 1.0 / 3.0},
                              {core::kTrimshamsa, 42.0},
                              {core::kTrimshamsa, 78.0},
                              {core::kRudramsha, 60.0},
                              {core::kShashtiamsha, 100.5},
                              {core::kNavaDwadasha, 125.0}}) {
        SCOPED_TRACE(b.varga);
        for (const double side : {-1.0, 1.0}) {
            EXPECT_TRUE(flagged(b.varga, b.longitude + side * 1.99 * kMinute, 2));
            EXPECT_FALSE(flagged(b.varga, b.longitude + side * 2.01 * kMinute, 2));
            EXPECT_TRUE(flagged(b.varga, b.longitude + side * 6.5 * kMinute, 7));
            EXPECT_FALSE(flagged(b.varga, b.longitude + side * 0.01 * kMinute, 0));
        }
    }
    EXPECT_FALSE(flagged(core::kHora, 60.0 + 450.0 * kMinute, 60));
}

TEST(Vargas, ArudhasAreComputedAnewInEachVarga)
{
    std::mt19937 random(4);
    for (int round = 0; round < 20; ++round) {
        core::Chart chart = randomChart(random);
        core::Settings settings;
        settings.arudhasInVargas = false;
        analyse(chart, settings);
        core::Chart anew = chart;
        settings.arudhasInVargas = true;
        computeAllVargas(anew, settings);
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            const auto& divided = at(chart.vargas, varga);
            const auto& placements = at(anew.vargas, varga);
            const std::array<int, 12> padas = arudhaSigns(signView(anew, varga, settings), false);
            EXPECT_EQ(placements[core::kArudhaLagna].sign, padas[0]);
            for (int house = 0; house < 12; ++house) {
                const int point = core::kArudhaPada1 + house;
                EXPECT_EQ(at(placements, point).sign, at(padas, house));
                EXPECT_EQ(at(placements, point).position, at(divided, point).position);
            }
            EXPECT_EQ(placements[core::kMars].sign, divided[core::kMars].sign);
        }
        EXPECT_EQ(chart.vargas[core::kRashi][core::kUpapada].sign,
                  anew.vargas[core::kRashi][core::kUpapada].sign);
    }
}

TEST(Vargas, EveryPlacementIsInsideItsTables)
{
    std::mt19937 random(11);
    std::uniform_int_distribution<int> sign(0, 11);
    for (int round = 0; round < 300; ++round) {
        core::Chart chart = randomChart(random);
        // The last double of a sign, and the last of all.
        place(chart, core::kSun, std::nextafter(30.0 * (sign(random) + 1), 0.0));
        place(chart, core::kMoon, std::nextafter(360.0, 0.0));
        core::Settings settings;
        settings.horaMethod = round % 4;
        settings.shodashamshaVariant = round / 4 % 2;
        settings.rudramshaVariant = round / 8 % 2;
        analyse(chart, settings);
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            for (int point = 0; point <= core::kKetu; ++point) {
                const core::VargaPlacement& placement = at(at(chart.vargas, varga), point);
                ASSERT_TRUE(placement.sign >= 1 && placement.sign <= 12) << varga;
                ASSERT_TRUE(placement.position >= -0.0000101 && placement.position <= 30.0);
                ASSERT_TRUE(placement.strengthStep >= 0 && placement.strengthStep <= 6);
            }
        }
        const int last = chart.rashi[core::kSun];
        EXPECT_EQ(chart.vargas[core::kDwadashamsha][core::kSun].sign, norm12(last + 11));
        EXPECT_EQ(chart.vargas[core::kNavamsha][core::kMoon].sign, 12);
    }
}

TEST(Vargas, NamesAndDivisionsFindTheirVarga)
{
    EXPECT_EQ(findVarga("navamsha"), core::kNavamsha);
    EXPECT_EQ(findVarga("SHAT"), core::kTajikShashtamsha);
    EXPECT_EQ(findVarga("RUDRAMSHA/TAJIK"), core::kRudramsha);
    EXPECT_EQ(findVarga("NavaDwadasha."), core::kNavaDwadasha);
    EXPECT_EQ(findVarga("16"), core::kTajikPanchamsha);
    EXPECT_EQ(findVarga("D-16"), core::kShodashamsha);
    EXPECT_EQ(findVarga("d5"), core::kTajikPanchamsha);
    for (const char* const text : {"", "D", "D-", "D-13", "21", "-1", "Navamsh", "NavaDwadasha"}) {
        EXPECT_FALSE(findVarga(text)) << text;
    }
    EXPECT_DOUBLE_EQ(partSpan(core::kNavamsha), 10.0 / 3.0);
}

TEST(Vargas, TwentySecondDrekkanaIsTheEighthFromTheDrekkana)
{
    for (const auto& [longitude, sign] : {std::pair{5.0, 8}, {10.0, 12}, {29.0, 4}, {351.0, 3}}) {
        const core::Chart chart = chartOf({longitude});
        EXPECT_EQ(twentySecondDrekkanaSign(chart, core::kAscendant), sign) << longitude;
    }
}

} // namespace
} // namespace kestrav::analysis
