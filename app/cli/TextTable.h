// The aligned columns of the presentation floor under the names of the command line.
#pragma once

#include "app/present/TextTable.h"

namespace kestrav::cli
{

using present::LabelledLines;
using present::TextTable;

} // namespace kestrav::cli
