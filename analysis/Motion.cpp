#include "analysis/Motion.h"

#include "astro/Bodies.h"

namespace kestrav::analysis
{

namespace
{

// The speed is compared this many days before and after the moment.
constexpr double kComparedDays = 0.5;

double speedAt(astro::EphemerisContext& context, double T, int point)
{
    context.setTime(core::timeArguments(T));
    astro::PlanetPosition(context, astro::codeOfPoint(point));
    return context.result.speed;
}

bool speedGrowsAt(astro::EphemerisContext context, int point)
{
    const double T = context.time().T;
    const double step = kComparedDays / core::kDaysPerCentury;
    return speedAt(context, T + step, point) > speedAt(context, T - step, point);
}

} // namespace

double meanDailyMotion(int point)
{
    switch (point) {
    case core::kSun:
    case core::kMercury:
    case core::kVenus:
        return 0.98564736;
    case core::kMoon:
        return 13.1763965;
    case core::kMars:
        return 0.5240711;
    case core::kJupiter:
        return 0.0831294;
    case core::kSaturn:
        return 0.0334979;
    case core::kUranus:
        return 0.0117690;
    case core::kNeptune:
        return 0.0060200;
    case core::kPluto:
        return 0.0039760;
    case core::kRahu:
    case core::kKetu:
        return 0.0529539;
    default:
        return 0.0;
    }
}

void computeMotions(core::Chart& chart, astro::EphemerisContext& context)
{
    for (const int point : core::kBodies) {
        const double speed = core::at(chart.speed, point);
        core::at(chart.motion, point) =
            motionOf(point, speed, [&] { return speedGrowsAt(context, point); });
        core::at(chart.retrograde, point) = speed < 0.0;
    }
}

} // namespace kestrav::analysis
