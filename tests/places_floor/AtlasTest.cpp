#include "data/AtlasWriter.h"

#include "data/AtlasLayout.h"
#include "data/AtlasReader.h"
#include "data/PlaceLookup.h"
#include "tests/data_floor/Folders.h"
#include "tests/data_floor/PreparedMessages.h"
#include "tests/places_floor/ShippedLists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>

namespace kestrav::data
{
namespace
{

CountryList countries()
{
    return CountryList::parse(resourceText("countries.txt"));
}

std::string textOf(const std::vector<std::uint8_t>& bytes)
{
    return {bytes.begin(), bytes.end()};
}

class Atlas : public FolderTest, public testing::WithParamInterface<AtlasVersion>
{
protected:
    void write() const
    {
        for (const AtlasFileBytes& file : makeAtlasFiles(shippedPlaces(), GetParam())) {
            put(file.name, textOf(file.bytes));
        }
    }
};

INSTANTIATE_TEST_SUITE_P(BothSets, Atlas,
                         testing::Values(AtlasVersion::Plain, AtlasVersion::Indexed));

// What was written is read back whole: places, names and every change of every zone.
TEST_P(Atlas, holdsWhatTheListsHold)
{
    write();
    for (const std::string_view name : atlasFileNames(GetParam())) {
        EXPECT_TRUE(names().contains(std::string(name))) << name;
    }
    const auto atlas = readAtlas(folder, GetParam(), countries());
    ASSERT_TRUE(atlas) << atlas.error().text();
    const ZoneTable& zones = atlas.value().zones();
    const ZoneTable& shipped = shippedPlaces().zones();
    ASSERT_EQ(zones.size(), shipped.size());
    EXPECT_EQ(zones.source(), shipped.source());
    const auto same = [](const ZoneChange& a, const ZoneChange& b) {
        return a.moment == b.moment && a.total == b.total && a.saving == b.saving &&
               a.localMean == b.localMean;
    };
    for (int zone = 0; zone < zones.size(); ++zone) {
        EXPECT_EQ(zones.name(zone), shipped.name(zone));
        EXPECT_EQ(zones.ruleText(zone), shipped.ruleText(zone));
        const auto a = zones.changes(zone);
        const auto b = shipped.changes(zone);
        EXPECT_TRUE(std::equal(a.begin(), a.end(), b.begin(), b.end(), same)) << zones.name(zone);
    }

    const auto described = [](const Places& places) {
        std::vector<std::string> all;
        for (const Place& place : places.list().places()) {
            const Region& region = places.list().regionOf(place);
            // The order of the other names is not kept by the index.
            std::string others(place.otherNames);
            std::sort(others.begin(), others.end());
            all.push_back(std::string(place.name) + '|' + others + '|' + std::string(region.code) +
                          '|' + std::string(region.name) + '|' + std::string(region.country) + '|' +
                          std::to_string(std::llround(place.latitude * 1e4)) + '|' +
                          std::to_string(std::llround(place.longitude * 1e4)) + '|' +
                          places.zones().name(place.zone) + '|' + std::to_string(place.population));
        }
        std::sort(all.begin(), all.end());
        return all;
    };
    EXPECT_EQ(described(atlas.value()), described(shippedPlaces()));
}

TEST_P(Atlas, answersLikeTheLists)
{
    write();
    const auto atlas = readAtlas(folder / atlasFileToClick(GetParam()), GetParam(), countries());
    ASSERT_TRUE(atlas) << atlas.error().text();
    PlaceRequest request;
    request.local.year = 1943;
    for (const wchar_t* const city : {L"Benares", L"Eugene", L"Kochi", L"London", L"s"}) {
        for (const wchar_t* const where : {L"", L"India", L"OR", L"USA", L"ORE", L"UK"}) {
            request.city = city;
            request.countryOrState = where;
            const PlaceLookup a = lookUpPlace(atlas.value(), request);
            const PlaceLookup b = lookUpPlace(shippedPlaces(), request);
            EXPECT_EQ(a.code, b.code);
            EXPECT_EQ(a.matches.size(), b.matches.size());
            EXPECT_EQ(a.answer.name, b.answer.name);
            EXPECT_NEAR(a.answer.longitude, b.answer.longitude, 1e-9);
            EXPECT_EQ(a.answer.time.zone, b.answer.time.zone);
            EXPECT_EQ(a.answer.time.daylightSaving, b.answer.time.daylightSaving);
        }
    }
}

TEST_P(Atlas, namesTheFileThatCannotBeRead)
{
    PreparedMessages messages;
    EXPECT_FALSE(openAtlas(folder / "nowhere", GetParam(), countries(), messages));
    messages.shown.clear();
    write();
    for (const std::string_view name : atlasFileNames(GetParam())) {
        const std::string kept = get(std::string(name));
        std::filesystem::remove(folder / name);
        EXPECT_FALSE(openAtlas(folder, GetParam(), countries(), messages)) << name;
        messages.expectOne(L"Error", L"Unable to open " + std::wstring(name.begin(), name.end()) +
                                         L" for reading\n");
        put(std::string(name), kept);
    }
    EXPECT_TRUE(openAtlas(folder, GetParam(), countries(), messages));
    EXPECT_TRUE(messages.shown.empty());
}

// Files of another origin, cut ones and damaged ones are refused, whatever the damage.
TEST_P(Atlas, refusesDamagedFiles)
{
    write();
    for (const std::string_view name : atlasFileNames(GetParam())) {
        if (name.ends_with(".TXT")) {
            continue;
        }
        const std::string whole = get(std::string(name));
        std::vector<std::string> damaged = {"",
                                            "KSPL",
                                            whole.substr(0, 47),
                                            whole.substr(0, whole.size() - 1),
                                            whole + "x",
                                            std::string(5000, 'A')};
        for (const std::size_t at : {std::size_t{0}, std::size_t{4}, std::size_t{8},
                                     std::size_t{19}, std::size_t{48}, whole.size() - 2}) {
            std::string changed = whole;
            changed[at] = char(changed[at] ^ 0x41);
            damaged.push_back(changed);
        }
        for (const std::string& bytes : damaged) {
            put(std::string(name), bytes);
            EXPECT_FALSE(readAtlas(folder, GetParam(), countries())) << name << bytes.size();
        }
        put(std::string(name), whole);
    }
    EXPECT_TRUE(readAtlas(folder, GetParam(), countries()));
}

class PlainAtlas : public FolderTest
{};

TEST_F(PlainAtlas, takesItsNamesFromAWholeNameList)
{
    for (const AtlasFileBytes& file : makeAtlasFiles(shippedPlaces(), AtlasVersion::Plain)) {
        std::string name = file.name;
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char c) { return char(std::tolower(c)); });
        put(name, textOf(file.bytes));
    }
    std::string list = get("ksvia.nam");
    const std::size_t at = list.find("\nVaranasi\n");
    ASSERT_NE(at, std::string::npos);
    put("ksvia.nam", list.replace(at, 10, "\nKashi City\n"));
    const auto renamed = readAtlas(folder, AtlasVersion::Plain, countries());
    ASSERT_TRUE(renamed) << renamed.error().text();
    EXPECT_EQ(renamed.value().find(L"Kashi City", L"India").code, LookupCode::Found);
    EXPECT_EQ(renamed.value().find(L"Benares", L"India").code, LookupCode::Found);
    // A list of another length belongs to another file.
    put("ksvia.nam", list + "one more\n");
    const auto other = readAtlas(folder, AtlasVersion::Plain, countries());
    ASSERT_TRUE(other);
    EXPECT_EQ(other.value().find(L"Kashi City", L"India").code, LookupCode::None);
}

