// The lists that ship with the program, read once.
#pragma once

#include "core/Files.h"
#include "data/Places.h"

#include <cstdlib>
#include <iostream>
#include <string>

namespace kestrav::data
{

inline std::string resourceText(const std::string& name)
{
    const std::string path = std::string(KESTRAV_RESOURCES) + "/places/" + name;
    const auto bytes = core::readFile(path, 64U << 20);
    if (!bytes) {
        std::cerr << bytes.error().text() << '\n';
        std::abort();
    }
    return {bytes.value().begin(), bytes.value().end()};
}

inline ZoneTable shippedZones()
{
    auto zones = ZoneTable::parse(resourceText("zones.txt"), "zones.txt");
    if (!zones) {
        std::cerr << zones.error().text() << '\n';
        std::abort();
    }
    return std::move(zones.value());
}

/// The shipped lists, with the user's own places in the form of the city list.
inline Places placesWith(const std::string& ownPlaces, PlaceListReport* report = nullptr)
{
    ZoneTable zones = shippedZones();
    PlaceList list;
    const PlaceListReport shipped = list.addText(resourceText("cities.txt"), zones, false);
    const PlaceListReport own = list.addText(ownPlaces, zones, true);
    if (report != nullptr) {
        *report = ownPlaces.empty() ? shipped : own;
    }
    list.buildKeys();
    return {CountryList::parse(resourceText("countries.txt")), std::move(zones), std::move(list)};
}

inline const Places& shippedPlaces()
{
    static const Places kPlaces = placesWith({});
    return kPlaces;
}

} // namespace kestrav::data
