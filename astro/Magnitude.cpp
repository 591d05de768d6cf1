#include "astro/Engine.h"

#include "core/Angles.h"
#include "core/numeric.h"

#include <cmath>

namespace kestrav::astro
{

namespace
{

// What the phase angle i (degrees) and the body add to 5 log10(r Delta).
double bodyTerm(int code, double i)
{
    switch (code) {
    case kCodeMars:
        return -1.52 + 0.016 * i;
    case kCodeMercury:
        return -0.42 + 0.038 * i - 0.000273 * i * i + 0.000002 * i * i * i;
    case kCodeJupiter:
        return -9.4 + 0.005 * i;
    case kCodeVenus:
        // The cubic term is added on purpose; it makes a thin crescent fainter.
        return -4.4 + 0.0009 * i + 0.000239 * i * i + 0.00000065 * i * i * i;
    case kCodeSaturn:
        // Without the ring.
        return -8.88 + 0.044 * i;
    case kCodeUranus:
        return -7.19;
    case kCodeNeptune:
        return -6.87;
    default:
        return -1.0;
    }
}

} // namespace

void Magnitude(EphemerisContext& context, int code)
{
    if (!context.magnitudesOn || code < kCodeMars || code > kCodePluto) {
        return;
    }
    BodyResult& result = context.result;
    const double r = result.sunDistance;
    const double distance = result.distance;
    const double earth = context.earth.R;
    const double cosine = core::ClampRange(
        -1.0, 1.0, (r * r + distance * distance - earth * earth) / (2.0 * r * distance));
    const double i = std::acos(cosine) * core::kDegreesPerRadian;
    result.phase = (1.0 + cosine) / 2.0;
    result.magnitude = 5.0 * std::log10(r * distance) + bodyTerm(code, i);
}

} // namespace kestrav::astro
