// Panels with one large diagram and many small ones.
#pragma once

#include "app/desktop/panels/PanelWidget.h"

#include <optional>
#include <vector>

namespace kestrav::desktop
{

class DiagramTile;
class DiagramView;

/// A grid of small diagrams fills the room, with the large one over a square of cells at its
/// beginning.
class DiagramGridPanel : public PanelWidget
{
    Q_OBJECT

public:
    DiagramGridPanel(Workspace& workspace, present::Panel panel, int small, QWidget* parent);

    [[nodiscard]] QList<QAction*> panelActions() override;
    [[nodiscard]] std::vector<present::Block> blocks() override;
    [[nodiscard]] bool hasVarga() const override
    {
        return true;
    }
    [[nodiscard]] bool hasStyle() const override
    {
        return true;
    }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void arrange();
    /// A small diagram was clicked.
    virtual void tileClicked(int index) = 0;
    /// Whether the large diagram is printed beside the small ones.
    [[nodiscard]] virtual bool printsLarge() const
    {
        return false;
    }
    /// Connects what every diagram of the grid can do.
    void connectView(DiagramView* view);

    /// Degrees in the large diagram.
    [[nodiscard]] present::DegreeForm degrees() const;

    DiagramTile* large_;
    std::vector<DiagramTile*> tiles_;

private:
    QAction* copy_;
    QAction* save_;
    std::optional<present::DegreeForm> degrees_; ///< none for those of the settings
};

/// All divisional charts; the large one is the one that was clicked last.
class VargaGridPanel : public DiagramGridPanel
{
    Q_OBJECT

public:
    VargaGridPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;

protected:
    void refresh() override;
    void tileClicked(int index) override;
};

/// The sarvashtakavarga and the bindus of the eight receivers in one divisional chart. A receiver
/// that is clicked becomes the large one, and with another click the sarvashtakavarga again.
class BinduGridPanel : public DiagramGridPanel
{
    Q_OBJECT

public:
    BinduGridPanel(Workspace& workspace, present::Panel panel, QWidget* parent);

    [[nodiscard]] QString title() const override;

protected:
    void refresh() override;
    void tileClicked(int index) override;
    [[nodiscard]] bool printsLarge() const override
    {
        return true;
    }

private:
    int receiver_ = present::BinduChoice::kSarva;
};

} // namespace kestrav::desktop
