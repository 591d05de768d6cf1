// Tables as rows on paper.
#pragma once

#include "app/desktop/printing/FlowItems.h"

namespace kestrav::desktop
{

/// The title, the headings, the rows and the notes of a table in a column of that width. Letters
/// become smaller, down to a limit, where the table would be wider; what is wider even then is
/// cut with an ellipsis. The headings are repeated on every sheet.
[[nodiscard]] std::vector<FlowItem> tableItems(const present::Table& table, double width,
                                               const QFont& font);

} // namespace kestrav::desktop
