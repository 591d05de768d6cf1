#include "data/DecimalText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
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

void appendSixDecimals(std::string& text, double value)
{
    constexpr double kLargest = 1.0e9;
    constexpr double kScale = 1.0e6;
    const double size = std::fabs(value);
    const double whole = std::floor(size);
    const double scaled = (size - whole) * kScale;
    // The product is exact to 1e-9, so only a value as near to a tie can be rounded wrongly.
    constexpr double kTieMargin = 1.0e-6;
    if (!(size < kLargest) || std::fabs(scaled - std::floor(scaled) - 0.5) < kTieMargin) {
        text += fixedDecimals(value, 6);
        return;
    }
    const auto millionths =
        std::uint64_t(whole) * std::uint64_t(kScale) + std::uint64_t(scaled + 0.5);
    std::array<char, 20> digits{};
    std::uint64_t rest = millionths;
    std::size_t first = digits.size();
    for (std::size_t place = 0; rest > 0 || place < 8; ++place) {
        if (place == 6) {
            digits[--first] = '.';
        } else {
            digits[--first] = char('0' + rest % 10);
            rest /= 10;
        }
    }
    if (std::signbit(value)) {
        text += '-';
    }
    text.append(digits.data() + first, digits.size() - first);
}

} // namespace kestrav::data
