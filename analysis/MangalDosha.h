// Mangal dosha: Mars in a house that is held to harm a marriage.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"

#include <string>

namespace kestrav::analysis
{

struct MangalDosha
{
    // The house of Mars, 1 to 12, counted by sign; 0 when Mars or the reference has no position.
    int fromAscendant = 0;
    int fromMoon = 0;
    int fromVenus = 0;

    // What cancels the dosha.
    bool ownSign = false;
    bool exalted = false;
    bool withJupiter = false;
    bool aspectedByJupiter = false;
    bool inBothCharts = false; ///< known only when two charts are compared

    /// Whether a count of this house has the dosha: 1, 2, 4, 7, 8 and 12.
    [[nodiscard]] static bool harmful(int house);

    /// Whether any of the three counts has it.
    [[nodiscard]] bool holds() const;

    /// Whether it holds and something cancels it.
    [[nodiscard]] bool cancelled() const;

    /// The three counts and what cancels, as one English sentence.
    [[nodiscard]] std::wstring why() const;
};

/// The counts of a chart from its ascendant, Moon and Venus, and what in the chart cancels them.
[[nodiscard]] MangalDosha mangalDosha(const core::Chart& chart, const core::Settings& settings);

} // namespace kestrav::analysis
