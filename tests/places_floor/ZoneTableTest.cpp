#include "data/ZoneTable.h"

#include "core/DateTime.h"
#include "core/NumberText.h"
#include "data/TextFields.h"
#include "tests/places_floor/ShippedLists.h"

#include <gtest/gtest.h>

#include <fstream>

namespace kestrav::data
{
namespace
{

const ZoneTable& zones()
{
    static const ZoneTable kZones = shippedZones();
    return kZones;
}

// "1943-01-01T12:00" as local time.
UnixSeconds local(std::string_view text)
{
    const auto date = core::parseDate(text.substr(0, 10));
    const auto clock = core::parseClock(text.substr(11));
    EXPECT_TRUE(date && clock) << text;
    core::DateTimeRecord record;
    record.year = date.value().year;
    record.month = date.value().month;
    record.day = date.value().day;
    record.localTime = clock.value();
    return localSeconds(record);
}

LocalTime at(std::string_view zone, std::string_view clock)
{
    const std::optional<int> index = zones().find(zone);
    EXPECT_TRUE(index) << zone;
    return zones().atClock(*index, local(clock));
}

TEST(ZoneTable, agreesWithZoneinfoAtChosenMomentsAndInEveryZone)
{
    std::ifstream file(std::string(KESTRAV_TEST_DATA) + "/zones.csv");
    std::string line;
    int moments = 0;
    while (std::getline(file, line)) {
        if (line.starts_with('#')) {
            continue;
        }
        std::array<std::string_view, 4> fields;
        ASSERT_TRUE(splitFields(line, ',', fields)) << line;
        const LocalTime time = at(fields[0], fields[1]);
        EXPECT_EQ(time.total, core::parseInteger(fields[2])) << line;
        const std::array<std::string_view, 3> words = {"once", "twice", "skipped"};
        EXPECT_EQ(words[std::size_t(time.clock)], fields[3]) << line;
        ++moments;
    }
    EXPECT_EQ(moments, 544);
}

// The parts of the offset by the rules of the tz source: double summer time is two hours of saving
// (Britain 1941 to 1947, Berlin 1945), British Standard Time of 1968 to 1971 none; what is no whole
// hour, or below zero, belongs to the zone.
TEST(ZoneTable, splitsStandardTimeAndSaving)
{
    struct Case
    {
        const char* zone;
        const char* local;
        double hours;
        int saving;
    };
    const std::array<Case, 22> cases = {{
        {"Asia/Kolkata", "1943-01-01T12:00", 5.5, 1},
        {"Asia/Kolkata", "1990-06-15T14:32", 5.5, 0},
        {"Europe/London", "1940-12-25T12:00", 0.0, 1},
        {"Europe/London", "1943-07-01T12:00", 0.0, 2},
        {"Europe/London", "1947-05-01T12:00", 0.0, 2},
        {"Europe/London", "1970-01-01T12:00", 1.0, 0},
        {"Europe/London", "2040-07-01T12:00", 0.0, 1},
        {"Europe/Berlin", "1945-06-15T12:00", 1.0, 2},
        {"America/New_York", "1943-01-01T12:00", -5.0, 1},
        {"America/New_York", "1974-01-20T12:00", -5.0, 1},
        {"America/St_Johns", "1988-07-01T12:00", -3.5, 2},
        {"Europe/Moscow", "1919-07-15T12:00", 3.0, 1},
        {"Europe/Dublin", "2020-01-01T12:00", 0.0, 0},
        {"Europe/Dublin", "2020-07-01T12:00", 1.0, 0},
        {"Europe/Dublin", "2045-01-01T12:00", 0.0, 0},
        {"Europe/Prague", "1946-12-10T12:00", 0.0, 0},
        {"Africa/Windhoek", "1994-07-01T12:00", 1.0, 0},
        {"Asia/Singapore", "1934-01-01T12:00", 7.0 + 1.0 / 3.0, 0},
        {"Australia/Lord_Howe", "2020-01-01T12:00", 11.0, 0},
        {"Australia/Lord_Howe", "1982-01-01T12:00", 10.5, 1},
        {"America/Montevideo", "1974-02-01T12:00", -2.5, 1},
        {"Antarctica/Troll", "2030-07-01T12:00", 0.0, 2},
    }};
    for (const Case& each : cases) {
        const LocalTime time = at(each.zone, each.local);
        EXPECT_DOUBLE_EQ(time.zoneHours(), each.hours) << each.zone << ' ' << each.local;
        EXPECT_EQ(time.savingHours(), each.saving) << each.zone << ' ' << each.local;
    }
}

TEST(ZoneTable, marksLocalMeanTimeOnly)
{
    EXPECT_TRUE(at("Asia/Kolkata", "1850-01-01T12:00").localMean);
    EXPECT_FALSE(at("Asia/Kolkata", "1880-01-01T12:00").localMean); // Madras time was legal
    EXPECT_FALSE(at("Europe/London", "1850-01-01T12:00").localMean);
    EXPECT_FALSE(at("Europe/Amsterdam", "1920-01-01T12:00").localMean);
}

TEST(ZoneTable, knowsOldNames)
{
    EXPECT_EQ(zones().find("Europe/Kiev"), zones().find("Europe/Kyiv"));
    EXPECT_EQ(zones().find("Asia/Calcutta"), zones().find("Asia/Kolkata"));
    EXPECT_FALSE(zones().find("Asia/Atlantis"));
    EXPECT_FALSE(zones().find(""));
    EXPECT_TRUE(zones().source().starts_with("tz database 20"));
}

TEST(ZoneTable, readsDatesOfBothCalendars)
{
    // 1582 October 15 stands in the Julian calendar, as everywhere in the program.
    EXPECT_EQ(local("1582-10-16T00:00") - local("1582-10-04T00:00"), 2 * kSecondsPerDay);
    core::DateTimeRecord record;
    record.year = 1970;
    record.localTime = 0.5;
    EXPECT_EQ(localSeconds(record), 1800);
    record.year = -44;
    EXPECT_LT(localSeconds(record), -63'000'000'000);
}

// Within the changes and the rule, every moment comes back from its own clock time, unless the
// clock shows that time twice.
TEST(ZoneTable, givesTheMomentBackFromItsClockTime)
{
    for (int zone = 0; zone < zones().size(); ++zone) {
        for (UnixSeconds moment = -4'000'000'000; moment < 4'000'000'000; moment += 7'654'321) {
            const LocalTime known = zones().at(zone, moment);
            const LocalTime found = zones().atClock(zone, moment + known.total);
            EXPECT_NE(found.clock, ClockTime::Skipped) << zones().name(zone) << ' ' << moment;
            if (found.clock == ClockTime::Once) {
                EXPECT_EQ(found.total, known.total) << zones().name(zone) << ' ' << moment;
            }
        }
    }
}

TEST(FutureRule, readsTheFormsOfTheTable)
{
    const auto jerusalem = FutureRule::parse("IST-2IDT,M3.4.4/26,M10.5.0");
    ASSERT_TRUE(jerusalem);
    // Friday before the last Sunday of March at 2 o'clock: 2024 March 29, 0h UT.
    EXPECT_EQ(jerusalem.value().changes(2024)[0].moment, daysFromCivil(2024, 3, 29) * 86400);
    const auto nuuk = FutureRule::parse("<-02>2<-01>,M3.5.0/-1,M10.5.0/0");
    ASSERT_TRUE(nuuk);
    EXPECT_EQ(nuuk.value().changes(2024)[0].moment, daysFromCivil(2024, 3, 31) * 86400 + 3600);
    for (const char* wrong :
         {"", "EST", "5", "EST5EDT", "EST5EDT,J60,J300", "EST5EDT,M13.1.0,M11.1.0",
          "EST5EDT,M3.2.0", "EST5EDT,M3.2.0,M11.1.0x", "<>5", "<EST5", "EST99"}) {
        EXPECT_FALSE(FutureRule::parse(wrong)) << wrong;
    }
}

TEST(FutureRule, knowsTheYearOfEveryMoment)
{
    for (std::int64_t year = -800; year < 2800; ++year) {
        const UnixSeconds first = daysFromCivil(year, 1, 1) * kSecondsPerDay;
        ASSERT_EQ(gregorianYear(first), year);
        ASSERT_EQ(gregorianYear(first - 1), year - 1);
    }
}

TEST(ZoneTable, refusesATableThatIsNotWhole)
{
    const std::string good = "S test\nZ Test/Town\n* 1:00\n2000-01-01T00:00:00 2:00 60\n"
                             "R CET-1CEST,M3.5.0,M10.5.0/3\nA Test/Old Test/Town\n";
    ASSERT_TRUE(ZoneTable::parse(good));
    const std::array<std::pair<const char*, const char*>, 12> changes = {{
        {"* 1:00\n", ""},                              // nothing holds from the beginning
        {"* 1:00", "* 25:00"},                         // no such offset
        {"* 1:00", "* 1"},                             // no minutes
        {"2000-01-01T", "2000-13-01T"},                // no such month
        {"2:00 60", "2:00 -60"},                       // negative saving
        {"2:00 60", "2:00 60 60"},                     // one word too many
        {"R CET-1CEST,M3.5.0,M10.5.0/3\n", ""},        // the zone has no end
        {"R CET-1", "R 1"},                            // no abbreviation
        {"Z Test/Town", "Z ../Town"},                  // a name that is a path
        {"A Test/Old Test/Town", "A Test/Old Test/X"}, // an alias of nothing
        {"2000-01-01T00:00:00 2:00 60\n", ""},         // a yearly rule without a beginning
        {"S test", "X test"},
    }};
    for (const auto& [from, to] : changes) {
        std::string text = good;
        text.replace(text.find(from), std::string_view(from).size(), to);
        const auto table = ZoneTable::parse(text, "zones.txt");
        EXPECT_FALSE(table) << from << " -> " << to;
    }
    std::string late = good;
    late.replace(late.find("2000-01-01"), 10, "2000-01-99");
    EXPECT_EQ(ZoneTable::parse(late, "zones.txt").error().text().substr(0, 12), "zones.txt:4:");
}

} // namespace
} // namespace kestrav::data
