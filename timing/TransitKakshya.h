// The kakshyas through which transiting planets pass, with the bindus they find there.
#pragma once

#include "analysis/Ashtakavarga.h"
#include "core/Chart.h"
#include "timing/TransitSearch.h"

#include <vector>

namespace kestrav::timing
{

/// A planet's stay in an eighth of a sign.
struct KakshyaStay
{
    int planet = 0;
    int sign = 0;                ///< 1 to 12
    analysis::Kakshya kakshya{}; ///< part and lord
    bool bindu = false;          ///< whether the lord gives the planet a bindu in that sign
    int bindusOfSign = 0;        ///< how many of the eight the planet has there
    TransitStay stay;
};

/// The stays of the planets (Sun to Saturn; others are passed over) that overlap a span, each with
/// its whole length, in order of their beginning. The bindus are those of the native's rashi; the
/// native must have positions of the points 0 to 7, else lords without one give no bindu.
[[nodiscard]] std::vector<KakshyaStay> transitKakshyas(SiderealSky& sky, const core::Chart& native,
                                                       const std::vector<int>& planets, Span span);

} // namespace kestrav::timing
