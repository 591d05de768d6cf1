#include "app/present/BirthRecord.h"

#include "core/FileText.h"
#include "data/BirthTexts.h"

#include <cmath>

namespace kestrav::present
{

namespace
{

constexpr int kLargestYear = 99999;
constexpr int kLargestSaving = 3;

} // namespace

data::DateOrder dateOrder(const core::Settings& settings)
{
    return settings.monthFirst ? data::DateOrder::MonthFirst : data::DateOrder::DayFirst;
}

std::string birthProblem(const core::Chart& chart)
{
    const core::DateTimeRecord& time = chart.time;
    const bool exists = time.year >= -kLargestYear && time.year <= kLargestYear &&
                        core::dateExists(time.year, time.month, time.day);
    if (!exists) {
        return "the date " + std::to_string(time.year) + "-" + std::to_string(time.month) + "-" +
               std::to_string(time.day) + " does not exist";
    }
    if (chart.daylightSaving < 0 || chart.daylightSaving > kLargestSaving) {
        return "saving time " + std::to_string(chart.daylightSaving) +
               " is not a whole number from 0 to 3";
    }
    return {};
}

std::vector<std::string> unreadTexts(const core::Chart& chart)
{
    std::vector<std::string> texts;
    const auto test = [&](const std::string& name, const std::wstring& text, bool understood) {
        if (!understood) {
            const std::string what =
                text.empty() ? " is missing" : " '" + core::toUtf8(text) + "' is not understood";
            texts.push_back("the " + name + what + " and taken as 0");
        }
    };
    test("time", chart.timeText, data::readTimeText(chart.timeText).has_value());
    test("zone", chart.zoneText, data::readZoneText(chart.zoneText).has_value());
    const core::Identity& identity = chart.identity;
    test("longitude", identity.longitudeText,
         data::readLongitudeText(identity.longitudeText).has_value());
    test("latitude", identity.latitudeText,
         data::readLatitudeText(identity.latitudeText).has_value());
    return texts;
}

std::wstring placeLabel(const core::Chart& chart)
{
    const std::wstring& country = chart.identity.country;
    return chart.place + (chart.place.empty() || country.empty() ? L"" : L", ") + country;
}

void setLocalMoment(core::Chart& chart, double unixSeconds)
{
    const double local = unixSeconds + (chart.zone + chart.daylightSaving) * 3600.0;
    const double days = std::floor(local / 86400.0);
    core::DateTimeRecord& record = chart.time;
    record.year = 1970;
    record.month = 1;
    record.day = 1;
    core::addDays(record, int(days));
    record.localTime = (local - days * 86400.0) / 3600.0;
}

} // namespace kestrav::present
