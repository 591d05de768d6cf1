// The divisional charts: the sign and position of every point in each of them.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"

namespace kestrav::analysis
{

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
