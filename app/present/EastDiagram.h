// The East Indian diagram: nine squares, those in the corners cut by their outer diagonals.
#pragma once

#include "app/present/DiagramCells.h"

namespace kestrav::present
{

/// Aries is the square in the middle of the top; the signs run counter-clockwise.
[[nodiscard]] const CellPlan& eastPlan();

} // namespace kestrav::present
