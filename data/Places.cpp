#include "data/Places.h"

#include "core/FileText.h"
#include "core/Files.h"
#include "core/Locations.h"
#include "data/PlaceText.h"

#include <algorithm>

namespace kestrav::data
{

namespace
{

constexpr std::uintmax_t kLargestList = std::uintmax_t{64} << 20;
constexpr std::string_view kUnitedStates = "US";

core::Result<std::filesystem::path> locate(const std::string& name)
{
    const std::optional<std::filesystem::path> path = core::findFile(name);
    if (!path) {
        return core::Error{"the file " + name + " is not found"};
    }
    return *path;
}

core::Result<PlaceListReport> readList(PlaceList& list, const std::filesystem::path& path,
                                       const ZoneTable& zones, bool own)
{
    const core::Result<std::vector<std::uint8_t>> bytes = core::readFile(path, kLargestList);
    if (!bytes) {
        return bytes.error();
    }
    return list.addText(std::string(bytes.value().begin(), bytes.value().end()), zones, own);
}

} // namespace

/// Which regions a typed country or state allows.
class Places::Narrowing
{
public:
    Narrowing(const Places& places, std::wstring_view where) : places_(places)
    {
        std::vector<std::string> keys;
        for (const std::wstring_view part : commaParts(where)) {
            keys.push_back(foldName(part));
        }
        fits_.assign(places.list_.regions().size(), Fit::Region);
        for (const std::string& key : keys) {
            narrow(key, keys.size() == 1);
        }
    }

    [[nodiscard]] LookupCode code() const
    {
        return code_;
    }
    [[nodiscard]] bool allows(const Place& place) const
    {
        return fits_[place.region] != Fit::None;
    }
    /// Whether the place is in a region, not only in a country, of the typed name.
    [[nodiscard]] bool inRegion(const Place& place) const
    {
        return fits_[place.region] == Fit::Region;
    }

private:
    enum class Fit : char
    {
        None,
        Country,
        Region,
    };

    void narrow(const std::string& key, bool alone)
    {
        // In place of a state "USA" says nothing, and two letters are always a state.
        const bool usa = key == "usa" || key == "us";
        const std::vector<std::string_view> countries =
            alone && usa  ? std::vector<std::string_view>{}
            : key == "us" ? std::vector<std::string_view>{kUnitedStates}
                          : places_.countries_.find(key);
        bool known = !countries.empty();
        const std::span<const Region> regions = places_.list_.regions();
        for (std::size_t i = 0; i < regions.size(); ++i) {
            const Fit fit = fitOf(regions[i], key, countries);
            known = known || fit != Fit::None;
            fits_[i] = std::min(fits_[i], fit);
        }
        // Words of four and more letters may be names that the list lacks.
        if (!known && key.size() == 3 && !usa) {
            code_ = LookupCode::BadState;
        }
    }

    static Fit fitOf(const Region& region, const std::string& key,
                     const std::vector<std::string_view>& countries)
    {
        const bool state =
            key.size() == 2 && region.country == kUnitedStates && foldName(region.code) == key;
        if (state || (key.size() > 2 && region.key == key)) {
            return Fit::Region;
        }
        const bool inCountry =
            std::find(countries.begin(), countries.end(), region.country) != countries.end();
        return inCountry ? Fit::Country : Fit::None;
    }

    const Places& places_;
    std::vector<Fit> fits_; ///< one a region
    LookupCode code_ = LookupCode::Found;
};

PlaceMatches Places::find(std::wstring_view city, std::wstring_view where) const
{
    PlaceMatches matches;
    const std::string key = foldName(city.substr(0, kLongestPlaceName));
    const Narrowing narrowing(*this, where);
    if (narrowing.code() != LookupCode::Found || key.empty()) {
        matches.code = key.empty() ? LookupCode::None : narrowing.code();
        return matches;
    }

    std::vector<std::uint32_t>& found = matches.places;
    const auto collect = [&](std::span<const PlaceKey> keys) {
        for (const PlaceKey& each : keys) {
            if (narrowing.allows(place(each.place))) {
                found.push_back(each.place);
            }
        }
        // A place with two names that fit is one place.
        std::sort(found.begin(), found.end());
        found.erase(std::unique(found.begin(), found.end()), found.end());
    };
    collect(list_.equalTo(key));
    matches.exact = !found.empty();
    if (!matches.exact) {
        collect(list_.beginningWith(key));
    }

    const auto outside = [&](std::uint32_t number) {
        return !narrowing.inRegion(place(number));
    };
    if (!std::all_of(found.begin(), found.end(), outside)) {
        found.erase(std::remove_if(found.begin(), found.end(), outside), found.end());
    }
    const auto better = [&](std::uint32_t left, std::uint32_t right) {
        const Place& a = place(left);
        const Place& b = place(right);
        if (a.own != b.own) {
            return a.own;
        }
        return a.population != b.population ? a.population > b.population : left < right;
    };
    const std::size_t kept = std::min(found.size(), kMostMatches);
    std::partial_sort(found.begin(), found.begin() + std::ptrdiff_t(kept), found.end(), better);
    found.resize(kept);
    matches.code = kept == 0   ? LookupCode::None
                   : kept == 1 ? LookupCode::Found
                               : LookupCode::Several;
    return matches;
}

PlaceMatches Places::find(std::wstring_view cityAndCountry) const
{
    const std::size_t comma = cityAndCountry.find(L',');
    if (comma == std::wstring_view::npos) {
        return find(cityAndCountry, {});
    }
    return find(cityAndCountry.substr(0, comma), cityAndCountry.substr(comma + 1));
}

std::wstring Places::nameOf(const Place& place) const
{
    return core::fromFileBytes(place.name);
}

std::wstring Places::countryOf(const Place& place) const
{
    return core::fromFileBytes(countries_.name(list_.regionOf(place).country));
}

std::wstring Places::regionAndCountryOf(const Place& place) const
{
    const Region& region = list_.regionOf(place);
    if (region.name.empty()) {
        return countryOf(place);
    }
    return core::fromFileBytes(region.name).append(L", ").append(countryOf(place));
}

core::Result<CountryList> loadCountries()
{
    const core::Result<std::filesystem::path> path = locate("countries.txt");
    if (!path) {
        return path.error();
    }
    return CountryList::load(path.value());
}

core::Result<LoadedPlaces> loadPlaces()
{
    core::Result<CountryList> countries = loadCountries();
    const core::Result<std::filesystem::path> zonePath = locate("zones.txt");
    const core::Result<std::filesystem::path> cityPath = locate("cities.txt");
    if (!countries || !zonePath || !cityPath) {
        return !countries ? countries.error() : !zonePath ? zonePath.error() : cityPath.error();
    }
    core::Result<ZoneTable> zones = ZoneTable::load(zonePath.value());
    if (!zones) {
        return zones.error();
    }
    PlaceList list;
    const core::Result<PlaceListReport> cities =
        readList(list, cityPath.value(), zones.value(), false);
    if (!cities) {
        return cities.error();
    }
    PlaceListReport ownCities;
    if (const std::optional<std::filesystem::path> ownPath = core::findFile("cities6a.txt")) {
        const core::Result<PlaceListReport> own = readList(list, *ownPath, zones.value(), true);
        if (!own) {
            return own.error();
        }
        ownCities = own.value();
    }
    list.buildKeys();
    return LoadedPlaces{
        Places(std::move(countries.value()), std::move(zones.value()), std::move(list)),
        cities.value(), ownCities};
}

} // namespace kestrav::data
