#include "data/ZoneTable.h"

#include "core/DateTime.h"
#include "core/Files.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kestrav::data
{

namespace
{

constexpr std::uintmax_t kLargestFile = std::uintmax_t{16} << 20;
constexpr double kUnixEpoch = 2440587.5; // Julian day of 1970 January 1, 0h
constexpr std::size_t kLongestName = 64;
// Some 30,000 years from 1970: nothing that is computed from a change can overflow.
constexpr UnixSeconds kLargestMoment = 1'000'000'000'000;

bool validName(std::string_view name)
{
    const auto allowed = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
               c == '_' || c == '+' || c == '/' || c == '-';
    };
    return !name.empty() && name.size() <= kLongestName && name.front() != '/' &&
           std::all_of(name.begin(), name.end(), allowed);
}

bool validChange(const ZoneChange& change)
{
    return change.total >= -kLargestOffset && change.total <= kLargestOffset &&
           change.saving >= 0 && change.saving <= kMostSavingMinutes;
}

} // namespace

UnixSeconds localSeconds(const core::DateTimeRecord& record)
{
    const double day = core::DateToJulianDay(record) - kUnixEpoch;
    const double clock = std::isfinite(record.localTime) ? record.localTime : 0.0;
    return static_cast<UnixSeconds>(
        std::llround(day * kSecondsPerDay + std::clamp(clock, -48.0, 48.0) * kSecondsPerHour));
}

/// The spans of one zone in their order, from the one at a moment on: between the listed changes,
/// then between those of the rule.
class ZoneTable::Walk
{
public:
    Walk(const ZoneTable& table, int zone, UnixSeconds from)
        : rule_(table.zones_[static_cast<std::size_t>(zone)].rule), listed_(table.changes(zone))
    {
        const auto later = std::upper_bound(
            listed_.begin() + 1, listed_.end(), from,
            [](UnixSeconds moment, const ZoneChange& change) { return moment < change.moment; });
        next_ = static_cast<std::size_t>(later - listed_.begin());
        current_ = listed_[next_ - 1];
        if (next_ == listed_.size() && rule_.hasChanges()) {
            startInRule(from);
        }
        findNext();
    }

    [[nodiscard]] const ZoneChange& current() const
    {
        return current_;
    }
    [[nodiscard]] UnixSeconds end() const
    {
        return hasNext_ ? following_.moment : std::numeric_limits<UnixSeconds>::max();
    }
    [[nodiscard]] bool hasNext() const
    {
        return hasNext_;
    }
    void advance()
    {
        current_ = following_;
        next_ += next_ < listed_.size() ? 1 : 0;
        findNext();
    }

private:
    // The last change of the rule at or before the moment, if it follows the last listed one. A
    // change can fall into the neighbouring year of Universal Time.
    void startInRule(UnixSeconds from)
    {
        const std::int64_t year = gregorianYear(from);
        for (std::int64_t y = year - 1; y <= year + 1; ++y) {
            for (const ZoneChange& change : rule_.changes(y)) {
                if (change.moment <= from && change.moment > current_.moment) {
                    current_ = change;
                }
            }
        }
    }

    void findNext()
    {
        hasNext_ = true;
        if (next_ < listed_.size()) {
            following_ = listed_[next_];
            return;
        }
        if (!rule_.hasChanges()) {
            hasNext_ = false;
            return;
        }
        for (std::int64_t year = gregorianYear(current_.moment) - 1;; ++year) {
            for (const ZoneChange& change : rule_.changes(year)) {
                if (change.moment > current_.moment) {
                    following_ = change;
                    return;
                }
            }
        }
    }

    const FutureRule& rule_;
    std::span<const ZoneChange> listed_;
    std::size_t next_ = 0; ///< the listed change after the current one
    ZoneChange current_{};
    ZoneChange following_{};
    bool hasNext_ = false;
};

