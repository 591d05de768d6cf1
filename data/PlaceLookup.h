// From the typed place and the birth moment to longitude, latitude, zone and saving time.
#pragma once

#include "core/DateTime.h"
#include "core/Messages.h"
#include "data/PlaceTime.h"
#include "data/Places.h"

#include <string>
#include <vector>

namespace kestrav::data
{

/// What the data-entry form asks.
struct PlaceRequest
{
    std::wstring city;
    std::wstring countryOrState;
    core::DateTimeRecord local; ///< date and clock time of the event; the rest is not used
};

/// What is known about one place at one moment.
struct PlaceAnswer
{
    std::wstring name;
    std::wstring region; ///< may be empty
    std::wstring country;
    double longitude = 0.0; ///< degrees, positive east
    double latitude = 0.0;  ///< degrees, positive north
    std::string zoneName;   ///< "Asia/Kolkata"
    PlaceTime time;
    std::string source; ///< of the zone: "tz database 2026f"
};

struct PlaceLookup
{
    LookupCode code = LookupCode::None;
    PlaceAnswer answer;                 ///< of the only place, when one was found
    std::vector<std::uint32_t> matches; ///< the places to choose from, best first
};

/// The values of one place, also of one chosen from several.
[[nodiscard]] PlaceAnswer answerAt(const Places& places, const Place& place,
                                   const core::DateTimeRecord& local);

[[nodiscard]] PlaceLookup lookUpPlace(const Places& places, const PlaceRequest& request);

/// The warning that goes with values that may be wrong.
[[nodiscard]] std::wstring_view atlasWarningText();

/// Tells the user about a result code where there is something to tell: nothing for found, several
/// and none. File problems were told when the atlas was opened.
void showLookupCode(int code, core::Messages& messages);

/// Shows the atlas warning when the values have one.
void showAtlasWarning(const PlaceTime& time, core::Messages& messages);

} // namespace kestrav::data
