#include "app/cli/BirthData.h"

#include "app/cli/Clock.h"
#include "core/FileText.h"
#include "core/NumberText.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;

constexpr int kLargestSaving = 3;

// "a", "a and b", "a, b and c".
std::string listed(const std::vector<std::string>& words)
{
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) {
            text += i + 1 == words.size() ? " and " : ", ";
        }
        text += words[i];
    }
    return text;
}

std::vector<std::string> missingOf(const Arguments& arguments,
                                   std::initializer_list<std::string_view> names)
{
    std::vector<std::string> missing;
    for (const std::string_view name : names) {
        if (!arguments.has(name)) {
            missing.emplace_back(name);
        }
    }
    return missing;
}

Error missingError(const std::vector<std::string>& missing, const std::string& hint)
{
    return {listed(missing) + (missing.size() == 1 ? " is" : " are") + " missing" + hint};
}

Result<std::wstring> readLabel(const Arguments& arguments, const std::string& option)
{
    std::wstring text = core::fromFileBytes(arguments.value(option).value_or(""));
    const auto control = [](wchar_t character) {
        return character < L' ' || (character >= 0x7F && character < 0xA0);
    };
    if (std::any_of(text.begin(), text.end(), control)) {
        return Error{option + " holds a line end or another control character"};
    }
    return text;
}

Result<void> readClockOptions(const Arguments& arguments, core::Chart& chart)
{
    if (const std::optional<std::string> zone = arguments.value("--zone")) {
        const Result<double> hours = core::parseZone(*zone);
        if (!hours) {
            return hours.error();
        }
        chart.zone = hours.value();
    }
    if (const std::optional<std::string> text = arguments.value("--dst")) {
        const std::optional<int> hours = core::parseInteger(*text);
        if (!hours || *hours < 0 || *hours > kLargestSaving) {
            return Error{"saving time '" + *text + "' is not a whole number from 0 to 3"};
        }
        chart.daylightSaving = *hours;
    }
    return {};
}

Result<void> readTypedMoment(const Arguments& arguments, BirthData& birth)
{
    const std::vector<std::string> missing = missingOf(arguments, {"--date", "--time", "--zone"});
    if (!missing.empty()) {
        return missingError(missing, " (or give --now)");
    }
    const Result<core::CivilDate> date = core::parseDate(*arguments.value("--date"));
    if (!date) {
        return date.error();
    }
    const Result<double> time = core::parseClock(*arguments.value("--time"));
    if (!time) {
        return time.error();
    }
    core::DateTimeRecord& record = birth.chart.time;
    record.year = date.value().year;
    record.month = date.value().month;
    record.day = date.value().day;
    record.localTime = time.value();
    if (record.year == 1582 && record.month == 10 && record.day == 15) {
        birth.warnings.emplace_back("the date 1582-10-15 is read in the Julian calendar; computed "
                                    "back from its day count it is October 25");
    }
    return {};
}

Result<void> readPresentMoment(const Arguments& arguments, core::Chart& chart)
{
    if (arguments.has("--date") || arguments.has("--time")) {
        return Error{"--now cannot stand beside --date and --time"};
    }
    const Result<double> moment = presentMoment();
    if (!moment) {
        return moment.error();
    }
    const SystemZone system = systemZoneAt(moment.value());
    if (!arguments.has("--zone")) {
        chart.zone = system.zone;
        if (!arguments.has("--dst")) {
            chart.daylightSaving = system.daylightSaving;
        }
    }
    const double local = moment.value() + (chart.zone + chart.daylightSaving) * 3600.0;
    const double days = std::floor(local / 86400.0);
    core::DateTimeRecord& record = chart.time;
    record.year = 1970;
    record.month = 1;
    record.day = 1;
    core::addDays(record, int(days));
    record.localTime = (local - days * 86400.0) / 3600.0;
    return {};
}

Result<void> readPlace(const Arguments& arguments, PlaceNeed need, BirthData& birth)
{
    const std::vector<std::string> missing = missingOf(arguments, {"--lon", "--lat"});
    if (missing.size() == 2 && need == PlaceNeed::Optional) {
        return {};
    }
    if (!missing.empty()) {
        const std::optional<std::string> place = arguments.value("--place");
        return missingError(missing, place ? "; there is no list of cities in this version, so '" +
                                                 *place + "' is only a label"
                                           : "");
    }
    const Result<double> longitude = core::parseGeoLongitude(*arguments.value("--lon"));
    if (!longitude) {
        return longitude.error();
    }
    const Result<double> latitude = core::parseGeoLatitude(*arguments.value("--lat"));
    if (!latitude) {
        return latitude.error();
    }
    birth.chart.geoLongitude = longitude.value();
    birth.chart.geoLatitude = latitude.value();
    birth.hasPlace = true;
    return {};
}

Result<void> readLabels(const Arguments& arguments, core::Chart& chart)
{
    const Result<std::wstring> name = readLabel(arguments, "--name");
    if (!name) {
        return name.error();
    }
    const Result<std::wstring> place = readLabel(arguments, "--place");
    if (!place) {
        return place.error();
    }
    chart.name = name.value();
    chart.place = place.value();
    return {};
}

} // namespace

Result<BirthData> readBirthData(const Arguments& arguments, PlaceNeed need)
{
    BirthData birth;
    Result<void> read = readClockOptions(arguments, birth.chart);
    if (read) {
        read = arguments.has("--now") ? readPresentMoment(arguments, birth.chart)
                                      : readTypedMoment(arguments, birth);
    }
    if (read) {
        read = readPlace(arguments, need, birth);
    }
    if (read) {
        read = readLabels(arguments, birth.chart);
    }
    if (!read) {
        return read.error();
    }
    return birth;
}

} // namespace kestrav::cli
