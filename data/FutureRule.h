// The yearly rule of a time zone after its last listed change.
#pragma once

#include "core/Result.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace kestrav::data
{

/// Seconds since 1970 January 1, 0h, without leap seconds.
using UnixSeconds = std::int64_t;

inline constexpr std::int32_t kSecondsPerHour = 3600;
inline constexpr std::int32_t kSecondsPerDay = 86400;
/// No clock on Earth was further from Universal Time (16 h in Manila before 1845).
inline constexpr std::int32_t kLargestOffset = 18 * kSecondsPerHour;
/// The most saving time that was ever in force.
inline constexpr int kMostSavingMinutes = 120;

/// Days from 1970 January 1 to a date of the Gregorian calendar, continued backwards with a year 0.
[[nodiscard]] std::int64_t daysFromCivil(std::int64_t year, int month, int day);

/// The year of a moment in the same calendar.
[[nodiscard]] std::int64_t gregorianYear(UnixSeconds moment);

/// A change of local time.
struct ZoneChange
{
    UnixSeconds moment;     ///< Universal Time
    std::int32_t total;     ///< seconds east of Greenwich from then on, saving included
    std::int16_t saving;    ///< minutes of it that are saving time
    bool localMean = false; ///< the mean time of the zone's own town, not a legal time
};

/// "EST5EDT,M3.2.0,M11.1.0": the TZ text of POSIX, whose changes are given as "Mm.w.d/time" only.
class FutureRule
{
public:
    /// Reads the text; anything else is refused.
    [[nodiscard]] static core::Result<FutureRule> parse(std::string_view text);

    /// Whether there are two changes every year; else standard time stays.
    [[nodiscard]] bool hasChanges() const
    {
        return hasChanges_;
    }

    /// Seconds east of Greenwich of standard time.
    [[nodiscard]] std::int32_t standard() const
    {
        return standard_;
    }

    /// The two changes of a Gregorian year in their order. Saving that is below zero or above two
    /// hours counts as no saving: the whole offset is then standard time.
    [[nodiscard]] std::array<ZoneChange, 2> changes(std::int64_t year) const;

private:
    struct Day
    {
        int month = 1;
        int week = 1;    ///< 5 is the last one of the month
        int weekday = 0; ///< 0 is Sunday
        std::int32_t time = 2 * kSecondsPerHour;
    };
    struct Reader;

    [[nodiscard]] static UnixSeconds moment(const Day& day, std::int64_t year);

    std::int32_t standard_ = 0;
    std::int32_t daylight_ = 0;
    bool hasChanges_ = false;
    Day start_;
    Day end_;
};

} // namespace kestrav::data
