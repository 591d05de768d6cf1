// What stands in the place of a panel that this version does not have.
#pragma once

#include "app/desktop/panels/PanelWidget.h"

namespace kestrav::desktop
{

class UnknownPanel : public PanelWidget
{
    Q_OBJECT

public:
    UnknownPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;

protected:
    void refresh() override
    {}
};

} // namespace kestrav::desktop
