#include "data/DecimalText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace kestrav::data
{

std::string fixedDecimals(double value, int places)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + 32> buffer{};
    const auto [end, problem] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                      std::isfinite(value) ? value : 0.0, std::chars_format::fixed, places);
    return problem == std::errc{} ? std::string(buffer.data(), end) : std::string("0");
}

} // namespace kestrav::data
