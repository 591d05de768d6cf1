#include "data/Places.h"

#include "data/PlaceText.h"
#include "tests/data_floor/Folders.h"
#include "tests/places_floor/ShippedLists.h"

#include <gtest/gtest.h>

namespace kestrav::data
{
namespace
{

// The name and region of the best match, and the code.
struct Best
{
    LookupCode code;
    std::wstring name;
    std::wstring region;
};

Best best(const Places& places, std::wstring_view typed)
{
    const PlaceMatches matches = places.find(typed);
    if (matches.places.empty()) {
        return {matches.code, {}, {}};
    }
    const Place& place = places.place(matches.places.front());
    return {matches.code, places.nameOf(place), places.regionAndCountryOf(place)};
}

TEST(PlaceText, foldsCaseAccentsAndSigns)
{
    EXPECT_EQ(foldName(L"Saint-\u00C9tienne"), "saint etienne");
    EXPECT_EQ(foldName(L"  U.S.A. "), "usa");
    EXPECT_EQ(foldName(L"Xi\u2019an"), "xian");
    EXPECT_EQ(foldName(L"\u0141\u00F3d\u017A"), "lodz");
    EXPECT_EQ(foldName(L"Stra\u00DFe"), "strasse");
    EXPECT_EQ(foldName(L"Ti\u1EC1n Giang"), "tien giang");
    EXPECT_EQ(foldName(L"e\u0301"), "e");
    EXPECT_EQ(foldName(L"\u041A\u0418\u0415\u0412"), "\xD0\xBA\xD0\xB8\xD0\xB5\xD0\xB2");
    EXPECT_EQ(foldName(L"...--"), "");
    EXPECT_EQ(foldName(std::string_view("\xC3\x85rhus")), foldName(L"\u00C5rhus"));
}

TEST(PlaceText, showsLatitudeAndNameInTheCityList)
{
    EXPECT_EQ(cityListText(25.3167, L"Varanasi"), L"25N19' 0\"    Varanasi");
    EXPECT_EQ(cityListText(-4.05, L"Mombasa"), L" 4S 3' 0\"    Mombasa");
}

TEST(PlaceList, shipsWithoutAWrongLine)
{
    PlaceListReport report;
    const Places places = placesWith({}, &report);
    EXPECT_EQ(report.skipped, 0) << "line " << report.firstSkippedLine;
    EXPECT_GT(report.places, 49'000);
    EXPECT_EQ(places.countries().size(), 250U);
    for (const Region& region : places.list().regions()) {
        EXPECT_NE(places.countries().name(region.country), region.country);
    }
}

TEST(Places, findsATypedPlace)
{
    struct Case
    {
        const wchar_t* typed;
        LookupCode code;
        const wchar_t* name;
        const wchar_t* region;
    };
    using enum LookupCode;
    const wchar_t* const uttarPradesh = L"Uttar Pradesh, India";
    const std::array<Case, 26> cases = {{
        {L"Varanasi, India", Found, L"Varanasi", uttarPradesh},
        {L"  vARANASI ,bharat", Found, L"Varanasi", uttarPradesh},
        {L"Benares", Found, L"Varanasi", uttarPradesh},
        {L"\u0935\u093E\u0930\u093E\u0923\u0938\u0940", Found, L"Varanasi", uttarPradesh},
        {L"Leningrad", Found, L"Saint Petersburg", L"Saint Petersburg, Russia"},
        {L"zurich", Found, L"Zurich", L"Canton of Zurich, Switzerland"},
        {L"Z\u00FCrich, Schweiz", Found, L"Zurich", L"Canton of Zurich, Switzerland"},
        // Exact before longer names, then the largest.
        {L"London", Several, L"London", L"England, United Kingdom"},
        {L"London, Ontario", Found, L"London", L"Ontario, Canada"},
        {L"Londo", Several, L"London", L"England, United Kingdom"},
        {L"Eugene, OR", Found, L"Eugene", L"Oregon, United States of America"},
        {L"Eugene, oregon", Found, L"Eugene", L"Oregon, United States of America"},
        {L"Portland, Oregon, USA", Found, L"Portland", L"Oregon, United States of America"},
        {L"Kochi, Kerala, India", Found, L"Kochi", L"Kerala, India"},
        // A region and a country of one name.
        {L"Atlanta, Georgia", Found, L"Atlanta", L"Georgia, United States of America"},
        {L"Tbilisi, Georgia", Found, L"Tbilisi", L"T'bilisi, Georgia"},
        {L"Dubai, UAE", Found, L"Dubai", L"Dubai, United Arab Emirates"},
        {L"Vasco da Gama, Goa", Found, L"Vasco da Gama", L"Goa, India"},
        {L"Leeds, UK", Found, L"Leeds", L"England, United Kingdom"},
        // "USA" and two letters that are no state find nothing; three letters are told.
        {L"Eugene, USA", None, L"", L""},
        {L"Eugene, U.S.A.", None, L"", L""},
        {L"Indore, IN", None, L"", L""},
        {L"Toronto, CA", None, L"", L""},
        {L"Eugene, ORE", BadState, L"", L""},
        {L"Eugene, Atlantis", None, L"", L""},
        {L"Xyzzy", None, L"", L""},
    }};
    for (const Case& each : cases) {
        const Best found = best(shippedPlaces(), each.typed);
        const std::string typed(each.typed, each.typed + std::wcslen(each.typed));
        EXPECT_EQ(found.code, each.code) << typed;
        EXPECT_EQ(found.name, each.name) << typed;
        EXPECT_EQ(found.region, each.region) << typed;
    }
}

TEST(Places, knowsTheOldNamesOfIndia)
{
    for (const auto& [old, now] : std::array<std::pair<const wchar_t*, const wchar_t*>, 8>{{
             {L"Bombay", L"Mumbai"},
             {L"Calcutta", L"Kolkata"},
             {L"Madras", L"Chennai"},
             {L"Bangalore", L"Bengaluru"},
             {L"Poona", L"Pune"},
             {L"Baroda", L"Vadodara"},
             {L"Cochin", L"Kochi"},
             {L"Cawnpore", L"Kanpur"},
         }}) {
        EXPECT_EQ(best(shippedPlaces(), std::wstring(old) + L", India").name, now);
    }
}

TEST(Places, cutsNamesAndLists)
{
    EXPECT_EQ(shippedPlaces().find(L"s", L"").places.size(), kMostMatches);
    EXPECT_EQ(shippedPlaces().find(std::wstring(50, L'a') + L"b", L"").code, LookupCode::None);
    EXPECT_EQ(shippedPlaces().find(L"", L"India").code, LookupCode::None);
    EXPECT_EQ(shippedPlaces().find(L",,,").code, LookupCode::None);
}

TEST(PlaceList, takesOwnPlacesAndSkipsWrongLines)
{
    PlaceListReport report;
    const Places places =
        placesWith("\xEF\xBB\xBF# mine\r\n"
                   "Leeds\tMy House\tENG\tEngland\tGB\t53.8\t-1.55\tEurope/London\t\r\n"
                   "Cuddalore Old Town\t\t25\tTamil Nadu\tIN\t11.75\t79.75\tAsia/Calcutta\t5\n"
                   "K\xF6ln-Garten\t\t07\tNRW\tDE\t50.9\t6.9\tEurope/Berlin\t\n"
                   "Too Few\tFields\n"
                   "\t\t25\tNo Name\tIN\t11.75\t79.75\tAsia/Kolkata\t5\n"
                   "Far North\t\t25\tTamil Nadu\tIN\t91\t79.75\tAsia/Kolkata\t5\n"
                   "Far East\t\t25\tTamil Nadu\tIN\t11\t181\tAsia/Kolkata\t5\n"
                   "Nan\t\t25\tTamil Nadu\tIN\tnan\t80\tAsia/Kolkata\t5\n"
                   "No Zone\t\t25\tTamil Nadu\tIN\t11\t80\tAsia/Atlantis\t5\n"
                   "Negative\t\t25\tTamil Nadu\tIN\t11\t80\tAsia/Kolkata\t-5\n"
                   "Bad Country\t\t25\tTamil Nadu\tIndia\t11\t80\tAsia/Kolkata\t5\n"
                   "Bell\x07\t\t25\tTamil Nadu\tIN\t11\t80\tAsia/Kolkata\t5\n",
                   &report);
    EXPECT_EQ(report.places, 3);
    EXPECT_EQ(report.skipped, 9);
    EXPECT_EQ(report.firstSkippedLine, 5);
    // Own places come first, whatever their size.
    const PlaceMatches leeds = places.find(L"Leeds", L"England");
    ASSERT_EQ(leeds.code, LookupCode::Several);
    EXPECT_TRUE(places.place(leeds.places.front()).own);
    EXPECT_EQ(best(places, L"my house").name, L"Leeds");
    EXPECT_EQ(best(places, L"K\u00F6ln garten").name, L"K\u00F6ln-Garten");
    const PlaceMatches own = places.find(L"cuddalore old");
    ASSERT_EQ(own.code, LookupCode::Found);
    EXPECT_EQ(places.zones().name(places.place(own.places[0]).zone), "Asia/Kolkata");
}

class LoadPlaces : public FolderTest
{};

TEST_F(LoadPlaces, readsTheUsersListFromTheSearchedFolders)
{
    for (const char* name : {"countries.txt", "zones.txt", "cities.txt"}) {
        put(name, resourceText(name));
    }
    put("cities6a.txt", "Ashram\t\t\t\tIN\t30.1\t78.3\tAsia/Kolkata\t\nwrong\n");
    const int result = inChild([&] {
        std::filesystem::current_path(folder);
        const auto loaded = loadPlaces();
        return loaded && loaded.value().ownCities.places == 1 &&
                       loaded.value().ownCities.skipped == 1 &&
                       loaded.value().places.find(L"ashram, india").code == LookupCode::Found
                   ? 0
                   : 1;
    });
    EXPECT_EQ(result, 0);
    put("zones.txt", "Z Test/Town\n");
    const int damaged = inChild([&] {
        std::filesystem::current_path(folder);
        const auto loaded = loadPlaces();
        return !loaded && loaded.error().file == "zones.txt" ? 0 : 1;
    });
    EXPECT_EQ(damaged, 0);
}

} // namespace
} // namespace kestrav::data
