// The South Indian diagram: a ring of twelve squares around the middle.
#pragma once

#include "app/present/DiagramCells.h"

namespace kestrav::present
{

/// Pisces is the top left square; the signs run clockwise.
[[nodiscard]] const CellPlan& southPlan();

} // namespace kestrav::present
