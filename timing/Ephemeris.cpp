#include "timing/Ephemeris.h"

#include "core/NumberText.h"

#include <array>
#include <cctype>
#include <cmath>
#include <string>
#include <utility>

namespace kestrav::timing
{

namespace
{

constexpr double kMinutesPerDay = 1440.0;

struct UnitName
{
    std::string_view name;
    StepUnit unit;
};

constexpr std::array<UnitName, 12> kUnitNames = {{
    {"min", StepUnit::Minute},
    {"minute", StepUnit::Minute},
    {"minutes", StepUnit::Minute},
    {"h", StepUnit::Hour},
    {"hour", StepUnit::Hour},
    {"hours", StepUnit::Hour},
    {"d", StepUnit::Day},
    {"day", StepUnit::Day},
    {"days", StepUnit::Day},
    {"mo", StepUnit::Month},
    {"month", StepUnit::Month},
    {"months", StepUnit::Month},
}};

double minutesOf(const TableStep& step)
{
    switch (step.unit) {
    case StepUnit::Minute:
        return step.count;
    case StepUnit::Hour:
        return 60.0 * step.count;
    case StepUnit::Day:
    case StepUnit::Month:
        break;
    }
    return kMinutesPerDay * step.count;
}

// Counts the months without a gap at the year 0 that the calendar does not have.
std::int64_t monthNumber(const core::DateTimeRecord& date)
{
    return std::int64_t(date.year < 0 ? date.year + 1 : date.year) * 12 + date.month - 1;
}

// The last day of the record's month that exists and is not behind the day.
int existingDay(int year, int month, int day)
{
    while (day > 1 && !core::dateExists(year, month, day)) {
        --day;
    }
    return day;
}

core::DateTimeRecord monthsLater(const core::DateTimeRecord& date, std::int64_t months)
{
    const std::int64_t number = monthNumber(date) + months;
    const auto year = int(std::floor(double(number) / 12.0));
    core::DateTimeRecord later = date;
    later.month = int(number - std::int64_t(year) * 12) + 1;
    later.year = year <= 0 ? year - 1 : year;
    later.day = existingDay(later.year, later.month, date.day);
    return later;
}

// 0h of the last date's following day, on the clock.
double endOf(const EphemerisPlan& plan)
{
    return core::DateToJulianDay(plan.last) + 1.0;
}

double firstMoment(const EphemerisPlan& plan)
{
    return core::DateToJulianDay(plan.first) + plan.first.localTime / 24.0;
}

// The rows of a plan whose step is above 0, as a number that may be large.
double countOf(const EphemerisPlan& plan)
{
    if (plan.step.unit == StepUnit::Month) {
        const auto months = double(monthNumber(plan.last) - monthNumber(plan.first));
        return std::floor(months / plan.step.count) + 1.0;
    }
    const double minutes = (endOf(plan) - core::DateToJulianDay(plan.first)) * kMinutesPerDay -
                           plan.first.localTime * 60.0;
    return std::ceil(minutes / minutesOf(plan.step) - 1e-9);
}

} // namespace

core::Result<TableStep> parseTableStep(std::string_view text)
{
    std::size_t digits = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    while (digits < text.size() && std::isdigit(static_cast<unsigned char>(text[digits])) != 0) {
        ++digits;
    }
    std::string_view word = text.substr(digits);
    while (word.starts_with(' ')) {
        word.remove_prefix(1);
    }
    const std::optional<int> count = core::parseInteger(text.substr(0, digits));
    for (const UnitName& unit : kUnitNames) {
        if (count && unit.name == word) {
            return TableStep{*count, unit.unit};
        }
    }
    return core::Error{"'" + std::string(text) + "' is no step such as 10min, 6h, 1d or 1mo"};
}

bool isInTables(const core::DateTimeRecord& date)
{
    return date.year >= kFirstTableYear && date.year <= kLastTableYear;
}

PlanProblem checkPlan(const EphemerisPlan& plan)
{
    if (plan.step.count <= 0) {
        return PlanProblem::StepNotPositive;
    }
    if (!isInTables(plan.first)) {
        return PlanProblem::FirstOutOfReach;
    }
    if (!isInTables(plan.last)) {
        return PlanProblem::LastOutOfReach;
    }
    const double days = endOf(plan) - firstMoment(plan);
    if (!(days > 0.0)) {
        return PlanProblem::Reversed;
    }
    if (days > kLongestTable) {
        return PlanProblem::TooLong;
    }
    const bool many = countOf(plan) * double(plan.bodies.size()) > double(kMostTablePositions);
    return many ? PlanProblem::TooManyPositions : PlanProblem::None;
}

Span spanOf(const EphemerisPlan& plan)
{
    const double offset = plan.clockOffset / 24.0;
    return {firstMoment(plan) - offset, endOf(plan) - offset};
}

core::DateTimeRecord clockRecord(double julianDay, double clockOffset)
{
    const double day = julianDay + clockOffset / 24.0;
    const double day0h = std::floor(day - 0.5) + 0.5;
    core::DateTimeRecord record = recordOfDay(day0h);
    record.localTime = (day - day0h) * 24.0;
    return record;
}

EphemerisRows::EphemerisRows(SiderealSky& sky, EphemerisPlan plan)
    : sky_(sky), plan_(std::move(plan))
{
    sky_.setClockOffset(plan_.clockOffset);
}

std::int64_t EphemerisRows::rowsAtMost() const
{
    return std::int64_t(countOf(plan_));
}

std::optional<EphemerisRow> EphemerisRows::next()
{
    if (index_ >= rowsAtMost()) {
        return std::nullopt;
    }
    EphemerisRow row;
    double day0h = 0.0;
    if (plan_.step.unit == StepUnit::Month) {
        row.date = monthsLater(plan_.first, index_ * plan_.step.count);
        day0h = core::DateToJulianDay(row.date);
    } else {
        // From the first date on in minutes, so that no row slides over a midnight by rounding.
        const double minutes =
            plan_.first.localTime * 60.0 + double(index_) * minutesOf(plan_.step);
        const double days = std::floor(minutes / kMinutesPerDay + 1e-12);
        day0h = core::DateToJulianDay(plan_.first) + days;
        row.date = recordOfDay(day0h);
        row.date.localTime = std::fmax(0.0, minutes - days * kMinutesPerDay) / 60.0;
    }
    ++index_;
    if (day0h >= endOf(plan_)) {
        return std::nullopt;
    }
    row.julianDay = day0h + (row.date.localTime - plan_.clockOffset) / 24.0;
    row.weekday = weekdayOfDay(day0h);
    row.bodies.reserve(plan_.bodies.size());
    for (const int point : plan_.bodies) {
        row.bodies.push_back({point, sky_.position(point, row.julianDay)});
    }
    return row;
}

} // namespace kestrav::timing
