// The world as a map: places as dots, and the place nearest to a spot.
#pragma once

#include "app/present/DisplayList.h"
#include "data/PlaceList.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace kestrav::present
{

/// The map reaches from 180 West to 180 East and between these latitudes, degrees north.
inline constexpr double kMapNorth = 75.0;
inline constexpr double kMapSouth = -60.0;

/// Degrees.
struct GeoPlace
{
    double latitude = 0.0;  ///< positive north
    double longitude = 0.0; ///< positive east
};

/// Where a place stands on the map, x and y 0 to 1 from its top left corner; latitudes beyond the
/// map give a y outside. A degree is as long in both directions when the map is 360 to 135 wide.
[[nodiscard]] Spot mapSpotOf(const GeoPlace& place);

/// The place of a spot; spots beside the map give its edge.
[[nodiscard]] GeoPlace placeOfMapSpot(Spot spot);

/// Degrees of a great circle between two places, 0 to 180.
[[nodiscard]] double distanceBetween(const GeoPlace& one, const GeoPlace& other);

struct MapDot
{
    Spot spot;               ///< on the map
    std::uint32_t place = 0; ///< number in the list
    int size = 0;            ///< 0 below 100,000 inhabitants, 1 below a million, 2
};

/// The places of a list, kept so that the nearest one to any spot is found at once.
class MapDots
{
public:
    explicit MapDots(std::span<const data::Place> places);

    /// The dots that the map holds, large ones last, so that they are painted over the others.
    [[nodiscard]] const std::vector<MapDot>& dots() const
    {
        return dots_;
    }

    /// The number of the place nearest to a spot on the Earth, also across 180 degrees and beyond
    /// the map; of places equally far the first of the list. Nothing when the list is empty.
    [[nodiscard]] std::optional<std::uint32_t> nearest(const GeoPlace& place) const;

private:
    using Direction = std::array<double, 3>;

    // Cells of a cube around the Earth, whose radius is 1.
    static constexpr int kCells = 32;

    [[nodiscard]] static Direction directionOf(const GeoPlace& place);
    [[nodiscard]] static int cellOf(double coordinate);
    [[nodiscard]] static std::size_t indexOf(int x, int y, int z);

    struct Best
    {
        double distance; ///< square of the chord
        std::uint32_t place;
    };
    void searchCell(std::size_t cell, const Direction& from, std::optional<Best>& best) const;

    std::vector<MapDot> dots_;
    std::vector<Direction> directions_;
    std::vector<std::uint32_t> order_;  ///< places by cell
    std::vector<std::uint32_t> starts_; ///< of each cell in the order, and the end
};

} // namespace kestrav::present
