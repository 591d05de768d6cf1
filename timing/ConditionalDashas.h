// Which of the dashas that hold for some births only hold for a chart.
#pragma once

#include "core/Chart.h"
#include "core/Settings.h"
#include "timing/DashaOptions.h"
#include "timing/DashaTable.h"

#include <array>
#include <string_view>

namespace kestrav::timing
{

/// The heading of their list.
inline constexpr std::wstring_view kConditionalDashasHeading =
    L"* Conditional Dashas applying to this native";

/// The systems with a condition, Astottari to Shat-trimshat sama, in the order of their table.
inline constexpr std::array<int, 9> kConditionalDashas = {
    kAstottari,        kShodsottari,    kDwadashottari, kPanchottari,     kShatabdika,
    kChaturashitiSama, kDwisaptatiSama, kShastihayani,  kShatTrimshatSama};

/// Whether a system's condition holds (Brihat Parashara Hora Shastra, chapter 46). Systems without
/// a condition always apply. A condition whose points were not computed does not hold, nor one on
/// day or night where that is not known.
[[nodiscard]] bool dashaApplies(const core::Chart& chart, const core::Settings& settings,
                                const DashaOptions& options, int system);

} // namespace kestrav::timing
