// The panel with the events of the life under the dashas and transits of their moments.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"

class QLabel;
class QToolButton;

namespace kestrav::desktop
{

class TableView;

/// A click on an event brings the shared date to it.
class EventsPanel : public PanelWidget
{
    Q_OBJECT

public:
    EventsPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    void showTable(const present::Table& table);
    void EditEventsButtonClick();

    TableView* view_;
    QLabel* note_;
    QToolButton* edit_;
    QList<QAction*> actions_;
    BackgroundWork work_;
};

} // namespace kestrav::desktop
