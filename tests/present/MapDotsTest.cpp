// The map of the delivered places, and the nearest of them against looking at every one.
#include "app/present/MapDots.h"
#include "tests/places_floor/ShippedLists.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kestrav::present
{

namespace
{

double distanceTo(const data::Place& place, const GeoPlace& from)
{
    return distanceBetween({place.latitude, place.longitude}, from);
}

double nearestOfAll(std::span<const data::Place> places, const GeoPlace& from)
{
    double least = 360.0;
    for (const data::Place& place : places) {
        least = std::min(least, distanceTo(place, from));
    }
    return least;
}

} // namespace

TEST(MapDots, SpotsAndPlacesLeadToEachOther)
{
    EXPECT_EQ(mapSpotOf({75.0, -180.0}).x, 0.0);
    EXPECT_EQ(mapSpotOf({75.0, -180.0}).y, 0.0);
    EXPECT_EQ(mapSpotOf({-60.0, 180.0}).x, 1.0);
    EXPECT_EQ(mapSpotOf({-60.0, 180.0}).y, 1.0);
    for (double latitude = -60.0; latitude <= 75.0; latitude += 7.5) {
        for (double longitude = -180.0; longitude <= 180.0; longitude += 11.25) {
            const GeoPlace back = placeOfMapSpot(mapSpotOf({latitude, longitude}));
            EXPECT_NEAR(back.latitude, latitude, 1e-9);
            EXPECT_NEAR(back.longitude, longitude, 1e-9);
        }
    }
    EXPECT_EQ(placeOfMapSpot({2.0, -1.0}).latitude, kMapNorth);
    EXPECT_EQ(placeOfMapSpot({2.0, -1.0}).longitude, 180.0);
}

TEST(MapDots, DistancesAreThoseOfGreatCircles)
{
    EXPECT_NEAR(distanceBetween({0.0, 179.0}, {0.0, -179.0}), 2.0, 1e-12);
    EXPECT_NEAR(distanceBetween({90.0, 0.0}, {-90.0, 77.0}), 180.0, 1e-9);
    EXPECT_NEAR(distanceBetween({60.0, 0.0}, {60.0, 180.0}), 60.0, 1e-9);
    EXPECT_NEAR(distanceBetween({10.0, 20.0}, {10.0, 20.0}), 0.0, 1e-12);
}

TEST(MapDots, TheNearestPlaceIsTheNearestOfAll)
{
    const data::Places& shipped = data::shippedPlaces();
    const std::span<const data::Place> places = shipped.list().places();
    const MapDots map(places);
    std::mt19937 random(20261121);
    const auto share = [&random] {
        return double(random()) / 4294967296.0;
    };
    std::vector<GeoPlace> spots = {{90.0, 0.0},   {-90.0, 0.0}, {-48.9, -123.4}, {0.0, 180.0},
                                   {0.0, -180.0}, {28.6, 77.2}, {71.0, 179.9}};
    for (int i = 0; i < 150; ++i) {
        spots.push_back({180.0 * share() - 90.0, 360.0 * share() - 180.0});
    }
    for (const GeoPlace& spot : spots) {
        const auto found = map.nearest(spot);
        ASSERT_TRUE(found);
        EXPECT_NEAR(distanceTo(places[*found], spot), nearestOfAll(places, spot), 1e-9)
            << spot.latitude << " " << spot.longitude;
    }
    for (std::size_t i = 0; i < places.size(); i += 997) {
        const auto found = map.nearest({places[i].latitude, places[i].longitude});
        EXPECT_EQ(distanceTo(places[*found], {places[i].latitude, places[i].longitude}), 0.0);
    }
    EXPECT_FALSE(MapDots({}).nearest({1.0, 2.0}));
}

TEST(MapDots, DotsStandOnTheMapWithTheLargeOnesLast)
{
    const data::Places& shipped = data::shippedPlaces();
    const MapDots map(shipped.list().places());
    EXPECT_GT(map.dots().size(), 45000U);
    int size = 0;
    for (const MapDot& dot : map.dots()) {
        EXPECT_TRUE(dot.spot.x >= 0.0 && dot.spot.x <= 1.0 && dot.spot.y >= 0.0 &&
                    dot.spot.y <= 1.0);
        EXPECT_GE(dot.size, size);
        size = dot.size;
    }
    EXPECT_EQ(size, 2);
}

} // namespace kestrav::present
