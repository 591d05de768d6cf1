// Whose period runs at a moment.
#pragma once

#include "timing/Dasha.h"
#include "timing/DashaWalk.h"

#include <optional>

namespace kestrav::timing
{

/// The deepest level that a query answers.
inline constexpr int kQueryLevels = 4;

/// The answer where no period runs.
inline constexpr int kNoLord = -1;

/// The period of a level running at an age. Levels above 5 answer for 5. Nothing before the first
/// mahadasha, after the last age that lists reach, and for a level below 1.
[[nodiscard]] std::optional<DashaPeriod> periodAtAge(const Dasha& dasha, double age, int level);

/// The lord of the period of a level that runs at a Julian day (Universal Time), or with an offset
/// the lord so many places on in the list of that level. A planet, a sign or a house, as the plan
/// says. Levels above 4 answer for 4. -1 when no period runs or the chart has no moment.
[[nodiscard]] int lordAtMoment(const Dasha& dasha, double julianDay, int level, int offset = 0);

/// The same for a chart, whose dasha is planned for this one answer; -1 also when that fails. Who
/// asks more than once makes the dasha himself.
[[nodiscard]] int lordAtMoment(const core::Chart& chart, const core::Settings& settings,
                               const DashaOptions& options, const astro::Series& series,
                               double julianDay, int level, int offset = 0);

/// The same for an age in years.
[[nodiscard]] int lordAtAge(const Dasha& dasha, double age, int level, int offset = 0);

} // namespace kestrav::timing
