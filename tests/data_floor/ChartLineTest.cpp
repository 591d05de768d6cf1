#include "data/ChartLine.h"

#include "data/ChartLineFields.h"
#include "data/CleanText.h"
#include "tests/data_floor/Records.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>

namespace kestrav::data
{
namespace
{

TEST(ChartLine, WritesTheExactFormat)
{
    core::Chart chart;
    chart.name = L"Mira Example";
    chart.time.year = 1975;
    chart.time.month = 3;
    chart.time.day = 5;
    chart.time.localTime = 14.25;
    chart.place = L"New Delhi";
    chart.zone = 5.5;
    chart.daylightSaving = 1;
    chart.geoLongitude = 77.0 + 12.0 / 60.0 + 32.0 / 3600.0;
    chart.geoLatitude = -(8.0 + 5.0 / 60.0);
    core::Identity& identity = chart.identity;
    identity.tag = L'A';
    identity.label = L"label";
    identity.sex = L"F";
    identity.code = L"abc";
    identity.country = L"India";
    identity.sound = L"m";
    identity.occupation = L"Teacher";
    identity.status = L"S";
    identity.freeText = L"free";
    identity.secondDate = {1990, 12, 31};
    identity.notes = L"first\r\nsecond";
    identity.contact.email = L"mira@example.org";
    identity.numbers = {7, -8};
    identity.thirdDate = {-44, 3, 15};
    identity.events[0] = {L"Marriage", {1999, 6, 2}, 10.5};
    identity.events[38] = {L"Last", {2001, 1, 9}, 23.996};

    const std::string head = "A\t\"label\"\t\"Mira Example\"\t\"F\"\t\"abc\"\t";
    const std::string middle =
        "\t\"14:15\"\t\"New Delhi\"\t\"India\"\t\"5:30:00\"\t1\t 77E12'32\"\t 8S 5' 0\"\t\"m\"\t"
        "\"Teacher\"\t\"S\"\t\"free\"\t";
    const std::string notes = "\t\"first|second\"/\"^^^^^^^^^^mira@example.org^\"\t7/-8\t";
    const std::string gap(38, '\t');
    EXPECT_EQ(FormatChartLine(chart, DateOrder::DayFirst),
              head + "5/3/1975" + middle + "31/12/1990" + notes +
                  "\"EB\"/15/3/-44\t\"Marriage\"/2/6/1999/10.50" + gap + "\"Last\"/9/1/2001/24.00");
    EXPECT_EQ(FormatChartLine(chart, DateOrder::MonthFirst),
              head + "3/5/1975" + middle + "12/31/1990" + notes +
                  "\"UN\"/3/15/-44\t\"Marriage\"/6/2/1999/10.50" + gap + "\"Last\"/1/9/2001/24.00");
}

TEST(ChartLine, ReadsEveryField)
{
    LineParts parts;
    parts.head = "A\t";
    parts.label = "\"label\"";
    parts.code = "\"xyz\"";
    parts.occupation = "\"Teacher\"";
    parts.status = "\"S\"";
    parts.freeText = "\"free\"";
    parts.second = "31/12/1990";
    parts.notes = "\"first|second\"/\"\"";
    parts.numbers = "7/-8";
    parts.order = "\"EB\"/15/3/-44";
    parts.events = "\t\"Marriage\"/2/6/1999/10.50" + std::string(38, '\t');
    const core::Chart chart = parse(parts.line(), DateOrder::MonthFirst);
    const core::Identity& identity = chart.identity;
    EXPECT_EQ(identity.tag, L'A');
    EXPECT_EQ(identity.label, L"label");
    EXPECT_EQ(chart.name, L"Mira Example");
    EXPECT_EQ(identity.shortName, L"Mira");
    EXPECT_EQ(identity.sex, L"F");
    EXPECT_EQ(identity.code, L"xyz");
    EXPECT_EQ(chart.time.year, 1975);
    EXPECT_EQ(chart.time.month, 3);
    EXPECT_EQ(chart.time.day, 5);
    EXPECT_EQ(chart.time.localTime, 14.25);
    EXPECT_EQ(chart.zone, 5.5);
    EXPECT_EQ(chart.geoLongitude, 77.0 + 13.0 / 60.0);
    EXPECT_EQ(chart.geoLatitude, 28.65);
    EXPECT_EQ(identity.occupation, L"Teacher");
    EXPECT_EQ(identity.status, L"S");
    EXPECT_EQ(identity.freeText, L"free");
    EXPECT_EQ(identity.secondDate, (core::PlainDate{1990, 12, 31}));
    EXPECT_EQ(identity.notes, L"first\r\nsecond");
    EXPECT_EQ(identity.numbers, (std::array{7, -8}));
    EXPECT_EQ(identity.thirdDate, (core::PlainDate{-44, 3, 15}));
    EXPECT_EQ(identity.events[0], (core::LifeEvent{L"Marriage", {1999, 6, 2}, 10.5}));
    EXPECT_TRUE(identity.events[0].usable());
    EXPECT_FALSE(identity.events[1].usable());

    core::Chart names;
    DateOrder order = DateOrder::DayFirst;
    ParseChartLine(parts.line(), names, order, true);
    EXPECT_EQ(names.name, L"Mira Example");
    EXPECT_EQ(names.identity.sex, L"F");
    EXPECT_TRUE(names.place.empty());
    EXPECT_EQ(names.time.year, 0);
}

TEST(ChartLine, RecordsAndLinesSurviveTheRoundTrip)
{
    constexpr unsigned kSeed = 20250611;
    RandomRecords records(kSeed);
    for (int i = 0; i < 3000 && !testing::Test::HasFailure(); ++i) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", record " + std::to_string(i));
        const core::Chart chart = records.record();
        for (const DateOrder order : {DateOrder::DayFirst, DateOrder::MonthFirst}) {
            const std::string line = FormatChartLine(chart, order);
            EXPECT_EQ(std::count(line.begin(), line.end(), '\t'), 20 + 39);
            EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos);
            // The order in force does not matter, because the line carries its own.
            const core::Chart read = parse(line, otherOrder(order));
            expectSameRecord(chart, read);
            EXPECT_EQ(FormatChartLine(read, order), line);
        }
    }
}

