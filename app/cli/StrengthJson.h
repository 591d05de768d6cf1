// The strengths of planets and houses as JSON. Strengths are in virupas, null where the chart does
// not have what they are computed from.
#pragma once

#include "analysis/AspectTable.h"
#include "analysis/Avasthas.h"
#include "analysis/BhavaBala.h"
#include "analysis/Rashmis.h"
#include "analysis/Shadbala.h"
#include "app/cli/JsonValues.h"

#include <array>
#include <vector>

namespace kestrav::cli
{

[[nodiscard]] Json shadbalaJson(const analysis::ShadbalaTable& table);
[[nodiscard]] Json bhavaBalaJson(const std::array<analysis::BhavaBala, 12>& houses);
[[nodiscard]] Json rashmisJson(const analysis::Rashmis& rashmis);

/// The states of Sun to Ketu by their names.
[[nodiscard]] Json avasthasJson(const std::array<analysis::Avasthas, 10>& avasthas);

[[nodiscard]] Json warsJson(const std::vector<analysis::War>& wars);
[[nodiscard]] Json aspectsJson(const std::vector<analysis::Aspect>& aspects);

} // namespace kestrav::cli
