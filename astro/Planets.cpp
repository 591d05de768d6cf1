#include "astro/Engine.h"

#include "astro/Pluto.h"
#include "core/Angles.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::astro
{

namespace
{

using core::kDegreesPerRadian;
using core::kRadiansPerDegree;

constexpr double kLightDaysPerAu = 0.0057755183;    // light time for one astronomical unit
constexpr double kMillenniaPerDay = 1.0 / 365250.0; // days into series time
constexpr double kMillenniaPerCentury = 0.1;        // (T - 1) into series time

Rectangular rectangular(const HeliocentricPosition& position)
{
    const double inPlane = position.R * std::cos(position.B);
    return {inPlane * std::cos(position.L), inPlane * std::sin(position.L),
            position.R * std::sin(position.B)};
}

Rectangular minus(const Rectangular& a, const Rectangular& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

double length(const Rectangular& vector)
{
    return std::sqrt(vector.x * vector.x + vector.y * vector.y + vector.z * vector.z);
}

double longitudeOf(const Rectangular& vector)
{
    return core::Normalize360(std::atan2(vector.y, vector.x) * kDegreesPerRadian);
}

double speedOverLightTime(double geometric, double apparent, double lightTime)
{
    return core::Wrap180(geometric - apparent) / lightTime;
}

// Series time of the context's moment. Every second pass moves t, so each body starts from here.
double seriesTime(const EphemerisContext& context)
{
    return (context.time().T - 1.0) * kMillenniaPerCentury;
}

void computeSun(EphemerisContext& context)
{
    context.t = seriesTime(context);
    HeliocentricPosition earlier;
    SumSeries(context, kCodeSun, context.earth);
    const double lightTime = kLightDaysPerAu * context.earth.R;
    context.t -= lightTime * kMillenniaPerDay;
    SumSeries(context, kCodeSun, earlier);

    // Both longitudes are reduced to one turn, so their difference needs its own reduction.
    const double moved = core::Wrap180((context.earth.L - earlier.L) * kDegreesPerRadian);
    context.earthRates = {moved * kRadiansPerDegree / lightTime,
                          (context.earth.B - earlier.B) / lightTime,
                          (context.earth.R - earlier.R) / lightTime};
    context.earthPlace = rectangular(context.earth);
    context.earthKnown = true;
    context.body = earlier;

    context.result = {};
    context.result.longitude = core::Normalize360(earlier.L * kDegreesPerRadian + 180.0);
    context.result.geometricLongitude =
        core::Normalize360(context.earth.L * kDegreesPerRadian + 180.0);
    context.result.speed = moved / lightTime;
    context.result.distance = earlier.R;
    context.result.lightTime = lightTime;
}

void computePlanet(EphemerisContext& context, int code)
{
    const HeliocentricPosition& earth = context.earth;
    const HeliocentricPosition& rates = context.earthRates;

    context.t = seriesTime(context);
    SumSeries(context, code, context.body);
    const Rectangular geometric = minus(rectangular(context.body), context.earthPlace);
    const double lightTime = kLightDaysPerAu * length(geometric);

    context.t -= lightTime * kMillenniaPerDay;
    const HeliocentricPosition earthBack = {earth.L - rates.L * lightTime,
                                            earth.B - rates.B * lightTime,
                                            earth.R - rates.R * lightTime};
    SumSeries(context, code, context.body);
    const Rectangular apparent = minus(rectangular(context.body), rectangular(earthBack));

    BodyResult& result = context.result;
    result = {};
    result.longitude = longitudeOf(apparent);
    result.latitude =
        std::atan2(apparent.z, std::sqrt(apparent.x * apparent.x + apparent.y * apparent.y));
    result.geometricLongitude = longitudeOf(geometric);
    result.speed = speedOverLightTime(result.geometricLongitude, result.longitude, lightTime);
    result.distance = length(apparent);
    result.lightTime = lightTime;
    result.sunDistance = context.body.R;
}

// Pluto and the Sun at the context's series time, as seen from the Earth, equatorial J2000.0.
Rectangular plutoFromEarth(EphemerisContext& context)
{
    HeliocentricPosition earth;
    SumSeries(context, kCodePluto, earth);
    context.sunJ2000 = sunEquatorialJ2000(earth);
    context.body = plutoHeliocentric(context.t * 10.0);
    const Rectangular pluto = equatorialJ2000(context.body);
    return {pluto.x + context.sunJ2000.x, pluto.y + context.sunJ2000.y,
            pluto.z + context.sunJ2000.z};
}

void computePluto(EphemerisContext& context)
{
    context.t = seriesTime(context);
    const Rectangular geometric = plutoFromEarth(context);
    const double lightTime = kLightDaysPerAu * length(geometric);
    context.t -= lightTime * kMillenniaPerDay;
    const Rectangular apparent = plutoFromEarth(context);

    BodyResult& result = context.result;
    result = {};
    const EclipticJ2000 position = eclipticJ2000(apparent);
    result.longitude = position.longitude;
    result.latitude = position.latitude;
    result.geometricLongitude = eclipticJ2000(geometric).longitude;
    result.speed = speedOverLightTime(result.geometricLongitude, result.longitude, lightTime);
    result.distance = length(apparent);
    result.lightTime = lightTime;
    result.sunDistance = context.body.R;
}

void computeSunJ2000(EphemerisContext& context)
{
    context.t = seriesTime(context);
    SumSeries(context, kCodeSunJ2000, context.body);
    context.sunJ2000 = sunEquatorialJ2000(context.body);
    const EclipticJ2000 position = eclipticJ2000(context.sunJ2000);
    context.result = {};
    context.result.longitude = position.longitude;
    context.result.latitude = position.latitude;
    context.result.geometricLongitude = position.longitude;
    context.result.distance = length(context.sunJ2000);
}

} // namespace

void EphemerisContext::setTime(const core::TimeArguments& arguments)
{
    time_ = arguments;
    earthKnown = false;
}

void PlanetPosition(EphemerisContext& context, int code)
{
    if (code < kCodeMars) {
        computeSun(context);
        return;
    }
    if (code >= kCodeSunJ2000) {
        computeSunJ2000(context);
        return;
    }
    if (!context.earthKnown) {
        computeSun(context);
    }
    if (code == kCodePluto) {
        computePluto(context);
    } else {
        computePlanet(context, code);
    }
    Magnitude(context, code);
}

} // namespace kestrav::astro
