// Vimshopaka: the strength of the planets over four sets of divisional charts.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"

#include <string_view>

namespace kestrav::analysis
{

/// The sets of divisional charts.
enum VimshopakaSet : int
{
    kShodasha = 0,
    kDasha,
    kSapta,
    kShad,
};

inline constexpr int kVimshopakaSets = 4;

/// A planet with the full factor in every varga of a set reaches this.
inline constexpr int kFullVimshopaka = 20000;

/// The heading of the column of totals.
inline constexpr std::wstring_view kVimshopakaHeading = L"Vimshopak (max 20)";

/// "Shodasha", "Dasha", "Sapta" or "Shad".
[[nodiscard]] std::wstring_view vimshopakaSetName(int set);

/// Weight of a varga 0 to 15 in a set; the weights of a set add up to 200.
[[nodiscard]] int vimshopakaWeight(int set, int varga);

/// The highest set in which a varga 0 to 15 takes part.
[[nodiscard]] int vimshopakaLevel(int varga);

/// How a planet scored in one varga.
struct VimshopakaScore
{
    int dignity = 0; ///< before the settings and the Hora rule replace it
    int code = 0;    ///< the code that is scored, -2 to 3
    int factor = 0;  ///< 25 to 100; 0 for points that do not score
};

/// The score of point 0 to 9 in varga 0 to 15. The ascendant and the nodes have a dignity only.
[[nodiscard]] VimshopakaScore vimshopakaScore(const core::Chart& chart, int varga, int point,
                                              const core::Settings& settings);

/// Fills the totals and positional sums of the planets and the dignity codes of the placements of
/// points 0 to 9 in vargas 0 to 15. Needs all vargas and the compound relationships; a point
/// without a position scores nothing and its records stay as they are.
void computeVimshopaka(core::Chart& chart, const core::Settings& settings);

/// A total as points out of 20.
[[nodiscard]] double vimshopakaPoints(int total);

/// "weak" below 5 points, "small" below 10, "middling" below 15, "full" from 15 on.
[[nodiscard]] std::wstring_view vimshopakaWord(int total);

} // namespace kestrav::analysis
