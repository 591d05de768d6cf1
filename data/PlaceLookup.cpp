#include "data/PlaceLookup.h"

#include "core/FileText.h"

namespace kestrav::data
{

PlaceAnswer answerAt(const Places& places, const Place& place, const core::DateTimeRecord& local)
{
    const Region& region = places.list().regionOf(place);
    PlaceAnswer answer;
    answer.name = places.nameOf(place);
    answer.region = core::fromFileBytes(region.name);
    answer.country = places.countryOf(place);
    answer.longitude = place.longitude;
    answer.latitude = place.latitude;
    answer.zoneName = places.zones().name(place.zone);
    answer.time = timeAtPlace(places.zones(), place.zone, place.longitude, region.country, local);
    answer.source = places.zones().source();
    return answer;
}

PlaceLookup lookUpPlace(const Places& places, const PlaceRequest& request)
{
    PlaceMatches matches = places.find(request.city, request.countryOrState);
    PlaceLookup lookup;
    lookup.code = matches.code;
    lookup.matches = std::move(matches.places);
    if (lookup.code == LookupCode::Found) {
        lookup.answer = answerAt(places, places.place(lookup.matches.front()), request.local);
    }
    return lookup;
}

std::wstring_view atlasWarningText()
{
    return L"Some of the Atlas values may not be correct (Longitude, Latitude, Time Zone, Daylight "
           L"Saving (DST)).\nPlease check or you could possibly get a wrong Ascendant, etc.\n"
           L"Getting this message does not mean they are certainly wrong and not getting it does "
           L"not guarantee\nthat they are right. Always check carefully.";
}

void showLookupCode(int code, core::Messages& messages)
{
    switch (LookupCode(code)) {
    case LookupCode::Found:
    case LookupCode::Several:
    case LookupCode::None:
    case LookupCode::File:
        return;
    case LookupCode::BadState:
        messages.notice(L"Error", L"State abbreviation > 2 chars\n");
        return;
    }
    messages.notice(L"Error", L"Unrecognised return code from PC Atlas");
}

void showAtlasWarning(const PlaceTime& time, core::Messages& messages)
{
    if (!time.warnings.empty()) {
        messages.notice(L"Warning", std::wstring(atlasWarningText()));
    }
}

} // namespace kestrav::data
