#include "core/TextForms.h"
#include "core/Chart.h"
#include "core/DisplayFlags.h"
#include "core/numeric.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace kestrav::core
{
namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Styled
{
    double value;
    int style;
    const wchar_t* text;
};

TEST(FormatDMS, WritesEveryStyleToTheLetter)
{
    // clang-format off
    const std::vector<Styled> cases = {
        {-5.5, 0, L"- 5 30  0"}, {123.2575, 0, L"123 15 27"}, {-0.0001, 0, L"- 0  0  0"},
        {-0.0, 0, L" 0  0  0"}, {9.0875, 1, L"9\u00B0 5'15\""}, {-9.0875, 1, L"-9\u00B0 5'15\""},
        {12.0847223, 2, L"12: 5: 5"}, {-1.5, 2, L"- 1:30: 0"}, {59.9916667, 3, L"59g59p30v"},
        {5.0, 3, L" 5g 0p 0v"}, {-5.0875, 4, L" 5:05"}, {5.0875, 5, L"5:05:15"},
        {-123.5, 5, L"123:30:00"}, {1.0, 6, L""}, {1.0, -1, L""},
        {kNotANumber, 0, L"--"}, {-kInfinity, 4, L"--"}, {1e300, 2, L"--"}};
    // clang-format on
    for (const Styled& one : cases) {
        EXPECT_EQ(FormatDMS(one.value, one.style), one.text) << one.value << " style " << one.style;
    }
}

TEST(FormatDMS, LiftsTheSecondsByA120thAndNeverCarries)
{
    EXPECT_EQ(FormatDMS(29.999999, 0), L"29 60  0");
    EXPECT_EQ(FormatDMS(29.999999, 4), L"29:60");
    EXPECT_EQ(FormatDMS(7.0 - 1e-12, 5), L"6:60:00");
    // 1/7200 minute is 0.00833 seconds.
    EXPECT_EQ(FormatDMS(10.0 + 0.991 / 3600.0, 5), L"10:00:00");
    EXPECT_EQ(FormatDMS(10.0 + 0.992 / 3600.0, 5), L"10:00:01");
    EXPECT_EQ(FormatDMS(10.0 + 59.991 / 3600.0, 5), L"10:00:59");
    EXPECT_EQ(FormatDMS(10.0 + 59.992 / 3600.0, 5), L"10:01:00");
}

TEST(FormatDMSWide, HasItsOwnWidthsAndItsLiteralSign)
{
    EXPECT_EQ(FormatDMSWide(5.0875, 0), L" 5  5 15");
    EXPECT_EQ(FormatDMSWide(5.0875, 1), L"5\u00B0 5'15\"");
    EXPECT_EQ(FormatDMSWide(5.0875, 2), L"5: 5:15");
    EXPECT_EQ(FormatDMSWide(5.0875, 3), L"5g 5p15v");
    EXPECT_EQ(FormatDMSWide(5.0875, 4), L"");
    EXPECT_EQ(FormatDMSWide(-5.5, 0), L"-%d\u00B0 5 30  0");
    EXPECT_EQ(FormatDMSWide(kNotANumber, 2), L"--");
}

TEST(FormatDegMinSec, WritesIntoTheCallersText)
{
    std::wstring out = L"old";
    FormatDegMinSec(-23.158888888888889, out);
    EXPECT_EQ(out, L"-23\u00B0 9'32\"");
    FormatDegMinSec(359.999999, out);
    EXPECT_EQ(out, L"359\u00B060' 0\"");
    FormatDegMinSec(kNotANumber, out);
    EXPECT_EQ(out, L"--");
}

TEST(FormatSignPosition, WritesBothForms)
{
    const DisplayFlagsOverride english(kEnglishNames);
    int sign = 0;
    EXPECT_EQ(FormatSignPosition(120.0 + 15.0 + 7.0 / 60.0, sign), L"15\u00B0  7' Leo");
    EXPECT_EQ(sign, 5);
    EXPECT_EQ(FormatSignPosition(29.9999999999), L"29\u00B0 60' Ari");
    EXPECT_EQ(FormatSignPosition(150.5), L" 0\u00B0 30' Virg");
    EXPECT_EQ(FormatSignPositionShort(135.0 + 7.0 / 60.0), L"15\u00B0 7'Le");
    EXPECT_EQ(FormatSignPositionShort(300.0), L" 0\u00B0 0'Aq");
    std::wstring line = L"what stood here before";
    EXPECT_EQ(StartSignPosition(359.5, line), 12);
    EXPECT_EQ(line, L"29\u00B0 30' Pis");
}

TEST(FormatSignPosition, IsAlwaysInLettersAndGlyphModeMeansEnglish)
{
    {
        const DisplayFlagsOverride sanskrit(0);
        EXPECT_EQ(FormatSignPosition(120.0), L" 0\u00B0  0' Sim");
        EXPECT_EQ(FormatSignPositionShort(120.0), L" 0\u00B0 0'Si");
    }
    const std::uint32_t flags = kGlyphNames | 0x100U;
    const DisplayFlagsOverride glyphs(flags);
    EXPECT_EQ(FormatSignPosition(120.0), L" 0\u00B0  0' Leo");
    EXPECT_EQ(FormatSignPositionShort(120.0), L" 0\u00B0 0'Le");
    EXPECT_EQ(DisplayFlags(), flags);
}

TEST(FormatSignPositionDeathTest, RefusesWhatLiesOutsideTheCircle)
{
    for (const double longitude : {360.0, -1e-9, kNotANumber}) {
#ifdef NDEBUG
        int sign = 7;
        EXPECT_EQ(FormatSignPosition(longitude, sign), L"--");
        EXPECT_EQ(sign, 0);
#else
        EXPECT_DEATH(static_cast<void>(FormatSignPosition(longitude)), "longitude");
#endif
    }
}

struct Clock
{
    double hours;
    bool twelveHour;
    bool leadingZero;
    const wchar_t* text;
};

TEST(FormatClock, RoundsCarriesAndMarks)
{
    // clang-format off
    const std::vector<Clock> cases = {
        {6.5, false, false, L"6:30 "}, {6.5, false, true, L"06:30 "},
        {11.5, true, true, L"11:30am "}, {13.0, true, true, L"1:00pm "},
        {23.9958, false, false, L"24:00 "}, {23.99, false, false, L"23:59 "},
        {23.999, false, false, L"24:00 "}, {23.999, true, false, L"12:00pm "},
        {12.25, true, false, L"0:15pm "}, {0.0, true, false, L"0:00am "},
        {11.9999, true, false, L"0:00pm "}, {24.0, false, false, L"0:00 "},
        {25.0, false, false, L"1:00+"}, {25.0, true, false, L"1:00am+"},
        {-1.0, false, false, L"23:00-"}, {-1.0, true, false, L"11:00pm-"},
        {-1e-9, false, false, L"24:00-"}, {-0.0, false, false, L"0:00 "},
        {kNotANumber, false, false, L"--"}, {kInfinity, true, false, L"--"}};
    const std::vector<Clock> truncating = {
        {23.999, false, false, L"23:59"}, {6.999, false, true, L"06:59"},
        {-1.0, false, false, L"23:00"}, {25.0, false, false, L"1:00"},
        {12.25, true, false, L"0:15pm"}, {0.5, true, true, L"0:30am"},
        {kNotANumber, true, false, L"--"}};
    // clang-format on
    for (const Clock& one : cases) {
        EXPECT_EQ(FormatClock(one.hours, one.twelveHour, one.leadingZero), one.text) << one.hours;
    }
    for (const Clock& one : truncating) {
        EXPECT_EQ(FormatClockTrunc(one.hours, one.twelveHour, one.leadingZero), one.text);
    }
}

TEST(FormatHM, PrintsEveryTypedMinuteAsTyped)
{
    int truncatedEarly = 0;
    for (int minute = 0; minute < 1440; ++minute) {
        const double hours = minute / 60.0;
        const std::wstring typed = std::to_wstring(minute / 60) +
                                   (minute % 60 < 10 ? L":0" : L":") + std::to_wstring(minute % 60);
        ASSERT_EQ(FormatHM(hours), typed);
        truncatedEarly += FormatClockTrunc(hours, false, false) == typed ? 0 : 1;
    }
    // Truncation without an epsilon loses a minute this often, which is meant.
    EXPECT_EQ(truncatedEarly, 623);
    EXPECT_EQ(FormatHM(24.0), L"24:00");
    EXPECT_EQ(FormatHM(7.0 - 1e-9), L"7:00");
    EXPECT_EQ(FormatHM(6.99), L"6:59");
    for (const double outside : {-0.5, 24.01, kNotANumber, kInfinity}) {
        EXPECT_EQ(FormatHM(outside), L"0:00");
    }
}

TEST(FormatRecordHours, CarriesSixtyMinutesIntoTheHour)
{
    Chart chart;
    const auto texts = [&](double zone, double time) {
        chart.zone = zone;
        chart.time.localTime = time;
        FormatRecordHours(chart);
        return chart.zoneText + L" " + chart.timeText;
    };
    EXPECT_EQ(texts(5.5, 14.536111111), L"5:30:00 14:32");
    EXPECT_EQ(texts(-4.0 - 56.0 / 60.0 - 2.0 / 3600.0, 0.0), L"-4:56:02 0:00");
    EXPECT_EQ(texts(6.0 - 1e-12, 7.0 - 1e-12), L"6:00:00 7:00");
    EXPECT_EQ(texts(-8.0 + 1e-12, 23.99999999), L"-8:00:00 24:00");
    EXPECT_EQ(texts(-0.0, 12.0), L"0:00:00 12:00");
}

} // namespace
} // namespace kestrav::core
