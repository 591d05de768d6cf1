#include "app/present/EastDiagram.h"

namespace kestrav::present
{

namespace
{

constexpr double kThird = 1.0 / 3.0;

// clang-format off
constexpr CellShape kAries = {
    4, {{{kThird, 0.0}, {2.0 * kThird, 0.0}, {2.0 * kThird, kThird}, {kThird, kThird}}},
    {0.5, 0.305}, {0.5, 0.15}};
constexpr CellShape kTaurus = {
    3, {{{0.0, 0.0}, {kThird, 0.0}, {kThird, kThird}}}, {0.305, 0.24}, {0.225, 0.095}};
// clang-format on

constexpr double kFirstEdge = kFrameDepth + (1.0 - 2.0 * kFrameDepth) * kThird;

constexpr CellPlan kEast = {
    false,
    allAround(kAries, kTaurus, transposed(kTaurus), transposed(kAries)),
    frameAllAround(kFirstEdge),
    Box{kThird, kThird, 2.0 * kThird, 2.0 * kThird},
    false,
};

} // namespace

const CellPlan& eastPlan()
{
    return kEast;
}

} // namespace kestrav::present
