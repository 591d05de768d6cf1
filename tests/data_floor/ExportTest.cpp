#include "data/export/ExportCharts.h"

#include "data/export/ChartRows.h"
#include "data/export/ExportText.h"
#include "data/export/QckWriter.h"
#include "data/import/ReadImport.h"
#include "tests/data_floor/Folders.h"
#include "tests/data_floor/PreparedMessages.h"
#include "tests/data_floor/Records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace kestrav::data
{
namespace
{

namespace fs = std::filesystem;
using core::Answer;

core::Chart sam()
{
    core::Chart chart;
    chart.name = L"Sam Sample";
    chart.place = L"Boston, MA";
    chart.identity.country = L"USA";
    chart.time.year = 1968;
    chart.time.month = 7;
    chart.time.day = 9;
    chart.time.localTime = 5.5 / 60.0;
    chart.zone = -5.0;
    chart.daylightSaving = 1;
    chart.geoLongitude = -71.06;
    chart.geoLatitude = 42.0 + 21.5 / 60.0;
    return chart;
}

TEST(Export, QckColumns)
{
    const QckLine line = qckLine(sam());
    EXPECT_EQ(line.line,
              "Sam Sample             JUL  9, 196812:05:30 AM EDT+04:00071W03'36 42N21'30 "
              "Boston, MA, USA          ");
    EXPECT_TRUE(line.losses.empty());
    core::Chart chart = sam();
    chart.name = L"Ren\u00e9 \u092E\u0940 with a very long name";
    chart.daylightSaving = 0;
    chart.zone = chart.geoLongitude / 15.0;
    const QckLine lossy = qckLine(chart);
    EXPECT_EQ(lossy.line.size(), 100U);
    EXPECT_EQ(lossy.line.substr(0, 23), "Ren\xE9 ?? with a very lon");
    EXPECT_EQ(lossy.line.substr(47, 9), "LMT+04:44");
    EXPECT_EQ(lossy.losses.size(), 3U) << "cut, replaced, rounded";
    chart.time.year = 123456;
    EXPECT_EQ(qckLine(chart).line.size(), 100U);
}

TEST(Export, QckComesBackThroughTheImport)
{
    constexpr unsigned kSeed = 31;
    RandomRecords records(kSeed);
    for (int i = 0; i < 500; ++i) {
        SCOPED_TRACE("seed " + std::to_string(kSeed) + ", record " + std::to_string(i));
        core::Chart chart = records.record();
        chart.name = L"x";
        chart.place = L"Town";
        chart.identity.country = L"Land";
        chart.time.year = records.whole(1500, 2100);
        chart.time.day = records.whole(16, 28);
        chart.daylightSaving = records.whole(0, 1);
        chart.zone = records.whole(-12 * 60, 12 * 60) / 60.0;
        const std::string line = qckLine(chart).line + "\r\n";
        const ImportReport report = readImportBytes(
            {reinterpret_cast<const std::uint8_t*>(line.data()), line.size()}, "", {});
        ASSERT_EQ(report.charts.size(), 1U);
        const core::Chart& read = report.charts[0];
        EXPECT_EQ(read.time.year, chart.time.year);
        EXPECT_EQ(read.time.month, chart.time.month);
        EXPECT_EQ(read.time.day, chart.time.day);
        EXPECT_NEAR(read.time.localTime, chart.time.localTime, 1e-9);
        EXPECT_NEAR(read.zone, chart.zone, 1e-9);
        EXPECT_EQ(read.daylightSaving, chart.daylightSaving);
        EXPECT_NEAR(read.geoLongitude, chart.geoLongitude, 1e-9);
        EXPECT_NEAR(read.geoLatitude, chart.geoLatitude, 1e-9);
        EXPECT_EQ(read.place, L"Town");
        EXPECT_EQ(read.identity.country, L"Land");
    }
}

TEST(Export, CellsHoldBackFormulasAndLineBreaks)
{
    EXPECT_EQ(plainCell(L"=1+2"), "'=1+2");
    EXPECT_EQ(plainCell(L"@x"), "'@x");
    EXPECT_EQ(plainCell(L"a\tb\nc"), "a b c");
    EXPECT_EQ(csvCell(L"plain"), "plain");
    EXPECT_EQ(csvCell(L"-x, \"y\"\r\nz"), "\"'-x, \"\"y\"\"\r\nz\"");
    EXPECT_EQ(jsonText(L"a\"\\\n\x01\u00e9"), "\"a\\\"\\\\\\n\\u0001\u00e9\"");
    EXPECT_EQ(singleByteText(L"\u20ac\u00ff\u0916"), "\x80\xff?");
}

TEST(Export, ContactsCsvAndJson)
{
    core::Chart chart = sam();
    EXPECT_EQ(contactRow(chart), "");
    chart.identity.contact.telephone1 = L"+1 234";
    EXPECT_EQ(contactRow(chart), "Sam Sample\t\t\t\t\t\t'+1 234\t\t\t\t\r\n");
    EXPECT_EQ(contactHead(),
              "Name\tStreet\tCity\tState\tZip/PC\tCountry\tTel1\tTel2\tFax\tEmail\tSortCode\r\n");

    chart.identity.notes = L"one\r\ntwo, \"three\"";
    chart.identity.events[4] = {L"Marriage", {1999, 6, 2}, 10.5};
    const std::string row = csvRow(chart);
    EXPECT_NE(row.find(",1968-07-09,"), std::string::npos);
    EXPECT_NE(row.find("\"one\r\ntwo, \"\"three\"\"\",Marriage 1999-06-02 10.50,"),
              std::string::npos);
    const std::string head = csvHead();
    const std::string plain = csvRow(core::Chart{});
    EXPECT_EQ(std::count(head.begin(), head.end(), ','),
              std::count(plain.begin(), plain.end(), ','));

    const std::string json = jsonObject(chart);
    EXPECT_NE(json.find("\"notes\": \"one\\r\\ntwo, \\\"three\\\"\""), std::string::npos);
    EXPECT_NE(json.find("\"events\": [{\"slot\": 4, \"name\": \"Marriage\", \"date\": {\"year\": "
                        "1999, \"month\": 6, \"day\": 2}, \"hours\": 10.5}]"),
              std::string::npos);
    chart.geoLatitude = std::nan("");
    EXPECT_NE(jsonObject(chart).find("\"latitude\": null"), std::string::npos);
}

using ExportFileTest = FolderTest;

TEST_F(ExportFileTest, AsksAndKeepsTheBackupOfTheDatabase)
{
    ChartDatabase database;
    ASSERT_TRUE(
        database.load(put("charts.ksc", lineOf("Mira") + "\nshort\n" + lineOf("Sam") + "\n")));
    put("charts.BAK", "backup");
    put("charts.json", "old");
    PreparedMessages messages({Answer::No, Answer::Yes});
    ExportReport report;
    EXPECT_EQ(exportCharts(database, ExportFormat::Json, folder / "charts.json", messages, report),
              Outcome::Cancelled);
    messages.expectOne(L"Warning", L"File exists. Overwrite?");
    EXPECT_EQ(exportCharts(database, ExportFormat::Json, folder / "charts.json", messages, report),
              Outcome::Done);
    EXPECT_EQ(report.written, 2U);
    EXPECT_EQ(report.notes.at(0).line, 1U);
    EXPECT_TRUE(get("charts.json").starts_with("{\"program\": {\"name\": \"Kestrav\""));
    EXPECT_EQ(get("charts.BAK"), "backup");
    messages.shown.clear();
    EXPECT_EQ(
        exportCharts(database, ExportFormat::Contacts, folder / "charts.JDF", messages, report),
        Outcome::Failed);
    messages.expectOne(L"Error", L"Can't export to this name, don't use '.jdf' extension");
    EXPECT_EQ(exportCharts(database, ExportFormat::Qck, folder / "charts.ksc", messages, report),
              Outcome::Failed);
    messages.shown.clear();
    EXPECT_EQ(
        exportCharts(database, ExportFormat::Csv, folder / "none/charts.csv", messages, report),
        Outcome::Failed);
    EXPECT_TRUE(messages.shown.at(0).text.starts_with(L"Saving File Error : "));
    ExportReport qck;
    EXPECT_EQ(exportText(database, ExportFormat::Qck, qck).size(), 2U * 102U);
}

TEST_F(ExportFileTest, AFailedExportSaysWhyAndKeepsTheOldFile)
{
    ChartDatabase database;
    ASSERT_TRUE(database.load(put("charts.ksc", lineOf("Mira") + "\n")));
    put("elsewhere.csv", "elsewhere");
    fs::create_symlink(folder / "elsewhere.csv", folder / "link.csv");
    const fs::path path = put("charts.csv", "old");
    const auto exportFails = [&] {
        PreparedMessages messages({Answer::Yes});
        ExportReport report;
        const bool failed =
            exportCharts(database, ExportFormat::Csv, path, messages, report) == Outcome::Failed;
        return failed && messages.shown.size() == 2 && messages.shown[1].caption == L"Error" &&
                       messages.shown[1].text.starts_with(L"Saving File Error : " + path.wstring() +
                                                          L": ")
                   ? 0
                   : 1;
    };
    EXPECT_EQ(onFullDisk(16, exportFails), 0);
    fs::permissions(path, fs::perms(0444));
    EXPECT_EQ(withoutPrivileges(exportFails), 0) << "a file that must not be written";
    fs::permissions(path, fs::perms(0666));
    fs::permissions(folder, fs::perms(0555));
    EXPECT_EQ(withoutPrivileges(exportFails), 0) << "a folder that cannot be written";
    fs::permissions(folder, fs::perms(0777));
    EXPECT_EQ(get("charts.csv"), "old");
    EXPECT_EQ(names(),
              (std::set<std::string>{"charts.csv", "charts.ksc", "elsewhere.csv", "link.csv"}));

    PreparedMessages messages({Answer::Yes});
    ExportReport report;
    EXPECT_EQ(exportCharts(database, ExportFormat::Csv, folder / "link.csv", messages, report),
              Outcome::Done);
    EXPECT_TRUE(fs::is_symlink(folder / "link.csv"));
    EXPECT_TRUE(get("elsewhere.csv").starts_with("tag,label,name"));
}

} // namespace
} // namespace kestrav::data
