// What every panel of a page has in common.
#pragma once

#include "app/desktop/shell/Workspace.h"
#include "app/present/Document.h"
#include "app/present/PageLayout.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <vector>

class QAction;

namespace kestrav::desktop
{

/// A panel shows something of the shown chart, the second chart or the sky of the shared moment,
/// and never changes a chart. It is refreshed when something it depends on changed, once for
/// several changes, and only while it can be seen.
class PanelWidget : public QWidget
{
    Q_OBJECT

public:
    PanelWidget(Workspace& workspace, present::Panel panel, QWidget* parent);

    /// The panel as it is now, with what the user chose in it; a saved page holds this.
    [[nodiscard]] const present::Panel& panel() const
    {
        return panel_;
    }
    /// What stands in its caption bar.
    [[nodiscard]] virtual QString title() const = 0;
    /// Its name in the list of help topics.
    [[nodiscard]] virtual QString helpName() const;
    /// What the panel's menu offers besides the common entries. The panel owns the actions.
    [[nodiscard]] virtual QList<QAction*> panelActions();
    /// What is printed, copied and exported: the blocks of a document, for a light page.
    [[nodiscard]] virtual std::vector<present::Block> blocks();
    /// Whether a divisional chart can be chosen for it.
    [[nodiscard]] virtual bool hasVarga() const
    {
        return false;
    }
    /// Whether a diagram style can be chosen for it.
    [[nodiscard]] virtual bool hasStyle() const
    {
        return false;
    }
    void setVarga(int varga);
    void setStyle(std::optional<present::DiagramStyle> style);

    /// Keeps showing the chart that it shows now, whatever is opened; false lets it follow again.
    void pin(bool pinned);
    /// The chart that is kept; null while the panel follows.
    [[nodiscard]] const ChartPointer& pinnedChart() const
    {
        return pinned_;
    }
    /// Larger or smaller letters in this panel only, in percent.
    void setZoom(int percent);
    [[nodiscard]] int zoom() const
    {
        return zoom_;
    }
    /// Refreshes at once what is due, for pictures and prints of panels that were never seen.
    void refreshNow();

signals:
    /// Title or choices changed.
    void captionChanged();

protected:
    enum Dependence : unsigned
    {
        OnChart = 1,
        OnSecond = 2,
        OnMoment = 4,
        OnSelection = 8,
        OnYogas = 16,
        OnSettings = 32, ///< even without a chart
        OnDatabase = 64,
    };

    /// Fills the panel from the chart and whatever else it depends on.
    virtual void refresh() = 0;

    /// Says on what the panel depends; OnChart is what panels depend on without this call. A panel
    /// of the second chart or of the moment depends on those besides.
    void dependOn(unsigned dependences);
    /// To be refreshed when next seen.
    void markDue();

    [[nodiscard]] Workspace& workspace() const
    {
        return workspace_;
    }
    /// The chart to show, of the panel's source or pinned; may be null.
    [[nodiscard]] ChartPointer chart() const;
    /// Selects what a link leads to, for the inspector.
    void choose(const present::Link& link);
    /// The same; a link to a moment makes it the shared one.
    void follow(const present::Link& link);

    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

    present::Panel panel_;

private:
    void whenChanged(unsigned dependence);

    Workspace& workspace_;
    unsigned dependences_ = OnChart;
    ChartPointer pinned_;
    bool due_ = true;
    bool queued_ = false;
    int zoom_ = 100;
};

/// The title of a table, "Navamsha" of a divisional chart and so on.
[[nodiscard]] QString vargaTitle(int varga);

} // namespace kestrav::desktop
