// Ashtakavarga as JSON.
#pragma once

#include "analysis/Ashtakavarga.h"
#include "app/cli/JsonValues.h"

namespace kestrav::cli
{

[[nodiscard]] Json ashtakavargaJson(const analysis::Ashtakavarga& table);

} // namespace kestrav::cli
