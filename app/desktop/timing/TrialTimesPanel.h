// The panel that tries other birth times.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/present/EventTables.h"

class QComboBox;
class QLabel;
class QSpinBox;
class QTabWidget;
class QToolButton;

namespace kestrav::desktop
{

class TableView;

/// So many steps of seconds or minutes to both sides of the birth time, and what they change. The
/// chart stays as it is.
class TrialTimesPanel : public PanelWidget
{
    Q_OBJECT

public:
    TrialTimesPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    QLayout* makeBar();
    void showTables(const present::TrialTables& tables);
    /// The data entry with the time of the chosen row typed into it, to be confirmed there.
    void TakeOverButtonClick();

    QSpinBox* step_;
    QComboBox* unit_;
    QSpinBox* count_;
    QSpinBox* levels_;
    QToolButton* takeOver_;
    QLabel* note_;
    QTabWidget* tabs_;
    TableView* ascendants_;
    TableView* lords_;
    QList<QAction*> actions_;
    BackgroundWork work_;
};

} // namespace kestrav::desktop
