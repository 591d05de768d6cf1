#include "app/present/TransitChoices.h"

#include "core/Points.h"

#include <algorithm>
#include <numeric>

namespace kestrav::present
{

bool movesByItself(int point)
{
    return std::find(core::kBodies.begin(), core::kBodies.end(), point) != core::kBodies.end();
}

std::vector<int> movingBodies()
{
    return {core::kBodies.begin(), core::kBodies.end()};
}

std::vector<int> nativePoints(int last)
{
    std::vector<int> points(std::size_t(last - core::kAscendant + 1));
    std::iota(points.begin(), points.end(), int(core::kAscendant));
    return points;
}

} // namespace kestrav::present