// With a right checksum the tables themselves are checked: each case damages one number.
TEST(AtlasFile, checksEveryNumberOfTheTables)
{
    const auto files = makeAtlasFiles(shippedPlaces(), AtlasVersion::Plain);
    const ZoneTable& zones = shippedPlaces().zones();
    const auto resealed = [](std::string bytes) {
        std::vector<std::uint8_t> body(bytes.begin() + kAtlasHeadSize, bytes.end());
        const std::string head = textOf(withHead("KSPL", AtlasHead{}, body));
        return bytes.replace(36, 8, head, 36, 8);
    };
    const std::string places = textOf(files[0].bytes);
    const std::string times = textOf(files[2].bytes);
    const auto readsPlaces = [&](const std::string& bytes) {
        PlaceList list;
        return readPlaceFile(bytes, {}, zones, list).ok();
    };
    ASSERT_TRUE(readsPlaces(resealed(places)));
    ASSERT_TRUE(readTimeFile(resealed(times)));

    const auto number = [](const std::string& bytes, std::size_t at) {
        const std::vector<std::uint8_t> raw(bytes.begin(), bytes.end());
        return std::size_t{core::readInteger<std::uint32_t>(raw, at)};
    };
    const auto with = [&](const std::string& bytes, std::size_t at, const std::string& put) {
        std::string changed = bytes;
        return resealed(changed.replace(at, put.size(), put));
    };
    const std::string ones = "\xFF\xFF\xFF\x7F";
    const std::size_t record = number(places, 28);
    const std::size_t zoneNames = number(places, 24);
    for (const auto& [at, put] : {
             std::pair{std::size_t{16}, ones},                 // more records than the file has
             std::pair{std::size_t{32}, ones},                 // names behind the end
             std::pair{std::size_t{20}, ones},                 // tables not ascending
             std::pair{std::size_t{48}, ones},                 // a region's code
             std::pair{zoneNames, ones},                       // a zone's name
             std::pair{zoneNames, std::string(4, '\0')},       // a name inside the head
             std::pair{record, ones},                          // a place's name
             std::pair{record + 4, ones},                      // latitude
             std::pair{record + 8, ones},                      // longitude
             std::pair{record + 12, std::string("\xFF\xFF")},  // region
             std::pair{record + 14, std::string("\xFF\xFF")},  // zone
             std::pair{places.size() - 1, std::string("abc")}, // the last name has no end
         }) {
        EXPECT_FALSE(readsPlaces(with(places, at, put))) << at;
    }
    const std::size_t zone = number(times, 24);
    const std::size_t change = number(times, 28);
    for (const auto& [at, put] : {
             std::pair{std::size_t{16}, ones},              // more changes than the file has
             std::pair{std::size_t{48}, ones},              // a rule's text
             std::pair{zone, ones},                         // a zone's name
             std::pair{zone + 4, ones},                     // its first change
             std::pair{zone + 8, std::string("\xFF\xFF")},  // their count
             std::pair{zone + 10, std::string("\xFF\xFF")}, // its rule
             std::pair{change + 8, ones},                   // an offset
             std::pair{change + 12, ones + ones},           // a moment out of order
         }) {
        EXPECT_FALSE(readTimeFile(with(times, at, put))) << at;
    }
}

TEST(AtlasSettings, namesTheFileToClick)
{
    EXPECT_EQ(atlasPathPrompt(AtlasVersion::Indexed),
              L"PC Atlas path - look for and click on TIMTAB.BIN");
    EXPECT_EQ(atlasFileToClick(AtlasVersion::Plain), "ACSTT.DAT");
    EXPECT_EQ(kNoAtlas, L"No Atlas");
}

} // namespace
} // namespace kestrav::data
