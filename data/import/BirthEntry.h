// The birth data that every foreign format comes down to.
#pragma once

#include "core/Chart.h"
#include "core/Result.h"

#include <string>
#include <string_view>

namespace kestrav::data
{

/// Birth data in our own conventions, not tested yet. Texts are UTF-8.
struct BirthEntry
{
    std::string name;
    std::string sex; ///< "M", "F" or empty
    std::string place;
    std::string country;
    std::string notes;
    int year = 0; ///< historical numbering
    int month = 0;
    int day = 0;
    double hours = 0.0;     ///< local clock time
    double zone = 0.0;      ///< hours east, without saving time
    double saving = 0.0;    ///< hours
    double longitude = 0.0; ///< degrees east
    double latitude = 0.0;  ///< degrees north
};

/// The chart record, or why the data cannot be that of a chart: a date that does not exist, a time
/// outside the day, a place outside the globe, a zone beyond 15 hours. 24:00 is 0:00 of the next
/// day. A part of an hour of saving time goes into the zone, because records keep whole hours.
[[nodiscard]] core::Result<core::Chart> chartOf(const BirthEntry& entry);

/// "City, State, Country" as place and country: the part after the last comma is the country.
void splitPlace(std::string_view text, BirthEntry& entry);

/// The text without blanks at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// The text in small ASCII letters.
[[nodiscard]] std::string lowered(std::string_view text);

} // namespace kestrav::data
