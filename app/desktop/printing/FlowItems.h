// The blocks of a document as pieces that are stacked on paper.
#pragma once

#include "app/present/Document.h"

#include <QFont>

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
};

/// The pieces of the blocks for a column of that width, in their order.
[[nodiscard]] std::vector<FlowItem> flowItems(const std::vector<present::Block>& blocks,
                                              double width, const QFont& font);

/// A heading of the flow.
[[nodiscard]] FlowItem headingItem(const std::wstring& text, double width, const QFont& font);

/// A font of a size in points that is measured and painted alike on every device.
[[nodiscard]] QFont paperFont(const QFont& font, double points);

} // namespace kestrav::desktop
