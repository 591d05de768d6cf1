// The comparison of two charts for a marriage: the eight kutas and the doshas beside them.
#pragma once

#include "analysis/Kutas.h"
#include "analysis/MangalDosha.h"
#include "astro/DataFile.h"
#include "core/Chart.h"
#include "core/Result.h"
#include "core/Settings.h"

#include <array>
#include <string>
#include <string_view>

namespace kestrav::analysis
{

/// The doshas in the order of Matching::doshas.
enum MatchingDosha : int
{
    kRajjuDosha = 0,
    kVedhaDosha,
    kBhakutaDosha,
    kNadiDosha,
    kGroomMangalDosha,
    kBrideMangalDosha,
};

inline constexpr int kMatchingDoshas = 6;

/// A dosha is said beside the points and never changes them.
struct Dosha
{
    std::wstring_view name;
    bool holds = false;
    bool cancelled = false; ///< it holds, but something makes it void
    std::wstring why;       ///< one English sentence with the values that decided
};

struct Matching
{
    KutaScores kutas;
    double total = 0.0; ///< out of 36
    std::array<Dosha, kMatchingDoshas> doshas;
    MangalDosha groomMangal;
    MangalDosha brideMangal;
};

/// Compares a groom's with a bride's chart. Fails when one of the Moons has no position; a missing
/// ascendant, Mars or Venus leaves its count of the Mangal dosha unknown.
[[nodiscard]] core::Result<Matching> matchCharts(const core::Chart& groom, const core::Chart& bride,
                                                 const astro::MatchingTables& tables,
                                                 const core::Settings& settings);

} // namespace kestrav::analysis
