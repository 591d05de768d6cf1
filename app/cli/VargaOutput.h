// Divisional charts and vimshopaka as text and JSON.
#pragma once

#include "app/cli/Arguments.h"
#include "app/cli/ComputedChart.h"
#include "app/cli/JsonValues.h"
#include "core/Result.h"

#include <optional>
#include <string>
#include <vector>

namespace kestrav::cli
{

/// The varga of --varga; nothing when it was not typed. The error says that there is no such one.
[[nodiscard]] core::Result<std::optional<int>> chosenVarga(const Arguments& arguments);

/// Heading of a varga, such as "Navamsha (D-9), Dharma/Spouse".
[[nodiscard]] std::wstring vargaHeading(int varga);

/// Index, name and meaning of every varga.
[[nodiscard]] std::wstring vargaListText();

/// All vargas, or the one chosen.
[[nodiscard]] Json vargasJson(const ComputedChart& computed, std::optional<int> varga = {});
[[nodiscard]] Json vimshopakaJson(const ComputedChart& computed);

/// The signs of points in all vargas, with a mark on those near the boundary of a part.
[[nodiscard]] std::wstring vargaSignsText(const ComputedChart& computed,
                                          const std::vector<int>& points);

/// Sign, position and dignity of every point in one varga.
[[nodiscard]] std::wstring vargaText(const ComputedChart& computed, int varga);

[[nodiscard]] std::wstring vimshopakaText(const ComputedChart& computed);

/// The points 0 to 59 that are computed: those that have placements.
[[nodiscard]] std::vector<int> placedPoints(const ComputedChart& computed);

/// Of them the ascendant, Sun to Ketu and the outer planets.
[[nodiscard]] std::vector<int> mainPoints(const ComputedChart& computed);

} // namespace kestrav::cli
