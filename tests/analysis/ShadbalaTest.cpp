#include "analysis/Shadbala.h"
#include "analysis/CheshtaBala.h"
#include "analysis/ComputeChart.h"
#include "core/numeric.h"
#include "tests/analysis/PrintedCharts.h"
#include "tests/astro/SeriesForTests.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

namespace kestrav::analysis
{
namespace
{

using core::at;

// The printed positions have four or two decimals, the printed strengths two.
constexpr double kPart = 0.05;
// The books compute declinations and mean places by tables of their own.
constexpr double kPrintedMotion = 0.6;
constexpr double kTotal = 1.0;

using Row = std::array<double, 7>;
using Read = std::function<Strength(const Shadbala&)>;

void expectRow(const ShadbalaTable& table, const Read& read, const Row& wanted,
               double tolerance = kPart)
{
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        const Strength value = read(at(table.planets, planet));
        ASSERT_TRUE(value.has_value()) << "planet " << planet;
        EXPECT_NEAR(*value, at(wanted, planet - 1), tolerance) << "planet " << planet;
    }
}

const ShadbalaTable& tableR()
{
    static const ShadbalaTable table = computeShadbala(chartR(), inputsR());
    return table;
}

const ShadbalaTable& tableJ()
{
    static const ShadbalaTable table = computeShadbala(chartJ(), inputsJ());
    return table;
}

// One figure of each kind that a planet without a position must not have.
std::vector<Strength> figuresOf(const Shadbala& b)
{
    return {b.sthana.uccha, b.sthana.kendradi, b.dig,  b.kala.paksha, b.kala.vara,  b.kala.ayana,
            b.kala.yuddha,  b.cheshta,         b.drik, b.total,       b.phala.ishta};
}

TEST(Shadbala, GivesThePrintedPlaceStrength)
{
    const ShadbalaTable& r = tableR();
    expectRow(r, [](const auto& b) { return b.sthana.uccha; },
              {3.03, 32.76, 37.17, 54.49, 56.34, 1.94, 34.79});
    expectRow(r, [](const auto& b) { return b.sthana.saptavargaja; },
              {90, 48.75, 90, 135, 71.25, 116.25, 97.5});
    expectRow(r, [](const auto& b) { return b.sthana.ojayugma; }, {30, 15, 15, 30, 15, 30, 15});
    expectRow(r, [](const auto& b) { return b.sthana.kendradi; }, {60, 30, 30, 60, 15, 15, 30});
    expectRow(r, [](const auto& b) { return b.sthana.drekkana; }, {15, 0, 0, 0, 0, 15, 0});
    const Read total = [](const auto& b) {
        return b.sthana.total();
    };
    expectRow(r, total, {198.03, 126.51, 172.17, 279.49, 157.59, 178.19, 177.29});
    expectRow(tableJ(), total, {172.04, 77.17, 184.94, 238.16, 152.98, 198.08, 206.31});
}

TEST(Shadbala, PutsTheBoundsOfTheDrekkanasIntoTheLaterThird)
{
    const auto drekkana = [](double longitude, int planet) {
        std::vector<double> longitudes(8, 5.0);
        longitudes[std::size_t(planet)] = longitude;
        return sthanaBala(chartOf(longitudes), planet).drekkana.value();
    };
    EXPECT_DOUBLE_EQ(drekkana(9.999, core::kMars), 15.0);
    EXPECT_DOUBLE_EQ(drekkana(10.0, core::kMars), 0.0);
    EXPECT_DOUBLE_EQ(drekkana(10.0, core::kMercury), 15.0);
    EXPECT_DOUBLE_EQ(drekkana(20.0, core::kSaturn), 0.0);
    EXPECT_DOUBLE_EQ(drekkana(20.0, core::kMoon), 15.0);
}

TEST(Shadbala, TakesTheHorasOfSunAndMoonWhateverTheHoraMethod)
{
    core::Chart chart = chartR();
    core::Settings settings;
    settings.horaMethod = 2;
    computeAllVargas(chart, settings);
    expectRow(computeShadbala(chart, inputsR()),
              [](const auto& b) { return b.sthana.saptavargaja; },
              {90, 48.75, 90, 135, 71.25, 116.25, 97.5});
}

TEST(Shadbala, GivesThePrintedDirectionAndTimeStrength)
{
    const ShadbalaTable& r = tableR();
    expectRow(r, [](const auto& b) { return b.dig; },
              {48.10, 31.56, 55.70, 21.03, 11.48, 15.15, 58.02});
    expectRow(r, [](const auto& b) { return b.kala.nathonnatha; },
              {48.32, 11.68, 11.68, 60, 48.32, 48.32, 11.68});
    expectRow(r, [](const auto& b) { return b.kala.paksha; },
              {16.54, 86.93, 16.54, 16.54, 43.46, 43.46, 16.54});
    expectRow(r, [](const auto& b) { return b.kala.total(); },
              {102.98, 202.04, 30.18, 192.77, 210.64, 115.53, 116.76});
    expectRow(tableJ(), [](const auto& b) { return b.kala.ayana; },
              {70.08, 43.18, 53.57, 37.10, 22.94, 15.42, 35.04});
}

TEST(Shadbala, FindsThePrintedLordsOfYearAndMonth)
{
    EXPECT_EQ(yearLord(2421882.5), core::kSaturn);
    EXPECT_EQ(monthLord(2421882.5), core::kMercury);
    EXPECT_EQ(yearLord(2444859.5), core::kMars);
    EXPECT_EQ(monthLord(2444859.5), core::kMars);
}

TEST(Shadbala, MovesTheLordsOfYearAndMonthOnWithoutABreak)
{
    // Before the creation too, where the count is negative.
    int years = 0;
    int months = 0;
    for (double day = 586000.5; day < 589000.5; ++day) {
        const int yearStep = (yearLord(day + 1) - yearLord(day) + 7) % 7;
        const int monthStep = (monthLord(day + 1) - monthLord(day) + 7) % 7;
        EXPECT_TRUE(yearStep == 0 || yearStep == 3) << day;
        EXPECT_TRUE(monthStep == 0 || monthStep == 2) << day;
        years += yearStep == 3 ? 1 : 0;
        months += monthStep == 2 ? 1 : 0;
        EXPECT_EQ(yearLord(day), yearLord(day + 2520)) << day;
    }
    EXPECT_EQ(months, 100);
    EXPECT_TRUE(years == 8 || years == 9);
}

TEST(Shadbala, GivesThePrintedMotionAndAspectStrength)
{
    const Read cheshta = [](const auto& b) {
        return b.cheshta;
    };
    expectRow(tableR(), cheshta, {0, 0, 22.17, 6.60, 35.72, 6.67, 21.00});
    expectRow(tableR(), cheshta, {0, 0, 22.23, 6.60, 35.26, 6.67, 21.14}, kPrintedMotion);
    expectRow(tableJ(), cheshta, {0, 0, 20.75, 24.38, 8.20, 27.07, 5.45});
    const Read drik = [](const auto& b) {
        return b.drik;
    };
    expectRow(tableR(), drik, {15.87, -21.73, 0.96, 15.64, -16.02, 18.45, 7.20});
    expectRow(tableJ(), drik, {11.24, -0.32, -5.10, 4.28, 4.31, -2.86, 5.82});
    expectRow(tableR(), [](const auto& b) { return b.naisargika; },
              {60, 51.43, 17.14, 25.71, 34.29, 42.86, 8.57});
}

TEST(Shadbala, AddsThePartsUpToThePrintedTotals)
{
    const auto& r = tableR().planets;
    EXPECT_NEAR(r[core::kMars].total.value(), 298.32, kTotal);
    EXPECT_NEAR(r[core::kMars].ratio.value(), 0.99, 0.01);
    EXPECT_NEAR(r[core::kSaturn].total.value(), 388.84, kTotal);
    EXPECT_NEAR(r[core::kSaturn].ratio.value(), 1.30, 0.01);
    // Sun: 198.03 + 48.10 + 102.98 + 0 + 60 + 15.87.
    EXPECT_NEAR(r[core::kSun].total.value(), 424.98, kTotal);
    // The war of J: 238.16 + 31.97 + 174.37 + 37.10 - 0.76 + 24.38 + 25.71 + 4.28.
    EXPECT_NEAR(tableJ().planets[core::kMercury].total.value(), 535.21, kTotal);
}

TEST(Shadbala, TestsTheRequiredParts)
{
    const auto& r = tableR().planets;
    // Sun: ayana 38.13, of which the half, 19.06, is tested in the place of motion.
    const PartsTest& sun = r[core::kSun].reachesRequired;
    EXPECT_EQ(sun.sthana, true);
    EXPECT_EQ(sun.dig, true);
    EXPECT_EQ(sun.cheshta, false);
    EXPECT_EQ(sun.kala, false);
    EXPECT_EQ(sun.ayana, true);
    // Moon: 126.51 of 133, 31.56 of 50, half of 86.93 of 30, 202.04 of 100, 43.43 of 40.
    const PartsTest& moon = r[core::kMoon].reachesRequired;
    EXPECT_EQ(moon.sthana, false);
    EXPECT_EQ(moon.dig, false);
    EXPECT_EQ(moon.cheshta, true);
    EXPECT_EQ(moon.kala, true);
    EXPECT_EQ(moon.ayana, true);
    // Mars: 22.17 of 40 and 30.18 of 67.
    EXPECT_EQ(r[core::kMars].reachesRequired.cheshta, false);
    EXPECT_EQ(r[core::kMars].reachesRequired.kala, false);
    EXPECT_DOUBLE_EQ(r[core::kVenus].required, 330.0);
}

TEST(Phala, FollowsTheWorkedExamples)
{
    const auto& r = tableR().planets;
    EXPECT_NEAR(r[core::kMars].phala.ishta.value(), 28.71, kPart);
    EXPECT_NEAR(r[core::kMars].phala.kashta.value(), 29.39, kPart);
    EXPECT_NEAR(phalaCheshta(chartR(), inputsR(), core::kSun).value(), 22.61, kPart);
    EXPECT_NEAR(phalaCheshta(chartR(), inputsR(), core::kMoon).value(), 43.46, kPart);
    // Sun: the root of 3.03 x 22.61.
    EXPECT_NEAR(r[core::kSun].phala.ishta.value(), 8.28, kPart);
}

TEST(Shadbala, KeepsTheLawsOfTimeStrength)
{
    // Every third of day and night has one lord beside Jupiter.
    StrengthInputs inputs = inputsR();
    std::vector<int> lords;
    for (const bool byDay : {true, false}) {
        for (int third = 0; third < 3; ++third) {
            inputs.dayThird = DayThird{byDay, third};
            const ShadbalaTable table = computeShadbala(chartR(), inputs);
            double tribhaga = 0.0;
            double lordships = 0.0;
            for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
                const KalaBala& kala = at(table.planets, planet).kala;
                tribhaga += kala.tribhaga.value();
                lordships += sumOf({kala.varsha, kala.masa, kala.vara, kala.hora}).value();
                if (planet != core::kJupiter && kala.tribhaga > 0.0) {
                    lords.push_back(planet);
                }
            }
            EXPECT_DOUBLE_EQ(tribhaga, 120.0);
            EXPECT_DOUBLE_EQ(lordships, 15.0 + 30.0 + 45.0 + 60.0);
        }
    }
    EXPECT_EQ(lords, (std::vector<int>{core::kMercury, core::kSun, core::kSaturn, core::kMoon,
                                       core::kVenus, core::kMars}));
    double natural = 0.0;
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        natural += naisargikaBala(planet);
    }
    EXPECT_NEAR(natural, 240.0, 1e-12);
}

