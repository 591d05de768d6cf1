// A panel with one chart diagram.
#pragma once

#include "app/desktop/panels/PanelWidget.h"

namespace kestrav::desktop
{

class DiagramView;

class DiagramPanel : public PanelWidget
{
    Q_OBJECT

public:
    DiagramPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] std::vector<present::Block> blocks() override;
    [[nodiscard]] bool hasVarga() const override
    {
        return true;
    }
    [[nodiscard]] bool hasStyle() const override
    {
        return true;
    }

protected:
    void refresh() override;

private:
    DiagramView* view_;
};

} // namespace kestrav::desktop
