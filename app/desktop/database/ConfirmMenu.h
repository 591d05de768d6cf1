// The menu in which questions are switched off and on.
#pragma once

namespace kestrav::desktop
{

class TKSVform1;

/// One entry for each question that the settings can switch off.
void addConfirmMenu(TKSVform1& window);

} // namespace kestrav::desktop
