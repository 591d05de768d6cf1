// All aspects of the bodies on each other and on the houses.
#pragma once

#include "analysis/StrengthParts.h"
#include "core/Chart.h"
#include "core/Settings.h"

#include <optional>
#include <vector>

namespace kestrav::analysis
{

struct Aspect
{
    int from = 0;       ///< body 1 to 9
    int to = 0;         ///< body 1 to 9, or the point of a house, 35 to 46
    bool graha = false; ///< full graha aspect
    bool rashi = false; ///< sign aspect
    Strength value;     ///< 0 to 60; empty from the nodes, which cast full aspects only
};

/// The aspect of a body 1 to 9 on any other point, on houses as houseAspects has it; nothing when
/// one of them has no position.
[[nodiscard]] std::optional<Aspect> aspectOnPoint(const core::Chart& chart, int from, int to,
                                                  const core::Settings& settings);

/// The aspects of every body Sun to Ketu that has a position on every other one, also those that do
/// not hold: 72 of them when all nine bodies are there.
[[nodiscard]] std::vector<Aspect> bodyAspects(const core::Chart& chart,
                                              const core::Settings& settings);

/// The aspects of the bodies on houses 1 to 12. A house stands in the sign of its middle, on which
/// the value falls; where a house has no middle it is the sign counted from the ascendant, without
/// value. Empty without middles and ascendant.
[[nodiscard]] std::vector<Aspect> houseAspects(const core::Chart& chart,
                                               const core::Settings& settings);

} // namespace kestrav::analysis