TEST(ChartLine, NoRecordDestroysItsLine)
{
    core::Chart chart;
    chart.name = L"one\ttwo \"quoted\" name\r\n";
    chart.place = std::wstring(200, L'\u0916');
    chart.identity.tag = L'"';
    chart.identity.notes = L"\"a\"\tb\nc\rd\r\ne" + std::wstring(1, L'\0');
    chart.identity.contact.city = L"a^b\"c";
    chart.identity.contact.street = std::wstring(500, L's');
    chart.identity.contact.email = L"x@y";
    chart.identity.events[3] = {L"e\t\"f\"", {std::numeric_limits<int>::min(), 1, 1}, 1e300};
    chart.identity.events[4] = {L"g", {}, std::numeric_limits<double>::quiet_NaN()};
    chart.geoLongitude = std::numeric_limits<double>::infinity();
    chart.zone = std::numeric_limits<double>::quiet_NaN();
    const std::string line = FormatChartLine(chart, DateOrder::DayFirst);
    const core::Chart read = parse(line);
    EXPECT_EQ(read.name, L"one two 'quoted' name  ");
    EXPECT_EQ(read.place, std::wstring(kPlaceLength, L'\u0916'));
    EXPECT_EQ(read.identity.notes, L"'a' b\r\nc\r\nd\r\ne ");
    EXPECT_EQ(read.identity.contact.city, L"a b'c");
    EXPECT_EQ(read.identity.contact.street, std::wstring(58, L's'));
    EXPECT_EQ(read.identity.contact.email, L"x@y");
    EXPECT_EQ(read.identity.events[3].name, L"e 'f'");
    EXPECT_EQ(read.identity.events[4].name, L"g");
    EXPECT_EQ(read.zone, 0.0);
    EXPECT_EQ(FormatChartLine(read, DateOrder::DayFirst), line);
}

