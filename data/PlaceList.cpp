#include "data/PlaceList.h"

#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/PlaceText.h"
#include "data/TextFields.h"

#include <algorithm>
#include <cmath>

namespace kestrav::data
{

namespace
{

constexpr std::size_t kLongestLine = std::size_t{64} << 10;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The fields of a line in their order.
enum Field : std::size_t
{
    kName,
    kOtherNames,
    kRegionCode,
    kRegionName,
    kCountry,
    kLatitude,
    kLongitude,
    kZone,
    kPopulation,
    kFieldCount,
};

bool readCoordinate(std::string_view text, double largest, double& degrees)
{
    const std::optional<double> value = core::parseNumber(text);
    degrees = value.value_or(0.0);
    return value && std::fabs(degrees) <= largest;
}

bool readPopulation(std::string_view text, std::uint32_t& population)
{
    const std::optional<int> value = text.empty() ? 0 : core::parseInteger(text);
    population = static_cast<std::uint32_t>(std::max(value.value_or(0), 0));
    return value && *value >= 0;
}

bool hasControlCharacter(std::string_view line)
{
    return std::any_of(line.begin(), line.end(),
                       [](char c) { return (c >= '\0' && c < ' ' && c != '\t') || c == '\x7F'; });
}

bool validCountry(std::string_view code)
{
    return code.size() == 2 && code[0] >= 'A' && code[0] <= 'Z' && code[1] >= 'A' && code[1] <= 'Z';
}

} // namespace

std::string_view PlaceList::keep(std::string text)
{
    return texts_.emplace_back(std::move(text));
}

std::uint32_t PlaceList::region(std::string_view country, std::string_view code,
                                std::string_view name)
{
    std::string key(country);
    key.append("\t").append(code).append("\t").append(name);
    const auto [entry, isNew] =
        regionNumbers_.emplace(std::move(key), static_cast<std::uint32_t>(regions_.size()));
    if (isNew) {
        regions_.push_back({country, code, name, foldName(name)});
    }
    return entry->second;
}

bool PlaceList::addLine(std::string_view line, const ZoneTable& zones, bool own)
{
    std::array<std::string_view, kFieldCount> fields;
    Place place;
    if (line.size() > kLongestLine || hasControlCharacter(line) ||
        !splitFields(line, '\t', fields) || foldName(fields[kName]).empty() ||
        !validCountry(fields[kCountry]) ||
        !readCoordinate(fields[kLatitude], 90.0, place.latitude) ||
        !readCoordinate(fields[kLongitude], 180.0, place.longitude) ||
        !readPopulation(fields[kPopulation], place.population)) {
        return false;
    }
    const std::optional<int> zone = zones.find(fields[kZone]);
    if (!zone) {
        return false;
    }
    place.name = fields[kName];
    place.otherNames = fields[kOtherNames];
    place.region = region(fields[kCountry], fields[kRegionCode], fields[kRegionName]);
    place.zone = *zone;
    place.own = own;
    add(place);
    return true;
}

PlaceListReport PlaceList::addText(std::string text, const ZoneTable& zones, bool own)
{
    PlaceListReport report;
    std::string_view rest = keep(std::move(text));
    if (rest.starts_with(kByteOrderMark)) {
        rest.remove_prefix(kByteOrderMark.size());
    }
    for (long number = 1; !rest.empty(); ++number) {
        std::string_view line = takeLine(rest);
        if (line.empty() || line.front() == '#') {
            continue;
        }
        if (!core::fromUtf8(line)) {
            line = keep(core::toUtf8(core::fromFileBytes(line)));
        }
        if (addLine(line, zones, own)) {
            ++report.places;
            continue;
        }
        ++report.skipped;
        if (report.firstSkippedLine == 0) {
            report.firstSkippedLine = number;
        }
    }
    return report;
}

void PlaceList::addKey(std::string_view name, std::uint32_t place)
{
    const std::string key = foldName(name);
    if (!key.empty()) {
        keys_.push_back({static_cast<std::uint32_t>(keyTexts_.size()),
                         static_cast<std::uint32_t>(key.size()), place});
        keyTexts_ += key;
    }
}

void PlaceList::buildKeys()
{
    keys_.clear();
    keyTexts_.clear();
    for (std::size_t i = 0; i < places_.size(); ++i) {
        const auto number = static_cast<std::uint32_t>(i);
        addKey(places_[i].name, number);
        for (std::string_view others = places_[i].otherNames; !others.empty();) {
            addKey(takeUpTo(others, ';'), number);
        }
    }
    std::sort(keys_.begin(), keys_.end(), [this](const PlaceKey& a, const PlaceKey& b) {
        const int order = keyText(a).compare(keyText(b));
        return order != 0 ? order < 0 : a.place < b.place;
    });
}

std::span<const PlaceKey> PlaceList::equalTo(std::string_view key) const
{
    const std::span<const PlaceKey> all = beginningWith(key);
    const auto end = std::find_if(all.begin(), all.end(),
                                  [&](const PlaceKey& each) { return each.length != key.size(); });
    return all.first(static_cast<std::size_t>(end - all.begin()));
}

std::span<const PlaceKey> PlaceList::beginningWith(std::string_view key) const
{
    const auto first = std::lower_bound(
        keys_.begin(), keys_.end(), key,
        [this](const PlaceKey& each, std::string_view wanted) { return keyText(each) < wanted; });
    const auto end = std::upper_bound(first, keys_.end(), key,
                                      [this](std::string_view wanted, const PlaceKey& each) {
                                          return wanted < keyText(each).substr(0, wanted.size());
                                      });
    return {first, end};
}

} // namespace kestrav::data
