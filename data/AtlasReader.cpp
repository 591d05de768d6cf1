#include "data/AtlasReader.h"

#include "core/FileText.h"
#include "data/AtlasLayout.h"
#include "data/PlaceText.h"
#include "data/TextFields.h"

#include <algorithm>
#include <cmath>

namespace kestrav::data
{

namespace
{

core::Error damaged(const char* what)
{
    return core::Error{std::string("the atlas file has a wrong ") + what};
}

bool validText(std::string_view text)
{
    return core::fromUtf8(text).has_value() && std::none_of(text.begin(), text.end(), [](char c) {
               return (c >= '\0' && c < ' ') || c == '\x7F';
           });
}

std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        lines.push_back(takeLine(text));
    }
    return lines;
}

// ---- time tables -------------------------------------------------------------------------------

core::Result<std::vector<ZoneChange>> readChanges(const AtlasFile& file)
{
    const AtlasHead& head = file.head();
    if (!file.holds(head.recordTable, head.records, kChangeSize + kSavingSize)) {
        return damaged("table of changes");
    }
    const std::size_t savings = head.recordTable + std::size_t{head.records} * kChangeSize;
    std::vector<ZoneChange> changes(head.records);
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const std::size_t at = head.recordTable + i * kChangeSize;
        const auto saving = file.read<std::int16_t>(savings + i * kSavingSize);
        changes[i].moment = file.read<std::int64_t>(at);
        changes[i].total = file.read<std::int32_t>(at + 8);
        changes[i].localMean = saving == kLocalMeanSaving;
        changes[i].saving = changes[i].localMean ? std::int16_t{0} : saving;
    }
    return changes;
}

core::Result<ZoneTable> readZones(const AtlasFile& file, std::span<const ZoneChange> changes)
{
    const AtlasHead& head = file.head();
    if (!file.holds(head.regionTable, head.regions, kRuleSize) ||
        !file.holds(head.zoneTable, head.zones, kZoneSize)) {
        return damaged("table of zones");
    }
    ZoneTable table;
    table.setSource(file.name(head.nameTable).value_or(std::string_view{}));
    for (std::size_t i = 0; i < head.zones; ++i) {
        const std::size_t at = head.zoneTable + i * kZoneSize;
        const std::optional<std::string_view> name = file.name(file.read<std::uint32_t>(at));
        const std::uint64_t first = file.read<std::uint32_t>(at + 4);
        const std::uint64_t count = file.read<std::uint16_t>(at + 8);
        const std::size_t rule = file.read<std::uint16_t>(at + 10);
        if (!name || first + count > changes.size() || rule >= head.regions) {
            return damaged("zone");
        }
        const std::optional<std::string_view> ruleText =
            file.name(file.read<std::uint32_t>(head.regionTable + rule * kRuleSize));
        const core::Result<void> added =
            table.add(*name, changes.subspan(first, count), ruleText.value_or(std::string_view{}));
        if (!added) {
            return added.error();
        }
    }
    return table;
}

// ---- places ------------------------------------------------------------------------------------

// The record at an offset, without its texts; `nameField` is where or which its name is.
bool readRecord(const AtlasFile& file, std::size_t at, Place& place, std::uint32_t& nameField)
{
    nameField = file.read<std::uint32_t>(at);
    place.latitude = file.read<std::int32_t>(at + 4) / kUnitsPerDegree;
    place.longitude = file.read<std::int32_t>(at + 8) / kUnitsPerDegree;
    place.region = file.read<std::uint16_t>(at + 12);
    place.zone = file.read<std::uint16_t>(at + 14);
    place.population = file.read<std::uint32_t>(at + 16);
    return std::fabs(place.latitude) <= 90.0 && std::fabs(place.longitude) <= 180.0;
}

} // namespace

