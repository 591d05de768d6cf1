#include "data/FieldReader.h"

#include "data/BirthTexts.h"
#include "data/CleanText.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace kestrav::data
{
namespace
{

TEST(FieldReader, TextFieldsAndQuotes)
{
    FieldReader fields("plain\t\"quoted / text\"\t\"two\"\"\t\"a\tb\"\t\"\"\t\"\"\"\tx");
    EXPECT_EQ(fields.text(20), "plain");
    EXPECT_EQ(fields.text(20), "quoted / text");
    EXPECT_EQ(fields.text(20), "two\"");
    EXPECT_EQ(fields.text(20), "a") << "a TAB ends a quoted field";
    EXPECT_EQ(fields.text(20), "b\"");
    EXPECT_EQ(fields.text(20), "");
    EXPECT_EQ(fields.text(20), "\"");
    EXPECT_FALSE(fields.isShort());
    EXPECT_EQ(fields.text(20), "x");
    EXPECT_TRUE(fields.isShort());
    EXPECT_EQ(fields.text(20), "");
}

TEST(FieldReader, AQuoteInTheMiddleEndsTheFieldAndSwallowsOneCharacter)
{
    FieldReader fields("\"one\"two\tthree\t");
    EXPECT_EQ(fields.text(20), "one");
    EXPECT_EQ(fields.text(20), "wo");
    EXPECT_EQ(fields.text(20), "three");
    FieldReader closed("\"x\"");
    EXPECT_EQ(closed.text(20), "x");
    EXPECT_TRUE(closed.isShort());
    FieldReader open("\"");
    EXPECT_EQ(open.text(20), "");
    EXPECT_TRUE(open.isShort());
}

TEST(FieldReader, ATabEndsTheWholeCompound)
{
    FieldReader fields("1/2/3\t1\t\"a/b\"\"/\"c\"\t\t1/2\nx");
    EXPECT_EQ(fields.part(9), "1");
    EXPECT_EQ(fields.part(9), "2");
    EXPECT_EQ(fields.lastPart(9), "3");
    EXPECT_EQ(fields.part(9), "1");
    EXPECT_EQ(fields.part(9), "");
    EXPECT_EQ(fields.lastPart(9), "");
    EXPECT_EQ(fields.part(9), "a/b\"");
    EXPECT_EQ(fields.lastPart(9), "c");
    EXPECT_EQ(fields.part(9), "");
    EXPECT_EQ(fields.lastPart(9), "");
    EXPECT_EQ(fields.part(9), "1");
    EXPECT_EQ(fields.part(9), "2");
    fields.endCompound();
    EXPECT_EQ(fields.text(9), "x") << "a line feed ends an unquoted field";
}

TEST(FieldReader, CutsCharactersAndNeverSplitsThem)
{
    FieldReader fields("\u0916\u0917\u0918\tabc\t");
    EXPECT_EQ(fields.text(2), "\u0916\u0917");
    EXPECT_EQ(fields.text(2), "ab");
    FieldReader latin("\xE9\xE8\xE7\t\xE9\r");
    EXPECT_EQ(latin.text(2), "\u00e9\u00e8");
    EXPECT_EQ(latin.wideText(2), L"\u00e9");
    const std::string line(kLongestLine + 10, 'x');
    FieldReader huge(line);
    EXPECT_EQ(huge.text(kLongestLine * 2).size(), kLongestLine);
}

TEST(BirthTexts, ReadsTheFormsOfOldFiles)
{
    EXPECT_EQ(readTimeText(L"12:30"), 12.5);
    EXPECT_EQ(readTimeText(L"12:30:36"), 12.51);
    EXPECT_EQ(readTimeText(L"2:15 pm"), 14.25);
    EXPECT_EQ(readTimeText(L"12:15 a.m."), 0.25);
    EXPECT_EQ(readTimeText(L"0:15pm"), 12.25);
    EXPECT_EQ(readTimeText(L"12:00PM"), 12.0);
    EXPECT_EQ(readTimeText(L"14.5"), 14.5);
    EXPECT_EQ(readTimeText(L"9:60"), 10.0);
    EXPECT_LT(readTimeText(L"24:00"), 24.0);
    EXPECT_EQ(readZoneText(L"5:30"), 5.5);
    EXPECT_EQ(readZoneText(L"-5:00:00"), -5.0);
    EXPECT_EQ(readZoneText(L"-0:30"), -0.5);
    EXPECT_EQ(readZoneText(L"5E30"), 5.5);
    EXPECT_EQ(readZoneText(L"05:30w"), -5.5);
    EXPECT_EQ(readZoneText(L"5.5"), 5.5);
    EXPECT_EQ(readLongitudeText(L" 77E12'36\""), 77.21);
    EXPECT_EQ(readLongitudeText(L"77 12 E"), 77.2);
    EXPECT_EQ(readLongitudeText(L"77.21"), 77.21);
    EXPECT_EQ(readLongitudeText(L"-71.5"), -71.5);
    EXPECT_EQ(readLongitudeText(L"-71W30"), -71.5);
    EXPECT_EQ(readLongitudeText(L"77\u00B012\u203236\u2033E"), 77.21);
    EXPECT_EQ(readLatitudeText(L"0S30"), -0.5);
    for (const wchar_t* bad : {L"", L"x", L"12:61", L"12.5:30", L"1:2:3:4", L"--5", L"5-30", L"1e5",
                               L"nan", L"1.2.3", L"9999999999999", L"N", L"200"}) {
        EXPECT_EQ(readLatitudeText(bad), std::nullopt) << std::wstring(bad).size();
    }
    for (const wchar_t* bad : {L"25:00", L"-1:00", L"m", L"5 xm", L"pm", L"24:01"}) {
        EXPECT_EQ(readTimeText(bad), std::nullopt);
    }
}

TEST(BirthTexts, WritesWithCarries)
{
    EXPECT_EQ(longitudeText(77.99999), L" 78E 0' 0\"");
    EXPECT_EQ(longitudeText(-0.5), L"  0W30' 0\"");
    EXPECT_EQ(longitudeText(-0.00001), L"  0E 0' 0\"");
    EXPECT_EQ(latitudeText(28.65), L"28N39' 0\"");
    EXPECT_EQ(timeText(9.0 + 59.9999 / 60.0), L"10:00");
    EXPECT_EQ(timeText(23.99999), L"23:59:59");
    EXPECT_EQ(zoneText(-4.0 - 56.0 / 60.0 - 2.0 / 3600.0), L"-4:56:02");
}

TEST(BirthTexts, KeepsWhatStandsForItsNumber)
{
    core::Chart chart;
    chart.time.localTime = 14.25;
    chart.timeText = L"2:15 pm";
    chart.zone = 5.5;
    chart.zoneText = L"6:00:00";
    chart.geoLongitude = 77.25;
    chart.identity.longitudeText = L"77.25";
    refreshBirthTexts(chart);
    EXPECT_EQ(chart.timeText, L"2:15 pm");
    EXPECT_EQ(chart.zoneText, L"5:30:00");
    EXPECT_EQ(chart.identity.longitudeText, L"77.25");
    EXPECT_EQ(chart.identity.latitudeText, L" 0N 0' 0\"");
    chart.time.localTime = 14.25 + 10.0 / 3600.0;
    refreshBirthTexts(chart);
    EXPECT_EQ(chart.timeText, L"14:15:10");
}

TEST(CleanText, NotesRefuseABar)
{
    EXPECT_TRUE(notesProblem(L"a|b"));
    EXPECT_FALSE(notesProblem(L"a b"));
    core::Chart chart;
    chart.identity.notes = L"a|b";
    cleanRecord(chart);
    EXPECT_EQ(chart.identity.notes, L"a/b");
    EXPECT_EQ(cleanText(L"12\"", 9), L"12\"");
    EXPECT_EQ(cleanText(L"1\"2\"", 9), L"1'2'");
}

} // namespace
} // namespace kestrav::data
