#include "app/present/NorthDiagram.h"

namespace kestrav::present
{

namespace
{

// A triangle is cut where its two parts have the same area.
constexpr double kDiamondDivision = 0.5;
constexpr double kTriangleDivision = 0.707;

// clang-format off
constexpr CellShape kHouse1 = {
    4, {{{0.5, 0.0}, {0.25, 0.25}, {0.5, 0.5}, {0.75, 0.25}}},
    {0.5, 0.44}, {0.5, 0.22}, {0.0, -1.0}, kDiamondDivision};
constexpr CellShape kHouse2 = {
    3, {{{0.0, 0.0}, {0.25, 0.25}, {0.5, 0.0}}},
    {0.25, 0.205}, {0.25, 0.085}, {0.0, -1.0}, kTriangleDivision};
constexpr CellShape kHouse3 = {
    3, {{{0.0, 0.0}, {0.0, 0.5}, {0.25, 0.25}}},
    {0.205, 0.25}, {0.085, 0.25}, {-1.0, 0.0}, kTriangleDivision};
constexpr CellShape kHouse4 = {
    4, {{{0.0, 0.5}, {0.25, 0.75}, {0.5, 0.5}, {0.25, 0.25}}},
    {0.44, 0.5}, {0.24, 0.5}, {-1.0, 0.0}, kDiamondDivision};

constexpr CellPlan kNorth = {
    true,
    {{
        kHouse1,
        kHouse2,
        kHouse3,
        kHouse4,
        flipped(kHouse3),
        flipped(kHouse2),
        flipped(kHouse1),
        mirrored(flipped(kHouse2)),
        mirrored(flipped(kHouse3)),
        mirrored(kHouse4),
        mirrored(kHouse3),
        mirrored(kHouse2),
    }},
    std::nullopt,
    false,
};
// clang-format on

} // namespace

const CellPlan& northPlan()
{
    return kNorth;
}

} // namespace kestrav::present
