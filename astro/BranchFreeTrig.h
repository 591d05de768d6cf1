// Sine and cosine without tables, calls or branches, so that a plain loop over series terms
// vectorises, and the macro that compiles such a loop for several instruction sets.
//
// Every operation is a separate IEEE addition, subtraction or multiplication in a fixed order, so
// all instruction sets give the same bits. Needs -ffp-contract=off, as the whole project has.
#pragma once

#include "core/numeric.h"

#include <bit>
#include <cstdint>

// Put before a function with a hot loop: compiles it for AVX-512, AVX2 and the base instruction set
// and picks one when the program starts. Functions called in the loop must be inlined.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && !defined(KESTRAV_NO_CLONES)
#define KESTRAV_CLONES __attribute__((target_clones("arch=x86-64-v4", "arch=x86-64-v3", "default")))
#else
#define KESTRAV_CLONES
#endif

namespace kestrav::astro
{

namespace detail
{

// Adding and subtracting 1.5 * 2^52 rounds to the nearest integer, and the sum's last bit is that
// integer's parity.
inline constexpr double kRoundingConstant = 6755399441055744.0;
inline constexpr double kInversePi = 0.3183098861837907;

// Pi in three parts. The first two have 27 and 25 bits, so their product with a multiple below
// 2^26 is exact.
inline constexpr double kPiHigh = 0x1.921fb54p+1;
inline constexpr double kPiMiddle = 0x1.10b461p-29;
inline constexpr double kPiLow = 0x1.a62633145c06ep-57;

struct ReducedAngle
{
    double remainder;       // -pi/2 .. pi/2
    std::uint64_t signFlip; // the sign bit when an odd multiple of pi was taken off, otherwise 0
};

[[gnu::always_inline]] inline ReducedAngle reduceByPi(double radians)
{
    const double shifted = radians * kInversePi + kRoundingConstant;
    const double multiple = shifted - kRoundingConstant;
    double remainder = radians - multiple * kPiHigh;
    remainder = remainder - multiple * kPiMiddle;
    remainder = remainder - multiple * kPiLow;
    return {remainder, std::bit_cast<std::uint64_t>(shifted) << 63};
}

[[gnu::always_inline]] inline double flipSign(double value, std::uint64_t signFlip)
{
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(value) ^ signFlip);
}

// Minimax polynomials on -pi/2 .. pi/2, computed by the Remez exchange in 60-digit arithmetic with
// the leading coefficients held at those of the Taylor series. Degree 17 is off by 2e-19 at most.
[[gnu::always_inline]] inline double sineOfRemainder(double x)
{
    const double square = x * x;
    double sum = 2.718496448531024e-15;
    sum = sum * square - 7.642712936216902e-13;
    sum = sum * square + 1.6058927836837105e-10;
    sum = sum * square - 2.5052106606646346e-08;
    sum = sum * square + 2.7557319207787052e-06;
    sum = sum * square - 0.00019841269841185962;
    sum = sum * square + 0.008333333333333115;
    sum = sum * square - 0.16666666666666666;
    return x + x * (square * sum);
}

// Degree 16, off by 6e-18 at most.
[[gnu::always_inline]] inline double cosineOfRemainder(double x)
{
    const double square = x * x;
    double sum = 4.61613532585921e-14;
    sum = sum * square - 1.1463635462424266e-11;
    sum = sum * square + 2.0876592593393943e-09;
    sum = sum * square - 2.7557317068526626e-07;
    sum = sum * square + 2.480158728578405e-05;
    sum = sum * square - 0.001388888888883005;
    sum = sum * square + 0.04166666666666583;
    return 1.0 + square * (square * sum - 0.5);
}

} // namespace detail

struct SineCosine
{
    double sine;
    double cosine;
};

/// Sine of an angle in radians, right to 5e-16 for |angle| up to 1e8, a hundred times the largest
/// series argument. It is meant for no more: the error is 6e-8 at 1e9, and beyond 1e16 the result
/// has no meaning. An argument that is not finite gives not-a-number.
[[nodiscard, gnu::always_inline]] inline double sineBranchFree(double radians)
{
    const detail::ReducedAngle angle = detail::reduceByPi(radians);
    return detail::flipSign(detail::sineOfRemainder(angle.remainder), angle.signFlip);
}

/// Cosine of an angle in radians; range and error as for sineBranchFree.
[[nodiscard, gnu::always_inline]] inline double cosineBranchFree(double radians)
{
    const detail::ReducedAngle angle = detail::reduceByPi(radians);
    return detail::flipSign(detail::cosineOfRemainder(angle.remainder), angle.signFlip);
}

/// Sine and cosine of one angle with one reduction; the same bits as the two single functions.
[[nodiscard, gnu::always_inline]] inline SineCosine sineCosineBranchFree(double radians)
{
    const detail::ReducedAngle angle = detail::reduceByPi(radians);
    return {detail::flipSign(detail::sineOfRemainder(angle.remainder), angle.signFlip),
            detail::flipSign(detail::cosineOfRemainder(angle.remainder), angle.signFlip)};
}

} // namespace kestrav::astro
