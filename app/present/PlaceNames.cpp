#include "app/present/PlaceNames.h"

#include "core/FileText.h"

#include <cmath>

namespace kestrav::present
{

data::PlaceAnswer answerAtMoment(const data::Places& places, const data::Place& place,
                                 double unixSeconds)
{
    const data::LocalTime local =
        places.zones().at(place.zone, data::UnixSeconds(std::floor(unixSeconds)));
    data::PlaceAnswer answer = data::answerAt(places, place, {});
    answer.time = {};
    answer.time.zone = local.zoneHours();
    answer.time.daylightSaving = local.savingHours();
    answer.time.localMean = local.localMean;
    return answer;
}

std::wstring countryOrState(const data::Places& places, const data::Place& place)
{
    const data::Region& region = places.list().regionOf(place);
    return region.country == "US" && !region.name.empty() ? core::fromFileBytes(region.name)
                                                          : places.countryOf(place);
}

std::wstring fullName(const data::Places& places, const data::Place& place)
{
    return places.nameOf(place) + L", " + places.regionAndCountryOf(place);
}

} // namespace kestrav::present
