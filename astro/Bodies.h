// How the points of a chart and the body codes of the planetary engine belong together.
#pragma once

#include "astro/Engine.h"
#include "core/Points.h"

#include <array>

namespace kestrav::astro
{

/// The points that the planetary engine computes, the Sun first.
inline constexpr std::array<int, 9> kEnginePoints = {core::kSun,     core::kMars,    core::kMercury,
                                                     core::kJupiter, core::kVenus,   core::kSaturn,
                                                     core::kUranus,  core::kNeptune, core::kPluto};

/// The engine's code of one of those points: Uranus to Pluto stand 24 places lower than in the
/// point index, the others keep their index.
[[nodiscard]] constexpr int codeOfPoint(int point)
{
    return point >= core::kUranus ? point - core::kUranus + kCodeUranus : point;
}

static_assert(codeOfPoint(core::kSun) == kCodeSun && codeOfPoint(core::kMercury) == kCodeMercury &&
              codeOfPoint(core::kPluto) == kCodePluto);

} // namespace kestrav::astro
