// The natural benefics and malefics of a chart.
#pragma once

#include "core/Chart.h"

#include <array>

namespace kestrav::analysis
{

/// Whether each body from the Sun to Ketu is a natural benefic, and a natural malefic otherwise;
/// entry 0 is unused and that of a body without a position means nothing.
using NaturalBenefics = std::array<bool, 10>;

/// Jupiter, Venus, the waxing Moon and Mercury are benefic; Mercury is malefic only when among the
/// other bodies in his sign the malefics outnumber the benefics. A Moon whose Sun has no position
/// counts as waxing.
[[nodiscard]] NaturalBenefics naturalBenefics(const core::Chart& chart);

} // namespace kestrav::analysis
