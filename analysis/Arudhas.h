// Arudha padas of houses and planets, in the rashi and in every varga.
#pragma once

#include "analysis/SignStrength.h"
#include "core/Chart.h"
#include "core/Settings.h"

#include <array>

namespace kestrav::analysis
{

/// Arudha signs of houses 1 to 12 from the ascendant of the view (index 0 is house 1). The pada of
/// a house lies as far from its lord as the lord from the house; a pada in the house itself or in
/// its seventh moves on to the tenth from there. 0 without the ascendant or the lord.
[[nodiscard]] std::array<int, 12> arudhaSigns(const SignView& view, bool coLords);

/// The own sign to which the arudha of a planet 1 to 9 is counted: Aquarius for Rahu, Scorpio for
/// Ketu; of two own signs the stronger one.
[[nodiscard]] int arudhaOwnSign(const SignView& view, int planet);

/// Arudha sign of a planet 1 to 9, counted to its own sign; 0 when the planet was not computed.
[[nodiscard]] int arudhaOfPlanet(const SignView& view, int planet);

/// The longitudes of the arudha points 31 and 47 to 58 of a chart: the pada's sign with the degree
/// of the ascendant. An arudha whose house or lord has no position is not computed.
void computeArudhaPoints(core::Chart& chart, const core::Settings& settings);

/// Replaces the signs of the arudha points that have a placement in the varga by those computed on
/// the varga's own placements. Their positions stay those of the division.
void storeArudhaSigns(core::Chart& chart, int varga, const core::Settings& settings);

} // namespace kestrav::analysis