TEST(ChartLine, TheTagIsTheFirstCharacterBeforeTheTab)
{
    EXPECT_EQ(parse(lineOf("X", "\t")).identity.tag, L' ');
    EXPECT_EQ(parse(lineOf("X", "\t")).name, L"X");
    EXPECT_EQ(parse(lineOf("X", "Abc\t")).identity.tag, L'A');
    EXPECT_EQ(parse(lineOf("X", "Abc\t")).name, L"X");
    EXPECT_EQ(parse(lineOf("X", "\"\t")).identity.tag, L'"');
    EXPECT_EQ(parse(lineOf("X", "\u0916\t")).identity.tag, L'\u0916');
}

TEST(ChartLine, TheOrderOfALineAndItsFlip)
{
    constexpr DateOrder kDay = DateOrder::DayFirst;
    constexpr DateOrder kMonth = DateOrder::MonthFirst;
    struct Case
    {
        const char* date;
        const char* code;
        DateOrder inForce;
        DateOrder ofLine;
        DateOrder after;
    };
    for (const Case& c : {
             Case{"13/5/1960", "EB", kMonth, kDay, kMonth},
             Case{"5/13/1960", "UN", kDay, kMonth, kDay},
             Case{"13/5/1960", "", kMonth, kDay, kDay},
             Case{"5/13/1960", "", kDay, kMonth, kMonth},
             Case{"5/6/1960", "", kMonth, kMonth, kMonth},
             Case{"13/0/1960", "", kMonth, kMonth, kMonth},
             Case{"13/5/0", "", kMonth, kMonth, kMonth},
             Case{"13/13/1960", "", kMonth, kDay, kDay},
             // Codes are case-sensitive, and only the first character counts.
             Case{"13/5/1960", "eb", kMonth, kDay, kDay},
             Case{"13/5/1960", "Ux", kDay, kMonth, kDay},
         }) {
        SCOPED_TRACE(std::string(c.date) + " " + c.code);
        LineParts parts;
        parts.date = c.date;
        parts.second = "1/2/2003";
        parts.order = "\"" + std::string(c.code) + "\"/4/5/2006";
        parts.events = "\t\"e\"/7/8/2009/1.00" + std::string(38, '\t');
        core::Chart chart;
        DateOrder order = c.inForce;
        ParseChartLine(parts.line(), chart, order);
        EXPECT_EQ(order, c.after);
        // The order that was decided applies to every date of the line.
        const bool dayFirst = c.ofLine == kDay;
        EXPECT_EQ(dayFirst ? chart.time.day : chart.time.month, std::stoi(c.date));
        EXPECT_EQ(chart.identity.secondDate.day, dayFirst ? 1 : 2);
        EXPECT_EQ(chart.identity.thirdDate.day, dayFirst ? 4 : 5);
        EXPECT_EQ(chart.identity.events[0].date.day, dayFirst ? 7 : 8);
    }
}

TEST(ChartLine, AFlipStaysForTheLinesThatFollow)
{
    LineParts parts;
    parts.order = "\"\"/0/0/0";
    parts.date = "5/13/1960";
    DateOrder order = DateOrder::DayFirst;
    core::Chart chart;
    ParseChartLine(parts.line(), chart, order);
    parts.date = "5/6/1960";
    ParseChartLine(parts.line(), chart, order);
    EXPECT_EQ(chart.time.month, 5);
    EXPECT_EQ(chart.time.day, 6);
}

