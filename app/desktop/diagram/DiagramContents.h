// What diagrams show, from the settings and the workspace.
#pragma once

#include "app/desktop/diagram/DiagramView.h"
#include "app/present/PageLayout.h"

namespace kestrav::desktop
{

/// The chart as the panel and the settings want it drawn, with the points that the user changed
/// marked where it is the shown chart.
[[nodiscard]] DiagramContents diagramContents(const Workspace& workspace,
                                              const present::Panel& panel, ChartPointer chart);

} // namespace kestrav::desktop
