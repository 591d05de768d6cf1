#include "astro/Ayanamsa.h"
#include "astro/Nutation.h"
#include "core/numeric.h"
#include "tests/astro/SkyForTests.h"

#include <gtest/gtest.h>

#include <erfa.h>

#include <cmath>

namespace kestrav::astro
{
namespace
{

core::DateTimeRecord dateOf(int year, int month, int day, double utHours = 0.0)
{
    core::DateTimeRecord record;
    record.year = year;
    record.month = month;
    record.day = day;
    record.utHours = utHours;
    return record;
}

double ayanamsaOn(int row, core::DateTimeRecord record)
{
    core::Settings settings;
    settings.ayanamsaRow = row;
    const double result = Ayanamsa(record, settings);
    EXPECT_EQ(record.ayanamsa, result);
    return result;
}

TEST(DecimalYear, CountsMonthsAndDaysOfTheMonth)
{
    EXPECT_EQ(DecimalYear(dateOf(1950, 1, 1)), 1950.0);
    EXPECT_NEAR(DecimalYear(dateOf(1999, 7, 16, 12.0)), 1999.5 + 0.5 / 12.0, 1e-12);
    EXPECT_NEAR(DecimalYear(dateOf(1999, 2, 28, 24.0)), 1999.0 + 2.0 / 12.0, 1e-12);
    EXPECT_NEAR(DecimalYear(dateOf(2000, 2, 29, 24.0)), 2000.0 + 2.0 / 12.0, 1e-12);
    EXPECT_NEAR(DecimalYear(dateOf(2001, 12, 31, 24.0)), 2002.0, 1e-12);
    // Universal Time is not reduced: early morning in the east is a negative hour.
    EXPECT_NEAR(DecimalYear(dateOf(2001, 1, 1, -5.5)), 2001.0 - 5.5 / 24.0 / 372.0, 1e-12);
    // The Gregorian leap rule holds in every century and for the year number as it stands.
    EXPECT_NEAR(DecimalYear(dateOf(1500, 2, 15)), 1500.0 + 1.0 / 12.0 + 14.0 / 336.0, 1e-12);
    EXPECT_NEAR(DecimalYear(dateOf(1504, 2, 15)), 1504.0 + 1.0 / 12.0 + 14.0 / 348.0, 1e-12);
    EXPECT_NEAR(DecimalYear(dateOf(-1, 2, 15)), -1.0 + 1.0 / 12.0 + 14.0 / 336.0, 1e-12);
    EXPECT_NEAR(DecimalYear(dateOf(-4, 2, 15)), -4.0 + 1.0 / 12.0 + 14.0 / 348.0, 1e-12);
    // There is no year 0, so the last hour of 1 BC is year 0.0 and the next one year 1.0.
    EXPECT_NEAR(DecimalYear(dateOf(-1, 12, 31, 24.0)), 0.0, 1e-12);
    EXPECT_NEAR(DecimalYear(dateOf(1, 1, 1)), 1.0, 1e-12);
}

TEST(Ayanamsa, RowsHoldTheirValueAtTheirEpoch)
{
    const struct
    {
        int epoch;
        double degrees;
        double minutes;
        double seconds;
        double rate;
    } rows[] = {
        {1900, 22, 27, 37.2167, 50.264}, {1950, 23, 9, 32, 50.27},
        {1950, 21, 42, 47, 50.34},       {1950, 21, 45, 55, 54.0},
        {2000, 23, 44, 55, 50.0351},     {1950, 23, 9, 7, 50.2388475},
        {1950, 22, 3, 47, 50.3388475},   {1950, 23, 9, 32, 50.285412771},
        {221, 0, 0, 0, 50.25},           {1950, 0, 0, 0, 0.0},
    };
    for (int row = 0; row < core::kAyanamsaRows; ++row) {
        const auto& [epoch, degrees, minutes, seconds, rate] = rows[row];
        const double value = degrees + minutes / 60.0 + seconds / 3600.0;
        EXPECT_NEAR(ayanamsaOn(row, dateOf(epoch, 1, 1)), value, 1e-8) << row;
        EXPECT_NEAR(ayanamsaOn(row, dateOf(epoch + 360, 1, 1)), value + rate / 10.0, 1e-8) << row;
    }
    EXPECT_EQ(ayanamsaOn(1, dateOf(1950, 1, 1)), 23.15888888888889);
    EXPECT_EQ(ayanamsaOn(8, dateOf(221, 1, 1)), 0.0);
    EXPECT_EQ(ayanamsaOn(7, dateOf(1950, 1, 1)), ayanamsaOn(1, dateOf(1950, 1, 1)));
    EXPECT_NEAR(ayanamsaOn(7, dateOf(2050, 1, 1)) - ayanamsaOn(1, dateOf(2050, 1, 1)),
                1.5412771 / 3600.0, 1e-12);
}

TEST(Ayanamsa, ReadsTheEditedTableAndStaysLinear)
{
    core::Settings settings;
    settings.ayanamsaRow = 3;
    settings.ayanamsaTable[3].epochYear = 2000;
    settings.ayanamsaTable[3].valueAtEpoch = 24.0;
    settings.ayanamsaTable[3].annualRate = -36.0;
    core::DateTimeRecord record = dateOf(2100, 1, 1);
    EXPECT_NEAR(Ayanamsa(record, settings), 23.0, 1e-12);
    EXPECT_TRUE(isTropical(selectedRow(settings)));
    settings.ayanamsaTable[3].annualRate = 0.01;
    EXPECT_FALSE(isTropical(selectedRow(settings)));
    settings.ayanamsaTable[3].annualRate = 0.0;
    EXPECT_EQ(Ayanamsa(record, settings), 24.0);
    EXPECT_TRUE(isTropical(selectedRow(settings)));
    for (int row = 0; row < core::kAyanamsaRows; ++row) {
        settings.ayanamsaRow = row;
        EXPECT_EQ(isTropical(selectedRow(settings)), row == 3 || row == 9) << row;
    }
    settings.ayanamsaRow = 700;
    EXPECT_EQ(selectedRow(settings).nameText(), "No Ayanamsha");
}

TEST(PrecessionSince2000, IsPositiveBefore2000AtTheRateOfRow0)
{
    core::Settings settings;
    EXPECT_NEAR(PrecessionSince2000(dateOf(1900, 1, 1), settings), 5026.4 / 3600.0, 1e-12);
    EXPECT_NEAR(PrecessionSince2000(dateOf(2100, 1, 1), settings), -5026.4 / 3600.0, 1e-12);
    settings.ayanamsaTable[0].annualRate = 36.0;
    EXPECT_NEAR(PrecessionSince2000(dateOf(1900, 1, 1), settings), 1.0, 1e-12);
}

TEST(Nutation, AgreesWithTheFullTheory)
{
    tests::Largest away;
    for (double day = 0.0; day < 2.0 * core::kDaysPerCentury; day += 3.7) {
        double longitude = 0.0;
        double obliquity = 0.0;
        eraNut80(core::kEpoch1900, day, &longitude, &obliquity);
        const double T = day / core::kDaysPerCentury;
        away.add(Nutation(core::timeArguments(T)).longitude * 3600.0 -
                     longitude * core::kDegreesPerRadian * 3600.0,
                 1900.0 + 100.0 * T);
    }
    EXPECT_LT(away.value, 0.75) << away.year;
}

// The fundamental arguments of the IERS conventions (J2000.0 theory), in radians.
TEST(Nutation, MeanArgumentsAgreeWithTheConventions)
{
    for (const double T : {0.0, 0.4, 1.0, 1.7}) {
        const NutationResult result = Nutation(core::timeArguments(T));
        const double t = T - 1.0;
        const double node = eraFaom03(t);
        const double moon = eraFaf03(t) + node;
        const double wanted[][2] = {{result.node, node},
                                    {result.sunAnomaly, eraFalp03(t)},
                                    {result.moonAnomaly, eraFal03(t)},
                                    {result.elongation, eraFad03(t)},
                                    {result.moonLongitude, moon},
                                    {result.sunLongitude, moon - eraFad03(t)}};
        for (const auto& [degrees, radians] : wanted) {
            EXPECT_NEAR(tests::arcSeconds(degrees, radians * core::kDegreesPerRadian), 0.0, 20.0);
        }
        // The square term of the perigee carries the other sign, so it runs ahead.
        const double perigee = (moon - eraFal03(t)) * core::kDegreesPerRadian;
        EXPECT_NEAR(std::remainder(result.perigee - perigee, 360.0), 2.0 * 0.010325 * T * T, 0.005)
            << T;
    }
}

// The polynomials in exact decimal arithmetic 20 centuries back, where their squares are large.
TEST(Nutation, HoldsItsConstants)
{
    const NutationResult result = Nutation(core::timeArguments(-20.0));
    EXPECT_NEAR(result.node, 62.837060, 1e-7);
    EXPECT_NEAR(result.sunLongitude, 264.439680, 1e-7);
    EXPECT_NEAR(result.sunAnomaly, 17.420840, 1e-7);
    EXPECT_NEAR(result.moonAnomaly, 282.8012763, 1e-7);
    EXPECT_NEAR(result.elongation, 327.883086, 1e-7);
    EXPECT_NEAR(result.moonLongitude, 232.322514, 1e-7);
    EXPECT_NEAR(result.perigee, 317.875120, 1e-7);
    EXPECT_NEAR(result.longitude, -0.004241272749067, 1e-12);
}

} // namespace
} // namespace kestrav::astro
