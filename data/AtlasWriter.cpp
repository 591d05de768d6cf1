#include "data/AtlasWriter.h"

#include "data/AtlasLayout.h"
#include "data/PlaceText.h"
#include "data/TextFields.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace kestrav::data
{

namespace
{

using Bytes = std::vector<std::uint8_t>;

constexpr std::string_view kUnitedStates = "US";

void append(Bytes& bytes, std::string_view text)
{
    bytes.insert(bytes.end(), text.begin(), text.end());
}

std::uint32_t number(std::size_t value)
{
    return static_cast<std::uint32_t>(value);
}

std::uint16_t shortNumber(std::size_t value)
{
    return static_cast<std::uint16_t>(value);
}

// Gathers the names of a file; equal ones are kept once. Their offsets are final only when the
// sizes of all tables before them are known, so they are given from the beginning of the names.
class Names
{
public:
    std::uint32_t offset(std::string_view name)
    {
        const auto [entry, isNew] = known_.emplace(std::string(name), number(bytes_.size()));
        if (isNew) {
            append(bytes_, name);
            bytes_.push_back(0);
        }
        return entry->second;
    }
    [[nodiscard]] const Bytes& bytes() const
    {
        return bytes_;
    }

private:
    std::map<std::string, std::uint32_t> known_;
    Bytes bytes_;
};

std::vector<std::uint32_t> sortedPlaces(const Places& places, bool unitedStates)
{
    const std::span<const Place> all = places.list().places();
    std::vector<std::pair<std::string, std::uint32_t>> keyed;
    for (std::uint32_t i = 0; i < all.size(); ++i) {
        if ((places.list().regionOf(all[i]).country == kUnitedStates) == unitedStates) {
            keyed.emplace_back(foldName(all[i].name), i);
        }
    }
    std::sort(keyed.begin(), keyed.end());
    std::vector<std::uint32_t> order;
    order.reserve(keyed.size());
    for (const auto& [key, place] : keyed) {
        order.push_back(place);
    }
    return order;
}

void appendPlace(Bytes& records, const Place& place, std::uint32_t name)
{
    core::appendInteger(records, name);
    for (const double degrees : {place.latitude, place.longitude}) {
        core::appendInteger(records,
                            static_cast<std::int32_t>(std::llround(degrees * kUnitsPerDegree)));
    }
    core::appendInteger(records, shortNumber(place.region));
    core::appendInteger(records, shortNumber(static_cast<std::size_t>(place.zone)));
    core::appendInteger(records, place.population);
}

// ---- "ACSUA.DAT", "ACSIA.DAT" ------------------------------------------------------------------

Bytes placeFile(const Places& places, const std::vector<std::uint32_t>& order)
{
    const std::span<const Region> regions = places.list().regions();
    const auto zones = static_cast<std::size_t>(places.zones().size());
    AtlasHead head;
    head.recordSize = kPlaceRecordSize;
    head.regions = shortNumber(regions.size());
    head.zones = shortNumber(zones);
    head.records = number(order.size());
    head.regionTable = kAtlasHeadSize;
    head.zoneTable = number(head.regionTable + regions.size() * kRegionSize);
    head.recordTable = number(head.zoneTable + zones * kZoneNameSize);
    head.nameTable = number(head.recordTable + order.size() * kPlaceRecordSize);

    Names names;
    Bytes body;
    for (const Region& region : regions) {
        core::appendInteger(body, head.nameTable + names.offset(region.code));
        core::appendInteger(body, head.nameTable + names.offset(region.name));
        append(body, region.country);
        core::appendInteger(body, std::uint16_t{0});
    }
    for (int zone = 0; zone < places.zones().size(); ++zone) {
        core::appendInteger(body, head.nameTable + names.offset(places.zones().name(zone)));
    }
    for (const std::uint32_t each : order) {
        const Place& place = places.place(each);
        std::string name(place.name);
        if (!place.otherNames.empty()) {
            name.append("\t").append(place.otherNames);
        }
        appendPlace(body, place, head.nameTable + names.offset(name));
    }
    body.insert(body.end(), names.bytes().begin(), names.bytes().end());
    return withHead(kPlaceMagic, head, body);
}

Bytes nameList(const Places& places, const std::vector<std::uint32_t>& order)
{
    Bytes lines;
    for (const std::uint32_t each : order) {
        append(lines, places.place(each).name);
        append(lines, "\n");
    }
    return lines;
}

// ---- time tables -------------------------------------------------------------------------------

struct TimeTables
{
    Bytes rules; ///< offsets from the beginning of the names
    Bytes zones;
    Bytes changes; ///< the savings follow the changes
    Bytes names;
    AtlasHead head;
};

// The offsets of names count from `namesAt`.
TimeTables timeTables(const ZoneTable& zones, bool shared)
{
    TimeTables tables;
    Names names;
    std::map<std::string, std::size_t> ruleNumbers;
    for (int zone = 0; zone < zones.size(); ++zone) {
        ruleNumbers.emplace(zones.ruleText(zone), 0);
    }
    const std::size_t ruleBytes = ruleNumbers.size() * kRuleSize;
    const std::size_t zoneBytes = static_cast<std::size_t>(zones.size()) * kZoneSize;
    std::size_t changeCount = 0;
    Bytes savings;
    for (int zone = 0; zone < zones.size(); ++zone) {
        for (const ZoneChange& change : zones.changes(zone)) {
            core::appendInteger(tables.changes, change.moment);
            core::appendInteger(tables.changes, change.total);
            core::appendInteger(savings, change.localMean ? kLocalMeanSaving : change.saving);
            ++changeCount;
        }
    }
    tables.changes.insert(tables.changes.end(), savings.begin(), savings.end());

    tables.head.recordSize = kChangeSize;
    tables.head.regions = shortNumber(ruleNumbers.size());
    tables.head.zones = shortNumber(static_cast<std::size_t>(zones.size()));
    tables.head.records = number(changeCount);
    tables.head.regionTable = kAtlasHeadSize;
    tables.head.zoneTable = number(kAtlasHeadSize + ruleBytes);
    tables.head.recordTable = number(tables.head.zoneTable + zoneBytes);
    tables.head.nameTable = number(tables.head.recordTable + (shared ? 0 : tables.changes.size()));

    // The source is the first name.
    (void)names.offset(zones.source());
    std::size_t next = 0;
    for (auto& [rule, ruleNumber] : ruleNumbers) {
        ruleNumber = next++;
        core::appendInteger(tables.rules, tables.head.nameTable + names.offset(rule));
    }
    std::size_t first = 0;
    for (int zone = 0; zone < zones.size(); ++zone) {
        const std::size_t count = zones.changes(zone).size();
        core::appendInteger(tables.zones, tables.head.nameTable + names.offset(zones.name(zone)));
        core::appendInteger(tables.zones, number(first));
        core::appendInteger(tables.zones, shortNumber(count));
        core::appendInteger(tables.zones, shortNumber(ruleNumbers[zones.ruleText(zone)]));
        first += count;
    }
    tables.names = names.bytes();
    return tables;
}

Bytes joined(std::initializer_list<const Bytes*> parts)
{
    Bytes all;
    for (const Bytes* const part : parts) {
        all.insert(all.end(), part->begin(), part->end());
    }
    return all;
}

Bytes timeFile(const ZoneTable& zones)
{
    const TimeTables tables = timeTables(zones, false);
    return withHead(kTimeMagic, tables.head,
                    joined({&tables.rules, &tables.zones, &tables.changes, &tables.names}));
}

Bytes timeIndexFile(const ZoneTable& zones)
{
    TimeTables tables = timeTables(zones, true);
    tables.head.flags = kSharedTables;
    return withHead(kTimeIndexMagic, tables.head,
                    joined({&tables.rules, &tables.zones, &tables.names}));
}

Bytes changesFile(const ZoneTable& zones)
{
    const TimeTables tables = timeTables(zones, true);
    AtlasHead head;
    head.recordSize = kChangeSize;
    head.flags = kSharedTables;
    head.records = tables.head.records;
    head.regionTable = head.zoneTable = head.recordTable = kAtlasHeadSize;
    head.nameTable = number(kAtlasHeadSize + tables.changes.size());
    return withHead(kTimeMagic, head, tables.changes);
}

// ---- the indexed set ---------------------------------------------------------------------------

// A file of records only.
Bytes recordFile(std::string_view magic, std::size_t recordSize, const Bytes& records)
{
    AtlasHead head;
    head.recordSize = shortNumber(recordSize);
    head.flags = kSharedTables;
    head.records = number(records.size() / recordSize);
    head.regionTable = head.zoneTable = head.recordTable = kAtlasHeadSize;
    head.nameTable = number(kAtlasHeadSize + records.size());
    return withHead(magic, head, records);
}

void addIndexedPlaces(const Places& places, bool unitedStates, std::vector<AtlasFileBytes>& files)
{
    struct Entry
    {
        std::string key;
        std::uint32_t record;
        bool main;
        std::string_view name;
    };
    const std::vector<std::uint32_t> order = sortedPlaces(places, unitedStates);
    std::vector<Entry> entries;
    for (std::uint32_t record = 0; record < order.size(); ++record) {
        const Place& place = places.place(order[record]);
        entries.push_back({foldName(place.name), record, true, place.name});
        for (std::string_view others = place.otherNames; !others.empty();) {
            const std::string_view other = takeUpTo(others, ';');
            entries.push_back({foldName(other), record, false, other});
        }
    }
    std::stable_sort(entries.begin(), entries.end(),
                     [](const Entry& a, const Entry& b) { return a.key < b.key; });

    Bytes index;
    Bytes lines;
    std::vector<std::uint32_t> lineOf(order.size());
    for (std::uint32_t line = 0; line < entries.size(); ++line) {
        const Entry& entry = entries[line];
        std::string key = entry.key;
        key.resize(kIndexKeySize);
        append(index, key);
        core::appendInteger(index, entry.record);
        append(lines, entry.name);
        append(lines, "\n");
        if (entry.main) {
            lineOf[entry.record] = line;
        }
    }
    Bytes records;
    for (std::uint32_t record = 0; record < order.size(); ++record) {
        appendPlace(records, places.place(order[record]), lineOf[record]);
    }
    const std::string side = unitedStates ? "USA" : "INT";
    files.push_back({side + "NDX.BIN", recordFile(kNameIndexMagic, kIndexRecordSize, index)});
    files.push_back({side + "NDX.TXT", std::move(lines)});
    files.push_back({side + "ATL.BIN", recordFile(kPlaceMagic, kPlaceRecordSize, records)});
}

void addCounties(const Places& places, std::vector<AtlasFileBytes>& files)
{
    Bytes counties;
    std::array<Bytes, 2> lines;
    std::array<std::uint32_t, 2> counts = {};
    for (const Region& region : places.list().regions()) {
        const std::size_t side = region.country == kUnitedStates ? 0 : 1;
        append(counties, region.country);
        core::appendInteger(counties, shortNumber(side));
        core::appendInteger(counties, counts[side]++);
        append(lines[side], region.code);
        append(lines[side], "\t");
        append(lines[side], region.name);
        append(lines[side], "\n");
    }
    files.push_back({"COUNTY.BIN", recordFile(kCountyMagic, kCountySize, counties)});
    files.push_back({"CNTYUSA.TXT", std::move(lines[0])});
    files.push_back({"CNTYINT.TXT", std::move(lines[1])});
}

} // namespace

std::vector<AtlasFileBytes> makeAtlasFiles(const Places& places, AtlasVersion version)
{
    std::vector<AtlasFileBytes> files;
    if (version == AtlasVersion::Indexed) {
        addIndexedPlaces(places, true, files);
        addIndexedPlaces(places, false, files);
        addCounties(places, files);
        files.push_back({"TIMNDX.BIN", timeIndexFile(places.zones())});
        files.push_back({"TIMTAB.BIN", changesFile(places.zones())});
        return files;
    }
    const std::vector<std::uint32_t> inside = sortedPlaces(places, true);
    const std::vector<std::uint32_t> outside = sortedPlaces(places, false);
    files.push_back({"ACSUA.DAT", placeFile(places, inside)});
    files.push_back({"ACSIA.DAT", placeFile(places, outside)});
    files.push_back({"ACSTT.DAT", timeFile(places.zones())});
    files.push_back({"ksvua.nam", nameList(places, inside)});
    files.push_back({"ksvia.nam", nameList(places, outside)});
    return files;
}

} // namespace kestrav::data
