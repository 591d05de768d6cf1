#include "app/present/DisplayList.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace kestrav::present
{

bool contains(const std::vector<Spot>& polygon, Spot spot)
{
    bool inside = false;
    for (std::size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
        const Spot a = polygon[i];
        const Spot b = polygon[j];
        if ((a.y > spot.y) != (b.y > spot.y) &&
            spot.x < (b.x - a.x) * (spot.y - a.y) / (b.y - a.y) + a.x) {
            inside = !inside;
        }
    }
    return inside;
}

int regionAt(const DisplayList& list, Spot spot)
{
    for (std::size_t i = list.regions.size(); i-- > 0;) {
        if (contains(list.regions[i].polygon, spot)) {
            return int(i);
        }
    }
    return -1;
}

double areaOf(const std::vector<Spot>& polygon)
{
    double twice = 0.0;
    for (std::size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
        twice += polygon[j].x * polygon[i].y - polygon[i].x * polygon[j].y;
    }
    return std::fabs(twice) / 2.0;
}

std::vector<Spot> cornersOf(const Box& box)
{
    return {
        {box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}};
}

std::string_view regionKindName(RegionKind kind)
{
    static constexpr std::array<std::string_view, 6> kNames = {"sign",  "house", "centre",
                                                               "point", "more",  "span"};
    return kNames[static_cast<std::size_t>(kind)];
}

std::string_view colourRoleName(ColourRole role)
{
    static constexpr std::array<std::string_view, kColourRoles> kNames = {
        "paper",  "panel",    "ascendantCell", "favourable", "unfavourable", "night",
        "border", "division", "leader",        "label",      "text",         "ascendant",
        "arudha", "minor",    "outer",         "bindu",      "aspect",       "cursor"};
    return kNames[static_cast<std::size_t>(role)];
}

} // namespace kestrav::present
