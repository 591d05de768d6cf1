#include "app/present/MapDots.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <numeric>

namespace kestrav::present
{

namespace
{

constexpr double kWhole = 360.0;
constexpr double kRadians = std::numbers::pi / 180.0;
constexpr std::uint32_t kLargeTown = 100'000;
constexpr std::uint32_t kMetropolis = 1'000'000;

double chordSquared(const std::array<double, 3>& one, const std::array<double, 3>& other)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < one.size(); ++i) {
        sum += (one[i] - other[i]) * (one[i] - other[i]);
    }
    return sum;
}

} // namespace

Spot mapSpotOf(const GeoPlace& place)
{
    return {(place.longitude + 0.5 * kWhole) / kWhole,
            (kMapNorth - place.latitude) / (kMapNorth - kMapSouth)};
}

GeoPlace placeOfMapSpot(Spot spot)
{
    const double x = std::clamp(spot.x, 0.0, 1.0);
    const double y = std::clamp(spot.y, 0.0, 1.0);
    return {kMapNorth - y * (kMapNorth - kMapSouth), x * kWhole - 0.5 * kWhole};
}

double distanceBetween(const GeoPlace& one, const GeoPlace& other)
{
    // The form that is exact for places close together.
    const double latitude = std::sin(0.5 * (other.latitude - one.latitude) * kRadians);
    const double longitude = std::sin(0.5 * (other.longitude - one.longitude) * kRadians);
    const double haversine = latitude * latitude + std::cos(one.latitude * kRadians) *
                                                       std::cos(other.latitude * kRadians) *
                                                       longitude * longitude;
    return 2.0 * std::asin(std::sqrt(std::min(1.0, haversine))) / kRadians;
}

MapDots::Direction MapDots::directionOf(const GeoPlace& place)
{
    const double latitude = place.latitude * kRadians;
    const double longitude = place.longitude * kRadians;
    return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude),
            std::sin(latitude)};
}

int MapDots::cellOf(double coordinate)
{
    return std::clamp(int(std::floor((coordinate + 1.0) * 0.5 * kCells)), 0, kCells - 1);
}

std::size_t MapDots::indexOf(int x, int y, int z)
{
    return (std::size_t(z) * kCells + std::size_t(y)) * kCells + std::size_t(x);
}

MapDots::MapDots(std::span<const data::Place> places)
{
    constexpr std::size_t kAll = std::size_t{kCells} * kCells * kCells;
    starts_.assign(kAll + 1, 0);
    std::vector<std::size_t> cells;
    cells.reserve(places.size());
    directions_.reserve(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        const GeoPlace place{places[i].latitude, places[i].longitude};
        const Direction direction = directionOf(place);
        directions_.push_back(direction);
        cells.push_back(indexOf(cellOf(direction[0]), cellOf(direction[1]), cellOf(direction[2])));
        ++starts_[cells.back() + 1];
        if (place.latitude <= kMapNorth && place.latitude >= kMapSouth) {
            const std::uint32_t people = places[i].population;
            const int size = people < kLargeTown ? 0 : people < kMetropolis ? 1 : 2;
            dots_.push_back({mapSpotOf(place), std::uint32_t(i), size});
        }
    }
    std::stable_sort(dots_.begin(), dots_.end(),
                     [](const MapDot& one, const MapDot& other) { return one.size < other.size; });
    std::partial_sum(starts_.begin(), starts_.end(), starts_.begin());
    order_.resize(places.size());
    std::vector<std::uint32_t> next(starts_.begin(), starts_.end() - 1);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        order_[next[cells[i]]++] = std::uint32_t(i);
    }
}

void MapDots::searchCell(std::size_t cell, const Direction& from, std::optional<Best>& best) const
{
    for (std::uint32_t i = starts_[cell]; i < starts_[cell + 1]; ++i) {
        const std::uint32_t place = order_[i];
        const double distance = chordSquared(directions_[place], from);
        if (!best || distance < best->distance ||
            (distance == best->distance && place < best->place)) {
            best = {distance, place};
        }
    }
}

std::optional<std::uint32_t> MapDots::nearest(const GeoPlace& place) const
{
    const Direction from = directionOf(place);
    const std::array<int, 3> centre = {cellOf(from[0]), cellOf(from[1]), cellOf(from[2])};
    constexpr double kCell = 2.0 / kCells;
    std::optional<Best> best;
    // Shells of cells around that of the spot; what lies in shell n is at least n - 1 cells away.
    for (int shell = 0; shell < kCells; ++shell) {
        const double least = (shell - 1) * kCell;
        if (best && least > 0.0 && least * least > best->distance) {
            break;
        }
        const auto first = [&](std::size_t axis) {
            return std::max(0, centre[axis] - shell);
        };
        const auto last = [&](std::size_t axis) {
            return std::min(kCells - 1, centre[axis] + shell);
        };
        for (int z = first(2); z <= last(2); ++z) {
            for (int y = first(1); y <= last(1); ++y) {
                const bool edge =
                    std::abs(z - centre[2]) == shell || std::abs(y - centre[1]) == shell;
                // Inside the shell only its two ends belong to it.
                const int step = edge || shell == 0 ? 1 : 2 * shell;
                for (int x = centre[0] - shell; x <= centre[0] + shell; x += step) {
                    if (x >= 0 && x < kCells) {
                        searchCell(indexOf(x, y, z), from, best);
                    }
                }
            }
        }
    }
    return best ? std::optional(best->place) : std::nullopt;
}

} // namespace kestrav::present
