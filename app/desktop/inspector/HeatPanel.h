// Dignities and vimshopaka with colours behind the words.
#pragma once

#include "app/desktop/panels/PanelWidget.h"

class QLabel;

namespace kestrav::desktop
{

class TableView;

/// Every cell says its dignity in words; the colour only helps to find it.
class HeatPanel : public PanelWidget
{
    Q_OBJECT

public:
    HeatPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    void showLegend();

    TableView* view_;
    QLabel* legend_;
    QLabel* note_;
    QList<QAction*> actions_;
};

} // namespace kestrav::desktop