TEST(Shadbala, HasADeclinationNearTheTrueOne)
{
    for (double longitude = 0.0; longitude < 360.0; longitude += 0.5) {
        const double sine = std::sin(24.0 * core::kRadiansPerDegree) *
                            std::sin(longitude * core::kRadiansPerDegree);
        EXPECT_NEAR(tabularDeclination(longitude), std::asin(sine) * core::kDegreesPerRadian, 0.25)
            << longitude;
    }
    EXPECT_DOUBLE_EQ(tabularDeclination(90.0), 24.0);
    EXPECT_DOUBLE_EQ(tabularDeclination(270.0), -24.0);
    EXPECT_DOUBLE_EQ(tabularDeclination(15.0), 362.0 / 60.0);
}

TEST(Benefics, JudgeTheMoonByHerPhaseAndMercuryByHisCompany)
{
    EXPECT_FALSE(naturalBenefics(chartR())[core::kMercury]);
    EXPECT_TRUE(naturalBenefics(chartR())[core::kMoon]);
    EXPECT_TRUE(naturalBenefics(chartJ())[core::kMercury]);

    // A waning Moon alone with Mercury makes him malefic; with Venus there too he stays benefic.
    const double none = core::kNotComputed;
    EXPECT_FALSE(naturalBenefics(chartOf({none, 30, 5, none, 10}))[core::kMercury]);
    EXPECT_TRUE(naturalBenefics(chartOf({none, 30, 5, none, 10, none, 20}))[core::kMercury]);
    EXPECT_TRUE(naturalBenefics(chartOf({none, 30, 65, none, 70}))[core::kMercury]);
    EXPECT_FALSE(naturalBenefics(chartOf({none, 30, 210, none, 70}))[core::kMoon]);
}

