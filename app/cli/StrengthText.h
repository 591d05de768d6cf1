// The strengths of planets and houses as tables of text.
#pragma once

#include "analysis/AspectTable.h"
#include "analysis/Avasthas.h"
#include "analysis/BhavaBala.h"
#include "analysis/Rashmis.h"
#include "analysis/Shadbala.h"

#include <array>
#include <string>
#include <vector>

namespace kestrav::cli
{

/// Every part of the shadbala of the seven planets, with their rays.
[[nodiscard]] std::wstring shadbalaText(const analysis::ShadbalaTable& table,
                                        const analysis::Rashmis& rashmis);

/// Totals, what is required, and the ratio only.
[[nodiscard]] std::wstring shadbalaTotalsText(const analysis::ShadbalaTable& table);

[[nodiscard]] std::wstring bhavaBalaText(const std::array<analysis::BhavaBala, 12>& houses);
[[nodiscard]] std::wstring avasthasText(const std::array<analysis::Avasthas, 10>& avasthas);
[[nodiscard]] std::wstring warsText(const std::vector<analysis::War>& wars);

/// The aspects of the bodies, one in a row, on the bodies and on the houses: values with marks for
/// full and for sign aspects.
[[nodiscard]] std::wstring aspectsText(const std::vector<analysis::Aspect>& aspects);

} // namespace kestrav::cli
