// Tables of dashas.
#pragma once

#include "app/present/ComputedChart.h"
#include "app/present/Table.h"
#include "timing/Dasha.h"
#include "timing/DashaWalk.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::present
{

/// The references from which the houses of Sudarshana Chakra are counted.
inline constexpr std::array<int, 3> kSudarshanaReferences = {core::kAscendant, core::kMoon,
                                                             core::kSun};

/// A dasha of a chart with the periods that are shown of it.
struct DashaResult
{
    timing::DashaOptions options;
    timing::Dasha dasha;
    std::vector<timing::DashaPeriod> periods;
    std::optional<double> moment; ///< Julian day of which the running periods were asked
    std::vector<timing::DashaPeriod> running;
    std::optional<std::vector<int>> conditional; ///< systems, when they were asked for
};

[[nodiscard]] std::wstring dashaSystemName(int system);
[[nodiscard]] timing::LordKind dashaLordKind(int system);

/// The lord of a period, such as "Mars", "Leo" or "House 3"; in short "Mar", "Leo", "3".
[[nodiscard]] std::wstring dashaLordName(timing::LordKind kind, int lord);
[[nodiscard]] std::wstring dashaLordShortName(timing::LordKind kind, int lord);

/// What the lord of a period leads to.
[[nodiscard]] Link dashaLordLink(timing::LordKind kind, int lord);

/// "Mars" for a period of the first level, "Mar-Rah-Jup" with all lords for one of the third.
[[nodiscard]] std::wstring dashaPeriodName(timing::LordKind kind,
                                           const timing::DashaPeriod& period);

/// "planet", "sign" or "house".
[[nodiscard]] std::string_view lordKindName(timing::LordKind kind);

/// The years of a cycle where they are the same in every chart.
[[nodiscard]] std::optional<double> dashaCycleYears(int system);
[[nodiscard]] bool isConditionalDasha(int system);

/// The systems with what their lords are, the years of their cycles and what they start from.
[[nodiscard]] Table dashaSystemsTable();

/// System, cycle, year length and balance at birth.
[[nodiscard]] Table dashaSummary(const ComputedChart& computed, const DashaResult& result);

[[nodiscard]] Table conditionalDashasTable(const std::vector<int>& systems);

/// The periods with their dates and ages, those of deeper levels set in.
[[nodiscard]] Table dashaPeriodsTable(const ComputedChart& computed, const DashaResult& result);

/// The periods of all levels that run at the moment, which must be there.
[[nodiscard]] Table runningDashasTable(const ComputedChart& computed, const DashaResult& result);

} // namespace kestrav::present
