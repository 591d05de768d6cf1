#include "analysis/BhavaBala.h"

#include "analysis/Aspects.h"
#include "analysis/Benefics.h"
#include "analysis/DignityTables.h"
#include "astro/Houses.h"
#include "core/Angles.h"
#include "core/SignData.h"

namespace kestrav::analysis
{

namespace
{

using core::at;

std::optional<double> cusp(const core::Chart& chart, int house)
{
    const int point = core::cuspPoint(core::norm12(house));
    // Before a house system has filled them the cusps mean nothing.
    if (chart.houseSystem < 0 || !chart.computed(point)) {
        return std::nullopt;
    }
    return at(chart.longitude, point);
}

// The house in which a class has no strength.
int weakHouse(SignClass signClass)
{
    switch (signClass) {
    case SignClass::Nara:
        return 7;
    case SignClass::Chatushpada:
        return 4;
    case SignClass::Keeta:
        return 1;
    case SignClass::Jalachara:
        return 10;
    }
    return 0;
}

double digOfHouse(int house, double middle)
{
    const int distance = (house - weakHouse(signClassOf(middle)) + 12) % 12;
    return 10.0 * (distance > 6 ? 12 - distance : distance);
}

// Mercury and Jupiter aspect a house in full, the others with a quarter of the value.
Strength drishtiOn(const core::Chart& chart, double middle)
{
    if (!allPlanetsComputed(chart)) {
        return std::nullopt;
    }
    const NaturalBenefics benefic = naturalBenefics(chart);
    double sum = 0.0;
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        const bool full = planet == core::kMercury || planet == core::kJupiter;
        const double value = aspectValueOn(chart, planet, middle) * (full ? 1.0 : 0.25);
        sum += at(benefic, planet) ? value : -value;
    }
    return sum;
}

} // namespace

SignClass signClassOf(double longitude)
{
    const bool firstHalf = core::degreeInSignOf(longitude) < 15.0;
    switch (core::signOfLongitude(longitude)) {
    case 3:
    case 6:
    case 7:
    case 11:
        return SignClass::Nara;
    case 8:
        return SignClass::Keeta;
    case 9:
        return firstHalf ? SignClass::Nara : SignClass::Chatushpada;
    case 10:
        return firstHalf ? SignClass::Chatushpada : SignClass::Jalachara;
    case 4:
    case 12:
        return SignClass::Jalachara;
    default:
        return SignClass::Chatushpada;
    }
}

std::optional<double> houseMiddle(const core::Chart& chart, int house)
{
    const std::optional<double> own = cusp(chart, house);
    if (chart.houseSystem != int(astro::HouseSystem::PlacidusKp)) {
        return own;
    }
    const std::optional<double> next = cusp(chart, house + 1);
    if (!own || !next) {
        return std::nullopt;
    }
    return core::Normalize360(*own + core::Normalize360(*next - *own) / 2.0);
}

std::array<BhavaBala, 12> computeBhavaBala(const core::Chart& chart, const ShadbalaTable& shadbala)
{
    std::array<BhavaBala, 12> houses;
    for (int house = 1; house <= 12; ++house) {
        BhavaBala& bala = at(houses, house - 1);
        bala.house = house;
        const std::optional<double> middle = houseMiddle(chart, house);
        if (!middle) {
            continue;
        }
        bala.lordPoint = signLord(core::signOfLongitude(*middle));
        bala.lord = at(shadbala.planets, bala.lordPoint).total;
        bala.dig = digOfHouse(house, *middle);
        bala.drishti = drishtiOn(chart, *middle);
        bala.total = sumOf({bala.lord, bala.dig, bala.drishti});
    }
    return houses;
}

} // namespace kestrav::analysis
