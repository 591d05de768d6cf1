// The door through which the user's choices come into force.
#pragma once

#include "core/Settings.h"

namespace kestrav::desktop
{

class TKSVform1;

/// Puts settings in force after the notices about what does not go together, and asks whether to
/// refresh the research database where planets moved.
void changeOptions(TKSVform1& window, core::Settings wanted);

} // namespace kestrav::desktop