TEST(Shadbala, LetsAWaningMoonKeepHerPhaseButAspectAsAMalefic)
{
    // The Sun moves to the other side of the Moon, at the same distance of 60 degrees.
    const core::Chart waxing = analysed(chartOf({0, 70, 130, 200, 50, 300, 250, 10}));
    const core::Chart waning = analysed(chartOf({0, 190, 130, 200, 50, 300, 250, 10}));
    const Shadbala before = computeShadbala(waxing, {}).planets[core::kMoon];
    const Shadbala after = computeShadbala(waning, {}).planets[core::kMoon];
    EXPECT_DOUBLE_EQ(before.kala.paksha.value(), 40.0);
    EXPECT_DOUBLE_EQ(after.kala.paksha.value(), 40.0);
    // Of these 40 the half is tested, where 30 are required.
    EXPECT_EQ(after.reachesRequired.cheshta, false);
    const NaturalBenefics benefic = naturalBenefics(waning);
    NaturalBenefics asBenefic = benefic;
    asBenefic[core::kMoon] = true;
    // On Saturn, 240 degrees on, she casts 30: a quarter of it changes its sign.
    EXPECT_NEAR(drikBala(waning, asBenefic, core::kSaturn).value() -
                    drikBala(waning, benefic, core::kSaturn).value(),
                15.0, 1e-12);
}

