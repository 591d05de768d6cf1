// The text form of the zone table; docs/places.md describes it.
#include "core/NumberText.h"
#include "core/numeric.h"
#include "data/ZoneTable.h"

#include <cmath>

namespace kestrav::data
{

namespace
{

constexpr std::size_t kMostZones = 5000;
constexpr std::size_t kMostChanges = 1000;

// The text up to the next blank; the rest of the line stays behind.
std::string_view takeWord(std::string_view& line)
{
    const std::size_t blank = line.find(' ');
    const std::string_view word = line.substr(0, blank);
    line = blank == std::string_view::npos ? std::string_view{} : line.substr(blank + 1);
    return word;
}

bool takeDigits(std::string_view& text, std::size_t digits, int& value)
{
    if (text.size() < digits) {
        return false;
    }
    value = 0;
    for (std::size_t i = 0; i < digits; ++i) {
        if (text[i] < '0' || text[i] > '9') {
            return false;
        }
        value = value * 10 + (text[i] - '0');
    }
    text.remove_prefix(digits);
    return true;
}

bool takeSign(std::string_view& text, char sign)
{
    const bool found = !text.empty() && text.front() == sign;
    text.remove_prefix(found ? 1 : 0);
    return found;
}

// "1905-12-31T18:38:50" of Universal Time in the Gregorian calendar.
bool readMoment(std::string_view text, UnixSeconds& moment)
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    const bool read =
        takeDigits(text, 4, year) && takeSign(text, '-') && takeDigits(text, 2, month) &&
        takeSign(text, '-') && takeDigits(text, 2, day) && takeSign(text, 'T') &&
        takeDigits(text, 2, hour) && takeSign(text, ':') && takeDigits(text, 2, minute) &&
        takeSign(text, ':') && takeDigits(text, 2, second) && text.empty();
    if (!read || year < 1583 || month < 1 || month > 12 || day < 1 || day > 31 || hour > 23 ||
        minute > 59 || second > 59) {
        return false;
    }
    const int clock = (hour * 60 + minute) * 60 + second;
    moment = daysFromCivil(year, month, day) * kSecondsPerDay + clock;
    return true;
}

// "5:30", "-4:56:02".
bool readOffset(std::string_view text, std::int32_t& offset)
{
    const bool negative = takeSign(text, '-');
    const std::size_t colon = text.find(':');
    int hours = 0;
    int minutes = 0;
    int seconds = 0;
    if (colon == std::string_view::npos || colon < 1 || colon > 2 ||
        !takeDigits(text, colon, hours) || !takeSign(text, ':') || !takeDigits(text, 2, minutes) ||
        (takeSign(text, ':') && !takeDigits(text, 2, seconds)) || !text.empty() || minutes > 59 ||
        seconds > 59) {
        return false;
    }
    offset = hours * kSecondsPerHour + minutes * 60 + seconds;
    offset = negative ? -offset : offset;
    return true;
}

// "* 5:53:28 L", "1941-09-30T18:30:00 6:30 60".
bool readChange(std::string_view line, ZoneChange& change)
{
    const std::string_view when = takeWord(line);
    change.moment = kAlways;
    if ((when != "*" && !readMoment(when, change.moment)) ||
        !readOffset(takeWord(line), change.total)) {
        return false;
    }
    change.localMean = line == "L";
    if (line.empty() || change.localMean) {
        return true;
    }
    const std::optional<int> minutes = core::parseInteger(line);
    if (!minutes || *minutes < 0 || *minutes > kMostSavingMinutes) {
        return false;
    }
    change.saving = static_cast<std::int16_t>(*minutes);
    return true;
}

// Gathers the lines of one zone until its rule closes it.
class Reader
{
public:
    core::Result<void> read(std::string_view line)
    {
        if (line.empty() || line.front() == '#') {
            return {};
        }
        std::string_view rest = line;
        const std::string_view kind = takeWord(rest);
        if (!name_.empty()) {
            return readOfZone(kind, line, rest);
        }
        if (kind == "S") {
            table_.setSource(rest);
            return {};
        }
        if (kind == "Z" && !rest.empty() && table_.size() < int(kMostZones)) {
            name_ = rest;
            changes_.clear();
            return {};
        }
        if (kind == "A") {
            const std::string_view alias = takeWord(rest);
            return table_.addAlias(alias, rest);
        }
        return core::Error{"this line of the zone table is not understood"};
    }

    core::Result<ZoneTable> finish()
    {
        if (!name_.empty() || table_.size() == 0) {
            return core::Error{"the zone table is not complete"};
        }
        return std::move(table_);
    }

private:
    core::Result<void> readOfZone(std::string_view kind, std::string_view line,
                                  std::string_view rest)
    {
        if (kind == "R") {
            const std::string_view name = name_;
            name_ = {};
            return table_.add(name, changes_, rest);
        }
        ZoneChange change{};
        if (changes_.size() >= kMostChanges || !readChange(line, change)) {
            return core::Error{"this change of the zone table is not understood"};
        }
        changes_.push_back(change);
        return {};
    }

    ZoneTable table_;
    std::string_view name_;
    std::vector<ZoneChange> changes_;
};

} // namespace

core::Result<ZoneTable> ZoneTable::parse(std::string_view text, const std::string& file)
{
    Reader reader;
    for (long line = 1; !text.empty(); ++line) {
        const std::size_t end = text.find('\n');
        const core::Result<void> read = reader.read(text.substr(0, end));
        if (!read) {
            return core::Error{read.error().message, file, line};
        }
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
    }
    core::Result<ZoneTable> table = reader.finish();
    if (!table) {
        return core::Error{table.error().message, file};
    }
    return table;
}

} // namespace kestrav::data
