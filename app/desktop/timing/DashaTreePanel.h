// The panel with the tree of a dasha.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/present/DashaTables.h"

class QComboBox;
class QLabel;
class QModelIndex;
class QToolButton;
class QTreeView;

namespace kestrav::desktop
{

class DashaChoice;
class DashaTreeModel;

/// Opened at the period that runs at the shared date, which is marked. Enter or a double click on a
/// period brings the shared date to its start.
class DashaTreePanel : public PanelWidget
{
    Q_OBJECT

public:
    DashaTreePanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    void makeActions();
    void rebuild(const ChartPointer& shown);
    void openAtMoment();
    void fitColumns();
    void chooseLord(const QModelIndex& index);
    void copyRows() const;
    [[nodiscard]] core::Result<present::DashaResult> listed() const;
    void DashaSystemComboBoxActivated(int system);
    void MakeStandardButtonClick();
    void SetToStartActionExecute();
    void SetToEndActionExecute();
    void SelectLordActionExecute();
    void ShowRunningActionExecute();

    DashaChoice& choice_;
    QComboBox* system_;
    QToolButton* makeStandard_;
    QLabel* balance_;
    QLabel* note_;
    QTreeView* tree_;
    DashaTreeModel* model_;
    ChartPointer shown_;
    int shownSystem_ = -1;
    bool opening_ = false;
    core::Settings shownSettings_;
    QList<QAction*> actions_;
};

} // namespace kestrav::desktop
