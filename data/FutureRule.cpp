#include "data/FutureRule.h"

#include <string>

namespace kestrav::data
{

namespace
{

std::int64_t floorDivide(std::int64_t value, std::int64_t by)
{
    return value / by - (value % by < 0 ? 1 : 0);
}

std::int16_t savingMinutes(std::int32_t saving)
{
    return saving > 0 && saving <= kMostSavingMinutes * 60 ? static_cast<std::int16_t>(saving / 60)
                                                           : std::int16_t{0};
}

} // namespace

// Whole 400-year cycles, and years from March on, so that the leap day is the last of its year.
std::int64_t daysFromCivil(std::int64_t year, int month, int day)
{
    year -= month <= 2 ? 1 : 0;
    const std::int64_t cycle = (year >= 0 ? year : year - 399) / 400;
    const std::int64_t yearOfCycle = year - cycle * 400;
    const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const std::int64_t dayOfCycle =
        yearOfCycle * 365 + yearOfCycle / 4 - yearOfCycle / 100 + dayOfYear;
    return cycle * 146097 + dayOfCycle - 719468;
}

std::int64_t gregorianYear(UnixSeconds moment)
{
    const std::int64_t days = floorDivide(moment, kSecondsPerDay) + 719468;
    const std::int64_t cycle = floorDivide(days, 146097);
    const std::int64_t dayOfCycle = days - cycle * 146097;
    const std::int64_t yearOfCycle =
        (dayOfCycle - dayOfCycle / 1460 + dayOfCycle / 36524 - dayOfCycle / 146096) / 365;
    const std::int64_t dayOfYear =
        dayOfCycle - (365 * yearOfCycle + yearOfCycle / 4 - yearOfCycle / 100);
    // The year of this count begins with March 1; January and February follow from day 306 on.
    return cycle * 400 + yearOfCycle + (dayOfYear >= 306 ? 1 : 0);
}

/// Takes the parts of the text from the left; `failed` stays set once something did not fit.
struct FutureRule::Reader
{
    std::string_view rest;
    bool failed = false;

    bool take(char character)
    {
        if (rest.empty() || rest.front() != character) {
            return false;
        }
        rest.remove_prefix(1);
        return true;
    }

    void expect(char character)
    {
        failed = !take(character) || failed;
    }

    int number(int lowest, int highest)
    {
        int value = 0;
        std::size_t digits = 0;
        while (digits < rest.size() && digits < 4 && rest[digits] >= '0' && rest[digits] <= '9') {
            value = value * 10 + (rest[digits] - '0');
            ++digits;
        }
        rest.remove_prefix(digits);
        failed = failed || digits == 0 || value < lowest || value > highest;
        return value;
    }

    // An abbreviation: letters, or anything between angle brackets.
    void name()
    {
        const std::size_t before = rest.size();
        if (take('<')) {
            const std::size_t close = rest.find('>');
            failed = failed || close == std::string_view::npos || close == 0;
            rest.remove_prefix(failed ? rest.size() : close + 1);
            return;
        }
        while (!rest.empty() && ((rest.front() >= 'A' && rest.front() <= 'Z') ||
                                 (rest.front() >= 'a' && rest.front() <= 'z'))) {
            rest.remove_prefix(1);
        }
        failed = failed || rest.size() == before;
    }

    // "[+-]h[:m[:s]]" in seconds. The hours of a change may lie days before or after its day.
    std::int32_t clock(int mostHours)
    {
        const bool negative = take('-');
        if (!negative) {
            take('+');
        }
        std::int32_t seconds = number(0, mostHours) * kSecondsPerHour;
        if (take(':')) {
            seconds += number(0, 59) * 60;
            if (take(':')) {
                seconds += number(0, 59);
            }
        }
        return negative ? -seconds : seconds;
    }

    Day day()
    {
        Day result;
        expect(',');
        expect('M');
        result.month = number(1, 12);
        expect('.');
        result.week = number(1, 5);
        expect('.');
        result.weekday = number(0, 6);
        if (take('/')) {
            result.time = clock(167);
        }
        return result;
    }
};

core::Result<FutureRule> FutureRule::parse(std::string_view text)
{
    constexpr int kMostHours = kLargestOffset / kSecondsPerHour;
    FutureRule rule;
    Reader reader{text};
    reader.name();
    rule.standard_ = -reader.clock(kMostHours);
    if (!reader.rest.empty()) {
        rule.hasChanges_ = true;
        reader.name();
        const bool given = !reader.rest.empty() && reader.rest.front() != ',';
        rule.daylight_ = given ? -reader.clock(kMostHours) : rule.standard_ + kSecondsPerHour;
        rule.start_ = reader.day();
        rule.end_ = reader.day();
    }
    if (reader.failed || !reader.rest.empty()) {
        return core::Error{"the rule '" + std::string(text.substr(0, 60)) + "' is not understood"};
    }
    return rule;
}

UnixSeconds FutureRule::moment(const Day& day, std::int64_t year)
{
    const std::int64_t first = daysFromCivil(year, day.month, 1);
    const std::int64_t next =
        day.month == 12 ? daysFromCivil(year + 1, 1, 1) : daysFromCivil(year, day.month + 1, 1);
    // 1970 January 1 was a Thursday.
    const std::int64_t weekdayOfFirst = ((first + 4) % 7 + 7) % 7;
    const std::int64_t week = day.week - 1;
    std::int64_t date = first + (day.weekday - weekdayOfFirst + 7) % 7 + 7 * week;
    while (date >= next) {
        date -= 7;
    }
    return date * kSecondsPerDay + day.time;
}

std::array<ZoneChange, 2> FutureRule::changes(std::int64_t year) const
{
    const ZoneChange toDaylight{moment(start_, year) - standard_, daylight_,
                                savingMinutes(daylight_ - standard_)};
    const ZoneChange toStandard{moment(end_, year) - daylight_, standard_, 0};
    if (toStandard.moment < toDaylight.moment) {
        return {toStandard, toDaylight};
    }
    return {toDaylight, toStandard};
}

} // namespace kestrav::data
