// The panel with the dasha periods of a life as bars.
#pragma once

#include "app/desktop/timing/StripPanel.h"

namespace kestrav::desktop
{

class LifeBarPanel : public StripPanel
{
    Q_OBJECT

public:
    LifeBarPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;

protected:
    void refresh() override;

private:
    ChartPointer shown_; ///< whose life the bar shows
    int system_ = -1;
};

} // namespace kestrav::desktop
