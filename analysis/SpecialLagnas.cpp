#include "analysis/SpecialLagnas.h"

#include "analysis/DignityTables.h"
#include "analysis/NakshatraLords.h"
#include "analysis/StorePoint.h"
#include "core/Angles.h"
#include "core/SignData.h"

#include <array>
#include <cstdlib>

namespace kestrav::analysis
{

namespace
{

using core::at;
using core::norm12;
using core::Normalize360;

// Rays of planets 1 to 7; entry 0 is unused.
constexpr std::array<int, 8> kKalas = {0, 30, 16, 6, 8, 10, 12, 1};

bool isOdd(int sign)
{
    return sign % 2 != 0;
}

// Odd signs count forward from Aries, even ones backward from Pisces.
int countOf(int sign)
{
    return isOdd(sign) ? sign : 13 - sign;
}

double sunAt(const core::Chart& chart, astro::EphemerisContext& context, double localHour)
{
    const double days = (localHour - chart.time.localTime) / 24.0;
    context.setTime(core::timeArguments(chart.T + days / core::kDaysPerCentury));
    astro::PlanetPosition(context, astro::kCodeSun);
    return Normalize360(context.result.longitude - chart.ayanamsa);
}

void computeFromSunrise(core::Chart& chart, astro::EphemerisContext& context)
{
    const double sunrise = chart.vedicDay->sunrise;
    const double sun = sunAt(chart, context, sunrise);
    const double hours = chart.time.localTime - sunrise;
    storePoint(chart, core::kBhavaLagna, lagnaFromSunrise(sun, hours, kBhavaLagnaRate));
    storePoint(chart, core::kHoraLagna, lagnaFromSunrise(sun, hours, kHoraLagnaRate));
    storePoint(chart, core::kGhatiLagna, lagnaFromSunrise(sun, hours, kGhatiLagnaRate));
}

} // namespace

double lagnaFromSunrise(double sunAtSunrise, double hoursSinceSunrise, double rate)
{
    return Normalize360(sunAtSunrise + hoursSinceSunrise * rate);
}

int kalaOfNinthFrom(int sign)
{
    return at(kKalas, signLord(norm12(sign + 8)));
}

int induSign(int ascendantSign, int moonSign)
{
    const int kalas = kalaOfNinthFrom(ascendantSign) + kalaOfNinthFrom(moonSign);
    return norm12(moonSign + norm12(kalas) - 1);
}

double shriLagna(double ascendant, double moon)
{
    return Normalize360(ascendant + 360.0 * nakshatraFraction(core::nakshatraPositionOf(moon)));
}

int varnadaSign(int ascendantSign, int horaLagnaSign, int house)
{
    const int sign = norm12(ascendantSign + house - 1);
    const int horaSign = norm12(horaLagnaSign + house - 1);
    const int first = countOf(sign);
    const int second = countOf(horaSign);
    const bool alike = isOdd(sign) == isOdd(horaSign);
    const int count = norm12(alike ? first + second : std::abs(first - second));
    return isOdd(sign) ? count : norm12(13 - count);
}

double divyaLagna(double ascendant)
{
    return Normalize360(9.0 * ascendant);
}

void computeSpecialLagnas(core::Chart& chart, astro::EphemerisContext& context)
{
    const bool dayRuns = chart.hasMoment && chart.vedicDay;
    if (dayRuns) {
        computeFromSunrise(chart, context);
    }
    if (!chart.computed(core::kAscendant)) {
        return;
    }
    const double ascendant = chart.longitude[core::kAscendant];
    const int ascendantSign = chart.rashi[core::kAscendant];
    storePoint(chart, core::kDivyaLagna, divyaLagna(ascendant));
    if (dayRuns) {
        storePointInSign(chart, core::kVarnadaLagna,
                         varnadaSign(ascendantSign, chart.rashi[core::kHoraLagna]),
                         chart.degreeInSign[core::kAscendant]);
    }
    if (chart.computed(core::kMoon)) {
        storePointInSign(chart, core::kInduLagna, induSign(ascendantSign, chart.rashi[core::kMoon]),
                         chart.degreeInSign[core::kMoon]);
        storePoint(chart, core::kShriLagna, shriLagna(ascendant, chart.longitude[core::kMoon]));
    }
}

} // namespace kestrav::analysis
