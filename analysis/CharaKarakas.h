// The chara karakas of Jaimini: planets in the order of their advancement in sign.
#pragma once

#include "core/Chart.h"

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace kestrav::analysis
{

/// The names in the order of rank, Atma first.
[[nodiscard]] std::span<const std::wstring_view, 7> sevenKarakaNames();
[[nodiscard]] std::span<const std::wstring_view, 8> eightKarakaNames();

/// How far a planet 1 to 8 has moved through its sign, in degrees; Rahu counts from the end.
[[nodiscard]] double karakaAdvancement(const core::Chart& chart, int planet);

/// The planets Sun to Saturn in the order of rank: the one furthest in its sign comes first, equal
/// ones keep the order of the points. Nothing when one of them is not computed.
[[nodiscard]] std::optional<std::array<int, 7>> sevenKarakas(const core::Chart& chart);

/// The same with Rahu, who moves backwards and counts from the end of the sign.
[[nodiscard]] std::optional<std::array<int, 8>> eightKarakas(const core::Chart& chart);

} // namespace kestrav::analysis