core::Result<ZoneTable> readTimeFile(std::string_view bytes)
{
    const core::Result<AtlasFile> file = AtlasFile::open(bytes, kTimeMagic, kChangeSize);
    if (!file) {
        return file.error();
    }
    const core::Result<std::vector<ZoneChange>> changes = readChanges(file.value());
    if (!changes) {
        return changes.error();
    }
    return readZones(file.value(), changes.value());
}

core::Result<ZoneTable> readTimeFiles(std::string_view index, std::string_view changes)
{
    const core::Result<AtlasFile> zones = AtlasFile::open(index, kTimeIndexMagic, kChangeSize);
    const core::Result<AtlasFile> table = AtlasFile::open(changes, kTimeMagic, kChangeSize);
    if (!zones || !table) {
        return !zones ? zones.error() : table.error();
    }
    const core::Result<std::vector<ZoneChange>> read = readChanges(table.value());
    if (!read) {
        return read.error();
    }
    // The index counts the changes of the table that it belongs to.
    if (zones.value().head().records != read.value().size()) {
        return damaged("number of changes");
    }
    return readZones(zones.value(), read.value());
}

core::Result<void> readPlaceFile(std::string bytes, std::string nameList, const ZoneTable& zones,
                                 PlaceList& list)
{
    const core::Result<AtlasFile> opened =
        AtlasFile::open(list.keep(std::move(bytes)), kPlaceMagic, kPlaceRecordSize);
    if (!opened) {
        return opened.error();
    }
    const AtlasFile& file = opened.value();
    const AtlasHead& head = file.head();
    if (!file.holds(head.regionTable, head.regions, kRegionSize) ||
        !file.holds(head.zoneTable, head.zones, kZoneNameSize) ||
        !file.holds(head.recordTable, head.records, kPlaceRecordSize)) {
        return damaged("table");
    }
    std::vector<std::uint32_t> regions;
    for (std::size_t i = 0; i < head.regions; ++i) {
        const std::size_t at = head.regionTable + i * kRegionSize;
        const std::optional<std::string_view> code = file.name(file.read<std::uint32_t>(at));
        const std::optional<std::string_view> name = file.name(file.read<std::uint32_t>(at + 4));
        if (!code || !name || !validText(*name)) {
            return damaged("region");
        }
        regions.push_back(list.region(file.text(at + 8, 2), *code, *name));
    }
    std::vector<int> zoneNumbers;
    for (std::size_t i = 0; i < head.zones; ++i) {
        const std::optional<std::string_view> name =
            file.name(file.read<std::uint32_t>(head.zoneTable + i * kZoneNameSize));
        const std::optional<int> zone = name ? zones.find(*name) : std::nullopt;
        if (!zone) {
            return damaged("zone");
        }
        zoneNumbers.push_back(*zone);
    }
    std::vector<std::string_view> ownNames = linesOf(list.keep(std::move(nameList)));
    if (ownNames.size() != head.records) {
        ownNames.clear();
    }
    for (std::size_t i = 0; i < head.records; ++i) {
        Place place;
        std::uint32_t nameAt = 0;
        if (!readRecord(file, head.recordTable + i * kPlaceRecordSize, place, nameAt) ||
            place.region >= regions.size() || std::size_t(place.zone) >= zoneNumbers.size()) {
            return damaged("record");
        }
        std::string_view names = file.name(nameAt).value_or(std::string_view{});
        place.name = takeUpTo(names, '\t');
        place.otherNames = names;
        if (!ownNames.empty() && validText(ownNames[i]) && !ownNames[i].empty()) {
            place.name = ownNames[i];
        }
        if (place.name.empty() || !validText(place.name) || !validText(place.otherNames)) {
            return damaged("name");
        }
        place.region = regions[place.region];
        place.zone = zoneNumbers[std::size_t(place.zone)];
        list.add(place);
    }
    return {};
}

