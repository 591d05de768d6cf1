// How points with a position of the user's are told.
#pragma once

#include "app/desktop/shell/Workspace.h"

#include <QString>

namespace kestrav::desktop
{

/// The name of a point that can be changed; the tenth cusp stands for the midheaven.
[[nodiscard]] QString changedPointName(int point);

/// "changed: Sun, Moon"; empty when no point is changed.
[[nodiscard]] QString changedPointsText(const ChangedPoints& changed);

} // namespace kestrav::desktop
