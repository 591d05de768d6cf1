#include "core/Angles.h"

#include "core/numeric.h"

#include <cassert>
#include <cmath>

namespace kestrav::core
{

double NormalizeMod(double modulus, double value)
{
    assert(modulus > 0.0);
    if (!std::isfinite(value)) {
        return kNotANumber;
    }
    double result = std::fmod(value, modulus);
    if (result < 0.0) {
        result += modulus;
    }
    // Lifting a tiny negative value can round to the modulus itself.
    if (result >= modulus) {
        result -= modulus;
    }
    // Adding zero turns a negative zero into a plain one.
    return result + 0.0;
}

double Normalize360(double degrees)
{
    return NormalizeMod(360.0, degrees);
}

double Normalize24(double hours)
{
    return NormalizeMod(24.0, hours);
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
