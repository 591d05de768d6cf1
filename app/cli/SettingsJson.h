// Settings and the ayanamsa table as JSON.
#pragma once

#include "app/cli/JsonValues.h"
#include "core/Settings.h"

#include <span>

namespace kestrav::cli
{

/// By the name of each setting: value, default, range and meaning.
[[nodiscard]] Json settingsJson(const core::Settings& settings,
                                std::span<const core::SettingInfo* const> infos);

/// The rows in their order: row, name, epochYear, value (degrees) and rate (arc seconds a year).
[[nodiscard]] Json ayanamsaTableJson(const core::Settings& settings);

} // namespace kestrav::cli