TEST(Shadbala, LeavesEmptyWhatBarePositionsDoNotGive)
{
    const core::Chart chart = chartR();
    ASSERT_FALSE(strengthInputs(chart).ayanamsa.has_value());
    const ShadbalaTable table = computeShadbala(chart, strengthInputs(chart));
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        const Shadbala& bala = at(table.planets, planet);
        EXPECT_TRUE(bala.sthana.total().has_value());
        EXPECT_TRUE(bala.drik.has_value());
        EXPECT_TRUE(bala.kala.paksha.has_value());
        EXPECT_FALSE(bala.kala.ayana.has_value());
        EXPECT_FALSE(bala.kala.total().has_value());
        EXPECT_FALSE(bala.total.has_value());
        EXPECT_FALSE(bala.ratio.has_value());
        EXPECT_FALSE(bala.reachesRequired.kala.has_value());
        EXPECT_TRUE(bala.reachesRequired.sthana.has_value());
    }
    EXPECT_FALSE(table.planets[core::kMars].dig.has_value());
    EXPECT_TRUE(table.planets[core::kSaturn].dig.has_value());
    EXPECT_FALSE(table.planets[core::kMars].phala.ishta.has_value());
    EXPECT_TRUE(table.planets[core::kMoon].phala.ishta.has_value());
}

