#include "app/cli/BirthData.h"

#include "app/present/BirthRecord.h"
#include "app/present/Clock.h"
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

// The value of --dst that leaves the hours to the setting daylightSavingHours.
constexpr std::string_view kSavingInForce = "on";

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

Result<void> readClockOptions(const ChartOptions& options, BirthData& birth)
{
    core::Chart& chart = birth.chart;
    if (const std::optional<std::string> zone = options.value("zone")) {
        const Result<double> hours = core::parseZone(*zone);
        if (!hours) {
            return hours.error();
        }
        chart.zone = hours.value();
    }
    if (const std::optional<std::string> text = options.value("dst")) {
        if (*text == kSavingInForce && !options.has("now")) {
            birth.savingInForce = true;
            return {};
        }
        const std::optional<int> hours = core::parseInteger(*text);
        if (!hours || *hours < 0 || *hours > kLargestSaving) {
            return Error{"saving time '" + *text + "' is not a whole number from 0 to 3" +
                         (options.has("now") ? "" : " and not 'on'")};
        }
        chart.daylightSaving = *hours;
    }
    return {};
}

Result<void> readDateAndTime(const ChartOptions& options, BirthData& birth)
{
    core::DateTimeRecord& record = birth.chart.time;
    if (const std::optional<std::string> text = options.value("date")) {
        const Result<core::CivilDate> date = core::parseDate(*text);
        if (!date) {
            return date.error();
        }
        record.year = date.value().year;
        record.month = date.value().month;
        record.day = date.value().day;
    }
    if (const std::optional<std::string> text = options.value("time")) {
        const Result<double> time = core::parseClock(*text);
        if (!time) {
            return time.error();
        }
        record.localTime = time.value();
    }
    if (record.year == 1582 && record.month == 10 && record.day == 15) {
        birth.warnings.emplace_back("the date 1582-10-15 is read in the Julian calendar; computed "
                                    "back from its day count it is October 25");
    }
    return {};
}

Result<void> readTypedMoment(const ChartOptions& options, BirthData& birth)
{
    std::vector<std::string> missing = options.missing({"date", "time"});
    if (!birth.placeToFind && !options.has("zone")) {
        missing.push_back(options.full("zone"));
    }
    if (!missing.empty()) {
        const bool own = options.full("") == kOwnChart;
        return missingError(missing,
                            own ? " (or give --now)" : " (or give --with or --with-positions)");
    }
    return readDateAndTime(options, birth);
}

Result<void> readPresentMoment(const ChartOptions& options, BirthData& birth)
{
    if (options.has("date") || options.has("time")) {
        return Error{"--now cannot stand beside --date and --time"};
    }
    const Result<double> moment = present::presentMoment();
    if (!moment) {
        return moment.error();
    }
    core::Chart& chart = birth.chart;
    if (birth.placeToFind && birth.placeToFind->zone) {
        birth.placeToFind->moment = moment.value();
        return {};
    }
    if (!options.has("zone")) {
        const present::SystemZone system = present::systemZoneAt(moment.value());
        chart.zone = system.zone;
        if (!options.has("dst")) {
            chart.daylightSaving = system.daylightSaving;
        }
    }
    present::setLocalMoment(chart, moment.value());
    return {};
}

// With full coordinates and a zone the place is only a label.
std::optional<PlaceChoice> placeChoice(const ChartOptions& options)
{
    PlaceChoice choice;
    choice.longitude = !options.has("lon");
    choice.latitude = !options.has("lat");
    const bool coordinates = choice.longitude || choice.latitude;
    choice.zone = !options.has("zone") && (coordinates || !options.has("now"));
    choice.daylightSaving = !options.has("dst") && (choice.zone || !options.has("now"));
    if (!options.has("place") || !(coordinates || choice.zone)) {
        return std::nullopt;
    }
    choice.text = core::fromFileBytes(*options.value("place"));
    return choice;
}

Result<void> readCoordinates(const ChartOptions& options, core::Chart& chart)
{
    if (const std::optional<std::string> text = options.value("lon")) {
        const Result<double> longitude = core::parseGeoLongitude(*text);
        if (!longitude) {
            return longitude.error();
        }
        chart.geoLongitude = longitude.value();
    }
    if (const std::optional<std::string> text = options.value("lat")) {
        const Result<double> latitude = core::parseGeoLatitude(*text);
        if (!latitude) {
            return latitude.error();
        }
        chart.geoLatitude = latitude.value();
    }
    return {};
}

Result<void> readPlace(const ChartOptions& options, PlaceNeed need, BirthData& birth)
{
    const std::vector<std::string> missing = options.missing({"lon", "lat"});
    if (missing.size() == 2 && need == PlaceNeed::Optional && !birth.placeToFind) {
        return {};
    }
    if (!missing.empty() && !birth.placeToFind) {
        return missingError(missing, " (or give " + options.full("place") + ")");
    }
    birth.hasPlace = true;
    return readCoordinates(options, birth.chart);
}

Result<void> readLabels(const Arguments& arguments, const ChartOptions& options, core::Chart& chart)
{
    const Result<std::wstring> name = readLabel(arguments, options.full("name"));
    if (!name) {
        return name.error();
    }
    const Result<std::wstring> place = readLabel(arguments, options.full("place"));
    if (!place) {
        return place.error();
    }
    chart.name = name.value();
    chart.place = place.value();
    return {};
}

