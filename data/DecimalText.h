// Decimal numbers with a fixed number of places, the same in every locale.
#pragma once

#include <string>

namespace kestrav::data
{

/// As the format "%.*f" writes it, always with a decimal point. Values that are not finite give 0.
[[nodiscard]] std::string fixedDecimals(double value, int places);

/// Appends fixedDecimals(value, 6), several times as fast.
void appendSixDecimals(std::string& text, double value);

} // namespace kestrav::data