TEST(ChartLine, LinesThatEndEarlyKeepWhatTheyHave)
{
    const std::string whole = LineParts{}.line();
    const core::Chart cut = parse(whole.substr(0, whole.find("\t\"India\"")));
    EXPECT_EQ(cut.name, L"Mira Example");
    EXPECT_EQ(cut.place, L"New Delhi");
    EXPECT_EQ(cut.time.localTime, 14.25);
    EXPECT_TRUE(cut.identity.country.empty());
    EXPECT_EQ(cut.zone, 0.0);
    EXPECT_EQ(cut.time.year, 1975);

    const core::Chart open = parse(" \t\"label\"\t\"Open name");
    EXPECT_EQ(open.name, L"Open name");
    EXPECT_EQ(parse("").name, kNoNameText);
    EXPECT_EQ(parse("A").identity.tag, L'A');
    // Every prefix of a line can be read, and what is written from it can be read again.
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string line = FormatChartLine(parse(whole.substr(0, length)), {});
        EXPECT_EQ(FormatChartLine(parse(line), {}), line);
    }
}

TEST(ChartLine, NamesAndTexts)
{
    const auto named = [](const std::string& name) {
        return parse(lineOf(name));
    };
    EXPECT_EQ(named("  ... !").name, kNoNameText);
    EXPECT_FALSE(named("  ... !").identity.nameMissing);
    EXPECT_EQ(named("").name, kNoNameText);
    EXPECT_TRUE(named("").identity.nameMissing);
    EXPECT_EQ(named("\u2014\u0964\u20AC").name, kNoNameText);
    EXPECT_EQ(named("\u092E\u0940\u0930\u093E").name, L"\u092E\u0940\u0930\u093E");
    EXPECT_EQ(named("7").name, L"7");
    EXPECT_EQ(named("Bartholomew the Elder").identity.shortName, L"Bartholom");
    EXPECT_EQ(named(" of Nowhere").identity.shortName, L"of");
    // Lengths are characters.
    std::string longName;
    for (int i = 0; i < 60; ++i) {
        longName += "\u0916";
    }
    EXPECT_EQ(named(longName).name, std::wstring(kNameLength, L'\u0916'));
    // Windows-1252 when the line is no UTF-8, also where a field by itself would be.
    LineParts parts;
    parts.name = "\"Ren\xE9\"";
    parts.place = "\"\xC3\xA9\"";
    EXPECT_EQ(parse(parts.line()).name, L"Ren\u00e9");
    EXPECT_EQ(parse(parts.line()).place, L"\u00C3\u00A9");
    EXPECT_EQ(named("a\x01z\x7F").name, L"a z ");
}

TEST(ChartLine, NotesExtraTextAndContact)
{
    const auto with = [](const std::string& notes) {
        LineParts parts;
        parts.notes = notes;
        return parse(parts.line());
    };
    EXPECT_EQ(with("\"first|second\"/\"\"").identity.notes, L"first\r\nsecond");
    EXPECT_EQ(with("\"notes\"/\"more\"").identity.notes, L"notes more");
    EXPECT_EQ(with("\"notes\"/\" more\"").identity.notes, L"notes more");
    EXPECT_EQ(with("\"notes\"/\"|more\"").identity.notes, L"notes|more");
    EXPECT_EQ(with("\"a/b\"/\"\"").identity.notes, L"a/b");
    EXPECT_EQ(with("\"a \"\"/\"x\"").identity.notes, L"a \" x");

    const core::Identity identity =
        with("\"n\"/\"^Mira^1 Road^Delhi^^110001^India^1^2^3^m@example.org^S7^more\"").identity;
    EXPECT_EQ(identity.notes, L"n");
    EXPECT_EQ(identity.contact.name, L"Mira");
    EXPECT_EQ(identity.contact.state, L"");
    EXPECT_EQ(identity.contact.fax, L"3");
    EXPECT_EQ(identity.contact.email, L"m@example.org");
    EXPECT_EQ(identity.contact.sortCode, L"S7");
    EXPECT_EQ(with("\"\"/\"^" + std::string(50, 'x') + "^s\"").identity.contact.name,
              std::wstring(36, L'x'));

    // A full contact is shortened so that nothing falls off at its end.
    core::Chart chart;
    for (const ContactField& field : contactFields()) {
        chart.identity.contact.*field.text = std::wstring(field.most, L'x');
    }
    chart.identity.contact.sortCode = L"end";
    const core::Contact read = parse(FormatChartLine(chart, {})).identity.contact;
    EXPECT_EQ(formatContact(read).size(), kExtraLength);
    EXPECT_EQ(read.sortCode, L"end");
    EXPECT_EQ(read.postcode, std::wstring(12, L'x'));
}

