// What the user is told and asked when options do not go together. The texts are fixed.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "core/Messages.h"
#include "core/Settings.h"

#include <string>

namespace kestrav::desktop
{

/// The point that stands for the midheaven among the changed ones: the tenth cusp.
inline constexpr int kMidheavenPoint = core::cuspPoint(10);

/// Whether a house system needs the midheaven of the sky.
[[nodiscard]] bool usesMidheaven(int houseSystem);

/// "Placidus (KP) doesn't work with the Circle Chart with a North Indian kundali background ...".
[[nodiscard]] std::wstring circleNotice();
/// "Systems Approach uses the Equal House system. Set the house system to Equal House? ...".
[[nodiscard]] std::wstring systemsApproachQuestion();
/// "Changing the Ascendant will not work for house systems that use the MC ...".
[[nodiscard]] std::wstring midheavenNotice(const std::wstring& point);

/// Sets the house system to Equal House, and says so, where the ascendant or the midheaven was
/// changed by the user and the system needs the midheaven. Returns whether it did.
bool leaveMidheavenHouses(core::Settings& settings, const ChangedPoints& changed,
                          core::Messages& messages);

/// Lets the houses of the circle be chosen automatically, and says so, where they were signs, as in
/// the North Indian diagram, and the new settings put Placidus (KP/West) beside that.
bool leaveKundaliCircle(core::Settings& settings, const core::Settings& before,
                        core::Messages& messages);

/// All of these, and the end of True Solar years when the Sun was changed.
void settleOptions(core::Settings& wanted, const core::Settings& before,
                   const ChangedPoints& changed, core::Messages& messages);

} // namespace kestrav::desktop
