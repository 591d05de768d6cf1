#include "data/import/BirthEntry.h"

#include "core/DateTime.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/BirthTexts.h"
#include "data/ChartLineFields.h"
#include "data/CleanText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kestrav::data
{

namespace
{

constexpr double kLargestZone = 15.0;
constexpr int kLargestSaving = 3;
constexpr int kLargestYear = 9999;

std::string dateText(const BirthEntry& entry)
{
    return std::to_string(entry.year) + "-" + std::to_string(entry.month) + "-" +
           std::to_string(entry.day);
}

// Written so that not-a-number is outside every range.
bool within(double value, double low, double high)
{
    return value >= low && value <= high;
}

core::Error beyond(const std::string& what, double value, const std::string& limits)
{
    return core::Error{what + " " + core::shortestNumber(value) + " is not between " + limits};
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

std::string lowered(std::string_view text)
{
    std::string result(text);
    for (char& byte : result) {
        byte = byte >= 'A' && byte <= 'Z' ? char(byte - 'A' + 'a') : byte;
    }
    return result;
}

void splitPlace(std::string_view text, BirthEntry& entry)
{
    const std::size_t comma = text.rfind(',');
    entry.place = trimmed(text.substr(0, comma));
    entry.country =
        comma == std::string_view::npos ? std::string_view() : trimmed(text.substr(comma + 1));
}

core::Result<core::Chart> chartOf(const BirthEntry& entry)
{
    if (std::abs(entry.year) > kLargestYear ||
        !core::dateExists(entry.year, entry.month, entry.day)) {
        return core::Error{"the date " + dateText(entry) + " does not exist"};
    }
    if (!within(entry.hours, 0.0, 24.0)) {
        return beyond("time", entry.hours, "0 and 24 hours");
    }
    if (!within(entry.longitude, -180.0, 180.0)) {
        return beyond("longitude", entry.longitude, "-180 and 180 degrees");
    }
    if (!within(entry.latitude, -90.0, 90.0)) {
        return beyond("latitude", entry.latitude, "-90 and 90 degrees");
    }
    if (!within(entry.saving, 0.0, kLargestSaving)) {
        return beyond("daylight saving", entry.saving, "0 and 3 hours");
    }
    core::Chart chart;
    chart.daylightSaving = int(entry.saving);
    chart.zone = entry.zone + (entry.saving - chart.daylightSaving);
    if (!within(chart.zone, -kLargestZone, kLargestZone)) {
        return beyond("zone", chart.zone, "-15 and 15 hours");
    }
    chart.time.year = entry.year;
    chart.time.month = entry.month;
    chart.time.day = entry.day;
    chart.time.localTime = entry.hours;
    if (entry.hours == 24.0) {
        core::addDays(chart.time, 1);
        chart.time.localTime = 0.0;
    }
    chart.geoLongitude = entry.longitude;
    chart.geoLatitude = entry.latitude;
    chart.name = core::fromFileBytes(trimmed(entry.name));
    chart.place = core::fromFileBytes(entry.place);
    chart.identity.country = core::fromFileBytes(entry.country);
    chart.identity.sex = core::fromFileBytes(entry.sex);
    chart.identity.notes = core::fromFileBytes(entry.notes);
    cleanRecord(chart);
    if (!hasLetterOrDigit(chart.name)) {
        chart.name = kNoNameText;
        chart.identity.shortName = shortNameOf(chart.name);
    }
    refreshBirthTexts(chart);
    return chart;
}

} // namespace kestrav::data
