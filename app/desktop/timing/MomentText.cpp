#include "app/desktop/timing/MomentText.h"

#include "app/desktop/shell/Convert.h"
#include "app/desktop/shell/Workspace.h"
#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/NumberText.h"
#include "timing/Ephemeris.h"
#include "timing/SiderealSky.h"
#include "timing/TransitSearch.h"

#include <array>
#include <cmath>
#include <cstdlib>
#include <optional>
#include <vector>

namespace kestrav::desktop
{

namespace
{

constexpr double kSecondsOfDay = 86400.0;
constexpr double kPastTheSecond = 0.1;
constexpr int kLargestYear = 99999;
constexpr std::size_t kDigitsOfYear = 3; ///< a first number of so many digits is a year

double offsetAt(const Workspace& workspace, double moment)
{
    const core::Chart record = workspace.recordAt(moment);
    return record.zone + record.daylightSaving;
}

std::wstring padded(int number, std::size_t width)
{
    std::wstring digits = std::to_wstring(std::abs(number));
    if (digits.size() < width) {
        digits.insert(0, width - digits.size(), L'0');
    }
    if (number < 0) {
        digits.insert(digits.begin(), L'-');
    }
    return digits;
}

bool isDigit(wchar_t letter)
{
    return letter >= L'0' && letter <= L'9';
}

// The numbers of a date. A dash is a sign at the beginning and behind another separator.
std::optional<std::vector<std::string>> numbersOf(std::wstring_view text)
{
    std::vector<std::string> numbers;
    std::string number;
    bool separated = true;
    for (const wchar_t letter : text) {
        if (isDigit(letter)) {
            number += char(letter);
            separated = false;
        } else if (letter == L'-' && separated && number.empty()) {
            number.push_back('-');
        } else if (letter == L'/' || letter == L'.' || letter == L'-' || letter == L' ') {
            if (!number.empty()) {
                numbers.push_back(std::exchange(number, {}));
            }
            separated = letter != L'-' || numbers.size() == 2;
        } else {
            return std::nullopt;
        }
    }
    if (!number.empty()) {
        numbers.push_back(number);
    }
    return numbers;
}

} // namespace

ClockReading readingOn(double moment, double offset)
{
    const double local = std::floor((moment + offset / 24.0) * kSecondsOfDay + 0.5);
    // A little behind the second, so that no time reads a second less or 24:00:00.
    const double rounded = (local + kPastTheSecond) / kSecondsOfDay - offset / 24.0;
    ClockReading reading;
    reading.offset = offset;
    reading.date = timing::clockRecord(rounded, offset);
    reading.weekday = timing::weekdayOfDay(timing::civilDayOf(rounded, offset));
    return reading;
}

ClockReading readingOf(const Workspace& workspace, double moment)
{
    return readingOn(moment, offsetAt(workspace, moment));
}

double momentAt(const Workspace& workspace, const core::DateTimeRecord& date, double hours)
{
    double moment = timing::julianDayOf(date, 0.0) + hours / 24.0;
    const double local = moment;
    // The system's clock may have changed to saving time meanwhile.
    for (int round = 0; round < 2; ++round) {
        moment = local - offsetAt(workspace, moment) / 24.0;
    }
    return moment;
}

std::wstring typedDate(const core::DateTimeRecord& date, bool monthFirst)
{
    const std::wstring day = padded(date.day, 2);
    const std::wstring month = padded(date.month, 2);
    return (monthFirst ? month + L"/" + day : day + L"/" + month) + L"/" + padded(date.year, 4);
}

core::Result<core::DateTimeRecord> readTypedDate(std::wstring_view text, bool monthFirst)
{
    const core::Error expected{monthFirst ? "write the date as month/day/year"
                                          : "write the date as day/month/year"};
    const auto numbers = numbersOf(text);
    if (!numbers || numbers->size() != 3) {
        return expected;
    }
    std::array<int, 3> parts = {};
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::optional<int> part = core::parseInteger((*numbers)[i]);
        if (!part) {
            return expected;
        }
        parts[i] = *part;
    }
    const std::string& first = numbers->front();
    const bool yearFirst = first.size() >= kDigitsOfYear || first.front() == '-';
    core::DateTimeRecord date;
    date.year = yearFirst ? parts[0] : parts[2];
    date.month = yearFirst || !monthFirst ? parts[1] : parts[0];
    date.day = yearFirst ? parts[2] : monthFirst ? parts[1] : parts[0];
    if (std::abs(date.year) > kLargestYear || !core::dateExists(date.year, date.month, date.day)) {
        return core::Error{"this date does not exist"};
    }
    return date;
}

QString momentLine(const Workspace& workspace, double moment)
{
    const ClockReading reading = readingOf(workspace, moment);
    return QStringLiteral("%1 %2, %3")
        .arg(toQt(present::dateText(reading.date)),
             toQt(present::clockSeconds(reading.date.localTime,
                                        workspace.settings().twelveHourClock))
                 .trimmed(),
             toQt(core::weekdayName(reading.weekday)));
}

} // namespace kestrav::desktop
