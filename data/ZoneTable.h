// The time zones of the program: when local time changed, and how it goes on.
#pragma once

#include "core/Result.h"
#include "data/FutureRule.h"

#include <filesystem>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::core
{
struct DateTimeRecord;
}

namespace kestrav::data
{

/// The moment from which the first entry of every zone holds.
inline constexpr UnixSeconds kAlways = std::numeric_limits<UnixSeconds>::min();

/// How often the clock shows a time.
enum class ClockTime
{
    Once,
    Twice,   ///< the clock was set back over it; the earlier moment was taken
    Skipped, ///< the clock was set forward over it; the offset before the change was taken
};

/// Local time at one moment in one zone.
struct LocalTime
{
    std::int32_t total = 0; ///< seconds east of Greenwich, saving included
    int savingMinutes = 0;
    bool localMean = false; ///< the mean time of the zone's own town
    ClockTime clock = ClockTime::Once;

    /// Whole hours of saving time, 0 to 2.
    [[nodiscard]] int savingHours() const
    {
        return savingMinutes / 60;
    }

    /// Hours of the zone east of Greenwich. What saving has beside whole hours is contained in it,
    /// so that zone and whole hours together are the true offset: Singapore's 20 minutes of 1933
    /// give +7:20, Montevideo's hour and a half of 1974 gives -2:30 and one hour.
    [[nodiscard]] double zoneHours() const
    {
        return (total - savingHours() * kSecondsPerHour) / double(kSecondsPerHour);
    }
};

/// The local time of the record in seconds since 1970 January 1, 0h of the same clock, with the
/// change of calendar that DateToJulianDay has. Rounded to the second.
[[nodiscard]] UnixSeconds localSeconds(const core::DateTimeRecord& record);

/// The zones with their changes. Zones are known by their index in the order of their names.
class ZoneTable
{
public:
    /// Reads the text form of docs/places.md. A line that is not understood refuses the whole
    /// table: a lost change would give wrong times without a word.
    [[nodiscard]] static core::Result<ZoneTable> parse(std::string_view text,
                                                       const std::string& file = {});
    [[nodiscard]] static core::Result<ZoneTable> load(const std::filesystem::path& path);

    /// Adds a zone behind those before it, whose names are smaller. The first change holds always,
    /// the others are in order.
    [[nodiscard]] core::Result<void> add(std::string_view name, std::span<const ZoneChange> changes,
                                         std::string_view rule);
    /// Adds an older name of a zone.
    [[nodiscard]] core::Result<void> addAlias(std::string_view alias, std::string_view name);
    void setSource(std::string_view source)
    {
        source_ = source;
    }

    /// The zone of this name, or of this older name.
    [[nodiscard]] std::optional<int> find(std::string_view name) const;

    /// Local time at a moment of Universal Time.
    [[nodiscard]] LocalTime at(int zone, UnixSeconds moment) const;
    /// Local time when the clock of the zone shows this time. Of a time that comes twice the
    /// earlier moment is meant, of one that was skipped the offset before the change holds.
    [[nodiscard]] LocalTime atClock(int zone, UnixSeconds localSeconds) const;

    [[nodiscard]] int size() const
    {
        return static_cast<int>(zones_.size());
    }
    [[nodiscard]] const std::string& name(int zone) const
    {
        return zones_[static_cast<std::size_t>(zone)].name;
    }
    [[nodiscard]] std::span<const ZoneChange> changes(int zone) const;
    [[nodiscard]] const std::string& ruleText(int zone) const
    {
        return zones_[static_cast<std::size_t>(zone)].ruleText;
    }
    /// Which data this is: "tz database 2026f".
    [[nodiscard]] const std::string& source() const
    {
        return source_;
    }

private:
    struct Zone
    {
        std::string name;
        std::string ruleText;
        FutureRule rule;
        std::size_t first;
        std::size_t count;
    };
    struct Alias
    {
        std::string name;
        int zone;
    };
    class Walk;

    std::vector<Zone> zones_;
    std::vector<ZoneChange> changes_;
    std::vector<Alias> aliases_;
    std::string source_;
};

} // namespace kestrav::data
