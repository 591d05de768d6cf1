#include "core/DeltaT.h"

#include <array>
#include <cstddef>

namespace kestrav::core
{

namespace
{

constexpr int kFirstTableYear = 1620;
constexpr int kFormulaYear = 2013;

// Seconds for the even years 1620 to 2014.
// clang-format off
constexpr std::array<float, 198> kDeltaTSeconds = {
    124.0F, 115.0F, 106.0F, 98.0F, 91.0F, 85.0F, 79.0F, 74.0F, 70.0F, 65.0F, // 1620
    62.0F, 58.0F, 55.0F, 53.0F, 50.0F, 48.0F, 46.0F, 44.0F, 42.0F, 40.0F, // 1640
    37.0F, 35.0F, 33.0F, 31.0F, 28.0F, 26.0F, 24.0F, 22.0F, 20.0F, 18.0F, // 1660
    16.0F, 14.0F, 13.0F, 12.0F, 11.0F, 10.0F, 9.0F, 9.0F, 9.0F, 9.0F, // 1680
    9.0F, 9.0F, 9.0F, 9.0F, 10.0F, 10.0F, 10.0F, 10.0F, 10.0F, 11.0F, // 1700
    11.0F, 11.0F, 11.0F, 11.0F, 11.0F, 11.0F, 11.0F, 12.0F, 12.0F, 12.0F, // 1720
    12.0F, 12.0F, 13.0F, 13.0F, 13.0F, 13.0F, 14.0F, 14.0F, 14.0F, 15.0F, // 1740
    15.0F, 15.0F, 15.0F, 16.0F, 16.0F, 16.0F, 16.0F, 16.0F, 17.0F, 17.0F, // 1760
    17.0F, 17.0F, 17.0F, 17.0F, 17.0F, 17.0F, 16.0F, 16.0F, 15.0F, 14.0F, // 1780
    13.7F, 13.1F, 12.7F, 12.5F, 12.5F, 12.5F, 12.5F, 12.5F, 12.5F, 12.3F, // 1800
    12.0F, 11.4F, 10.6F, 9.6F, 8.6F, 7.5F, 6.6F, 6.0F, 5.7F, 5.6F, // 1820
    5.7F, 5.9F, 6.2F, 6.5F, 6.8F, 7.1F, 7.3F, 7.5F, 7.7F, 7.8F, // 1840
    7.9F, 7.5F, 6.4F, 5.4F, 2.9F, 1.6F, -1.0F, -2.7F, -3.6F, -4.7F, // 1860
    -5.4F, -5.2F, -5.5F, -5.6F, -5.8F, -5.9F, -6.2F, -6.4F, -6.1F, -4.7F, // 1880
    -2.7F, 0.0F, 2.6F, 5.4F, 7.7F, 10.5F, 13.4F, 16.0F, 18.2F, 20.2F, // 1900
    21.2F, 22.4F, 23.5F, 23.9F, 24.3F, 24.0F, 23.9F, 23.9F, 23.7F, 24.0F, // 1920
    24.3F, 25.3F, 26.2F, 27.3F, 28.2F, 29.1F, 30.0F, 30.7F, 31.4F, 32.2F, // 1940
    33.1F, 34.0F, 35.0F, 36.5F, 38.3F, 40.2F, 42.2F, 44.5F, 46.5F, 48.5F, // 1960
    50.54F, 52.17F, 53.79F, 54.87F, 55.82F, 56.86F, 58.31F, 59.98F, 61.63F, 62.97F, // 1980
    63.86F, 66.0F, 68.0F, 70.0F, 72.0F, 74.0F, 76.0F, 78.0F, // 2000
};
// clang-format on

constexpr double tableTotal()
{
    double total = 0.0;
    for (const float seconds : kDeltaTSeconds) {
        total += static_cast<double>(seconds);
    }
    return total;
}
static_assert(kDeltaTSeconds.back() == 78.0F);
static_assert(tableTotal() > 4842.19 && tableTotal() < 4842.21);

} // namespace

double deltaTSeconds(int year, int month)
{
    if (year >= kFormulaYear) {
        const double years = year - 1810;
        return 0.00325 * years * years - 56.6;
    }
    if (year < kFirstTableYear) {
        const double u = (double(year) - 2000.0) * 0.01;
        return year < 948 ? 2715.6 + 573.36 * u + 46.5 * u * u : 50.6 + 67.5 * u + 22.5 * u * u;
    }
    const std::size_t i = std::size_t(year - kFirstTableYear) / 2;
    const double f = (year % 2 != 0 ? 0.5 : 0.0) + (month - 1.0) / 24.0;
    const double here = static_cast<double>(kDeltaTSeconds[i]);
    return here - f * (here - static_cast<double>(kDeltaTSeconds[i + 1]));
}

void DeltaT(DateTimeRecord& record, bool on)
{
    record.deltaTDays = on ? deltaTSeconds(record.year, record.month) * (1.0 / 86400.0) : 0.0;
}

} // namespace kestrav::core
