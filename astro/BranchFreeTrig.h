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

struct ReducedAngle
{
    double remainder;       // half turns, -1/2 .. 1/2
    std::uint64_t signFlip; // the sign bit when an odd number of half turns was taken off, else 0
};

// Taking whole half turns off is exact.
[[gnu::always_inline]] inline ReducedAngle reduceHalfTurns(double halfTurns)
{
    const double shifted = halfTurns + kRoundingConstant;
    const double whole = shifted - kRoundingConstant;
    return {halfTurns - whole, std::bit_cast<std::uint64_t>(shifted) << 63};
}

[[gnu::always_inline]] inline double flipSign(double value, std::uint64_t signFlip)
{
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(value) ^ signFlip);
}

// Minimax polynomials of sin(pi x) and cos(pi x) on -1/2 .. 1/2, computed by the Remez exchange in
// 60-digit arithmetic. Every second coefficient goes into a sum of its own: the two short chains
// run side by side, while a single long one would keep the processor waiting. Degree 15 is off by
// 9e-17 at most.
[[gnu::always_inline]] inline double sineOfRemainder(double x)
{
    const double square = x * x;
    const double fourth = square * square;
    double even = 0.00046594206887974233;
    even = even * fourth + 0.08214587559646358;
    even = even * fourth + 2.5501640398445715;
    even = even * fourth + 3.1415926535897902;
    double odd = -2.1085689763710868e-05;
    odd = odd * fourth - 0.0073703474690547025;
    odd = odd * fourth - 0.5992645284958555;
    odd = odd * fourth - 5.167712780049386;
    return x * (even + square * odd);
}

// Degree 14 with a constant term of exactly 1, off by 2e-15 at most.
[[gnu::always_inline]] inline double cosineOfRemainder(double x)
{
    const double square = x * x;
    const double fourth = square * square;
    double even = 0.0019279086089989831;
    even = even * fourth + 0.23533059102662284;
    even = even * fourth + 4.058712126347369;
    even = even * fourth + 1.0;
    double odd = -0.00010045783557777812;
    odd = odd * fourth - 0.02580654632613301;
    odd = odd * fourth - 1.3352627664554745;
    odd = odd * fourth - 4.9348022005440002;
    return even + square * odd;
}

} // namespace detail

struct SineCosine
{
    double sine;
    double cosine;
};

/// Sine of an angle in half turns, right to 1e-15 for |angle| below 2^51. The sine of an angle that
/// is not finite is not-a-number.
[[nodiscard, gnu::always_inline]] inline double sineOfHalfTurns(double halfTurns)
{
    const detail::ReducedAngle angle = detail::reduceHalfTurns(halfTurns);
    return detail::flipSign(detail::sineOfRemainder(angle.remainder), angle.signFlip);
}

/// Cosine of an angle in half turns, right to 3e-15; range as for sineOfHalfTurns.
[[nodiscard, gnu::always_inline]] inline double cosineOfHalfTurns(double halfTurns)
{
    const detail::ReducedAngle angle = detail::reduceHalfTurns(halfTurns);
    return detail::flipSign(detail::cosineOfRemainder(angle.remainder), angle.signFlip);
}

/// Sine of an angle in radians. The conversion into half turns adds 2e-16 |angle| to the error of
/// sineOfHalfTurns, not much more than the rounding of the angle itself.
[[nodiscard, gnu::always_inline]] inline double sineBranchFree(double radians)
{
    return sineOfHalfTurns(radians * detail::kInversePi);
}

/// Cosine of an angle in radians; range and error as for sineBranchFree and cosineOfHalfTurns.
[[nodiscard, gnu::always_inline]] inline double cosineBranchFree(double radians)
{
    return cosineOfHalfTurns(radians * detail::kInversePi);
}

/// Sine and cosine of one angle with one reduction; the same bits as the two single functions.
[[nodiscard, gnu::always_inline]] inline SineCosine sineCosineBranchFree(double radians)
{
    const detail::ReducedAngle angle = detail::reduceHalfTurns(radians * detail::kInversePi);
    return {detail::flipSign(detail::sineOfRemainder(angle.remainder), angle.signFlip),
            detail::flipSign(detail::cosineOfRemainder(angle.remainder), angle.signFlip)};
}

} // namespace kestrav::astro
