// Places with their names, coordinates and zones, found by the beginning of a name.
#pragma once

#include "core/Result.h"
#include "data/ZoneTable.h"

#include <cstdint>
#include <deque>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::data
{

/// A country, or a part of one.
struct Region
{
    std::string_view country; ///< ISO code
    std::string_view code;    ///< in the United States the two letters of the state
    std::string_view name;
    std::string key; ///< search key of the name
};

/// One place. Texts are UTF-8 and belong to the list.
struct Place
{
    std::string_view name;
    std::string_view otherNames; ///< separated by ';'
    double latitude = 0.0;       ///< degrees, positive north
    double longitude = 0.0;      ///< degrees, positive east
    std::uint32_t region = 0;    ///< index in the regions of the list
    int zone = 0;                ///< index in the zone table
    std::uint32_t population = 0;
    bool own = false; ///< from the user's additions
};

/// What reading a list found.
struct PlaceListReport
{
    long places = 0;
    long skipped = 0;          ///< lines left out
    long firstSkippedLine = 0; ///< 1-based; 0 when there is none
};

/// One name of a place in the order of the search keys.
struct PlaceKey
{
    std::uint32_t offset; ///< of the key in the text of all keys
    std::uint32_t length;
    std::uint32_t place;
};

class PlaceList
{
public:
    PlaceList() = default;
    PlaceList(PlaceList&&) = default;
    PlaceList& operator=(PlaceList&&) = default;
    PlaceList(const PlaceList&) = delete; ///< the texts of the places point into the list
    PlaceList& operator=(const PlaceList&) = delete;

    /// Adds the places of a text of docs/places.md; `own` marks the user's additions. Lines that
    /// do not fit are skipped and counted: wrong number of fields, no name, coordinates outside
    /// the Earth, a zone that does not exist.
    PlaceListReport addText(std::string text, const ZoneTable& zones, bool own);

    /// Keeps a text as long as the list lives.
    std::string_view keep(std::string text);
    /// The number of a region, which is added when it is new. The texts must be kept.
    [[nodiscard]] std::uint32_t region(std::string_view country, std::string_view code,
                                       std::string_view name);
    /// Adds a place whose texts are kept and whose region and zone exist.
    void add(const Place& place)
    {
        places_.push_back(place);
    }
    /// Makes the keys of all names. Nothing is found before, nor after adding more.
    void buildKeys();

    [[nodiscard]] std::span<const Place> places() const
    {
        return places_;
    }
    [[nodiscard]] std::span<const Region> regions() const
    {
        return regions_;
    }
    [[nodiscard]] const Region& regionOf(const Place& place) const
    {
        return regions_[place.region];
    }

    /// The names that equal the search key, and those that begin with it, the equal ones first.
    [[nodiscard]] std::span<const PlaceKey> equalTo(std::string_view key) const;
    [[nodiscard]] std::span<const PlaceKey> beginningWith(std::string_view key) const;

private:
    [[nodiscard]] std::string_view keyText(const PlaceKey& key) const
    {
        return std::string_view(keyTexts_).substr(key.offset, key.length);
    }
    bool addLine(std::string_view line, const ZoneTable& zones, bool own);
    void addKey(std::string_view name, std::uint32_t place);

    std::deque<std::string> texts_; ///< a deque, because its texts stay where they are
    std::vector<Place> places_;
    std::vector<Region> regions_;
    std::map<std::string, std::uint32_t> regionNumbers_;
    std::string keyTexts_;
    std::vector<PlaceKey> keys_;
};

} // namespace kestrav::data
