#include "app/cli/AtlasCommands.h"

#include "app/cli/AtlasPlaces.h"
#include "app/cli/BirthData.h"
#include "app/cli/CommandSettings.h"
#include "app/cli/Console.h"
#include "app/cli/JsonValues.h"
#include "app/cli/SharedOptions.h"
#include "app/present/BirthRecord.h"
#include "app/present/Clock.h"
#include "app/present/TextTable.h"
#include "app/present/TextValues.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/BirthTexts.h"
#include "data/PlaceText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;

constexpr std::array<PositionalInfo, 1> kPlace = {
    {{"PLACE", "city or town, after a comma its country, or state of the United States", true,
      true}}};

constexpr std::array<OptionInfo, 2> kWhereOptions = {{
    {"--country", "NAME", "country or region in which the place is"},
    {"--state", "NAME", "state of the United States, its name or two letters"},
}};

constexpr std::array<OptionInfo, 3> kMomentOptions = {{
    {"--date", "YYYY-MM-DD", "local date in historical years"},
    {"--time", "HH:MM[:SS[.f]]", "local clock time"},
    {"--now", "", "the present moment"},
}};

// The place as one text: "Portland, Oregon, USA" of PLACE, --state and --country.
std::wstring typedPlace(const Arguments& arguments)
{
    std::string text;
    for (const std::string& word : arguments.values("PLACE")) {
        text += (text.empty() ? "" : " ") + word;
    }
    for (const std::string_view option : {"--state", "--country"}) {
        if (const std::optional<std::string> where = arguments.value(option)) {
            text += ", " + *where;
        }
    }
    return core::fromFileBytes(text);
}

Json placeJson(const data::Places& places, const data::Place& place)
{
    const data::Region& region = places.list().regionOf(place);
    Json object;
    object["name"] = textJson(places.nameOf(place));
    object["region"] = textOrNull(core::fromFileBytes(region.name));
    object["country"] = textJson(places.countryOf(place));
    object["latitude"] = numberJson(place.latitude);
    object["longitude"] = numberJson(place.longitude);
    object["zoneName"] = places.zones().name(place.zone);
    object["population"] = place.population > 0 ? Json(place.population) : Json();
    return object;
}

std::wstring placesText(const data::Places& places, const std::vector<std::uint32_t>& matches)
{
    using Align = present::TextTable::Align;
    present::TextTable table(
        {{L"Place"}, {L"Longitude"}, {L"Zone"}, {L"Population", Align::Right}});
    for (const std::uint32_t number : matches) {
        const data::Place& place = places.place(number);
        const std::wstring population =
            place.population > 0 ? std::to_wstring(place.population) : L"--";
        table.add({data::cityListText(place.latitude, fullName(places, place)),
                   data::longitudeText(place.longitude),
                   core::fromFileBytes(places.zones().name(place.zone)), population});
    }
    return table.text();
}

// The moment of the call: a local date and time, or the present one.
struct Moment
{
    core::DateTimeRecord local;
    std::optional<double> unixSeconds;
};

Result<Moment> readMoment(const Arguments& arguments)
{
    Moment moment;
    if (arguments.has("--now")) {
        if (arguments.has("--date") || arguments.has("--time")) {
            return Error{"--now cannot stand beside --date and --time"};
        }
        const Result<double> now = present::presentMoment();
        if (!now) {
            return now.error();
        }
        moment.unixSeconds = now.value();
        return moment;
    }
    if (!arguments.has("--date") || !arguments.has("--time")) {
        return Error{std::string(arguments.has("--date")   ? "--time is"
                                 : arguments.has("--time") ? "--date is"
                                                           : "--date and --time are") +
                     " missing (or give --now)"};
    }
    const Result<core::CivilDate> date = core::parseDate(*arguments.value("--date"));
    if (!date) {
        return date.error();
    }
    const Result<double> time = core::parseClock(*arguments.value("--time"));
    if (!time) {
        return time.error();
    }
    moment.local.year = date.value().year;
    moment.local.month = date.value().month;
    moment.local.day = date.value().day;
    moment.local.localTime = time.value();
    return moment;
}

std::wstring warningsText(const data::PlaceTime& time)
{
    std::wstring text;
    for (const data::PlaceWarning warning : time.warnings) {
        text += (text.empty() ? L"" : L" ") + std::wstring(data::warningText(warning));
    }
    return text;
}

