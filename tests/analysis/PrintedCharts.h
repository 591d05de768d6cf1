// Two horoscopes whose strengths are printed in textbooks, as bare printed positions. The figures
// that the tests compare are the printed ones, or were worked out by hand from these positions.
#pragma once

#include "analysis/Dignities.h"
#include "analysis/SignPositions.h"
#include "analysis/StrengthInputs.h"
#include "analysis/Vargas.h"
#include "astro/Houses.h"
#include "core/Chart.h"
#include "core/Settings.h"
#include "tests/analysis/AnalysisCharts.h"

namespace kestrav::analysis
{

/// What the strengths read of a chart of bare positions.
inline core::Chart analysed(core::Chart chart)
{
    const core::Settings settings;
    chart.hasMoment = false;
    computeAllVargas(chart, settings);
    computeCompoundRelationships(chart, settings);
    return chart;
}

inline void storeSriPatiCusps(core::Chart& chart, double midheaven)
{
    chart.midheaven = midheaven;
    astro::HouseCusps(chart, int(astro::HouseSystem::SriPati));
    for (int house = 1; house <= 12; ++house) {
        computeSignData(chart, core::cuspPoint(house));
    }
}

/// Born 1918 October 16 by day, on a Wednesday.
inline core::Chart chartR()
{
    core::Chart chart = analysed(printedHoroscope());
    storeSriPatiCusps(chart, 216.61);
    return chart;
}

inline StrengthInputs inputsR()
{
    StrengthInputs inputs;
    inputs.ayanamsa = 21.27;
    inputs.midheaven = 216.61;
    inputs.apparentTime = 14.336;
    inputs.hoursSinceSunrise = 8.1;
    inputs.dayThird = DayThird{true, 2};
    inputs.weekday = 4;
    inputs.dayJulianDay = 2421882.5;
    inputs.horaLord = core::kMoon;
    inputs.julianDay = 2421882.8696;
    inputs.latitude = PlanetArray<double>{};
    return inputs;
}

/// Born 1981 September 13 at 1:30 at night, before the sunrise that ends Saturday. The nodes are
/// not printed.
inline core::Chart chartJ()
{
    core::Chart chart =
        analysed(chartOf({86.43, 146.38, 309.50, 103.18, 170.53, 170.45, 186.27, 166.43}));
    storeSriPatiCusps(chart, 346.15);
    return chart;
}

inline StrengthInputs inputsJ()
{
    StrengthInputs inputs;
    inputs.ayanamsa = 23.6;
    inputs.midheaven = 346.15;
    inputs.apparentTime = 1.22;
    inputs.dayThird = DayThird{false, 1};
    inputs.weekday = 7;
    inputs.dayJulianDay = 2444859.5;
    inputs.horaLord = core::kMercury;
    inputs.julianDay = 2444860.3333;
    // Only that Jupiter stands north of Mercury is printed.
    inputs.latitude = PlanetArray<double>{};
    inputs.latitude->at(core::kJupiter) = 1.0;
    return inputs;
}

} // namespace kestrav::analysis