// The option that says something about a chart whose data come from elsewhere.
std::optional<std::string> firstTyped(const ChartOptions& options,
                                      std::initializer_list<std::string_view> more = {})
{
    std::vector<std::string_view> names = {"date", "time", "zone",  "dst",
                                           "lon",  "lat",  "place", "now"};
    names.insert(names.end(), more);
    for (const std::string_view name : names) {
        if (options.has(name)) {
            return options.full(name);
        }
    }
    return std::nullopt;
}

Result<void> readPositionsOption(const ChartOptions& options, BirthData& birth)
{
    if (const std::optional<std::string> typed = firstTyped(options)) {
        return Error{*typed + " cannot stand beside " + options.full("positions") +
                     ", which has no birth data"};
    }
    birth.positionsFile = options.value("positions");
    birth.chart.hasMoment = false;
    return {};
}

Result<void> readMomentAndPlace(const ChartOptions& options, PlaceNeed need, BirthData& birth)
{
    birth.placeToFind = placeChoice(options);
    Result<void> read = readClockOptions(options, birth);
    if (read) {
        read = options.has("now") ? readPresentMoment(options, birth)
                                  : readTypedMoment(options, birth);
    }
    return read ? readPlace(options, need, birth) : read;
}

bool choosesSecond(const Arguments& arguments)
{
    return arguments.has("--with") || arguments.has("--with-line");
}

// Whether the chart is to come from the database. The error tells what cannot stand together.
Result<bool> isFromDatabase(const Arguments& arguments, const ChartOptions& options, bool own)
{
    const bool chosen = own ? arguments.has("--line") : choosesSecond(arguments);
    if (!arguments.has("--db")) {
        if (chosen) {
            return Error{std::string(own                       ? "--line"
                                     : arguments.has("--with") ? "--with"
                                                               : "--with-line") +
                         " needs --db"};
        }
        return false;
    }
    const std::optional<std::string> typed = firstTyped(options, {"positions"});
    // Beside a second chart of the database the first may be typed, and the other way round.
    const bool otherChosen =
        own ? choosesSecond(arguments) : arguments.has("--name") || arguments.has("--line");
    if (typed && (chosen || !otherChosen)) {
        return Error{*typed + " cannot stand beside " + (own ? "--db" : "--with")};
    }
    return own ? !typed : chosen;
}

} // namespace

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

Result<DatabaseChoice> readDatabaseChoice(const Arguments& arguments, std::string_view prefix)
{
    const bool own = prefix == kOwnChart;
    const std::string nameOption = own ? "--name" : "--with";
    const std::string lineOption = own ? "--line" : "--with-line";
    if (!arguments.has("--db")) {
        return Error{"--db is missing"};
    }
    if (arguments.has(nameOption) == arguments.has(lineOption)) {
        return Error{"the chart is chosen by " + nameOption + " or by " + lineOption +
                     (arguments.has(lineOption) ? ", not both" : "")};
    }
    DatabaseChoice choice;
    choice.file = *arguments.value("--db");
    if (const std::optional<std::string> name = arguments.value(nameOption)) {
        choice.name = core::fromFileBytes(*name);
        return choice;
    }
    const std::string text = *arguments.value(lineOption);
    const std::optional<int> line = core::parseInteger(text);
    if (!line || *line < 1) {
        return Error{lineOption + " '" + text + "' is not a line number from 1"};
    }
    choice.line = std::size_t(*line - 1);
    return choice;
}

Result<BirthData> readTypedBirthData(const Arguments& arguments, PlaceNeed need)
{
    const ChartOptions options(arguments, kOwnChart);
    BirthData birth;
    birth.need = need;
    Result<void> read = readMomentAndPlace(options, need, birth);
    if (read) {
        read = readLabels(arguments, options, birth.chart);
    }
    if (!read) {
        return read.error();
    }
    return birth;
}

Result<BirthData> changeBirthData(const Arguments& arguments, const core::Chart& chart)
{
    const ChartOptions options(arguments, kOwnChart);
    BirthData birth;
    birth.chart = chart;
    birth.hasPlace = true;
    Result<void> read = readClockOptions(options, birth);
    if (read) {
        read = readDateAndTime(options, birth);
    }
    if (read) {
        read = readCoordinates(options, birth.chart);
    }
    const Result<std::wstring> place = readLabel(arguments, "--place");
    if (!read || !place) {
        return read ? place.error() : read.error();
    }
    if (arguments.has("--place")) {
        birth.chart.place = place.value();
        birth.chart.identity.country.clear();
        if (!options.has("lon") || !options.has("lat")) {
            birth.placeToFind = placeChoice(options);
        }
    }
    return birth;
}

Result<BirthData> readBirthData(const Arguments& arguments, PlaceNeed need, std::string_view prefix)
{
    const ChartOptions options(arguments, prefix);
    const Result<bool> fromDatabase = isFromDatabase(arguments, options, prefix == kOwnChart);
    if (!fromDatabase) {
        return fromDatabase.error();
    }
    BirthData birth;
    birth.need = need;
    if (fromDatabase.value()) {
        const Result<DatabaseChoice> choice = readDatabaseChoice(arguments, prefix);
        if (!choice) {
            return choice.error();
        }
        birth.database = choice.value();
        return birth;
    }
    Result<void> read = options.has("positions") ? readPositionsOption(options, birth)
                                                 : readMomentAndPlace(options, need, birth);
    if (read) {
        read = readLabels(arguments, options, birth.chart);
    }
    if (!read) {
        return read.error();
    }
    return birth;
}

} // namespace kestrav::cli
