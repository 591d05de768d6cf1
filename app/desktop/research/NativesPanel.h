// The natives that have a yoga, and why.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/research/YogaFindings.h"
#include "app/present/RuleLines.h"

#include <cstddef>
#include <optional>

class QLabel;
class QToolButton;

namespace kestrav::desktop
{

class TableView;
class WorkBar;

/// The list of the last search. Selecting a native shows the reasons, a double click or Enter opens
/// the chart.
class NativesPanel : public PanelWidget
{
    Q_OBJECT

public:
    NativesPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;

protected:
    void refresh() override;

private:
    void explainSelected();
    void openSelected();
    void GroupBButtonClick();
    [[nodiscard]] std::optional<std::size_t> selectedLine() const;

    YogaFindings& findings_;
    SearchedPointer shown_;
    bool filled_ = false;
    QLabel* note_;
    TableView* natives_;
    TableView* reasons_;
    QToolButton* group_;
    WorkBar* bar_;
    BackgroundWork explaining_;
    QList<QAction*> actions_;
};

} // namespace kestrav::desktop
