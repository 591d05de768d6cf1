// The motion codes of the bodies of a chart.
#pragma once

#include "astro/Engine.h"
#include "core/Chart.h"

namespace kestrav::analysis
{

/// Mean daily motion in geocentric longitude, degrees, over many years; 0 for points without one.
/// Mercury and Venus keep up with the Sun.
[[nodiscard]] double meanDailyMotion(int point);

/// The motion code of a body from its speed (degrees a day). `speedGrows` is asked only when the
/// body hardly moves: slower than a tenth of its mean motion and direct.
template <typename SpeedGrows>
[[nodiscard]] core::Motion motionOf(int point, double speed, SpeedGrows speedGrows)
{
    const double mean = meanDailyMotion(point);
    const bool hardlyMoving = speed < 0.1 * mean && speed > -0.1 * mean;
    if (point == core::kRahu || point == core::kKetu) {
        return core::Motion::Retrograde;
    }
    if (speed < 0.0) {
        return hardlyMoving ? core::Motion::Station : core::Motion::Retrograde;
    }
    if (hardlyMoving) {
        return speedGrows() ? core::Motion::Direct : core::Motion::Turning;
    }
    return speed > mean ? core::Motion::Fast : core::Motion::Slow;
}

/// Fills the motion codes and retrograde flags of the bodies of a chart whose positions belong to
/// the context's moment.
void computeMotions(core::Chart& chart, astro::EphemerisContext& context);

} // namespace kestrav::analysis