core::Result<ZoneTable> ZoneTable::load(const std::filesystem::path& path)
{
    const core::Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kLargestFile);
    if (!bytes) {
        return bytes.error();
    }
    const std::string text(bytes.value().begin(), bytes.value().end());
    return parse(text, path.string());
}

core::Result<void> ZoneTable::add(std::string_view name, std::span<const ZoneChange> changes,
                                  std::string_view rule)
{
    if (!validName(name)) {
        return core::Error{"this is no name of a zone"};
    }
    if (!zones_.empty() && name <= zones_.back().name) {
        return core::Error{"the zone " + std::string(name) + " is not in the order of the names"};
    }
    core::Result<FutureRule> future = FutureRule::parse(rule);
    if (!future) {
        return future.error();
    }
    // A rule with changes counts from the last listed one.
    if (changes.size() < (future.value().hasChanges() ? 2U : 1U)) {
        return core::Error{"the zone " + std::string(name) + " has too few changes"};
    }
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const bool ordered = i == 0 ? changes[i].moment == kAlways
                                    : changes[i].moment > changes[i - 1].moment &&
                                          std::abs(changes[i].moment) <= kLargestMoment;
        if (!ordered || !validChange(changes[i])) {
            return core::Error{"the zone " + std::string(name) + " has a wrong change"};
        }
    }
    zones_.push_back(
        {std::string(name), std::string(rule), future.value(), changes_.size(), changes.size()});
    changes_.insert(changes_.end(), changes.begin(), changes.end());
    return {};
}

core::Result<void> ZoneTable::addAlias(std::string_view alias, std::string_view name)
{
    const std::optional<int> zone = find(name);
    if (!zone || !validName(alias)) {
        return core::Error{"the alias names no zone"};
    }
    const auto place = std::lower_bound(
        aliases_.begin(), aliases_.end(), alias,
        [](const Alias& each, std::string_view wanted) { return each.name < wanted; });
    aliases_.insert(place, {std::string(alias), *zone});
    return {};
}

std::optional<int> ZoneTable::find(std::string_view name) const
{
    const auto smaller = [](const auto& each, std::string_view wanted) {
        return each.name < wanted;
    };
    const auto zone = std::lower_bound(zones_.begin(), zones_.end(), name, smaller);
    if (zone != zones_.end() && zone->name == name) {
        return static_cast<int>(zone - zones_.begin());
    }
    const auto alias = std::lower_bound(aliases_.begin(), aliases_.end(), name, smaller);
    if (alias != aliases_.end() && alias->name == name) {
        return alias->zone;
    }
    return std::nullopt;
}

std::span<const ZoneChange> ZoneTable::changes(int zone) const
{
    const Zone& entry = zones_[static_cast<std::size_t>(zone)];
    return std::span(changes_).subspan(entry.first, entry.count);
}

LocalTime ZoneTable::at(int zone, UnixSeconds moment) const
{
    const ZoneChange now = Walk(*this, zone, moment).current();
    return {now.total, now.saving, now.localMean, ClockTime::Once};
}

LocalTime ZoneTable::atClock(int zone, UnixSeconds localSeconds) const
{
    Walk walk(*this, zone, localSeconds - kLargestOffset);
    ZoneChange before = walk.current();
    std::optional<ZoneChange> found;
    while (true) {
        const ZoneChange& span = walk.current();
        const UnixSeconds moment = localSeconds - span.total;
        if (moment >= span.moment && moment < walk.end()) {
            if (found) {
                return {found->total, found->saving, found->localMean, ClockTime::Twice};
            }
            found = span;
        } else if (moment < span.moment && !found) {
            return {before.total, before.saving, before.localMean, ClockTime::Skipped};
        }
        before = span;
        if (!walk.hasNext() || walk.end() > localSeconds + kLargestOffset) {
            break;
        }
        walk.advance();
    }
    const ZoneChange& answer = found ? *found : before;
    return {answer.total, answer.saving, answer.localMean, ClockTime::Once};
}

} // namespace kestrav::data
