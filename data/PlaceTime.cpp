#include "data/PlaceTime.h"

#include "core/Chart.h"

#include <cmath>

namespace kestrav::data
{

namespace
{

constexpr double kSecondsPerDegree = 240.0;

// Mean time of a longitude to the second. The zone's own town tells on which side of the date line
// the place counted its days: Manila had American dates until 1844.
std::int32_t meanTime(double longitude, std::int32_t ownTown)
{
    const double seconds = std::round(longitude * kSecondsPerDegree);
    const double days = std::round((ownTown - seconds) / kSecondsPerDay);
    return static_cast<std::int32_t>(seconds + days * kSecondsPerDay);
}

void addHistory(std::string_view country, int year, std::vector<PlaceWarning>& warnings)
{
    if (country == "IN" && year < 1906) {
        warnings.push_back(PlaceWarning::IndiaEarly);
    } else if (country == "IN" && year <= 1955) {
        warnings.push_back(PlaceWarning::IndiaTowns);
    } else if ((country == "US" || country == "CA") && year < 1967) {
        warnings.push_back(PlaceWarning::NorthAmerica);
    }
}

} // namespace

std::wstring_view warningText(PlaceWarning warning)
{
    switch (warning) {
    case PlaceWarning::ClockTwice:
        return L"The clock was set back and showed this time twice. The first time is taken.";
    case PlaceWarning::ClockSkipped:
        return L"The clock was set forward over this time. The offset before the change is taken.";
    case PlaceWarning::LocalMean:
        return L"No zone time was in use yet. The local mean time of the place is taken.";
    case PlaceWarning::IndiaEarly:
        return L"Before 1906 places in India kept local mean time, Bombay, Calcutta or Madras "
               L"time.";
    case PlaceWarning::IndiaTowns:
        return L"Calcutta kept its own time until 1948 and Bombay until 1955. Indian Standard Time "
               L"is taken.";
    case PlaceWarning::NorthAmerica:
        return L"Before 1967 states, counties and towns chose their own daylight saving time.";
    }
    return {};
}

PlaceTime timeAtPlace(const ZoneTable& zones, int zone, double longitude, std::string_view country,
                      const core::DateTimeRecord& local)
{
    const LocalTime found = zones.atClock(zone, localSeconds(local));
    PlaceTime time;
    time.zone = found.zoneHours();
    time.daylightSaving = found.savingHours();
    time.localMean = found.localMean;
    if (found.clock == ClockTime::Twice) {
        time.warnings.push_back(PlaceWarning::ClockTwice);
    } else if (found.clock == ClockTime::Skipped) {
        time.warnings.push_back(PlaceWarning::ClockSkipped);
    }
    if (found.localMean) {
        time.zone = meanTime(longitude, found.total) / double(kSecondsPerHour);
        time.warnings.push_back(PlaceWarning::LocalMean);
    }
    addHistory(country, local.year, time.warnings);
    return time;
}

int ZoneSavingRule::hoursInForce(const core::Chart& chart) const
{
    const auto zoneSeconds = static_cast<UnixSeconds>(
        std::llround(std::isfinite(chart.zone) ? chart.zone * kSecondsPerHour : 0.0));
    return zones_.at(zone_, localSeconds(chart.time) - zoneSeconds).savingHours();
}

} // namespace kestrav::data
