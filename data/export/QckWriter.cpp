#include "data/export/QckWriter.h"

#include "data/export/ExportText.h"
#include "data/import/QckReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace kestrav::data
{

namespace
{

constexpr std::array<std::string_view, 12> kMonths = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                      "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

std::string padded(long number, std::size_t width, char fill)
{
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), fill) + digits;
}

std::string two(long number)
{
    return padded(number, 2, '0');
}

// The text in exactly so many bytes.
std::string column(const std::wstring& text, std::size_t width)
{
    std::string bytes = singleByteText(text);
    bytes.resize(width, ' ');
    return bytes;
}

long wholeSeconds(double value)
{
    return std::lround(std::fabs(value) * 3600.0);
}

std::string timeColumn(double hours)
{
    constexpr long kLast = 86399;
    const long seconds = std::min(wholeSeconds(hours), kLast);
    const long hour = seconds / 3600;
    const long shown = hour % 12 == 0 ? 12 : hour % 12;
    return two(shown) + ":" + two(seconds / 60 % 60) + ":" + two(seconds % 60) +
           (hour < 12 ? " AM " : " PM ");
}

std::string angleColumn(double degrees, std::size_t width, std::string_view letters)
{
    const long seconds = wholeSeconds(degrees);
    const char letter = letters[degrees < 0.0 && seconds > 0 ? 1 : 0];
    return padded(seconds / 3600, width, '0') + letter + two(seconds / 60 % 60) + "'" +
           two(seconds % 60) + " ";
}

std::string zoneMark(const core::Chart& chart)
{
    constexpr double kHalfMinute = 1.0 / 120.0;
    if (chart.daylightSaving != 0) {
        // The American marks where they are right; elsewhere only the second letter means
        // something.
        constexpr std::string_view kAmerican = "ECMP";
        const double place = -5.0 - chart.zone;
        const bool american = place >= 0.0 && place < 4.0 && place == std::floor(place);
        return std::string(1, american ? kAmerican[std::size_t(place)] : 'Z') + "DT";
    }
    return std::fabs(chart.zone - chart.geoLongitude / 15.0) <= kHalfMinute ? "LMT" : "   ";
}

std::string offsetColumn(double total)
{
    const long minutes = std::lround(std::fabs(total) * 60.0);
    // What is added to the clock, so west is positive.
    return (total > 0.0 ? "-" : "+") + two(minutes / 60) + ":" + two(minutes % 60);
}

std::wstring placeText(const core::Chart& chart)
{
    const std::wstring& country = chart.identity.country;
    return country.empty() ? chart.place : chart.place + L", " + country;
}

std::vector<std::string> lossesOf(const core::Chart& chart, const std::wstring& place, double total)
{
    std::vector<std::string> losses;
    if (chart.name.size() > qck::kNameWidth) {
        losses.emplace_back("the name was cut");
    }
    if (place.size() > qck::kPlaceWidth) {
        losses.emplace_back("the place was cut");
    }
    if (singleByteText(chart.name + place).find('?') != std::string::npos) {
        losses.emplace_back("characters outside Windows-1252 became question marks");
    }
    if (std::lround(std::fabs(total) * 3600.0) % 60 != 0) {
        losses.emplace_back("the offset was rounded to the minute");
    }
    if (std::abs(chart.daylightSaving) > 1) {
        losses.emplace_back("saving time of more than one hour became part of the zone");
    }
    return losses;
}

} // namespace

QckLine qckLine(const core::Chart& chart)
{
    const double total = chart.zone + chart.daylightSaving;
    const std::wstring place = placeText(chart);
    const auto month = std::size_t(std::clamp(chart.time.month, 1, 12) - 1);
    const int day = std::clamp(chart.time.day, 0, 31);
    const int year = std::clamp(chart.time.year, -9999, 9999);
    QckLine result;
    result.line = column(chart.name, qck::kNameWidth) + std::string(kMonths[month]) +
                  padded(day, 3, ' ') + "," + padded(year, 5, ' ') +
                  timeColumn(chart.time.localTime) + zoneMark(chart) + offsetColumn(total) +
                  angleColumn(chart.geoLongitude, 3, "EW") +
                  angleColumn(chart.geoLatitude, 2, "NS") + column(place, qck::kPlaceWidth);
    result.losses = lossesOf(chart, place, total);
    if (year != chart.time.year || day != chart.time.day) {
        result.losses.emplace_back("the date does not fit into the columns");
    }
    return result;
}

} // namespace kestrav::data
