// Small functions on angles, hours, signs and bytes that every floor shares.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kestrav::core
{

/// The value reduced into 0 <= result < modulus (modulus above 0). The result is always below the
/// modulus, also for a tiny negative value. Values that are not finite give not-a-number.
[[nodiscard]] double NormalizeMod(double modulus, double value);

/// Degrees reduced into 0 <= result < 360.
[[nodiscard]] double Normalize360(double degrees);

/// Hours reduced into 0 <= result < 24.
[[nodiscard]] double Normalize24(double hours);

/// Degrees lowered by 360 from 180 on and lifted by 360 below -180. One step only.
[[nodiscard]] double Wrap180(double degrees);

/// Degrees lowered by 360 from 180 on and lifted by 360 below -90. The lower bound is meant, so
/// -100 gives 260 where Wrap180 leaves it alone.
[[nodiscard]] double WrapFrom90(double degrees);

/// The degrees folded into 0..180; `wasReflected` tells whether they lay in the second half circle.
[[nodiscard]] double Reflect180(double degrees, bool& wasReflected);

/// x mod n with the sign of x, lifted by n once when it is below `lo`. ModFrom(27, 0, d) counts
/// nakshatras, ModFrom(12, 0, d) signs.
[[nodiscard]] constexpr int ModFrom(int n, int lo, int x)
{
    const int remainder = x % n;
    return remainder < lo ? remainder + n : remainder;
}

/// Any sum of signs brought into 1..12; multiples of 12 give 12.
[[nodiscard]] constexpr int SignOf12(int n)
{
    const int remainder = n % 12;
    return remainder < 1 ? remainder + 12 : remainder;
}

/// The name under which chart analysis knows SignOf12.
[[nodiscard]] constexpr int norm12(int n)
{
    return SignOf12(n);
}

/// `value` held inside `lo`..`hi`.
template <typename Number>
[[nodiscard]] constexpr Number ClampRange(Number lo, Number hi, Number value)
{
    if (value < lo) {
        return lo;
    }
    return value > hi ? hi : value;
}

/// The Gregorian leap-year rule, for every year number as it stands.
[[nodiscard]] bool IsLeapYear(int year);

/// s + 2a modulo 2^32, where s is the sum of the bytes and a the sum with alternating sign (minus
/// for position 0, plus for position 1, ...). 0 when `count` is 0 or less.
[[nodiscard]] std::uint32_t ByteChecksum(const std::uint8_t* bytes, std::ptrdiff_t count);

} // namespace kestrav::core
