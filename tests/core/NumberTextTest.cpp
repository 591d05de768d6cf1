#include "core/NumberText.h"
#include "core/FileText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace kestrav::core
{
namespace
{

using Parser = std::function<Result<double>(std::string_view)>;

void expectParses(const Parser& parse, const std::vector<std::pair<const char*, double>>& cases)
{
    for (const auto& [text, value] : cases) {
        const Result<double> result = parse(text);
        ASSERT_TRUE(result) << text << ": " << result.error().message;
        EXPECT_NEAR(result.value(), value, 1e-12) << text;
        EXPECT_FALSE(value == 0.0 && std::signbit(result.value())) << text;
    }
}

void expectRefused(const Parser& parse, const std::vector<const char*>& texts)
{
    for (const char* const text : texts) {
        const Result<double> result = parse(text);
        ASSERT_FALSE(result) << text << " gave " << result.value();
        EXPECT_NE(result.error().message.find(std::string("'").append(text).append("'")),
                  std::string::npos);
    }
}

TEST(NumberText, ReadsWholeNumbersAndNothingElse)
{
    EXPECT_EQ(parseNumber("-1.25e2"), -125.0);
    EXPECT_EQ(parseNumber(".5"), 0.5);
    for (const char* const text :
         {"", " 1", "1 ", "1,5", "+1", "0x10", "inf", "nan", "1e999", "-"}) {
        EXPECT_FALSE(parseNumber(text)) << text;
    }
    EXPECT_EQ(parseInteger("-2147483648"), std::numeric_limits<int>::min());
    for (const char* const text : {"", "2147483648", "1.0", "1a", "--1"}) {
        EXPECT_FALSE(parseInteger(text)) << text;
    }
}

TEST(NumberText, LeadingNumbersStopAtTheFirstForeignCharacter)
{
    EXPECT_EQ(readLeadingInteger(" \t+23x"), 23);
    EXPECT_EQ(readLeadingInteger("-7.9"), -7);
    EXPECT_EQ(readLeadingInteger("99999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(readLeadingInteger("-99999999999"), std::numeric_limits<int>::min());
    EXPECT_EQ(readLeadingNumber(" 50.27\""), 50.27);
    EXPECT_EQ(readLeadingNumber("1e"), 1.0);
    EXPECT_EQ(readLeadingNumber("-.5,7"), -0.5);
    for (const char* const text : {"", "+", "+-5", "x1", "inf", "nan", "."}) {
        EXPECT_EQ(readLeadingInteger(text), 0) << text;
        EXPECT_EQ(readLeadingNumber(text), 0.0) << text;
    }
}

TEST(NumberText, ShortestTextReadsBackTheSame)
{
    EXPECT_EQ(shortestNumber(0.1), "0.1");
    EXPECT_EQ(shortestNumber(365.25), "365.25");
    EXPECT_EQ(shortestNumber(-2.0), "-2");
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> uniform(-1e6, 1e6);
    for (int i = 0; i < 5000; ++i) {
        const double value = uniform(random);
        ASSERT_EQ(parseNumber(shortestNumber(value)), value);
    }
}

TEST(NumberText, Clock)
{
    expectParses(parseClock, {{"14:32:10", 14.0 + 1930.0 / 3600.0},
                              {"0:00", 0.0},
                              {"7:05", 7.0 + 5.0 / 60.0},
                              {"23:59:59.999", 24.0 - 0.001 / 3600.0}});
    expectRefused(parseClock, {"", "14", "24:00", "12:60", "12:5:60", "-1:00", "12:", "12:3x",
                               "12:30:", "12:30:1e1", "12:30:-1", "1:2:3:4", "012:30", " 12:30",
                               "23:59:59.99999999999999"});
}

TEST(NumberText, Zone)
{
    expectParses(parseZone, {{"+5:30", 5.5},
                             {"-4:56:02", -(4.0 + 3362.0 / 3600.0)},
                             {"5.5", 5.5},
                             {"-0:30", -0.5},
                             {"-0:00", 0.0},
                             {"-15", -15.0}});
    expectRefused(parseZone,
                  {"", "+", "15:01", "16", "+-5", "+-5:30", "5:60", "5:3O", "nan", "5,5"});
}

TEST(NumberText, GeographicAngles)
{
    expectParses(parseGeoLongitude, {{"77E13", 77.0 + 13.0 / 60.0},
                                     {"77e13:30", 77.225},
                                     {"0w7", -7.0 / 60.0},
                                     {"0W0", 0.0},
                                     {"180E", 180.0},
                                     {"-72.5833", -72.5833}});
    expectParses(parseGeoLatitude,
                 {{"28N39:15", 28.0 + 2355.0 / 3600.0}, {"33s51", -33.85}, {"90S00", -90.0}});
    expectRefused(parseGeoLongitude,
                  {"", "E77", "77E60", "77E13:60", "180E00:01", "77N13", "-77E13", "7.5E",
                   "77E13:30:1", "99999999999E1", "181", "77E 13"});
    expectRefused(parseGeoLatitude, {"90N01", "28E39", "-90.001", "inf"});
}

TEST(NumberText, Date)
{
    const auto parsed = [](const char* text) {
        const CivilDate date = parseDate(text).value();
        return std::to_string(date.year) + " " + std::to_string(date.month) + " " +
               std::to_string(date.day);
    };
    EXPECT_EQ(parsed("1990-06-15"), "1990 6 15");
    EXPECT_EQ(parsed("-0044-03-15"), "-44 3 15");
    EXPECT_EQ(parsed("1500-02-29"), "1500 2 29");
    for (const char* const text :
         {"", "1990-06", "1990-6-31", "1900-02-29", "0000-01-01", "1582-10-10", "1990/06/15",
          "1990-06-15-1", "--44-03-15", "+-44-03-15", "1990-006-15", "100000-01-01"}) {
        EXPECT_FALSE(parseDate(text)) << text;
    }
    EXPECT_NE(parseDate("0000-01-01").error().message.find("no year 0"), std::string::npos);
    // A long text is quoted in part and never cut inside a character.
    const std::string message = parseDate(std::string(59, 'x') + "\u00e9").error().message;
    EXPECT_TRUE(fromUtf8(message));
}

TEST(FileText, Utf8BothWays)
{
    const std::wstring text = L"A\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF";
    EXPECT_EQ(fromUtf8(toUtf8(text)), text);
    EXPECT_EQ(toUtf8(L"\u00B0\u20AC\U0001F31E"), "\xC2\xB0\xE2\x82\xAC\xF0\x9F\x8C\x9E");
    EXPECT_EQ(toUtf8(std::wstring{wchar_t(0xD800), wchar_t(0x110000)}), "\xEF\xBF\xBD\xEF\xBF\xBD");
    for (const char* const bytes : {"\x80", "\xC3", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF",
                                    "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
                                    "\xF5\x80\x80\x80", "\xFF", "a\xE2\x82", "\xE2\x28\xA1"}) {
        EXPECT_FALSE(fromUtf8(bytes)) << testing::PrintToString(std::string(bytes));
    }
}

TEST(FileText, LinesThatAreNotUtf8AreWindows1252)
{
    EXPECT_EQ(fromFileBytes("J\xC3\xBCrgen"), L"J\u00FCrgen");
    EXPECT_EQ(fromFileBytes("J\xFCrgen"), L"J\u00FCrgen");
    EXPECT_EQ(
        fromFileBytes("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91"
                      "\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
        L"\u20AC\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u017D\u2018"
        L"\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u017E\u0178");
    // Its five undefined bytes keep their value.
    EXPECT_EQ(fromFileBytes("\x81\x8D\x8F\x90\x9D\xE9"), L"\u0081\u008D\u008F\u0090\u009D\u00E9");
}

TEST(FileText, CutsBetweenCharacters)
{
    EXPECT_EQ(cutUtf8("abc", 3), "abc");
    EXPECT_EQ(cutUtf8("ab\u20AC", 4), "ab");
    EXPECT_EQ(cutUtf8("ab\u20ACd", 5), "ab\u20AC");
    EXPECT_EQ(cutUtf8("\u20AC", 2), "");
    EXPECT_EQ(cutUtf8("abc", 0), "");
}

} // namespace
} // namespace kestrav::core
