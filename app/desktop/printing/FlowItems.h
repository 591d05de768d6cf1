// The blocks of a document as pieces that are stacked on paper.
#pragma once

#include "app/present/Document.h"

#include <QFont>
#include <QSizeF>

#include <functional>
#include <memory>
#include <vector>

class QPainter;

namespace kestrav::desktop
{

/// One piece: a line, a row of a table, a row of drawings. Lengths are in points (1/72 inch).
struct FlowItem
{
    double height = 0.0;
    /// Paints the piece with its top left corner at the painter's origin.
    std::function<void(QPainter&)> paint;
    bool withNext = false;    ///< never the last of a sheet: headings
    bool breakBefore = false; ///< begins a new sheet
    /// What is repeated when a sheet begins with this piece: the headings of its table. Shared by
    /// all rows of the table.
    std::shared_ptr<const std::vector<FlowItem>> repeated = nullptr;
    /// Of a row that may stand in columns side by side; 0 for what takes the whole width.
    double columnWidth = 0.0;
    bool cut = false; ///< texts are cut, because the column is too narrow for the table
};

/// The pieces of the blocks for a column of that width, in their order.
[[nodiscard]] std::vector<FlowItem> flowItems(const std::vector<present::Block>& blocks,
                                              double width, const QFont& font);

/// Drawings in as many rows as make them largest in the room, under their titles where there are
/// several. The piece is no higher than the room.
[[nodiscard]] FlowItem drawingsItem(const std::vector<present::Drawing>& drawings, QSizeF room,
                                    const QFont& font);

/// The piece with its letters and everything else at a part of their size.
[[nodiscard]] FlowItem scaledItem(FlowItem item, double part);

/// A heading of the flow; its letters become smaller where it would be too wide.
[[nodiscard]] FlowItem headingItem(const std::wstring& text, double width, const QFont& font);

/// A font of a size in points that is measured and painted alike on every device.
[[nodiscard]] QFont paperFont(const QFont& font, double points);

} // namespace kestrav::desktop
