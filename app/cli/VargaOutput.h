// Divisional charts and vimshopaka as JSON.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"
#include "core/Result.h"

#include <optional>

namespace kestrav::cli
{

/// The varga of --varga; nothing when it was not typed. The error says that there is no such one.
[[nodiscard]] core::Result<std::optional<int>> chosenVarga(const Arguments& arguments);

/// All vargas, or the one chosen.
[[nodiscard]] Json vargasJson(const ComputedChart& computed, std::optional<int> varga = {});
[[nodiscard]] Json vimshopakaJson(const ComputedChart& computed);

} // namespace kestrav::cli
