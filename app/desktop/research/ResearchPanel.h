// The research table: charts with columns of choice, counted groups and a graph.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/research/YogaFindings.h"
#include "app/present/BarChart.h"
#include "app/present/ResearchTables.h"

#include <cstddef>
#include <memory>
#include <vector>

class QComboBox;
class QLabel;
class QSpinBox;
class QStackedWidget;
class QToolButton;

namespace kestrav::desktop
{

class BarChartView;
class ResearchPurpose;
class TableView;
class WorkBar;

/// Works on the research database of the open database. It never asks by itself: a button reads or
/// refreshes what is missing.
class ResearchPanel : public PanelWidget
{
    Q_OBJECT

public:
    ResearchPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    enum Show
    {
        Charts,
        Groups,
        Graph,
    };
    enum Of
    {
        All,
        GroupA,
        GroupB,
        Found,
    };
    struct Request;
    struct Made
    {
        present::Table table;
        present::BarChartModel bars;
    };

    void makeChoosers();
    void fillColumnChoosers();
    void enableChoosers();
    void show(Made made);
    void showNote();
    void remember() const;
    void ColumnsActionTriggered();
    void RefreshButtonClick();
    void openRow();
    [[nodiscard]] Show shows() const;

    ResearchDesk& desk_;
    YogaFindings& findings_;
    QAction* refreshAction_;
    QComboBox* show_;
    QComboBox* by_;
    QComboBox* average_;
    QSpinBox* bars_;
    QComboBox* charts_;
    QLabel* byLabel_;
    QLabel* averageLabel_;
    QLabel* barsLabel_;
    QToolButton* columnsButton_;
    QToolButton* refreshButton_;
    QLabel* note_;
    QLabel* count_;
    QStackedWidget* stack_;
    TableView* table_;
    BarChartView* chart_;
    WorkBar* bar_;
    QWidget* choosers_;
    ResearchPurpose* purpose_;
    BackgroundWork making_;
    // Shared with the worker that makes it.
    std::shared_ptr<const Request> shown_;
    std::vector<std::size_t> columns_;
    QList<QAction*> actions_;
    QAction* columnsAction_;
    QAction* openAction_;
};

} // namespace kestrav::desktop
