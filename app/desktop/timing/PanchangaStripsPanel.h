// The panel with the panchanga of the shared day as strips on one axis of time.
#pragma once

#include "app/desktop/timing/StripPanel.h"

namespace kestrav::desktop
{

class PanchangaStripsPanel : public StripPanel
{
    Q_OBJECT

public:
    PanchangaStripsPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;

protected:
    void refresh() override;
};

} // namespace kestrav::desktop