Json zoneJson(const data::PlaceAnswer& answer)
{
    Json object;
    object["name"] = answer.zoneName;
    object["standard"] = numberJson(answer.time.zone);
    object["daylightSaving"] = answer.time.daylightSaving;
    object["source"] = answer.source;
    object["warning"] = textOrNull(warningsText(answer.time));
    return object;
}

std::wstring zoneTextOf(const data::PlaceAnswer& answer, const core::DateTimeRecord& local,
                        const std::wstring& name)
{
    present::LabelledLines lines;
    lines.add(L"Place", name);
    lines.add(L"Longitude", data::longitudeText(answer.longitude));
    lines.add(L"Latitude", data::latitudeText(answer.latitude));
    lines.add(L"Local time", present::dateText(local) + L" " + data::timeText(local.localTime));
    lines.add(L"Zone", core::fromFileBytes(answer.zoneName));
    lines.add(L"Standard time", data::zoneText(answer.time.zone));
    lines.add(L"Saving time", std::to_wstring(answer.time.daylightSaving) + L" h");
    lines.add(L"Source", core::fromFileBytes(answer.source));
    return lines.text();
}

} // namespace

FindPlacesCommand::FindPlacesCommand()
    : Command({"atlas find",
               "Find the places of a name, or those whose names begin with it, the largest first",
               {kPlace.begin(), kPlace.end()},
               {kWhereOptions, kSetOptions, kCommonOptions}})
{}

ExitCode FindPlacesCommand::run(const Arguments& arguments, Console& console) const
{
    ExitCode code = ExitCode::Done;
    const std::optional<core::Settings> settings = settingsOfCall(arguments, console, code);
    const std::optional<data::Places> places =
        settings ? openPlaces(*settings, console, code) : std::nullopt;
    if (!places) {
        return code;
    }
    const data::PlaceMatches matches = places->find(typedPlace(arguments));
    data::showLookupCode(int(matches.code), console);
    if (matches.code == data::LookupCode::BadState) {
        return ExitCode::Usage;
    }
    if (!arguments.has("--json")) {
        console.print(matches.places.empty() ? L"no such place\n"
                                             : placesText(*places, matches.places));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["places"] = Json::array();
    for (const std::uint32_t number : matches.places) {
        object["places"].push_back(placeJson(*places, places->place(number)));
    }
    console.print(jsonText(object));
    return ExitCode::Done;
}

PlaceZoneCommand::PlaceZoneCommand()
    : Command({"atlas zone",
               "Find the time zone and the saving time of a place at a moment",
               {kPlace.begin(), kPlace.end()},
               {kWhereOptions, kMomentOptions, kSetOptions, kCommonOptions}})
{}

ExitCode PlaceZoneCommand::run(const Arguments& arguments, Console& console) const
{
    const Result<Moment> moment = readMoment(arguments);
    if (!moment) {
        console.error(moment.error().text());
        return ExitCode::Usage;
    }
    ExitCode code = ExitCode::Done;
    const std::optional<core::Settings> settings = settingsOfCall(arguments, console, code);
    const std::optional<data::Places> places =
        settings ? openPlaces(*settings, console, code) : std::nullopt;
    if (!places) {
        return code;
    }
    const Result<std::uint32_t> chosen = choosePlace(*places, typedPlace(arguments));
    if (!chosen) {
        console.error(chosen.error().text());
        return ExitCode::Usage;
    }
    const data::Place& place = places->place(chosen.value());
    core::Chart clock;
    clock.time = moment.value().local;
    data::PlaceAnswer answer = data::answerAt(*places, place, clock.time);
    if (moment.value().unixSeconds) {
        answer = answerAtMoment(*places, place, *moment.value().unixSeconds);
        clock.zone = answer.time.zone;
        clock.daylightSaving = answer.time.daylightSaving;
        present::setLocalMoment(clock, *moment.value().unixSeconds);
    }
    warnOfPlaceTime(answer.time, console);
    if (!arguments.has("--json")) {
        console.print(zoneTextOf(answer, clock.time, fullName(*places, place)));
        return ExitCode::Done;
    }
    Json object = commandObject(info().name);
    object["place"] = placeJson(*places, place);
    object["zone"] = zoneJson(answer);
    console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
