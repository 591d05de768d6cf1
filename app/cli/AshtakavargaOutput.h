// Ashtakavarga as text and JSON.
#pragma once

#include "analysis/Ashtakavarga.h"
#include "app/cli/JsonValues.h"

#include <string>

namespace kestrav::cli
{

[[nodiscard]] Json ashtakavargaJson(const analysis::Ashtakavarga& table);

/// The rows of bindus with their sums, and the reductions where they were computed.
[[nodiscard]] std::wstring ashtakavargaText(const analysis::Ashtakavarga& table);

} // namespace kestrav::cli
