#include "app/present/EastDiagram.h"

namespace kestrav::present
{

namespace
{

constexpr double kThird = 1.0 / 3.0;

// A triangle is cut where its two parts have the same area.
constexpr double kSquareDivision = 0.5;
constexpr double kTriangleDivision = 0.707;

// clang-format off
constexpr CellShape kAries = {
    4, {{{kThird, 0.0}, {2.0 * kThird, 0.0}, {2.0 * kThird, kThird}, {kThird, kThird}}},
    {0.5, 0.305}, {0.5, 0.15}, {0.0, -1.0}, kSquareDivision};
constexpr CellShape kTaurus = {
    3, {{{0.0, 0.0}, {kThird, 0.0}, {kThird, kThird}}},
    {0.305, 0.24}, {0.225, 0.095}, {0.0, -1.0}, kTriangleDivision};
constexpr CellShape kGemini = transposed(kTaurus);
constexpr CellShape kCancer = transposed(kAries);

constexpr CellPlan kEast = {
    false,
    {{
        kAries,
        kTaurus,
        kGemini,
        kCancer,
        flipped(kGemini),
        flipped(kTaurus),
        flipped(kAries),
        mirrored(flipped(kTaurus)),
        mirrored(flipped(kGemini)),
        mirrored(kCancer),
        mirrored(kGemini),
        mirrored(kTaurus),
    }},
    Box{kThird, kThird, 2.0 * kThird, 2.0 * kThird},
    false,
};
// clang-format on

} // namespace

const CellPlan& eastPlan()
{
    return kEast;
}

} // namespace kestrav::present
