#include "timing/Interpolator.h"

#include "core/numeric.h"

#include <algorithm>
#include <cmath>

namespace kestrav::timing
{

void Interpolator::setModulus(double modulus)
{
    modulus_ = modulus;
}

void Interpolator::add(double x, double y)
{
    if (count_ == kOrder) {
        return;
    }
    const double before = count_ == 0 ? 0.0 : y_[count_ - 1];
    x_[count_] = x;
    y_[count_] = modulus_ > 0.0 ? before + std::remainder(y - before, modulus_) : y;
    ++count_;
}

double Interpolator::solve() const
{
    if (count_ < kOrder || x_[0] == x_[1] || x_[1] == x_[2] || x_[0] == x_[2]) {
        return core::kNotANumber;
    }
    // y = c + b s + a s^2 with s = x - x[1], from the divided differences.
    const double early = (y_[1] - y_[0]) / (x_[1] - x_[0]);
    const double late = (y_[2] - y_[1]) / (x_[2] - x_[1]);
    const double a = (late - early) / (x_[2] - x_[0]);
    const double b = early + a * (x_[1] - x_[0]);
    const double c = y_[1];
    const double discriminant = b * b - 4.0 * a * c;
    if (discriminant < 0.0) {
        return x_[1] - b / (2.0 * a);
    }
    if (a == 0.0 && b == 0.0) {
        return c == 0.0 ? x_[0] : core::kNotANumber;
    }
    // The form without cancellation; a straight line has one root only.
    const double q = -0.5 * (b + std::copysign(std::sqrt(discriminant), b));
    const double one = q == 0.0 ? x_[1] : x_[1] + c / q;
    const double other = a == 0.0 ? one : x_[1] + q / a;
    const auto outside = [&](double x) {
        return std::max({x_[0] - x, x - x_[2], 0.0});
    };
    const double first = std::min(one, other);
    const double second = std::max(one, other);
    return outside(second) < outside(first) ? second : first;
}

} // namespace kestrav::timing
