#include "analysis/StrengthInputs.h"

#include "analysis/DayParts.h"
#include "astro/SiderealTime.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::analysis
{

namespace
{

using core::at;

// Whether a computation far outside the engine's years has left something that is no number.
std::optional<double> ifNumber(double value)
{
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> apparentTime(const core::Chart& chart)
{
    if (!chart.computed(core::kSun)) {
        return std::nullopt;
    }
    const double rightAscension = astro::RightAscensionHours(chart, chart.longitude[core::kSun]);
    return ifNumber(core::Normalize24(12.0 + chart.localSiderealTime - rightAscension));
}

std::optional<PlanetArray<double>> latitudes(const core::Chart& chart)
{
    PlanetArray<double> latitude{};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        const double degrees = at(chart.latitude, planet) * core::kDegreesPerRadian;
        if (!chart.computed(planet) || !std::isfinite(degrees)) {
            return std::nullopt;
        }
        at(latitude, planet) = degrees;
    }
    return latitude;
}

void storeDay(const core::Chart& chart, StrengthInputs& inputs)
{
    const std::optional<HalfDay> half = runningHalf(chart);
    if (!half) {
        return;
    }
    const double sunrise = chart.vedicDay->sunrise;
    inputs.hoursSinceSunrise = ifNumber(chart.time.localTime - sunrise);
    inputs.dayThird = DayThird{!half->night, half->partAt(chart.time.localTime, 3)};
    // A sunrise of the day before lies below 0 hours.
    inputs.dayJulianDay = ifNumber(core::DateToJulianDay(chart.time) + std::floor(sunrise / 24.0));
    inputs.horaLord = runningHoraLord(chart);
}

} // namespace

StrengthInputs strengthInputs(const core::Chart& chart)
{
    StrengthInputs inputs;
    if (!chart.hasMoment) {
        return inputs;
    }
    inputs.ayanamsa = ifNumber(chart.ayanamsa);
    inputs.midheaven = ifNumber(chart.midheaven);
    inputs.apparentTime = apparentTime(chart);
    inputs.julianDay = ifNumber(core::kEpoch1900 + chart.time.dayCount);
    inputs.weekday = chart.weekday;
    inputs.latitude = latitudes(chart);
    storeDay(chart, inputs);
    return inputs;
}

} // namespace kestrav::analysis
