#include "timing/LunarMonth.h"

#include "core/Angles.h"
#include "core/Names.h"
#include "core/Points.h"
#include "core/SignData.h"
#include "timing/EventSearch.h"

namespace kestrav::timing
{

namespace
{

constexpr double kLongestMonth = 31.0; // days, somewhat more than there are
constexpr double kJustAfter = 1.0;     // a day that surely lies in the month that has begun

int sunSign(SiderealSky& sky, double julianDay)
{
    return core::signOfLongitude(sky.longitude(core::kSun, julianDay));
}

} // namespace

LunarMonth lunarMonthAt(SiderealSky& sky, double julianDay)
{
    const auto elongation = [&](double day) {
        return core::Normalize360(sky.longitude(core::kMoon, day) - sky.longitude(core::kSun, day));
    };
    const CurveShape shape{360.0, 8.0, true, 1e-6};
    const auto begin =
        lastCrossing(elongation, shape, {julianDay - kLongestMonth, julianDay}, Levels{});
    const auto end =
        firstCrossing(elongation, shape, {julianDay, julianDay + kLongestMonth}, Levels{});
    if (!begin || !end) {
        return {};
    }
    const int before = sunSign(sky, begin->day);
    const int after = sunSign(sky, end->day);
    LunarMonth month;
    month.number = before % 12 + 1;
    month.adhika = after == before;
    month.kshaya = after == core::SignOf12(before + 2);
    month.begin = begin->day;
    month.end = end->day;
    return month;
}

int purnimantaMonth(SiderealSky& sky, const LunarMonth& month, bool krishna)
{
    if (!krishna || month.adhika || month.number == 0) {
        return month.number;
    }
    LunarMonth next = lunarMonthAt(sky, month.end + kJustAfter);
    while (next.adhika) {
        next = lunarMonthAt(sky, next.end + kJustAfter);
    }
    return next.number;
}

std::wstring lunarMonthText(const LunarMonth& month)
{
    std::wstring text(month.adhika ? L"Ad." : L"");
    text += core::lunarMonthName(month.number);
    if (month.kshaya) {
        text += L'-';
        text += core::lunarMonthName(core::SignOf12(month.number + 1));
    }
    return text;
}

int rituOf(int monthNumber)
{
    return (monthNumber - 1) / 2;
}

int ayanaOf(double sun)
{
    return sun >= 270.0 || sun < 90.0 ? 0 : 1;
}

LunarYear lunarYearOf(const core::DateTimeRecord& date, int monthNumber)
{
    // The count needs the year 0 that the calendar does not have.
    const int civilYear = date.year < 0 ? date.year + 1 : date.year;
    const bool beforeChaitra = monthNumber >= 9 && date.month <= 4;
    LunarYear year;
    year.shaka = civilYear - (beforeChaitra ? 79 : 78);
    year.vikrama = year.shaka + 135;
    year.southernSamvatsara = core::ModFrom(60, 0, year.shaka + 11);
    year.northernSamvatsara = core::ModFrom(60, 0, year.vikrama + 9);
    return year;
}

} // namespace kestrav::timing
