// Steps of the shared date: from a minute to a year, and from one change to the next.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "core/Result.h"

#include <QString>

namespace kestrav::desktop
{

enum class StepUnit
{
    Minute,
    Hour,
    Day,
    Week,
    Month,
    Year,
    Sunrise,
    Tithi,
    DashaChange, ///< of the chosen dasha, at the level that the settings show
};
inline constexpr int kStepUnits = 9;

[[nodiscard]] QString stepUnitName(StepUnit unit);

/// The date so many months later, on the same day of the month or the last one.
[[nodiscard]] core::DateTimeRecord addMonths(core::DateTimeRecord date, int months);

/// The moment one step before (-1) or after (+1) the given one. Months and years keep the clock
/// time and the day of the month, or take the last one. Fails where there is no place for sunrise,
/// no chart for a dasha, or no such change.
[[nodiscard]] core::Result<double> steppedMoment(Workspace& workspace, StepUnit unit, double moment,
                                                 int direction);

/// The sunrise or sunset before (-1) or after (+1) a moment at the place of the shared date.
[[nodiscard]] core::Result<double> sunEventBeside(Workspace& workspace, bool rise, double moment,
                                                  int direction);

} // namespace kestrav::desktop
