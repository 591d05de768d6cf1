// The shown chart under settings that are not in force yet.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "core/Settings.h"

#include <QWidget>

namespace kestrav::desktop
{

class DiagramView;

/// The shown chart, or the chart of the moment while none is shown, computed under the settings,
/// without changed points. Null when it cannot be computed.
[[nodiscard]] ChartPointer chartUnder(const Workspace& workspace, const core::Settings& settings);

/// A small diagram of it. With `varga` a divisional chart.
class OptionPreview : public QWidget
{
    Q_OBJECT

public:
    OptionPreview(const Workspace& workspace, QWidget* parent);

    void show(const core::Settings& settings);

private:
    const Workspace& workspace_;
    DiagramView* view_;
};

} // namespace kestrav::desktop
