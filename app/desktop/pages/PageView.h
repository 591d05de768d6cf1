// A page of the workspace: panels in splitters, as a layout arranges them.
#pragma once

#include "app/present/PageLayout.h"

#include <QList>
#include <QWidget>

#include <vector>

class QSplitter;

namespace kestrav::desktop
{

class PanelCell;
class Workspace;

class PageView : public QWidget
{
    Q_OBJECT

public:
    PageView(Workspace& workspace, present::PageLayout layout, QWidget* parent);

    /// The layout with what the user has chosen in the panels since.
    [[nodiscard]] present::PageLayout layout() const;
    [[nodiscard]] const QList<PanelCell*>& cells() const
    {
        return cells_;
    }
    /// The cell that has the focus, else the first; null on an empty page.
    [[nodiscard]] PanelCell* currentCell() const;
    /// Moves the focus `by` cells on.
    void focusCell(int by);
    /// Sizes of all splitters and of the letters of each cell, and back; those of another layout
    /// are left aside.
    [[nodiscard]] QByteArray saveSizes() const;
    void restoreSizes(const QByteArray& sizes);

signals:
    void changed();

private:
    struct Range
    {
        int first = 0;
        int end = 0;
    };

    QWidget* build(const Range& rows, const Range& columns);
    QWidget* buildSplitter(Qt::Orientation orientation, const std::vector<int>& cuts,
                           const Range& rows, const Range& columns);
    QWidget* buildGrid(const Range& rows, const Range& columns);
    [[nodiscard]] std::vector<int> cuts(Qt::Orientation orientation, const Range& rows,
                                        const Range& columns) const;
    QWidget* cell(std::size_t panel);

    Workspace& workspace_;
    present::PageLayout layout_;
    QList<PanelCell*> cells_;
    std::vector<std::size_t> panelOfCell_;
    QList<QSplitter*> splitters_;
};

} // namespace kestrav::desktop
