// A panel with one of the texts: balance of the dasha, panchanga, yogas, notes.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"

class QTextBrowser;

namespace kestrav::desktop
{

class TextPanel : public PanelWidget
{
    Q_OBJECT

public:
    TextPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    QTextBrowser* browser_;
    BackgroundWork work_;
    std::vector<present::Block> blocks_;
};

} // namespace kestrav::desktop
