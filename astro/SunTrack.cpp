#include "astro/SunTrack.h"

#include "core/Angles.h"
#include "core/numeric.h"

namespace kestrav::astro
{

SunTrack::SunTrack(EphemerisContext& context, double T) : middle_(T)
{
    const auto longitudeAfter = [&](double days) {
        context.setTime(core::timeArguments(T + days / core::kDaysPerCentury));
        PlanetPosition(context, kCodeSun);
        return context.result.longitude;
    };
    const double here = longitudeAfter(0.0);
    const double back = core::Wrap180(longitudeAfter(-1.0) - here);
    const double ahead = core::Wrap180(longitudeAfter(1.0) - here);
    coefficients_ = {here, (ahead - back) / 2.0, (ahead + back) / 2.0};
}

double SunTrack::longitude(double T) const
{
    const double days = (T - middle_) * core::kDaysPerCentury;
    return (coefficients_[0] + days * (coefficients_[1] + days * coefficients_[2])) *
           core::kRadiansPerDegree;
}

} // namespace kestrav::astro
