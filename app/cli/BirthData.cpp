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

// The options of one chart, which share a prefix.
class ChartOptions
{
public:
    ChartOptions(const Arguments& arguments, std::string_view prefix)
        : arguments_(arguments), prefix_(prefix)
    {}

    [[nodiscard]] std::string full(std::string_view name) const
    {
        return prefix_ + std::string(name);
    }
    [[nodiscard]] bool has(std::string_view name) const
    {
        return arguments_.has(full(name));
    }
    [[nodiscard]] std::optional<std::string> value(std::string_view name) const
    {
        return arguments_.value(full(name));
    }

    [[nodiscard]] std::vector<std::string>
    missing(std::initializer_list<std::string_view> names) const
    {
        std::vector<std::string> missing;
        for (const std::string_view name : names) {
            if (!has(name)) {
                missing.push_back(full(name));
            }
        }
        return missing;
    }

private:
    const Arguments& arguments_;
    std::string prefix_;
};

Error missingError(const std::vector<std::string>& missing, const std::string& hint)
{
    return {listed(missing) + (missing.size() == 1 ? " is" : " are") + " missing" + hint};
}

Result<std::wstring> readLabel(const ChartOptions& options, std::string_view name)
{
    std::wstring text = core::fromFileBytes(options.value(name).value_or(""));
    const auto control = [](wchar_t character) {
        return character < L' ' || (character >= 0x7F && character < 0xA0);
    };
    if (std::any_of(text.begin(), text.end(), control)) {
        return Error{options.full(name) + " holds a line end or another control character"};
    }
    return text;
}

Result<void> readClockOptions(const ChartOptions& options, core::Chart& chart)
{
    if (const std::optional<std::string> zone = options.value("zone")) {
        const Result<double> hours = core::parseZone(*zone);
        if (!hours) {
            return hours.error();
        }
        chart.zone = hours.value();
    }
    if (const std::optional<std::string> text = options.value("dst")) {
        const std::optional<int> hours = core::parseInteger(*text);
        if (!hours || *hours < 0 || *hours > kLargestSaving) {
            return Error{"saving time '" + *text + "' is not a whole number from 0 to 3"};
        }
        chart.daylightSaving = *hours;
    }
    return {};
}

Result<void> readTypedMoment(const ChartOptions& options, BirthData& birth)
{
    const std::vector<std::string> missing = options.missing({"date", "time", "zone"});
    if (!missing.empty()) {
        const bool own = options.full("") == kOwnChart;
        return missingError(missing, own ? " (or give --now)"
                                         : " (or give " + options.full("positions") + ")");
    }
    const Result<core::CivilDate> date = core::parseDate(*options.value("date"));
    if (!date) {
        return date.error();
    }
    const Result<double> time = core::parseClock(*options.value("time"));
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

Result<void> readPresentMoment(const ChartOptions& options, core::Chart& chart)
{
    if (options.has("date") || options.has("time")) {
        return Error{"--now cannot stand beside --date and --time"};
    }
    const Result<double> moment = presentMoment();
    if (!moment) {
        return moment.error();
    }
    const SystemZone system = systemZoneAt(moment.value());
    if (!options.has("zone")) {
        chart.zone = system.zone;
        if (!options.has("dst")) {
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

Result<void> readPlace(const ChartOptions& options, PlaceNeed need, BirthData& birth)
{
    const std::vector<std::string> missing = options.missing({"lon", "lat"});
    if (missing.size() == 2 && need == PlaceNeed::Optional) {
        return {};
    }
    if (!missing.empty()) {
        const std::optional<std::string> place = options.value("place");
        return missingError(missing, place ? "; there is no list of cities in this version, so '" +
                                                 *place + "' is only a label"
                                           : "");
    }
    const Result<double> longitude = core::parseGeoLongitude(*options.value("lon"));
    if (!longitude) {
        return longitude.error();
    }
    const Result<double> latitude = core::parseGeoLatitude(*options.value("lat"));
    if (!latitude) {
        return latitude.error();
    }
    birth.chart.geoLongitude = longitude.value();
    birth.chart.geoLatitude = latitude.value();
    birth.hasPlace = true;
    return {};
}

Result<void> readLabels(const ChartOptions& options, core::Chart& chart)
{
    const Result<std::wstring> name = readLabel(options, "name");
    if (!name) {
        return name.error();
    }
    const Result<std::wstring> place = readLabel(options, "place");
    if (!place) {
        return place.error();
    }
    chart.name = name.value();
    chart.place = place.value();
    return {};
}

Result<void> readPositionsOption(const ChartOptions& options, BirthData& birth)
{
    for (const std::string_view name :
         {"date", "time", "zone", "dst", "lon", "lat", "place", "now"}) {
        if (options.has(name)) {
            return Error{options.full(name) + " cannot stand beside " + options.full("positions") +
                         ", which has no birth data"};
        }
    }
    birth.positionsFile = options.value("positions");
    birth.chart.hasMoment = false;
    return {};
}

Result<void> readMomentAndPlace(const ChartOptions& options, PlaceNeed need, BirthData& birth)
{
    Result<void> read = readClockOptions(options, birth.chart);
    if (read) {
        read = options.has("now") ? readPresentMoment(options, birth.chart)
                                  : readTypedMoment(options, birth);
    }
    return read ? readPlace(options, need, birth) : read;
}

} // namespace

Result<BirthData> readBirthData(const Arguments& arguments, PlaceNeed need, std::string_view prefix)
{
    const ChartOptions options(arguments, prefix);
    BirthData birth;
    Result<void> read = options.has("positions") ? readPositionsOption(options, birth)
                                                 : readMomentAndPlace(options, need, birth);
    if (read) {
        read = readLabels(options, birth.chart);
    }
    if (!read) {
        return read.error();
    }
    return birth;
}

} // namespace kestrav::cli
