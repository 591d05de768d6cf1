// The value texts of the presentation floor under the names of the command line.
#pragma once

#include "app/present/TextValues.h"

namespace kestrav::cli
{

using present::clockSeconds;
using present::dateText;
using present::fixedNumber;
using present::geoText;
using present::nakshatraOf;
using present::numberOrNone;
using present::padaOf;
using present::pointLabel;
using present::wrapped;

} // namespace kestrav::cli
