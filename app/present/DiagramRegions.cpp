#include "app/present/DiagramRegions.h"

#include "core/Angles.h"

#include <algorithm>
#include <tuple>

namespace kestrav::present
{

namespace
{

const Region& at(const DisplayList& list, int region)
{
    return list.regions[std::size_t(region)];
}

bool isCell(const Region& region)
{
    return (region.kind == RegionKind::Sign || region.kind == RegionKind::House) &&
           region.layer == 0;
}

bool isContents(const Region& region)
{
    return region.kind == RegionKind::Point || region.kind == RegionKind::More;
}

template <typename Wanted>
std::vector<int> indicesOf(const DisplayList& list, const Wanted& wanted)
{
    std::vector<int> found;
    for (std::size_t i = 0; i < list.regions.size(); ++i) {
        if (wanted(list.regions[i])) {
            found.push_back(int(i));
        }
    }
    return found;
}

} // namespace

std::vector<int> cellsInOrder(const DisplayList& list)
{
    // A circle has signs around its houses; where it has houses, they are what is walked.
    const bool houses =
        std::any_of(list.regions.begin(), list.regions.end(),
                    [](const Region& region) { return region.kind == RegionKind::House; });
    std::vector<int> cells = indicesOf(list, [houses](const Region& region) {
        return isCell(region) && (!houses || region.kind == RegionKind::House);
    });
    std::stable_sort(cells.begin(), cells.end(), [&list](int one, int other) {
        return std::tuple(at(list, one).house, at(list, one).sign) <
               std::tuple(at(list, other).house, at(list, other).sign);
    });
    return cells;
}

int cellOf(const DisplayList& list, int region)
{
    const Region& inside = at(list, region);
    for (const int cell : cellsInOrder(list)) {
        const Region& candidate = at(list, cell);
        if (cell == region || (inside.house != 0 && candidate.house == inside.house) ||
            (inside.house == 0 && inside.sign != 0 && candidate.sign == inside.sign)) {
            return cell;
        }
    }
    return -1;
}

std::vector<int> pointsInOrder(const DisplayList& list)
{
    const std::vector<int> cells = cellsInOrder(list);
    std::vector<std::pair<int, int>> keyed;
    for (const int region : indicesOf(list, isContents)) {
        const auto cell = std::find(cells.begin(), cells.end(), cellOf(list, region));
        keyed.emplace_back(int(cell - cells.begin()), region);
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    std::vector<int> points;
    for (const auto& [cell, region] : keyed) {
        points.push_back(region);
    }
    return points;
}

int regionOfPoint(const DisplayList& list, int point, int layer)
{
    const auto found =
        std::find_if(list.regions.begin(), list.regions.end(), [=](const Region& region) {
            return region.kind == RegionKind::Point && region.index == point &&
                   region.layer == layer;
        });
    return found == list.regions.end() ? -1 : int(found - list.regions.begin());
}

Link linkOf(const Region& region, int varga, int ascendantSign)
{
    switch (region.kind) {
    case RegionKind::Point:
        return {Subject::Point, region.index, varga};
    case RegionKind::Sign:
    case RegionKind::House:
        if (region.house != 0 && ascendantSign != 0 &&
            core::norm12(ascendantSign + region.house - 1) == region.sign) {
            return {Subject::House, region.house, varga};
        }
        return {Subject::Sign, region.sign, varga};
    case RegionKind::Centre:
    case RegionKind::More:
    case RegionKind::Span:
        break;
    }
    return {};
}

std::vector<int> regionsOf(const DisplayList& list, const Link& link, int varga, int ascendantSign)
{
    if (link.subject == Subject::Point) {
        const int region = regionOfPoint(list, link.index);
        return region < 0 ? std::vector<int>() : std::vector<int>{region};
    }
    const bool house = link.subject == Subject::House;
    if ((!house && link.subject != Subject::Sign) || link.varga != varga ||
        (house && ascendantSign == 0)) {
        return {};
    }
    const int sign = house ? core::norm12(ascendantSign + link.index - 1) : link.index;
    return indicesOf(
        list, [sign](const Region& region) { return isCell(region) && region.sign == sign; });
}

} // namespace kestrav::present
