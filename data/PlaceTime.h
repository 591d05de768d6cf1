// Zone and saving time of a birth moment at a place, and how far they can be trusted.
#pragma once

#include "core/DateTime.h"
#include "data/ZoneTable.h"

#include <string_view>
#include <vector>

namespace kestrav::data
{

/// Why looked-up values need checking.
enum class PlaceWarning
{
    ClockTwice,   ///< the clock showed this time twice
    ClockSkipped, ///< the clock never showed this time
    LocalMean,    ///< before the first zone time: the mean time of the place is taken
    IndiaEarly,   ///< India before 1906
    IndiaTowns,   ///< India 1906 to 1955
    NorthAmerica, ///< United States and Canada before 1967
};

/// What to check, for the user.
[[nodiscard]] std::wstring_view warningText(PlaceWarning warning);

struct PlaceTime
{
    double zone = 0.0;      ///< hours, positive east; fractions of saving time contained
    int daylightSaving = 0; ///< whole hours
    bool localMean = false; ///< the zone is the mean time of the place
    std::vector<PlaceWarning> warnings;

    /// Zone and saving time together, hours east of Greenwich.
    [[nodiscard]] double offset() const
    {
        return zone + daylightSaving;
    }
};

/// Zone and saving time at a local date and clock time. `country` is the ISO code of the place.
/// Where the table has only the mean time of the zone's own town, that of the place's own
/// longitude is taken, to the second.
[[nodiscard]] PlaceTime timeAtPlace(const ZoneTable& zones, int zone, double longitude,
                                    std::string_view country, const core::DateTimeRecord& local);

/// Whole hours of saving time by the table, for JulianDayToDate. The chart's zone must be that of
/// the place, as timeAtPlace gives it.
class ZoneSavingRule : public core::SavingTimeRule
{
public:
    /// The table must outlive the rule.
    ZoneSavingRule(const ZoneTable& zones, int zone) : zones_(zones), zone_(zone)
    {}

    [[nodiscard]] int hoursInForce(const core::Chart& chart) const override;

private:
    const ZoneTable& zones_;
    int zone_;
};

} // namespace kestrav::data
