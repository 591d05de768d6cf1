// The curve through three samples of a quantity, for the moment at which it vanishes.
#pragma once

#include <array>
#include <cstddef>

namespace kestrav::timing
{

/// Three points (x, y) with a wrap modulus: the ys may jump by whole moduli, as angles do. Set the
/// modulus, add the points in rising order of x, solve.
class Interpolator
{
public:
    static constexpr std::size_t kOrder = 3;

    /// The modulus of the ys; 0 (as at the start) for ys that do not wrap.
    void setModulus(double modulus);

    /// Adds a point. The first y is brought within half the modulus of 0 and every other within
    /// half of it of the y before, which makes the curve continuous. A fourth point is ignored.
    void add(double x, double y);

    /// The x at which the parabola through the points is 0: the earlier root between the first and
    /// the last point, else the root nearest to them. Without a real root it is the x of the
    /// vertex, where the curve comes closest to 0. Not-a-number for fewer than three points, for
    /// two of the same x and for a curve that is level elsewhere than at 0.
    [[nodiscard]] double solve() const;

private:
    double modulus_ = 0.0;
    std::size_t count_ = 0;
    std::array<double, kOrder> x_ = {};
    std::array<double, kOrder> y_ = {};
};

} // namespace kestrav::timing
