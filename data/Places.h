// Countries, time zones and places together, and the search for a typed place.
#pragma once

#include "core/Result.h"
#include "data/CountryList.h"
#include "data/PlaceList.h"
#include "data/ZoneTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

/// How a look-up ended. The numbers are the result codes of the atlas.
enum class LookupCode : int
{
    Found = 0,
    Several = 1,
    None = 2,
    BadState = 3, ///< a state abbreviation of three letters
    File = 4,     ///< a file of the atlas cannot be read
};

/// The most places that one search gives; they are the largest ones.
inline constexpr std::size_t kMostMatches = 200;
/// The longest name of a place that is looked up, in characters.
inline constexpr std::size_t kLongestPlaceName = 50;

struct PlaceMatches
{
    LookupCode code = LookupCode::None;
    std::vector<std::uint32_t> places; ///< numbers in the list, best first
    bool exact = false;                ///< the whole name was typed, not its beginning
};

/// The place names, countries and zones of one source: the program's own lists or the atlas.
class Places
{
public:
    Places(CountryList countries, ZoneTable zones, PlaceList list)
        : countries_(std::move(countries)), zones_(std::move(zones)), list_(std::move(list))
    {}

    /// Finds a city or town. `where` is a country, a region, or in the United States a state (its
    /// name or two letters); empty is anywhere; several, separated by commas, must all hold.
    /// Names equal to what was typed come before names that begin with it, then the user's own
    /// places, then the larger ones. Where regions and countries share a name ("Georgia"), a place
    /// in such a region comes before one in the country. "USA" alone finds nothing, and neither do
    /// two letters that are no state; "UK" is taken.
    [[nodiscard]] PlaceMatches find(std::wstring_view city, std::wstring_view where) const;
    /// The same of one text: "Ahmedabad, India", "Portland, Oregon, USA".
    [[nodiscard]] PlaceMatches find(std::wstring_view cityAndCountry) const;

    [[nodiscard]] const CountryList& countries() const
    {
        return countries_;
    }
    [[nodiscard]] const ZoneTable& zones() const
    {
        return zones_;
    }
    [[nodiscard]] const PlaceList& list() const
    {
        return list_;
    }
    [[nodiscard]] const Place& place(std::uint32_t number) const
    {
        return list_.places()[number];
    }

    /// The display texts of a place.
    [[nodiscard]] std::wstring nameOf(const Place& place) const;
    [[nodiscard]] std::wstring countryOf(const Place& place) const;
    /// "Oregon, United States of America".
    [[nodiscard]] std::wstring regionAndCountryOf(const Place& place) const;

private:
    class Narrowing;

    CountryList countries_;
    ZoneTable zones_;
    PlaceList list_;
};

/// The program's own lists.
struct LoadedPlaces
{
    Places places;
    PlaceListReport cities;
    PlaceListReport ownCities; ///< of the user's "cities6a.txt", which need not exist
};

/// Reads "countries.txt", "zones.txt", "cities.txt" and "cities6a.txt" from the folders of
/// core::findFile.
[[nodiscard]] core::Result<LoadedPlaces> loadPlaces();

/// One list file that every look-up needs, from the same folders.
[[nodiscard]] core::Result<CountryList> loadCountries();

} // namespace kestrav::data