core::Result<std::vector<std::uint32_t>> readCountyFiles(std::string_view counties,
                                                         std::string usaNames,
                                                         std::string otherNames, PlaceList& list)
{
    const core::Result<AtlasFile> opened = AtlasFile::open(counties, kCountyMagic, kCountySize);
    if (!opened) {
        return opened.error();
    }
    const AtlasFile& file = opened.value();
    const AtlasHead& head = file.head();
    if (!file.holds(head.recordTable, head.records, kCountySize)) {
        return damaged("table of counties");
    }
    const std::array<std::vector<std::string_view>, 2> lines = {
        linesOf(list.keep(std::move(usaNames))), linesOf(list.keep(std::move(otherNames)))};
    std::vector<std::uint32_t> regions;
    for (std::size_t i = 0; i < head.records; ++i) {
        const std::size_t at = head.recordTable + i * kCountySize;
        const std::size_t side = file.read<std::uint16_t>(at + 2);
        const std::size_t line = file.read<std::uint32_t>(at + 4);
        std::array<std::string_view, 2> fields;
        if (side > 1 || line >= lines[side].size() ||
            !splitFields(lines[side][line], '\t', fields) || !validText(fields[1])) {
            return damaged("county");
        }
        const std::string_view country = list.keep(std::string(file.text(at, 2)));
        regions.push_back(list.region(country, fields[0], fields[1]));
    }
    return regions;
}

core::Result<void> readIndexedPlaces(std::string_view records, std::string_view index,
                                     std::string names, const ZoneTable& zones,
                                     const std::vector<std::uint32_t>& regions, PlaceList& list)
{
    const core::Result<AtlasFile> placeFile =
        AtlasFile::open(records, kPlaceMagic, kPlaceRecordSize);
    const core::Result<AtlasFile> indexFile =
        AtlasFile::open(index, kNameIndexMagic, kIndexRecordSize);
    if (!placeFile || !indexFile) {
        return !placeFile ? placeFile.error() : indexFile.error();
    }
    const AtlasHead& head = placeFile.value().head();
    const AtlasHead& indexHead = indexFile.value().head();
    const std::vector<std::string_view> lines = linesOf(list.keep(std::move(names)));
    if (!placeFile.value().holds(head.recordTable, head.records, kPlaceRecordSize) ||
        !indexFile.value().holds(indexHead.recordTable, indexHead.records, kIndexRecordSize) ||
        lines.size() != indexHead.records) {
        return damaged("table");
    }

    // Every line is a name of the record that its entry of the index says.
    std::vector<std::uint32_t> recordOf(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::size_t at = indexHead.recordTable + i * kIndexRecordSize;
        std::string key = foldName(lines[i]);
        key.resize(kIndexKeySize);
        recordOf[i] = indexFile.value().read<std::uint32_t>(at + kIndexKeySize);
        if (!validText(lines[i]) || recordOf[i] >= head.records ||
            key != indexFile.value().text(at, kIndexKeySize)) {
            return damaged("entry of the index");
        }
    }
    std::vector<Place> places(head.records);
    std::vector<std::uint32_t> lineOf(head.records);
    for (std::size_t i = 0; i < places.size(); ++i) {
        Place& place = places[i];
        if (!readRecord(placeFile.value(), head.recordTable + i * kPlaceRecordSize, place,
                        lineOf[i]) ||
            place.region >= regions.size() || place.zone >= zones.size() ||
            lineOf[i] >= lines.size() || recordOf[lineOf[i]] != i || lines[lineOf[i]].empty()) {
            return damaged("record");
        }
        place.name = lines[lineOf[i]];
        place.region = regions[place.region];
    }
    std::vector<std::string> others(head.records);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lineOf[recordOf[i]] != i) {
            std::string& text = others[recordOf[i]];
            text.append(text.empty() ? "" : ";").append(lines[i]);
        }
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (!others[i].empty()) {
            places[i].otherNames = list.keep(std::move(others[i]));
        }
        list.add(places[i]);
    }
    return {};
}

} // namespace kestrav::data
