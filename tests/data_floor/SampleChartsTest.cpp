// The sample charts that ship with the program, against the city list and the zone table.
#include "core/FileText.h"
#include "data/ChartLine.h"
#include "data/ChartLineFields.h"
#include "data/CheckDatabaseLine.h"
#include "data/PlaceLookup.h"
#include "tests/astro/SeriesForTests.h"
#include "tests/data_floor/PreparedMessages.h"
#include "tests/places_floor/ShippedLists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace kestrav::data
{

namespace
{

// Degrees from the middle of the listed town of the name, and from the nearest town of a village
// that is not listed.
constexpr double kNear = 0.2;
constexpr double kNearVillage = 0.4;
// Standard time zones are whole quarters of an hour; mean times practically never are.
constexpr int kQuarter = 900;

ChartDatabase sampleDatabase()
{
    ChartDatabase database;
    const auto loaded = database.load(std::string(KESTRAV_BIN) + "/Sample.ksc");
    EXPECT_TRUE(loaded) << loaded.error().text();
    return database;
}

double separation(const core::Chart& chart, const Place& place)
{
    return std::max(std::abs(place.latitude - chart.geoLatitude),
                    std::abs(place.longitude - chart.geoLongitude));
}

struct ListedPlace
{
    const Place& place;
    bool village; // the nearest town of a village that is not listed
};

ListedPlace listedPlace(const core::Chart& chart)
{
    const Places& places = shippedPlaces();
    const auto nearer = [&](const Place& a, const Place& b) {
        return separation(chart, a) < separation(chart, b);
    };
    const PlaceMatches named = places.find(chart.place, chart.identity.country);
    if (named.exact) {
        const std::uint32_t best = *std::min_element(
            named.places.begin(), named.places.end(), [&](std::uint32_t x, std::uint32_t y) {
                return nearer(places.place(x), places.place(y));
            });
        return {places.place(best), false};
    }
    const auto all = places.list().places();
    return {*std::min_element(all.begin(), all.end(), nearer), true};
}

} // namespace

TEST(SampleCharts, AreWholeAndReadBackAsTheyStand)
{
    ChartDatabase database = sampleDatabase();
    ASSERT_GE(database.size(), 60U);
    std::set<std::wstring> names;
    const core::Settings settings;
    astro::EphemerisContext context(tests::seriesForTests());
    PreparedMessages messages;
    for (std::size_t i = 0; i < database.size(); ++i) {
        const std::string line(database.line(i));
        core::Chart chart;
        const LineCheck check =
            CheckDatabaseLine(database, i, CheckMode::Compute, settings, context, chart, messages);
        const std::string name = core::toUtf8(chart.name);
        SCOPED_TRACE(name);
        EXPECT_TRUE(check.computed);
        EXPECT_TRUE(names.insert(chart.name).second) << "stands twice";
        EXPECT_EQ(FormatChartLine(chart, DateOrder::DayFirst), line);
        EXPECT_TRUE(core::dateExists(chart.time.year, chart.time.month, chart.time.day));
        EXPECT_GT(chart.identity.notes.size(), 20U) << "says no source";
        EXPECT_TRUE(chart.identity.sex == L"M" || chart.identity.sex == L"F" ||
                    chart.identity.label == L"Event");
        for (const core::LifeEvent& event : chart.identity.events) {
            EXPECT_TRUE(event.name.empty() || event.usable()) << core::toUtf8(event.name);
            EXPECT_TRUE(event.name.empty() || event.date.year >= chart.time.year);
        }
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST(SampleCharts, StandWhereTheCityListHasTheirPlaces)
{
    ChartDatabase database = sampleDatabase();
    for (std::size_t i = 0; i < database.size(); ++i) {
        core::Chart chart;
        database.read(i, chart);
        const auto [place, village] = listedPlace(chart);
        EXPECT_LT(separation(chart, place), village ? kNearVillage : kNear)
            << core::toUtf8(chart.name) << ": " << place.name << ' ' << place.latitude << ' '
            << place.longitude;
    }
}

TEST(SampleCharts, HaveTheZonesOfTheirTimeAndPlace)
{
    ChartDatabase database = sampleDatabase();
    const Places& places = shippedPlaces();
    for (std::size_t i = 0; i < database.size(); ++i) {
        core::Chart chart;
        database.read(i, chart);
        const Place& place = listedPlace(chart).place;
        const std::string_view country = places.list().regionOf(place).country;
        const PlaceTime time =
            timeAtPlace(places.zones(), place.zone, chart.geoLongitude, country, chart.time);
        double expected = time.offset();
        // Before zone times the mean time of the place itself counts.
        if (std::lround(time.zone * kSecondsPerHour) % kQuarter != 0 && chart.zone != time.zone) {
            expected = chart.geoLongitude / 15.0;
        }
        // Towns in North America without saving time have only the zone of their city.
        const bool ownSaving =
            std::count(time.warnings.begin(), time.warnings.end(), PlaceWarning::NorthAmerica) != 0;
        if (ownSaving && chart.daylightSaving == 0) {
            expected = time.zone;
        }
        EXPECT_NEAR(chart.zone + chart.daylightSaving, expected, 2.0 / 3600.0)
            << core::toUtf8(chart.name) << ": " << places.zones().name(place.zone) << ' '
            << time.zone << ' ' << time.daylightSaving;
    }
}

// Dates of the old style, against the dates in the histories of Newton, Washington and Tolstoy.
TEST(SampleCharts, HaveGregorianDatesAfter1582)
{
    ChartDatabase database = sampleDatabase();
    const auto dateOf = [&](std::wstring_view name) {
        core::Chart chart;
        const auto line = database.find(name);
        EXPECT_TRUE(line.has_value());
        database.read(line.value_or(0), chart);
        return core::PlainDate{chart.time.year, chart.time.month, chart.time.day};
    };
    EXPECT_EQ(dateOf(L"Isaac Newton"), (core::PlainDate{1643, 1, 4}));
    EXPECT_EQ(dateOf(L"George Washington"), (core::PlainDate{1732, 2, 22}));
    EXPECT_EQ(dateOf(L"Leo Tolstoy"), (core::PlainDate{1828, 9, 9}));
    EXPECT_EQ(dateOf(L"Johannes Kepler"), (core::PlainDate{1571, 12, 27}));
}

TEST(SampleCharts, BeginBesideAnEmptyDatabase)
{
    ChartDatabase database;
    EXPECT_TRUE(database.load(std::string(KESTRAV_BIN) + "/My Charts.ksc"));
    EXPECT_EQ(database.size(), 0U);
}

} // namespace kestrav::data
