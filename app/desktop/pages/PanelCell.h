// A cell of a page: a caption bar with choosers, and a panel below it.
#pragma once

#include "app/present/PageLayout.h"

#include <QFrame>
#include <QPointer>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QMenu;
class QToolButton;

namespace kestrav::desktop
{

class PanelWidget;
class Workspace;

class PanelCell : public QFrame
{
    Q_OBJECT

public:
    PanelCell(Workspace& workspace, const present::Panel& panel, QWidget* parent);

    [[nodiscard]] PanelWidget* panel() const
    {
        return panel_;
    }
    [[nodiscard]] QString captionText() const;
    /// Gives the focus to what the panel is for: its table, diagram or list.
    void focusPanel();
    /// The panel's own actions and the common ones, as the menu button shows them.
    void fillMenu(QMenu& menu);

    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The user changed what the cell shows: the page is not any more as it was saved.
    void changed();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showCaption();

    Workspace& workspace_;
    PanelWidget* panel_;
    QPointer<QWidget> focused_; ///< what the panel names as its own to have the focus
    QHBoxLayout* bar_ = nullptr;
    QLabel* caption_;
    QComboBox* varga_ = nullptr;
    QComboBox* style_ = nullptr;
    QToolButton* pin_;
    QToolButton* menu_;
};

} // namespace kestrav::desktop
