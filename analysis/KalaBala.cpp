#include "analysis/KalaBala.h"

#include "core/Angles.h"

#include <array>
#include <cmath>
#include <cstdint>

namespace kestrav::analysis
{

namespace
{

using core::at;

constexpr double kFull = 60.0;

// Julian day of the beginning of the Kali yuga, and the days from the creation to it, reduced by
// the 2520 days after which the lords of year and month repeat.
constexpr double kKaliYuga = 588465.5;
constexpr std::int64_t kDaysBeforeKali = 2147;

// Increase of the declination in arc minutes for each 15 degrees from the equinox.
constexpr std::array<double, 6> kDeclinationSteps = {362, 341, 299, 236, 150, 52};
static_assert(362 + 341 + 299 + 236 + 150 + 52 == 24 * 60);

// Lords of the thirds of the day and of the night.
constexpr std::array<int, 3> kDayThirdLords = {core::kMercury, core::kSun, core::kSaturn};
constexpr std::array<int, 3> kNightThirdLords = {core::kMoon, core::kVenus, core::kMars};

std::int64_t floorDivide(std::int64_t dividend, std::int64_t divisor)
{
    const std::int64_t quotient = dividend / divisor;
    return dividend % divisor < 0 ? quotient - 1 : quotient;
}

// The lord of a period of so many days, when each period moves the lord on by `step`.
int periodLord(double julianDay0h, std::int64_t days, std::int64_t step)
{
    const std::int64_t count = std::int64_t(julianDay0h - kKaliYuga) + kDaysBeforeKali;
    const std::int64_t moved = step * floorDivide(count, days);
    return int(moved - 7 * floorDivide(moved, 7)) + 1;
}

Strength nathonnatha(const StrengthInputs& inputs, int planet)
{
    if (planet == core::kMercury) {
        return kFull;
    }
    if (!inputs.apparentTime) {
        return std::nullopt;
    }
    const double t = *inputs.apparentTime;
    const double byDay = 5.0 * std::fmin(t, 24.0 - t);
    const bool nightPlanet =
        planet == core::kMoon || planet == core::kMars || planet == core::kSaturn;
    return nightPlanet ? kFull - byDay : byDay;
}

Strength paksha(const core::Chart& chart, const NaturalBenefics& benefic, int planet)
{
    if (!chart.computed(core::kSun) || !chart.computed(core::kMoon)) {
        return std::nullopt;
    }
    const double bright =
        arcBetween(chart.longitude[core::kMoon], chart.longitude[core::kSun]) / 3.0;
    if (planet == core::kMoon) {
        // A waning Moon is malefic elsewhere, but keeps this value.
        return 2.0 * bright;
    }
    return at(benefic, planet) ? bright : kFull - bright;
}

Strength tribhaga(const StrengthInputs& inputs, int planet)
{
    if (planet == core::kJupiter) {
        return kFull;
    }
    if (!inputs.dayThird) {
        return std::nullopt;
    }
    return thirdLord(*inputs.dayThird) == planet ? kFull : 0.0;
}

Strength lordship(const std::optional<int>& lord, int planet, double value)
{
    if (!lord) {
        return std::nullopt;
    }
    return *lord == planet ? value : 0.0;
}

Strength ayana(const core::Chart& chart, const StrengthInputs& inputs, int planet)
{
    if (!inputs.ayanamsa) {
        return std::nullopt;
    }
    const double declination =
        tabularDeclination(core::Normalize360(at(chart.longitude, planet) + *inputs.ayanamsa));
    switch (planet) {
    case core::kMoon:
    case core::kSaturn:
        return (24.0 - declination) * 1.25;
    case core::kMercury:
        return (24.0 + std::fabs(declination)) * 1.25;
    case core::kSun:
        return 2.0 * (24.0 + declination) * 1.25;
    default:
        return (24.0 + declination) * 1.25;
    }
}

} // namespace

Strength KalaBala::beforeWar() const
{
    return sumOf({nathonnatha, paksha, tribhaga, varsha, masa, vara, hora});
}

Strength KalaBala::total() const
{
    return sumOf({beforeWar(), ayana, yuddha});
}

KalaBala kalaBala(const core::Chart& chart, const StrengthInputs& inputs,
                  const NaturalBenefics& benefic, int planet)
{
    KalaBala bala;
    if (!chart.computed(planet)) {
        return bala;
    }
    bala.nathonnatha = nathonnatha(inputs, planet);
    bala.paksha = paksha(chart, benefic, planet);
    bala.tribhaga = tribhaga(inputs, planet);
    if (inputs.dayJulianDay) {
        bala.varsha = lordship(yearLord(*inputs.dayJulianDay), planet, 15.0);
        bala.masa = lordship(monthLord(*inputs.dayJulianDay), planet, 30.0);
    }
    // Weekday 1 to 7 is ruled by the planet of the same number.
    bala.vara = lordship(inputs.weekday, planet, 45.0);
    bala.hora = lordship(inputs.horaLord, planet, 60.0);
    bala.ayana = ayana(chart, inputs, planet);
    return bala;
}

int thirdLord(const DayThird& third)
{
    return at(third.byDay ? kDayThirdLords : kNightThirdLords, third.third);
}

int yearLord(double julianDay0h)
{
    return periodLord(julianDay0h, 360, 3);
}

int monthLord(double julianDay0h)
{
    return periodLord(julianDay0h, 30, 2);
}

double tabularDeclination(double tropicalLongitude)
{
    const double fromAries = arcBetween(tropicalLongitude, 0.0);
    double rest = fromAries > 90.0 ? 180.0 - fromAries : fromAries;
    double minutes = 0.0;
    for (const double step : kDeclinationSteps) {
        minutes += step * std::fmin(rest, 15.0) / 15.0;
        rest = std::fmax(rest - 15.0, 0.0);
    }
    const double declination = minutes / 60.0;
    return core::Normalize360(tropicalLongitude) <= 180.0 ? declination : -declination;
}

} // namespace kestrav::analysis
