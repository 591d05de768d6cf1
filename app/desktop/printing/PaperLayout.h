// Documents and pages laid out on sheets of paper.
#pragma once

#include "app/desktop/printing/FlowItems.h"

#include <QFont>
#include <QRectF>
#include <QSizeF>

#include <string>
#include <vector>

class QPainter;

namespace kestrav::desktop
{

/// A cell of a page on paper.
struct PaperCell
{
    QRectF share; ///< of the sheet's room, 0 to 1
    std::wstring caption;
    std::vector<present::Block> blocks;
};

/// What is printed: the cells of a page, or the blocks of a report. The head belongs to the chart
/// that the contents were made from.
struct PaperDocument
{
    std::wstring title;
    std::vector<std::wstring> head;
    std::vector<PaperCell> cells;
    std::vector<present::Block> flow;
};

/// The sheets of a document. What does not fit into a cell of the first sheet follows on further
/// ones, and nothing is left out.
class PaperLayout
{
public:
    /// `paper` is the room inside the margins in points.
    PaperLayout(const PaperDocument& document, QSizeF paper, const QFont& font);

    [[nodiscard]] int sheets() const
    {
        return int(sheets_.size());
    }
    /// Paints a sheet, 0 the first, with head and foot; the painter counts in points from the
    /// corner of the room.
    void paint(QPainter& painter, int sheet) const;

private:
    struct Placed
    {
        double x = 0.0;
        double y = 0.0;
        FlowItem item;
    };
    struct Rule
    {
        QRectF rectangle;
    };
    struct Sheet
    {
        std::vector<Placed> pieces;
        std::vector<Rule> frames;
    };

    void layOutHead(const PaperDocument& document);
    void layOutCells(const PaperDocument& document, std::vector<FlowItem>& left);
    void layOutCell(const PaperCell& cell, const QRectF& frame, std::vector<FlowItem>& left);
    void layOutFlow(const std::vector<FlowItem>& items);
    void newSheet();
    bool layOutColumns(const std::vector<FlowItem>& items, std::size_t first, std::size_t end);

    QSizeF paper_;
    QFont font_;
    double top_ = 0.0;    ///< where the contents begin below the head
    double bottom_ = 0.0; ///< where they end above the foot
    double y_ = 0.0;      ///< where the flow goes on
    bool fresh_ = true;   ///< nothing stands on the last sheet yet
    std::vector<Sheet> sheets_;
    std::vector<Placed> head_;
    QString foot_;
};

} // namespace kestrav::desktop
