// Tables of the ashtakavarga.
#pragma once

#include "analysis/Ashtakavarga.h"
#include "app/present/Table.h"

namespace kestrav::present
{

/// The eight rows, the sums and the occupants, one column for each sign.
[[nodiscard]] Table ashtakavargaTable(const analysis::Ashtakavarga& ashtakavarga);

// The reductions; the ashtakavarga must have been computed with them.
[[nodiscard]] Table trikonaTable(const analysis::Ashtakavarga& ashtakavarga);
[[nodiscard]] Table ekadhipatyaTable(const analysis::Ashtakavarga& ashtakavarga);
[[nodiscard]] Table pindaTable(const analysis::Ashtakavarga& ashtakavarga);

/// The kakshya in which each planet stands, its lord, and whether the lord gives a bindu there.
[[nodiscard]] Table kakshyasTable(const core::Chart& chart);

} // namespace kestrav::present
