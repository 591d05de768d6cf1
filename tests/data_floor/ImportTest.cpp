#include "data/import/ReadImport.h"

#include "data/DatabaseMessages.h"
#include "data/import/BirthEntry.h"
#include "data/import/ImportText.h"
#include "tests/data_floor/Folders.h"
#include "tests/data_floor/PreparedMessages.h"
#include "tests/data_floor/Records.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace kestrav::data
{
namespace
{

namespace fs = std::filesystem;
using core::Answer;

ImportReport read(const std::string& text, const ImportOptions& options = {})
{
    return readImportBytes({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()},
                           "Some File", options);
}

ImportFormat formatOf(const std::string& text)
{
    return recogniseImport({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

// One chart that must have been taken.
core::Chart only(const ImportReport& report)
{
    for (const ImportNote& note : report.refused) {
        ADD_FAILURE() << note.record << ": " << note.text;
    }
    EXPECT_EQ(report.charts.size(), 1U);
    return report.charts.empty() ? core::Chart{} : report.charts.front();
}

// The two made-up births that every format here tells in its own way.
void expectMira(const core::Chart& chart, const wchar_t* name = L"Mira Example")
{
    EXPECT_EQ(chart.name, name);
    EXPECT_EQ(chart.time.year, 1975);
    EXPECT_EQ(chart.time.month, 3);
    EXPECT_EQ(chart.time.day, 5);
    EXPECT_NEAR(chart.time.localTime, 14.25, 1e-9);
    EXPECT_NEAR(chart.zone, 5.5, 1e-9);
    EXPECT_EQ(chart.daylightSaving, 0);
    EXPECT_NEAR(chart.geoLongitude, 77.0 + 13.0 / 60.0, 1e-7);
    EXPECT_NEAR(chart.geoLatitude, 28.65, 1e-9);
    EXPECT_EQ(chart.timeText, L"14:15");
}

void expectSam(const core::Chart& chart, const wchar_t* name = L"Sam Sample")
{
    EXPECT_EQ(chart.name, name);
    EXPECT_EQ(chart.time.year, 1968);
    EXPECT_EQ(chart.time.month, 7);
    EXPECT_EQ(chart.time.day, 9);
    EXPECT_NEAR(chart.time.localTime, 5.5 / 60.0, 1e-9);
    EXPECT_EQ(chart.zone, -5.0);
    EXPECT_EQ(chart.daylightSaving, 1);
    EXPECT_NEAR(chart.geoLongitude, -71.06, 1e-9);
    EXPECT_NEAR(chart.geoLatitude, 42.0 + 21.5 / 60.0, 1e-9);
}

constexpr const char* kMiraPacked =
    "3\r\n5\r\n1975\r\n14.150000000000000\r\n-5.300000\r\n-77.130000\r\n28.390000\r\n0.000000\r\n"
    "-5.500000\r\n-5.500000\r\n0\r\n105\r\nNew Delhi\r\nIndia\r\n1\r\n1013.250000\r\n20.000000\r\n1"
    "\r\n";
constexpr const char* kSamPacked =
    "7\n9\n1968\n0.055000000000000\n4.000000\n71.036000\n42.215000\n5.000000\n5.000000\n4.000000\n"
    "0\n254\nBoston\nMassachusetts,^USA\n";

TEST(Import, ChartOfPackedNumbers)
{
    const core::Chart mira = only(read(kMiraPacked));
    expectMira(mira, L"Some File");
    EXPECT_EQ(mira.place, L"New Delhi");
    EXPECT_EQ(mira.identity.country, L"India");
    const core::Chart sam = only(read(kSamPacked));
    expectSam(sam, L"Some File");
    EXPECT_EQ(sam.identity.country, L"Massachusetts, USA");
    expectMira(only(read("3 5 1975 14.15 -5.30 -77.13 28.39\n")), L"Some File");
    expectMira(only(read("3\n5\n1975\n14.15\n|-5.30\n-77.13\n28.39")), L"Some File");
    // In old files longitudes of planets stand where the offsets are otherwise.
    const core::Chart old = only(read("3\n5\n1975\n14.15\n-5.30\n-77.13\n28.39\n0\n301.5\n12.25\n"
                                      "14.5\n80.1\n200.5\n|31.75\n-1.5\n8.0\n188.0\n"));
    expectMira(old, L"Some File");
    EXPECT_EQ(old.place + old.identity.country, L"") << "a longitude is no place";
    EXPECT_EQ(read("3\n5\n1975\n14.75\n-5.30\n-77.13\n28.39\n").refused.size(), 1U) << "75 minutes";
    EXPECT_EQ(read("13\n5\n1975\n14.15\n-5.30\n-77.13\n28.39\n").refused.at(0).text,
              "the date 1975-13-5 does not exist");
    for (const char* wrong :
         {"3\n5\n1975\n24.15\n-5.30\n-77.13\n28.39\n", "3\n5\n1975\n14.15\n-16.30\n-77.13\n28.39\n",
          "3\n5\n1975\n14.15\n-5.30\n-181.13\n28.39\n", "3\n5\n1975\n14.15\n-5.30\n-77.13\n91.39\n",
          "3\n5.5\n1975\n14.15\n-5.30\n-77.13\n28.39\n", "3\n5\n1e9\n14.15\n-5.30\n-77.13\n28.39\n",
          "3\n5\n1975\n-14.15\n-5.30\n-77.13\n28.39\n"}) {
        EXPECT_EQ(read(wrong).charts.size(), 0U) << wrong;
        EXPECT_EQ(read(wrong).refused.size(), 1U) << wrong;
    }
}

TEST(Import, PackedNumbersKeepTheirMinutesAndSign)
{
    // 118.145667 is 118 degrees 14.5667 minutes.
    EXPECT_NEAR(*unpackNumber("118.145667"), 118.0 + 14.5667 / 60.0, 1e-9);
    EXPECT_EQ(unpackNumber("14.199999999999999"), 14.0 + 20.0 / 60.0);
    EXPECT_NEAR(*unpackNumber("77.35"), 77.0 + 35.0 / 60.0, 1e-12);
    EXPECT_EQ(unpackNumber("-0.30"), -0.5);
    EXPECT_EQ(unpackNumber("|-0.30"), -0.5);
    EXPECT_EQ(unpackNumber("5.60"), std::nullopt);
    EXPECT_EQ(unpackNumber("x"), std::nullopt);
    EXPECT_EQ(unpackNumber("1e300"), std::nullopt);
}

TEST(Import, TwentyFourHoursAndFractionsOfSavingTime)
{
    BirthEntry entry;
    entry.name = "x";
    entry.year = 1999;
    entry.month = 12;
    entry.day = 31;
    entry.hours = 24.0;
    entry.zone = 5.0;
    entry.saving = 1.5;
    const core::Result<core::Chart> chart = chartOf(entry);
    ASSERT_TRUE(chart);
    EXPECT_EQ(chart.value().time.year, 2000);
    EXPECT_EQ(chart.value().time.day, 1);
    EXPECT_EQ(chart.value().time.localTime, 0.0);
    EXPECT_EQ(chart.value().daylightSaving, 1);
    EXPECT_EQ(chart.value().zone, 5.5);
    for (double BirthEntry::*number : {&BirthEntry::hours, &BirthEntry::zone, &BirthEntry::saving,
                                       &BirthEntry::longitude, &BirthEntry::latitude}) {
        BirthEntry broken = entry;
        broken.*number = std::numeric_limits<double>::quiet_NaN();
        EXPECT_FALSE(chartOf(broken));
    }
}

constexpr const char* kMiraQck =
    "Mira Example           MAR  5, 197502:15:00 PM IST-05:30077E13'00 "
    "28N39'00 New Delhi, India          \r\n";
constexpr const char* kSamQck = "Sam Sample             JUL  9, 196812:05:30 AM EDT+04:00071W03'36 "
                                "42N21'30 Boston, MA, USA           \r\n";

TEST(Import, ChartListsInColumns)
{
    const ImportReport report = read(std::string(kMiraQck) + "\r\n" + kSamQck);
    EXPECT_EQ(report.refused.size(), 0U);
    ASSERT_EQ(report.charts.size(), 2U);
    expectMira(report.charts[0]);
    expectSam(report.charts[1]);
    EXPECT_EQ(report.charts[1].place, L"Boston, MA");
    EXPECT_EQ(report.charts[1].identity.country, L"USA");

    const auto changed = [](std::size_t place, const std::string& text) {
        std::string line = kMiraQck;
        return line.replace(place, text.size(), text);
    };
    EXPECT_EQ(only(read(changed(35, "00"))).time.localTime, 12.25) << "hour 00 counts as 12";
    EXPECT_NEAR(only(read(changed(47, "LMT      "))).zone, (77.0 + 13.0 / 60.0) / 15.0, 1e-9);
    EXPECT_EQ(only(read(changed(47, "LMT-05:10"))).zone, 5.0 + 10.0 / 60.0);
    EXPECT_EQ(only(read(changed(47, "IWT-06:30"))).daylightSaving, 1) << "war time";
    EXPECT_EQ(only(read(changed(47, "BST-01:00"))).daylightSaving, 0);
    EXPECT_EQ(only(read(changed(30, " -123"))).time.year, -123);
    EXPECT_EQ(only(read(changed(0, "Ren\xE9 Examp"))).name, L"Ren\u00e9 Example");
    EXPECT_EQ(only(read(std::string(kMiraQck).substr(0, 75))).place, L"") << "a short line";

    const ImportReport mixed =
        read(std::string(kMiraQck) + changed(26, "32") + changed(47, "   x") + changed(60, "x") +
             changed(35, "25") + "short\n" + kSamQck);
    EXPECT_EQ(mixed.charts.size(), 2U) << "the others are read";
    ASSERT_EQ(mixed.refused.size(), 5U);
    EXPECT_EQ(mixed.refused[0].record, 2);
    EXPECT_EQ(mixed.refused[4].record, 6);
}

TEST(Import, CommandLines)
{
    const std::string sam = "@0102  ; chart info\n/qb 7 9 1968  0:05:30 DT 5:00  71:03:36W "
                            "42:21:30N\n/zi \"Sam Sample\" \"Boston, MA, USA\"\n";
    const core::Chart chart = only(read(sam));
    expectSam(chart);
    EXPECT_EQ(chart.identity.country, L"USA");
    const core::Chart mira =
        only(read("@AI760\n-qb Mar 5 1975 14:15:00 ST -5:30 77:13'00E "
                  "28:39:00N ; comment\n-zi \"Mira Example\" \"New Delhi\"\n"));
    expectMira(mira);
    EXPECT_EQ(only(read("@0102\n/qb 3 5 1975 14:15 0 5:30E 77:13E 28:39N\n")).zone, 5.5);
    EXPECT_EQ(only(read("@0102\n/qb 3 5 1975 14:15 1:00 5:00 71:30 42:30\n")).geoLongitude, -71.5);
    for (const char* wrong :
         {"@0102\n/qb 7 9 1968 0:05 Autodetect 5:00 71:03W 42:21N\n", "@0102\n/qb 7 9 1968\n",
          "@0102\n/zi \"x\" \"y\"\n", "@0102\n/qb x 9 1968 0:05 ST 5:00 71:03W 42:21N\n",
          "@0102\n/qb 7 9 1968 0:05 ST 5:00 71:03W 42:61N\n"}) {
        EXPECT_EQ(read(wrong).charts.size(), 0U) << wrong;
        EXPECT_EQ(read(wrong).refused.size(), 1U) << wrong;
    }
}

TEST(Import, BirthDataByKeys)
{
    const std::string mira =
        "Name: Mira Example\nDate: 1975-03-05\nTime: 14:15:00\nPlace: New Delhi\nCountry: India\n"
        "Longitude: 77E13\nLatitude: 28N39\nZone: +5:30\nDST: 0\n";
    const core::Chart chart = only(read(mira));
    expectMira(chart);
    EXPECT_EQ(chart.place, L"New Delhi");
    expectMira(
        only(read("name=Mira Example\r\ndate = 5 Mar 1975\nTIME=2:15 pm\nlongitude=77.2166667\n"
                  "latitude=28.65\nzone=5.5\n")));
    // A date in figures without a known order is not guessed, nor is a zone.
    EXPECT_EQ(read("date: 5/3/1975\ntime: 14:15\nlongitude: 77E13\nlatitude: 28N39\nzone: 5:30\n")
                  .refused.at(0)
                  .text,
              "the date '5/3/1975' is not understood; write it as 1975-03-05 or 5 Mar 1975");
    EXPECT_EQ(read("name: x\ndate: 1975-03-05\ntime: 14:15\nlongitude: 77E13\n").refused.at(0).text,
              "has no latitude, zone");
}

std::string binaryChart(const std::string& name, float longitude, float latitude, int year,
                        const std::vector<int>& clock, float offset, const std::string& mark)
{
    const auto padded = [](std::string text, std::size_t size) {
        text.resize(size, ' ');
        return text;
    };
    const auto number = [](float value) {
        const auto bits = std::bit_cast<std::uint32_t>(value);
        std::string bytes;
        for (int shift = 0; shift < 32; shift += 8) {
            bytes += char(bits >> unsigned(shift) & 0xFFU);
        }
        return bytes;
    };
    std::string record = "\x01\x01" + padded(name, 50) + padded("Town", 20) + padded("Land", 20) +
                         number(longitude) + number(latitude) + char(year & 0xFF) + char(year >> 8);
    for (const int part : clock) {
        record += char(part);
    }
    return record + number(offset) + padded(mark, 5) + std::string(150, 'n');
}

std::string binaryList(char count, const std::string& records)
{
    return std::string("\x03\0", 2) + std::string(80, ' ') + count + std::string(3, '\0') + records;
}

TEST(Import, BinaryChartLists)
{
    const float miraLongitude = -(77.0F + 13.0F / 60.0F);
    const std::string mira =
        binaryChart("Mira Example", miraLongitude, 28.65F, 1975, {3, 5, 14, 15, 0}, -5.5F, "IST");
    const std::string sam =
        binaryChart("Sam Sample", 71.06F, 42.358333F, 1968, {7, 9, 0, 5, 30}, 4.0F, "EDT");
    const ImportReport report = read(binaryList(2, mira + "\x01\x01 notes \x01\x01" + sam));
    ASSERT_EQ(report.charts.size(), 2U);
    expectMira(report.charts[0]);
    expectSam(report.charts[1]);
    EXPECT_EQ(report.charts[1].place, L"Town");

    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    for (const std::string& wrong :
         {binaryList(3, mira + sam), binaryList(1, mira + sam), binaryList(2, mira),
          binaryList(1, binaryChart("x", notANumber, 0, 1975, {3, 5, 1, 1, 1}, 0, "")),
          binaryList(1, binaryChart("x", 0, 0, 1975, {3, 5, 1, 1, 1}, notANumber, "")),
          binaryList(1, binaryChart("x", 0, 0, 1975, {13, 5, 1, 1, 1}, 0, "")),
          binaryList(1, binaryChart("x", 0, 0, 1975, {3, 5, 25, 1, 1}, 0, "")),
          binaryList(1, mira.substr(0, 110)), binaryList(-1, "")}) {
        EXPECT_EQ(read(wrong).charts.size(), 0U);
        EXPECT_EQ(read(wrong).refused.size(), 1U);
    }
}

std::string utf16(const std::string& ascii)
{
    std::string text = "\xFF\xFE";
    for (const char byte : ascii) {
        text += byte;
        text += '\0';
    }
    return text;
}

std::string birthXml(const std::string& encoding, const std::string& more = "")
{
    return "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>" + more +
           "<BirthData><BirthInfo><FirstName>Mira</FirstName><LastName>Example</LastName>\n"
           "<BirthDate>2442477.0937500</BirthDate><Longitude>-77.2166667</Longitude>"
           "<Latitude>28.6500000</Latitude>\n<TimeZone>-5.5000000</TimeZone><DST>0.0000000</DST>"
           "<City>New Delhi</City><Country>India</Country></BirthInfo></BirthData>";
}

TEST(Import, XmlOfOneChart)
{
    const core::Chart chart = only(read(utf16(birthXml("UTF-16"))));
    expectMira(chart);
    EXPECT_EQ(chart.place, L"New Delhi");
    expectMira(only(read(birthXml("UTF-8"))));
    // Converted, but with its first line left alone.
    expectMira(only(read(birthXml("UTF-16"))));
    // 1998-04-30 13:45 at zone -5 with an hour of saving time.
    std::string other = birthXml("UTF-8");
    other.replace(other.find("2442477.0937500"), 15, "2450934.0729167");
    other.replace(other.find("-5.5000000"), 10, "5.00000000");
    other.replace(other.find("<DST>0"), 6, "<DST>1");
    const core::Chart spring = only(read(other));
    EXPECT_EQ(spring.time.year, 1998);
    EXPECT_EQ(spring.time.month, 4);
    EXPECT_EQ(spring.time.day, 30);
    EXPECT_EQ(spring.time.localTime, 13.75);
    EXPECT_EQ(spring.zone, -5.0);
    EXPECT_EQ(spring.daylightSaving, 1);
}

TEST(Import, XmlIsReadSafely)
{
    const std::string entity =
        "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">]>";
    const ImportReport refused = read(birthXml("UTF-8", entity));
    EXPECT_EQ(refused.charts.size(), 0U);
    EXPECT_EQ(refused.refused.at(0).text, "has a document type, which is not accepted");
    EXPECT_EQ(read(birthXml("UTF-8", "<!DOCTYPE x SYSTEM \"file:///some/file\">")).charts.size(),
              0U);
    for (const std::string& wrong :
         {std::string("<"), std::string("<a/>"), birthXml("UTF-8").substr(0, 200),
          std::string("<BirthData/>"), std::string("<BirthData><BirthInfo/></BirthData>"),
          std::string("\xFF\xFE"), std::string("<html><body>no chart</body></html>")}) {
        EXPECT_EQ(read(wrong).charts.size(), 0U);
        EXPECT_EQ(read(wrong).refused.size(), 1U);
    }
    std::string deep;
    for (int i = 0; i < 100000; ++i) {
        deep += "<a>";
    }
    EXPECT_EQ(read(deep).refused.size(), 1U);
}

std::string bankEntry(const std::string& name, const std::string& date, const std::string& time,
                      const std::string& place)
{
    return "<adb_entry adb_id=\"1\"><public_data>" + name + "<gender csex=\"f\">F</gender><bdata>" +
           date + time + place + "<country>India</country></bdata></public_data></adb_entry>";
}

TEST(Import, ExportOfABirthDataBank)
{
    const std::string head = "<astrodatabank_export export_format=\"160715\">";
    const std::string name = "<name>Example, Mira</name><sflname>Mira Example</sflname>"
                             "<roddenrating>AA</roddenrating>";
    const std::string date = "<sbdate ccalendar=\"g\" iyear=\"1975\" imonth=\"3\" "
                             "iday=\"5\">1975/03/05</sbdate>";
    const std::string time = "<sbtime ctimetype=\"s\" stmerid=\"h5e30\" "
                             "jd_ut=\"2442476.864583\">14:15</sbtime>";
    const std::string place = "<place slati=\"28n39\" slong=\"77e13\">New Delhi</place>";
    const std::string tail = "</astrodatabank_export>";
    const auto one = [&](const std::string& d, const std::string& t, const std::string& p) {
        return read(head + bankEntry(name, d, t, p) + tail);
    };
    const core::Chart mira = only(one(date, time, place));
    expectMira(mira);
    EXPECT_EQ(mira.identity.sex, L"F");
    EXPECT_EQ(mira.identity.notes, L"Rodden rating AA.");
    expectMira(only(one(date, "<sbtime ctimetype=\"s\" stmerid=\"h5e30\">14:15</sbtime>", place)));
    const core::Chart summer =
        only(one(date, "<sbtime ctimetype=\"d\" stmerid=\"h4w\">14:15:30</sbtime>",
                 "<place slati=\"52n0445\" slong=\"10e35\">x</place>"));
    EXPECT_EQ(summer.zone, -5.0);
    EXPECT_EQ(summer.daylightSaving, 1);
    EXPECT_NEAR(summer.geoLatitude, 52.0 + 4.75 / 60.0, 1e-9);
    EXPECT_NEAR(
        only(one(date, "<sbtime ctimetype=\"l\" stmerid=\"m36e07\">1:00</sbtime>", place)).zone,
        (36.0 + 7.0 / 60.0) / 15.0, 1e-9);
    EXPECT_NEAR(only(one(date, "<sbtime ctimetype=\"l\">1:00</sbtime>",
                         "<place slati=\"28s39\" slong=\"283e00\">x</place>"))
                    .zone,
                -77.0 / 15.0, 1e-9)
        << "beyond 180 degrees, and mean time of the place";
    const ImportReport unknown =
        one(date,
            "<sbtime time_unknown=\"yes\" ctimetype=\"s\" stmerid=\"h1e\">unknown, 12:00 "
            "used</sbtime>",
            place);
    EXPECT_EQ(unknown.remarks.size(), 1U);
    EXPECT_EQ(only(unknown).time.localTime, 12.0);
    EXPECT_NE(unknown.charts[0].identity.notes.find(L"Birth time unknown."), std::wstring::npos);

    // A Gregorian date before the change comes back in the calendar of its day, in the fifteenth
    // century 9 days earlier, and a Julian one as it stands.
    const std::string early = "iyear=\"1452\" imonth=\"4\" iday=\"24\"/>";
    const std::string plainTime = "<sbtime ctimetype=\"l\">22:30</sbtime>";
    EXPECT_EQ(only(one("<sbdate ccalendar=\"g\" " + early, plainTime, place)).time.day, 15);
    EXPECT_EQ(only(one("<sbdate ccalendar=\"j\" " + early, plainTime, place)).time.day, 24);

    const ImportReport mixed = read(
        head + bankEntry(name, date, time, "") + bankEntry(name, "", time, place) +
        bankEntry(name, date, "<sbtime ctimetype=\"s\">14:15</sbtime>", place) +
        bankEntry(name, date, "<sbtime ctimetype=\"s\" jd_ut=\"2442400\">14:15</sbtime>", place) +
        bankEntry(name, date, time, "<place slati=\"28n39\" slong=\"77x13\"/>") +
        bankEntry(name, date, time, place) + tail);
    EXPECT_EQ(mixed.charts.size(), 1U);
    ASSERT_EQ(mixed.refused.size(), 5U);
    EXPECT_EQ(mixed.refused[4].record, 5);
}

TEST(Import, RecognisesByContent)
{
    EXPECT_EQ(formatOf(lineOf("Mira") + "\n"), ImportFormat::ChartLines);
    EXPECT_EQ(formatOf(kMiraPacked), ImportFormat::PackedList);
    EXPECT_EQ(formatOf(kMiraQck), ImportFormat::Qck);
    EXPECT_EQ(formatOf("\n  @0102\n"), ImportFormat::Commands);
    EXPECT_EQ(formatOf("\\S>x\n\\N>y\n"), ImportFormat::TaggedDatabase);
    EXPECT_EQ(formatOf("Date: 1975-03-05\n"), ImportFormat::BirthKeys);
    EXPECT_EQ(formatOf("\xEF\xBB\xBF<?xml"), ImportFormat::Xml);
    EXPECT_EQ(formatOf(""), ImportFormat::Unknown);
    EXPECT_EQ(read("hello world\n").refused.at(0).text,
              "is not a chart file: it begins with 'hello world'");
    EXPECT_EQ(read("\\S>x\n").refused.size(), 1U);
    EXPECT_EQ(read(std::string(kLargestImport + 1, ' ')).refused.at(0).text,
              "is larger than 16 MiB");

    const ImportReport lines = read(lineOf("Mira") + "\nshort\n" + lineOf("Sam") + "\n");
    EXPECT_EQ(lines.charts.size(), 2U);
    EXPECT_EQ(lines.refused.at(0).record, 2);
    EXPECT_EQ(only(read("Name: Z\x81rich\nDate: 1975-03-05\nTime: 1:00\nLongitude: 8E33\nLatitude: "
                        "47N22\nZone: 1:00\n",
                        {.encoding = ByteEncoding::CodePage850}))
                  .name,
              L"Z\u00fcrich");
}

using ImportFileTest = FolderTest;

TEST_F(ImportFileTest, AWholeFolder)
{
    put("b Mira.JHD", kMiraPacked);
    put("a Sam.dat", kSamPacked);
    put("c.jhd", "nothing");
    put("other.txt", kMiraPacked);
    fs::create_symlink(folder / "b Mira.JHD", folder / "link.jhd");
    fs::create_directory(folder / "folder.jhd");
    const std::vector<ImportReport> reports = readImportFolder(folder);
    ASSERT_EQ(reports.size(), 3U);
    expectSam(only(reports[0]), L"a Sam");
    expectMira(only(reports[1]), L"b Mira");
    EXPECT_EQ(reports[2].refused.size(), 1U);
    EXPECT_EQ(reports[2].file, folder / "c.jhd");
    EXPECT_EQ(readImportFolder(folder / "none").at(0).refused.size(), 1U);
}

TEST_F(ImportFileTest, AddsToTheDatabaseOnce)
{
    ChartDatabase database;
    database.begin(folder / "My Charts.ksc");
    PreparedMessages messages({Answer::No, Answer::Yes, Answer::Yes});
    ImportReport report;
    EXPECT_EQ(importFile(database, folder / "none.qck", {}, messages, report), Outcome::Failed);
    EXPECT_EQ(messages.shown.at(0).text, L"Can't find the file");
    messages.shown.clear();
    const fs::path list = put("list.qck", std::string(kMiraQck) + kSamQck);
    EXPECT_EQ(importFile(database, list, {}, messages, report), Outcome::Cancelled);
    messages.expectOne(L"Notice", L"Add list.qck to My Charts.ksc?");
    EXPECT_EQ(importFile(database, list, {}, messages, report), Outcome::Done);
    EXPECT_EQ(database.size(), 2U);
    core::Chart chart;
    expectSam(database.read(1, chart));
    EXPECT_EQ(reportText(report), L"list.qck: QCK chart list\n  taken: 2, refused: 0\n");
    EXPECT_EQ(importFile(database, list, {}, messages, report), Outcome::Failed);
    EXPECT_EQ(database.size(), 2U);
    EXPECT_EQ(report.refused.at(1).text, "Sam Sample is in the database already");
    EXPECT_TRUE(isImportName("x.QcK"));
    EXPECT_FALSE(isImportName("x.dat"));
    EXPECT_TRUE(shouldImport(list));
    EXPECT_TRUE(shouldImport(put("mira.dat", kMiraPacked)));
    EXPECT_FALSE(shouldImport(put("ours.dat", lineOf("Mira") + "\n")));
    EXPECT_FALSE(shouldImport(put("empty.dat", "")));

    fs::permissions(list, fs::perms(0));
    EXPECT_EQ(withoutPrivileges([&] {
                  messages.shown.clear();
                  importFile(database, list, {}, messages, report);
                  return messages.shown.size() == 1 &&
                                 messages.shown[0].text == L"Can't find the file"
                             ? 0
                             : 1;
              }),
              0);
    report = {};
    report.file = "a\x1B[2J.qck";
    report.refuse(1, "\xC2\x9B"
                     "31m");
    EXPECT_EQ(reportText(report), L"a [2J.qck\n  taken: 0, refused: 1\n  refused 1:  31m\n");
}

} // namespace
} // namespace kestrav::data