TEST(ChartLine, AnEventInTheLastSecondsOfADayStaysUsable)
{
    core::Chart chart;
    chart.identity.events[0] = {L"Late", {1999, 6, 2}, 23.999};
    chart.identity.events[1] = {L"Next", {1999, 6, 2}, 24.0};
    cleanRecord(chart);
    DateOrder order = DateOrder::DayFirst;
    core::Chart read;
    ParseChartLine(FormatChartLine(chart, order), read, order);
    EXPECT_EQ(read.identity.events[0].hours, 23.99);
    EXPECT_TRUE(read.identity.events[0].usable());
    EXPECT_EQ(read.identity.events[1].hours, 24.0);
}

TEST(ChartLine, NumbersOfDamagedFiles)
{
    LineParts parts;
    parts.date = "99999999999/x/1975abc";
    parts.saving = "1e5";
    parts.numbers = "-99999999999999/";
    parts.longitude = "1e999";
    parts.latitude = "nan";
    parts.time = "\"unknown\"";
    parts.events = "\t\"e\"/1/2/3/inf\t\"f\"/1/2/3/1e999" + std::string(60, '\t') + "more";
    const core::Chart chart = parse(parts.line());
    EXPECT_EQ(chart.time.day, std::numeric_limits<int>::max());
    EXPECT_EQ(chart.time.month, 0);
    EXPECT_EQ(chart.time.year, 1975);
    EXPECT_EQ(chart.daylightSaving, 1);
    EXPECT_EQ(chart.identity.numbers[0], -999999999);
    EXPECT_EQ(chart.geoLongitude, 0.0);
    EXPECT_EQ(chart.geoLatitude, 0.0);
    EXPECT_EQ(chart.time.localTime, 0.0);
    EXPECT_EQ(chart.identity.events[0].hours, 0.0);
    EXPECT_EQ(chart.identity.events[1].hours, 0.0);
    // A text that says nothing about its number is not lost.
    EXPECT_NE(FormatChartLine(chart, {}).find("\"unknown\""), std::string::npos);
}

TEST(PhoneticSound, GroupsOfKnownAndAccidentalSounds)
{
    // (2 * position + length) mod 5, worked by hand on the string of sounds.
    EXPECT_EQ(soundGroup(L"a"), 1);  // position 0
    EXPECT_EQ(soundGroup(L"e"), 2);  // position 3
    EXPECT_EQ(soundGroup(L"kh"), 2); // position 5
    EXPECT_EQ(soundGroup(L"o"), 4);  // position 4
    EXPECT_EQ(soundGroup(L"u"), 5);  // position 2
    EXPECT_EQ(soundGroup(L"Th"), 3); // position 13
    EXPECT_EQ(soundGroup(L"ok"), 5); // spans two sounds
    EXPECT_EQ(soundGroup(L"h"), 5);
    EXPECT_EQ(soundGroup(L"Hx"), 5);
    for (const wchar_t* unknown : {L"", L"ka", L"A", L"K"}) {
        EXPECT_EQ(soundGroup(unknown), 1);
    }
}

} // namespace
} // namespace kestrav::data
