// A panel with one table of the catalogue.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/present/Table.h"

class QLabel;

namespace kestrav::desktop
{

class TableView;

class TablePanel : public PanelWidget
{
    Q_OBJECT

public:
    TablePanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;
    [[nodiscard]] bool hasVarga() const override;

protected:
    void refresh() override;

private:
    void show(core::Result<present::Table> made);
    void chooseShownColumns();

    TableView* view_;
    QLabel* note_;
    present::Table whole_; ///< with all its columns
    BackgroundWork work_;
    QString title_;
    QList<QAction*> actions_;
};

} // namespace kestrav::desktop
