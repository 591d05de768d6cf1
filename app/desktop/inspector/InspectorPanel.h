// The inspector: everything about what is selected.
#pragma once

#include "app/desktop/panels/PanelWidget.h"
#include "app/desktop/shell/BackgroundWork.h"
#include "app/present/Inspector.h"

#include <QSet>

#include <vector>

class QComboBox;
class QTextBrowser;
class QToolButton;
class QUrl;

namespace kestrav::desktop
{

/// Follows the selection of the window. Sections fold with a click on their titles, which is kept
/// from run to run; links lead on, and back and forward go through what was looked at.
class InspectorPanel : public PanelWidget
{
    Q_OBJECT

public:
    InspectorPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;
    [[nodiscard]] QSize sizeHint() const override;

    void goBack();
    void goForward();

protected:
    void refresh() override;

private:
    void remember();
    void show(present::Inspection inspection);
    void render();
    void linkClicked(const QUrl& url);
    void toggle(const QString& section);
    void setAllFolded(bool folded);
    void go(int by);

    QToolButton* back_;
    QToolButton* forward_;
    QComboBox* source_;
    QTextBrowser* browser_;
    QList<QAction*> actions_;
    BackgroundWork work_;
    present::Inspection shown_;
    std::vector<present::Link> history_;
    int place_ = -1; ///< in the history
    QSet<QString> folded_;
};

/// The inspector as the pane on the right of the window.
[[nodiscard]] InspectorPanel* makeInspectorPane(Workspace& workspace, QWidget* parent);

} // namespace kestrav::desktop
