#include "app/present/NorthDiagram.h"

namespace kestrav::present
{

namespace
{

// clang-format off
constexpr CellShape kHouse1 = {
    4, {{{0.5, 0.0}, {0.25, 0.25}, {0.5, 0.5}, {0.75, 0.25}}}, {0.5, 0.44}, {0.5, 0.22}};
constexpr CellShape kHouse2 = {
    3, {{{0.0, 0.0}, {0.25, 0.25}, {0.5, 0.0}}}, {0.25, 0.205}, {0.25, 0.085}};
constexpr CellShape kHouse3 = {
    3, {{{0.0, 0.0}, {0.0, 0.5}, {0.25, 0.25}}}, {0.205, 0.25}, {0.085, 0.25}};
constexpr CellShape kHouse4 = {
    4, {{{0.0, 0.5}, {0.25, 0.75}, {0.5, 0.5}, {0.25, 0.25}}}, {0.44, 0.5}, {0.24, 0.5}};
// clang-format on

constexpr double kThird = 1.0 / 3.0;

constexpr CellPlan kNorth = {
    true,  allAround(kHouse1, kHouse2, kHouse3, kHouse4), frameAllAround(kThird), std::nullopt,
    false,
};

} // namespace

const CellPlan& northPlan()
{
    return kNorth;
}

} // namespace kestrav::present
