// The North Indian diagram: a square with both diagonals and the diamond of its side middles.
#pragma once

#include "app/present/DiagramCells.h"

namespace kestrav::present
{

/// House 1 is the top diamond; the houses run counter-clockwise.
[[nodiscard]] const CellPlan& northPlan();

} // namespace kestrav::present
