#include "core/Angles.h"

#include "core/numeric.h"

#include <cassert>
#include <cmath>

namespace kestrav::core
{

namespace
{

// The remainder brought into 0 <= result < modulus.
double lifted(double modulus, double remainder)
{
    // Adding zero turns a negative zero into a plain one.
    const double result = remainder + (remainder < 0.0 ? modulus : 0.0);
    // Lifting a tiny negative value can round to the modulus itself.
    return result >= modulus ? result - modulus : result;
}

// The bits of NormalizeMod for a whole modulus without a call of fmod, which divides bit by bit.
double normalizeWhole(int modulus, double value)
{
    constexpr double kLargest = 1e9;
    if (!(std::fabs(value) < kLargest)) {
        return NormalizeMod(modulus, value);
    }
    // Both the product and the difference are exact. Where the quotient was rounded up to a whole
    // number, the remainder is a tiny one on the other side of zero, and the exact one again after
    // it was lifted.
    const int turns = int(value / modulus);
    return lifted(modulus, value - double(turns) * modulus);
}

} // namespace

double NormalizeMod(double modulus, double value)
{
    assert(modulus > 0.0);
    if (!std::isfinite(value)) {
        return kNotANumber;
    }
    return lifted(modulus, std::fmod(value, modulus));
}

double Normalize360(double degrees)
{
    return normalizeWhole(360, degrees);
}

double Normalize24(double hours)
{
    return normalizeWhole(24, hours);
}

double Wrap180(double degrees)
{
    if (degrees >= 180.0) {
        return degrees - 360.0;
    }
    return degrees < -180.0 ? degrees + 360.0 : degrees;
}

double WrapFrom90(double degrees)
{
    if (degrees >= 180.0) {
        return degrees - 360.0;
    }
    return degrees < -90.0 ? degrees + 360.0 : degrees;
}

double Reflect180(double degrees, bool& wasReflected)
{
    const double reduced = Normalize360(degrees);
    wasReflected = reduced >= 180.0;
    return wasReflected ? 360.0 - reduced : reduced;
}

bool IsLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

std::uint32_t ByteChecksum(const std::uint8_t* bytes, std::ptrdiff_t count)
{
    std::uint32_t sum = 0;
    std::uint32_t alternating = 0;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        sum += bytes[i];
        alternating += i % 2 == 1 ? std::uint32_t{bytes[i]} : 0U - bytes[i];
    }
    return sum + 2U * alternating;
}

} // namespace kestrav::core
