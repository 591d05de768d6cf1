#include "analysis/DayParts.h"

#include "astro/SiderealTime.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <array>
#include <cmath>

namespace kestrav::analysis
{

namespace
{

using core::at;
using core::kRadiansPerDegree;

// Degrees of the Sun's centre at rising and setting, as sunrise and sunset are computed.
constexpr double kHorizonAltitude = -0.5833333;

// The order of the planets by the length of their course, from the Sun down and round again.
constexpr std::array<int, 7> kHoraSequence = {core::kSun,  core::kVenus,  core::kMercury,
                                              core::kMoon, core::kSaturn, core::kJupiter,
                                              core::kMars};

// The places of the weekday lords, Sunday to Saturday, in that order.
constexpr std::array<int, 7> kHoraStart = {0, 3, 6, 2, 5, 1, 4};

// The planet of the first eighth, counted from 0 = Sun: the weekday's lord by day, the fifth from
// it by night.
int firstRuler(int weekday, bool night)
{
    return night ? (weekday + 3) % 7 : weekday - 1;
}

bool sunIsDown(const core::Chart& chart)
{
    const double latitude = chart.geoLatitude * kRadiansPerDegree;
    const double declination = at(chart.declination, astro::declinationSlot(core::kSun));
    const double hourAngle =
        (chart.localSiderealTime - astro::RightAscensionHours(chart, chart.longitude[core::kSun])) *
        15.0 * kRadiansPerDegree;
    const double sine = std::sin(latitude) * std::sin(declination) +
                        std::cos(latitude) * std::cos(declination) * std::cos(hourAngle);
    return sine < std::sin(kHorizonAltitude * kRadiansPerDegree);
}

} // namespace

double HalfDay::partStart(double part, int parts) const
{
    return start + (end - start) * part / parts;
}

int HalfDay::partAt(double hour, int parts) const
{
    const double part = std::floor((hour - start) / (end - start) * parts);
    return core::ClampRange(0, parts - 1, core::truncated(part));
}

HalfDay dayHalf(const core::VedicDay& day)
{
    return {false, day.sunrise, day.sunset};
}

HalfDay nightHalf(const core::VedicDay& day)
{
    return {true, day.sunset, day.nextSunrise};
}

std::optional<HalfDay> runningHalf(const core::Chart& chart)
{
    if (!chart.hasMoment || !chart.vedicDay) {
        return std::nullopt;
    }
    const core::VedicDay& day = *chart.vedicDay;
    return chart.time.localTime < day.sunset ? dayHalf(day) : nightHalf(day);
}

std::optional<bool> isNight(const core::Chart& chart)
{
    if (const std::optional<HalfDay> half = runningHalf(chart)) {
        return half->night;
    }
    if (!chart.computed(core::kSun)) {
        return std::nullopt;
    }
    if (chart.hasMoment) {
        return sunIsDown(chart);
    }
    if (!chart.computed(core::kAscendant)) {
        return std::nullopt;
    }
    // What follows the ascendant in the zodiac has not risen yet.
    return core::Normalize360(chart.longitude[core::kSun] - chart.longitude[core::kAscendant]) <
           180.0;
}

int kalaVelaRuler(int weekday, bool night, int part)
{
    return part >= kEighths - 1 ? 0 : (firstRuler(weekday, night) + part) % 7 + 1;
}

int kalaVelaPart(int weekday, bool night, int planet)
{
    return core::ModFrom(7, 0, planet - 1 - firstRuler(weekday, night));
}

int horaLord(int weekday, int hora)
{
    return at(kHoraSequence, (at(kHoraStart, weekday - 1) + hora) % 7);
}

std::optional<int> runningHora(const core::Chart& chart)
{
    const std::optional<HalfDay> half = runningHalf(chart);
    if (!half) {
        return std::nullopt;
    }
    return half->partAt(chart.time.localTime, kHorasOfHalf) + (half->night ? kHorasOfHalf : 0);
}

std::optional<int> runningHoraLord(const core::Chart& chart)
{
    const std::optional<int> hora = runningHora(chart);
    return hora ? std::optional(horaLord(chart.weekday, *hora)) : std::nullopt;
}

} // namespace kestrav::analysis
