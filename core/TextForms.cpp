#include "core/TextForms.h"

#include "core/Angles.h"
#include "core/Chart.h"
#include "core/DisplayFlags.h"
#include "core/PointNames.h"

#include <array>
#include <cassert>
#include <cmath>
#include <cwchar>

namespace kestrav::core
{

namespace
{

constexpr wchar_t kDegree[] = L"\u00B0";

// The older form never substitutes into this text: it is printed as it stands.
constexpr wchar_t kWideNegativeSign[] = L"-%d\u00B0";

// Every form prints its parts as ints.
constexpr double kLargestPrintable = 2147483647.0;

bool printable(double value)
{
    return std::fabs(value) < kLargestPrintable;
}

template <typename... Args>
std::wstring print(const wchar_t* format, Args... args)
{
    std::array<wchar_t, 96> buffer{};
    const int length = std::swprintf(buffer.data(), buffer.size(), format, args...);
    return length < 0 ? std::wstring{} : std::wstring(buffer.data(), std::size_t(length));
}

struct Sexagesimal
{
    int whole;
    int minutes;
    int seconds;
};

// 1/7200 is added to the minutes, not the seconds: a hundred-and-twentieth of a second, so that a
// value just below a whole second is not printed as the one before.
Sexagesimal split(double value)
{
    double whole = 0.0;
    double wholeMinutes = 0.0;
    const double fraction = std::modf(std::fabs(value), &whole);
    const double rest = std::modf(fraction * 60.0 + 1.0 / 7200.0, &wholeMinutes);
    return {int(whole), int(wholeMinutes), int(rest * 60.0)};
}

std::wstring printSexagesimal(const wchar_t* format, const wchar_t* sign, const Sexagesimal& parts)
{
    return print(format, sign, parts.whole, parts.minutes, parts.seconds);
}

struct HourMinute
{
    int hour;
    int minute;
};

HourMinute splitHour(double hours, double added)
{
    double whole = 0.0;
    const double fraction = std::modf(hours, &whole);
    HourMinute parts{int(whole), int(std::floor(fraction * 60.0 + added))};
    if (parts.minute == 60) {
        ++parts.hour;
        parts.minute = 0;
    }
    return parts;
}

int twelveHourClock(int hour)
{
    return hour >= 12 ? hour - 12 : hour;
}

const wchar_t* halfOfDay(int hour)
{
    return hour < 12 ? L"am" : L"pm";
}

std::wstring signPosition(double longitude, int& sign, bool shortForm)
{
    assert(longitude >= 0.0 && longitude < 360.0);
    if (!(longitude >= 0.0 && longitude < 360.0)) {
        sign = 0;
        return std::wstring(kNoName);
    }
    const DisplayFlagsOverride letters((DisplayFlags() & kGlyphNames) != 0 ? kEnglishNames
                                                                           : DisplayFlags());
    const int index = int(std::floor(longitude * (1.0 / 30.0)));
    double degrees = 0.0;
    const double fraction = std::modf(longitude - 30.0 * index, &degrees);
    const int minutes = int(fraction * 60.0 + 0.00000001);
    sign = index + 1;
    const std::wstring name(shortForm ? SignName2(sign) : SignName3(sign));
    return print(shortForm ? L"%2d%ls%2d'%ls" : L"%2d%ls %2d' %ls", int(degrees), kDegree, minutes,
                 name.c_str());
}

} // namespace

std::wstring FormatDMS(double value, int style)
{
    if (!printable(value)) {
        return std::wstring(kNoName);
    }
    const wchar_t* const sign = value < 0.0 ? L"-" : L"";
    const Sexagesimal parts = split(value);
    switch (style) {
    case 0:
        return printSexagesimal(L"%ls%2d %2d %2d", sign, parts);
    case 1:
        return printSexagesimal(L"%ls%d\u00B0%2d'%2d\"", sign, parts);
    case 2:
        return printSexagesimal(L"%ls%2d:%2d:%2d", sign, parts);
    case 3:
        return printSexagesimal(L"%ls%2dg%2dp%2dv", sign, parts);
    case 4:
        return print(L"%2d:%02d", parts.whole, parts.minutes);
    case 5:
        return print(L"%d:%02d:%02d", parts.whole, parts.minutes, parts.seconds);
    default:
        return {};
    }
}

std::wstring FormatDMSWide(double value, int style)
{
    if (!printable(value)) {
        return std::wstring(kNoName);
    }
    const wchar_t* const sign = value < 0.0 ? kWideNegativeSign : L"";
    const Sexagesimal parts = split(value);
    switch (style) {
    case 0:
        return printSexagesimal(L"%ls%2d %2d %2d", sign, parts);
    case 1:
        return printSexagesimal(L"%ls%d\u00B0%2d'%2d\"", sign, parts);
    case 2:
        return printSexagesimal(L"%ls%d:%2d:%2d", sign, parts);
    case 3:
        return printSexagesimal(L"%ls%dg%2dp%2dv", sign, parts);
    default:
        return {};
    }
}

void FormatDegMinSec(double value, std::wstring& out)
{
    if (!printable(value)) {
        out = kNoName;
        return;
    }
    const Sexagesimal parts = split(value);
    out = print(L"%ls%d%ls%2d'%2d\"", value < 0.0 ? L"-" : L"", parts.whole, kDegree, parts.minutes,
                parts.seconds);
}

std::wstring FormatSignPosition(double longitude, int& sign)
{
    return signPosition(longitude, sign, false);
}

std::wstring FormatSignPosition(double longitude)
{
    int sign = 0;
    return signPosition(longitude, sign, false);
}

int StartSignPosition(double longitude, std::wstring& line)
{
    int sign = 0;
    line = signPosition(longitude, sign, false);
    return sign;
}

std::wstring FormatSignPositionShort(double longitude)
{
    int sign = 0;
    return signPosition(longitude, sign, true);
}

std::wstring FormatClock(double hours, bool twelveHour, bool leadingZero)
{
    if (!std::isfinite(hours)) {
        return std::wstring(kNoName);
    }
    wchar_t marker = L' ';
    if (hours > 24.0) {
        marker = L'+';
    } else if (hours < 0.0) {
        marker = L'-';
    }
    const auto [hour, minute] = splitHour(Normalize24(hours), 0.5);
    if (twelveHour) {
        return print(L"%d:%02d%ls%lc", twelveHourClock(hour), minute, halfOfDay(hour),
                     std::wint_t(marker));
    }
    return print(leadingZero ? L"%02d:%02d%lc" : L"%d:%02d%lc", hour, minute, std::wint_t(marker));
}

std::wstring FormatClockTrunc(double hours, bool twelveHour, bool leadingZero)
{
    if (!std::isfinite(hours)) {
        return std::wstring(kNoName);
    }
    const auto [hour, minute] = splitHour(Normalize24(hours), 0.0);
    if (twelveHour) {
        return print(L"%d:%02d%ls", twelveHourClock(hour), minute, halfOfDay(hour));
    }
    return print(leadingZero ? L"%02d:%02d" : L"%d:%02d", hour, minute);
}

std::wstring FormatHM(double hours)
{
    const double shown = hours >= 0.0 && hours <= 24.0 ? hours : 0.0;
    const auto [hour, minute] = splitHour(shown, 0.000001);
    return print(L"%d:%02d", hour, minute);
}

void FormatRecordHours(Chart& chart)
{
    const auto carried = [](double value) {
        Sexagesimal parts = split(value);
        if (parts.minutes == 60) {
            ++parts.whole;
            parts.minutes = 0;
        }
        return parts;
    };
    if (!printable(chart.zone) || !printable(chart.time.localTime)) {
        chart.zoneText = kNoName;
        chart.timeText = kNoName;
        return;
    }
    const Sexagesimal zone = carried(chart.zone);
    chart.zoneText = printSexagesimal(L"%ls%d:%02d:%02d", chart.zone < 0.0 ? L"-" : L"", zone);
    const Sexagesimal time = carried(chart.time.localTime);
    chart.timeText = print(L"%d:%02d", time.whole, time.minutes);
}

} // namespace kestrav::core
