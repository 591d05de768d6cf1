// What the chart list can be labelled by.
#pragma once

#include "data/ResearchLabels.h"

#include <QString>

#include <vector>

namespace kestrav::desktop
{

/// The tropical Sun sign, the sidereal signs and the nakshatras of the points of a research line.
[[nodiscard]] const std::vector<data::ResearchKey>& researchKeys();

/// "Sign of Moon", "Nakshatra of Moon": an entry of the label box.
[[nodiscard]] QString researchKeyText(const data::ResearchKey& key);

} // namespace kestrav::desktop
