// From the description of a panel to its widget.
#pragma once

#include "app/present/PageLayout.h"

class QWidget;

namespace kestrav::desktop
{

class PanelWidget;
class Workspace;

/// The widget of a panel, owned by the parent. A view that this version does not have becomes a
/// panel that says so.
[[nodiscard]] PanelWidget* makePanel(Workspace& workspace, const present::Panel& panel,
                                     QWidget* parent);

} // namespace kestrav::desktop
