// The divisional charts: the sign and position of every point in each of them.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"

namespace kestrav::analysis
{

/// One part of a divided sign and where in it a point stands.
struct VargaPart
{
    int index = 0;         ///< from 0; of the parts of the sign, or of the zodiac from Aries on
    double fraction = 0.0; ///< of the part that lies behind the point
    double position = 0.0; ///< the fraction as degrees of a sign; counted backwards by some rules
    int strengthStep = 0;  ///< 0 to 6
    double width = 0.0;    ///< degrees of the undivided sign
    double minutes = 0.0;  ///< whole arc minutes to the nearer boundary
    bool nearBoundary = false;
};

/// The sign and the part that the division of a point gives.
struct VargaDivided
{
    int sign = 0; ///< 1 to 12
    VargaPart part;
};

/// The division of a computed point in a varga by the rule of that varga, from which its placement
/// is made. Arudha points are divided like every other one.
[[nodiscard]] VargaDivided divideInVarga(const core::Chart& chart, int varga, int point,
                                         const core::Settings& settings);

/// Fills the placement of one point in one varga and its near-boundary flag, which is returned. The
/// point must be computed. The varga signs of arudha points are those of the division here;
/// computeAllVargas replaces them where the settings ask for it.
bool computeVarga(core::Chart& chart, int varga, int point, const core::Settings& settings);

/// Computes every varga for the points 0 to 59 that have a position and clears the placements of
/// those that have none. With arudhasInVargas the points 31 and 47 to 58 then take the sign of the
/// arudha computed on the varga's own placements.
void computeAllVargas(core::Chart& chart, const core::Settings& settings);

/// The sign of a point in the rashi (varga 0) or in another varga, whose placements must be there;
/// 0 when the point was not computed.
[[nodiscard]] int signInVarga(const core::Chart& chart, int varga, int point);

/// The sign eight signs on from the point's drekkana sign.
[[nodiscard]] int twentySecondDrekkanaSign(const core::Chart& chart, int point);

} // namespace kestrav::analysis
