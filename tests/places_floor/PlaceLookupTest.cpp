#include "data/PlaceLookup.h"

#include "core/Chart.h"
#include "tests/data_floor/PreparedMessages.h"
#include "tests/places_floor/ShippedLists.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestrav::data
{
namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

core::DateTimeRecord moment(int year, int month, int day, double hours)
{
    core::DateTimeRecord record;
    record.year = year;
    record.month = month;
    record.day = day;
    record.localTime = hours;
    return record;
}

PlaceLookup lookUp(const wchar_t* city, const wchar_t* where, const core::DateTimeRecord& local)
{
    return lookUpPlace(shippedPlaces(), {city, where, local});
}

TEST(PlaceLookup, answersWithAllFourValues)
{
    const PlaceLookup found = lookUp(L"Ahmadabad", L"India", moment(1990, 6, 15, 14.5));
    ASSERT_EQ(found.code, LookupCode::Found);
    EXPECT_NEAR(found.answer.latitude, 23.03, 0.03);
    EXPECT_NEAR(found.answer.longitude, 72.58, 0.03);
    EXPECT_EQ(found.answer.time.zone, 5.5);
    EXPECT_EQ(found.answer.time.daylightSaving, 0);
    EXPECT_THAT(found.answer.time.warnings, IsEmpty());
    EXPECT_EQ(found.answer.name, L"Ahmedabad");
    EXPECT_EQ(found.answer.country, L"India");
    EXPECT_EQ(found.answer.zoneName, "Asia/Kolkata");
    EXPECT_EQ(found.answer.source, shippedPlaces().zones().source());

    const PlaceLookup several = lookUp(L"Springfield", L"", moment(1990, 6, 15, 14.5));
    EXPECT_EQ(several.code, LookupCode::Several);
    const Place& chosen = shippedPlaces().place(several.matches.front());
    const PlaceAnswer answer = answerAt(shippedPlaces(), chosen, moment(1990, 6, 15, 14.5));
    EXPECT_EQ(answer.region, L"Missouri");
    EXPECT_EQ(answer.time.zone, -6.0);
    EXPECT_EQ(answer.time.daylightSaving, 1);
}

TEST(PlaceLookup, takesTheMeanTimeOfThePlaceItself)
{
    // Mumbai and Varanasi lie 15.4 and 5.4 degrees west of Calcutta, whose mean time the zone has.
    for (const wchar_t* const city : {L"Mumbai", L"Varanasi", L"Kolkata"}) {
        const PlaceAnswer answer = lookUp(city, L"India", moment(1850, 1, 1, 12.0)).answer;
        EXPECT_TRUE(answer.time.localMean);
        EXPECT_NEAR(answer.time.zone, answer.longitude / 15.0, 0.5 / 3600.0);
        EXPECT_THAT(answer.time.warnings,
                    ElementsAre(PlaceWarning::LocalMean, PlaceWarning::IndiaEarly));
    }
    // East of the date line with the dates of the west.
    const PlaceAnswer manila = lookUp(L"Manila", L"Philippines", moment(1840, 1, 1, 12.0)).answer;
    EXPECT_NEAR(manila.time.zone, manila.longitude / 15.0 - 24.0, 0.5 / 3600.0);
}

TEST(PlaceLookup, warnsWhereTheHistoryIsNotSure)
{
    const auto warnings = [](const wchar_t* city, const wchar_t* where,
                             const core::DateTimeRecord& local) {
        return lookUp(city, where, local).answer.time.warnings;
    };
    EXPECT_THAT(warnings(L"Pune", L"India", moment(1905, 12, 31, 12.0)),
                ElementsAre(PlaceWarning::IndiaEarly));
    EXPECT_THAT(warnings(L"Pune", L"India", moment(1955, 12, 31, 12.0)),
                ElementsAre(PlaceWarning::IndiaTowns));
    EXPECT_THAT(warnings(L"Pune", L"India", moment(1956, 1, 1, 12.0)), IsEmpty());
    EXPECT_THAT(warnings(L"Toronto", L"Canada", moment(1966, 12, 31, 12.0)),
                ElementsAre(PlaceWarning::NorthAmerica));
    EXPECT_THAT(warnings(L"Seattle", L"WA", moment(1967, 1, 1, 12.0)), IsEmpty());
    EXPECT_THAT(warnings(L"Seattle", L"WA", moment(2007, 11, 4, 1.5)),
                ElementsAre(PlaceWarning::ClockTwice));
    EXPECT_THAT(warnings(L"Seattle", L"WA", moment(2007, 3, 11, 2.5)),
                ElementsAre(PlaceWarning::ClockSkipped));
    for (const PlaceWarning warning :
         {PlaceWarning::ClockTwice, PlaceWarning::ClockSkipped, PlaceWarning::LocalMean,
          PlaceWarning::IndiaEarly, PlaceWarning::IndiaTowns, PlaceWarning::NorthAmerica}) {
        EXPECT_FALSE(warningText(warning).empty());
    }
}

TEST(PlaceLookup, tellsTheUserWhatThereIsToTell)
{
    PreparedMessages messages;
    for (const int code : {0, 1, 2, 4}) {
        showLookupCode(code, messages);
    }
    PlaceTime time;
    showAtlasWarning(time, messages);
    EXPECT_THAT(messages.shown, IsEmpty());
    showLookupCode(3, messages);
    messages.expectOne(L"Error", L"State abbreviation > 2 chars\n");
    showLookupCode(5, messages);
    messages.expectOne(L"Error", L"Unrecognised return code from PC Atlas");
    time.warnings.push_back(PlaceWarning::ClockTwice);
    showAtlasWarning(time, messages);
    messages.expectOne(
        L"Warning",
        L"Some of the Atlas values may not be correct (Longitude, Latitude, Time Zone, Daylight "
        L"Saving (DST)).\n"
        L"Please check or you could possibly get a wrong Ascendant, etc.\n"
        L"Getting this message does not mean they are certainly wrong and not getting it does not "
        L"guarantee\n"
        L"that they are right. Always check carefully.");
}

// The day count of a summer and of a winter evening in New York gives the clock time back.
TEST(ZoneSavingRule, addsTheHoursInForce)
{
    const ZoneTable& zones = shippedPlaces().zones();
    const ZoneSavingRule rule(zones, zones.find("America/New_York").value());
    core::Chart chart;
    chart.zone = -5.0;
    const auto clockAfter = [&](int month, int day, double utHours) {
        chart.time = moment(2019, month, day, 0.0);
        chart.time.dayCount = core::DateToJulianDay(chart.time) + utHours / 24.0 - core::kEpoch1900;
        core::JulianDayToDate(chart, &rule);
    };
    clockAfter(7, 5, 3.5);
    EXPECT_NEAR(chart.time.localTime, 23.5, 1e-6);
    EXPECT_EQ(chart.time.day, 4);
    EXPECT_EQ(chart.daylightSaving, 1);
    clockAfter(12, 5, 3.5);
    EXPECT_NEAR(chart.time.localTime, 22.5, 1e-6);
    EXPECT_EQ(chart.daylightSaving, 0);
    // Half an hour before and after the clocks were set forward.
    clockAfter(3, 10, 6.5);
    EXPECT_NEAR(chart.time.localTime, 1.5, 1e-6);
    clockAfter(3, 10, 7.5);
    EXPECT_NEAR(chart.time.localTime, 3.5, 1e-6);
}

} // namespace
} // namespace kestrav::data
