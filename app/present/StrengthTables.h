// Tables of the strengths, avasthas and aspects of a chart.
#pragma once

#include "analysis/AspectTable.h"
#include "analysis/Avasthas.h"
#include "analysis/BhavaBala.h"
#include "analysis/Rashmis.h"
#include "analysis/Shadbala.h"
#include "app/present/ComputedChart.h"
#include "app/present/Table.h"

#include <array>
#include <vector>

namespace kestrav::present
{

/// All strengths of one chart, computed together.
struct Strengths
{
    /// `nameLetter` is the group 1 to 5 of the first sound of the name, 0 when it is not known.
    Strengths(const ComputedChart& computed, int nameLetter);

    analysis::StrengthInputs inputs;
    analysis::ShadbalaTable shadbala;
    std::array<analysis::BhavaBala, 12> houses;
    analysis::Rashmis rashmis;
    std::array<analysis::Avasthas, 10> avasthas;
    std::vector<analysis::Aspect> aspects; ///< on bodies, then on houses
};

/// Every part of shadbala, the totals and the rashmis, one column for each planet.
[[nodiscard]] Table shadbalaTable(const Strengths& strengths);

/// Total, requirement, ratio and the two phalas only.
[[nodiscard]] Table shadbalaTotalsTable(const Strengths& strengths);

/// The rays of the planets and their sum.
[[nodiscard]] Table rashmisTable(const Strengths& strengths);

[[nodiscard]] Table bhavaBalaTable(const Strengths& strengths);
[[nodiscard]] Table avasthasTable(const Strengths& strengths);
[[nodiscard]] Table warsTable(const Strengths& strengths);
[[nodiscard]] Table bodyAspectsTable(const Strengths& strengths);
[[nodiscard]] Table houseAspectsTable(const Strengths& strengths);

} // namespace kestrav::present
