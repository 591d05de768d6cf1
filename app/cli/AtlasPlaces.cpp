#include "app/cli/AtlasPlaces.h"

#include "app/cli/Console.h"
#include "core/FileText.h"
#include "data/Atlas.h"

#include <algorithm>
#include <utility>

namespace kestrav::cli
{

namespace
{

constexpr std::size_t kListedMatches = 10;

std::optional<data::Places> openOutsideAtlas(const core::Settings& settings, Console& console)
{
    core::Result<data::CountryList> countries = data::loadCountries();
    if (!countries) {
        console.error(countries.error().text());
        return std::nullopt;
    }
    return data::openAtlas(settings.atlasPath, data::AtlasVersion(settings.atlasVersion),
                           std::move(countries.value()), console);
}

std::optional<data::Places> openOwnLists(Console& console)
{
    core::Result<data::LoadedPlaces> loaded = data::loadPlaces();
    if (!loaded) {
        console.error(loaded.error().text());
        return std::nullopt;
    }
    const data::PlaceListReport& own = loaded.value().ownCities;
    if (own.skipped > 0) {
        console.warning("cities6a.txt:" + std::to_string(own.firstSkippedLine) + ": " +
                        std::to_string(own.skipped) +
                        (own.skipped == 1 ? " line is" : " lines are") +
                        " not understood and left out");
    }
    return std::move(loaded.value().places);
}

core::Error severalPlaces(const data::Places& places, std::wstring_view text,
                          const std::vector<std::uint32_t>& matches)
{
    std::wstring list;
    for (std::size_t i = 0; i < std::min(matches.size(), kListedMatches); ++i) {
        list += (i > 0 ? L"; " : L"") + fullName(places, places.place(matches[i]));
    }
    if (matches.size() > kListedMatches) {
        list += L"; and " + std::to_wstring(matches.size() - kListedMatches) + L" more";
    }
    return {"the place '" + core::toUtf8(text) +
            "' is one of several, name one of them: " + core::toUtf8(list)};
}

} // namespace

std::optional<data::Places> openPlaces(const core::Settings& settings, Console& console,
                                       ExitCode& code)
{
    std::optional<data::Places> places =
        settings.atlasPath.empty() ? openOwnLists(console) : openOutsideAtlas(settings, console);
    if (!places) {
        code = ExitCode::Failed;
    }
    return places;
}

core::Result<std::uint32_t> choosePlace(const data::Places& places, std::wstring_view text)
{
    const data::PlaceMatches matches = places.find(text);
    switch (matches.code) {
    case data::LookupCode::Found:
        return matches.places.front();
    case data::LookupCode::Several:
        break;
    case data::LookupCode::BadState:
        return core::Error{"State abbreviation > 2 chars: '" + core::toUtf8(text) + "'"};
    case data::LookupCode::None:
    case data::LookupCode::File:
        return core::Error{"no place '" + core::toUtf8(text) +
                           "' is known; with --lon, --lat and --zone it is only a label"};
    }
    const auto own = [&](std::uint32_t number) {
        return places.place(number).own;
    };
    if (matches.exact && std::count_if(matches.places.begin(), matches.places.end(), own) == 1) {
        return matches.places.front();
    }
    return severalPlaces(places, text, matches.places);
}

void warnOfPlaceTime(const data::PlaceTime& time, Console& console)
{
    data::showAtlasWarning(time, console);
    for (const data::PlaceWarning warning : time.warnings) {
        console.notice(L"Warning", std::wstring(data::warningText(warning)));
    }
}

} // namespace kestrav::cli
