// Which columns of a table the user wants to see, remembered from run to run.
#pragma once

#include "app/present/Table.h"

#include <cstddef>
#include <string>
#include <vector>

class QWidget;

namespace kestrav::desktop
{

/// The chosen columns of a table, all of them where nothing was chosen.
[[nodiscard]] std::vector<std::size_t> shownColumns(const std::string& table, std::size_t count);

void keepShownColumns(const std::string& table, std::size_t count,
                      const std::vector<std::size_t>& shown);

/// The table with these columns, in this order.
[[nodiscard]] present::Table withColumns(const present::Table& table,
                                         const std::vector<std::size_t>& shown);

/// Lets the user choose the columns of a table. False when nothing was changed.
bool chooseColumns(const present::Table& table, QWidget* parent);

} // namespace kestrav::desktop