TEST(Shadbala, NeverReadsThePlaceOfAPointThatHasNone)
{
    // Mars has rubbish for a position; his neighbours must not show it.
    for (const double rubbish : {0.0, 77.0, std::numeric_limits<double>::quiet_NaN()}) {
        core::Chart chart = chartR();
        chart.degreeInSign[core::kMars] = core::kNotComputed;
        chart.longitude[core::kMars] = rubbish;
        const ShadbalaTable table = computeShadbala(chart, inputsR());
        for (const Strength& figure : figuresOf(table.planets[core::kMars])) {
            EXPECT_FALSE(figure.has_value());
        }
        // The Sun's trimshamsha is a sign of Mars.
        EXPECT_FALSE(table.planets[core::kSun].sthana.saptavargaja.has_value());
        const Shadbala& saturn = table.planets[core::kSaturn];
        EXPECT_FALSE(saturn.drik.has_value());
        EXPECT_FALSE(saturn.total.has_value());
        EXPECT_NEAR(saturn.kala.total().value(), 116.76, kPart);
    }
}

TEST(StrengthInputs, OfAComputedChartAgreeWithThePrintedHoroscope)
{
    core::Chart chart;
    chart.time.year = 1981;
    chart.time.month = 9;
    chart.time.day = 13;
    chart.time.localTime = 1.5;
    chart.zone = 5.5;
    chart.geoLatitude = 28.65;
    chart.geoLongitude = 77.22;
    const core::Settings settings;
    astro::EphemerisContext context(tests::seriesForTests());
    ComputeChart(chart, settings, context);
    computeAllVargas(chart, settings);
    computeCompoundRelationships(chart, settings);

    const StrengthInputs inputs = strengthInputs(chart);
    EXPECT_NEAR(inputs.ayanamsa.value(), 23.6, 0.05);
    EXPECT_NEAR(inputs.midheaven.value(), 346.15, 0.2);
    EXPECT_NEAR(inputs.apparentTime.value(), 1.22, 0.02);
    EXPECT_NEAR(inputs.julianDay.value(), 2444860.3333, 0.0001);
    EXPECT_EQ(inputs.dayJulianDay, 2444859.5);
    EXPECT_EQ(inputs.weekday, 7);
    EXPECT_EQ(inputs.horaLord, core::kMercury);
    EXPECT_FALSE(inputs.dayThird.value().byDay);
    EXPECT_EQ(inputs.dayThird->third, 1);
    EXPECT_NEAR(inputs.hoursSinceSunrise.value(), 19.4, 0.1);

    const ShadbalaTable computed = computeShadbala(chart, inputs);
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        EXPECT_NEAR(at(computed.planets, planet).total.value(),
                    at(tableJ().planets, planet).total.value(), kTotal)
            << planet;
    }
    ASSERT_EQ(computed.wars.size(), 1u);
    EXPECT_EQ(computed.wars[0].winner, core::kJupiter);

    // By polar day no sunrise begins a day, so what belongs to it stays empty.
    chart.geoLatitude = 80.0;
    chart.time.month = 6;
    ComputeChart(chart, settings, context);
    computeAllVargas(chart, settings);
    computeCompoundRelationships(chart, settings);
    const StrengthInputs polar = strengthInputs(chart);
    EXPECT_TRUE(polar.apparentTime.has_value());
    EXPECT_FALSE(polar.dayThird.has_value());
    EXPECT_FALSE(polar.horaLord.has_value());
    EXPECT_FALSE(polar.dayJulianDay.has_value());
    const ShadbalaTable atPole = computeShadbala(chart, polar);
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        EXPECT_FALSE(at(atPole.planets, planet).total.has_value());
    }
}

} // namespace
} // namespace kestrav::analysis
