// Births at odd places and times, for what has to hold everywhere.
#pragma once

#include "core/Chart.h"
#include "data/BirthTexts.h"

#include <array>

namespace kestrav::tests
{

struct Birth
{
    const wchar_t* name;
    int year; ///< of history: 1 BC is -1
    int month;
    int day;
    double hours;
    double zone;
    double longitude; ///< degrees, east positive
    double latitude;
};

// clang-format off
inline constexpr std::array<Birth, 24> kBirths = {{
    {L"Delhi",                1990,  6, 15, 14.5361,   5.5,     77.2083,  28.6500},
    {L"Quito",                1969,  7, 20, 12.0,     -5.0,    -78.4678,  -0.1807},
    {L"Ushuaia in winter",    1970,  6, 21,  9.5,     -3.0,    -68.3030, -54.8019},
    {L"Auckland",             2000,  2, 29, 23.9997,  12.0,    174.7633, -36.8485},
    {L"Beyond the date line", 2012,  1,  1,  0.0,     14.0,   -171.7667, -13.8333},
    {L"Kathmandu",            1995, 12, 31, 23.75,     5.75,    85.3240,  27.7172},
    {L"Reykjavik",            1944,  6, 17, 14.0,     -1.0,    -21.9426,  64.1466},
    {L"North Cape, midsummer", 1999,  6, 21,  0.0,     1.0,     25.7836,  71.1710},
    {L"Longyearbyen, night",  1985, 12, 21, 12.0,      1.0,     15.6356,  78.2232},
    {L"McMurdo, long day",    1985, 12, 21, 12.0,     12.0,    166.6683, -77.8419},
    {L"Arctic circle",        2010, 12, 22, 10.25,     1.0,     20.0000,  66.5500},
    {L"South Pole",           2001,  9, 23,  6.0,      0.0,      0.0,    -90.0},
    {L"North Pole",           2001,  3, 20, 13.5,      0.0,      0.0,     90.0},
    {L"Amsterdam, own time",  1920,  4,  1,  6.0,      0.3256,   4.8952,  52.3702},
    {L"Monrovia",             1965,  8,  3, 18.2,     -0.7417, -10.8047,   6.3005},
    {L"Honolulu",             1941, 12,  7,  7.8,    -10.5,   -157.8583,  21.3069},
    {L"Last day of Julius",   1582, 10,  4, 12.0,      0.8333,  12.4964,  41.9028},
    {L"First day of Gregory", 1582, 10, 15, 12.0,      0.8333,  12.4964,  41.9028},
    {L"Rome in 1 AD",            1,  1,  1,  6.0,      0.8333,  12.4964,  41.9028},
    {L"Rome in 1 BC",           -1, 12, 31, 18.0,      0.8333,  12.4964,  41.9028},
    {L"Babylon",              -568,  4, 22,  5.0,      2.9667,  44.4209,  32.5364},
    {L"Kurukshetra",         -3067, 11, 22, 11.0,      5.1222,  76.8400,  29.9700},
    {L"Far from now",         2999, 12, 31, 23.5,      9.0,    139.6917,  35.6895},
    {L"Farther from now",     7000,  7,  7,  7.7,     -3.0,    -43.1729, -22.9068},
}};
// clang-format on

inline core::Chart recordOf(const Birth& birth)
{
    core::Chart chart;
    chart.name = birth.name;
    chart.place = birth.name;
    chart.time.year = birth.year;
    chart.time.month = birth.month;
    chart.time.day = birth.day;
    chart.time.localTime = birth.hours;
    chart.zone = birth.zone;
    chart.geoLongitude = birth.longitude;
    chart.geoLatitude = birth.latitude;
    chart.identity.events[0] = {L"First school", {birth.year + 7, 7, 1}, 9.0};
    data::refreshBirthTexts(chart);
    return chart;
}

} // namespace kestrav::tests
