#include "data/import/XmlCharts.h"

#include "core/DateTime.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/numeric.h"
#include "data/BirthTexts.h"
#include "data/import/BirthEntry.h"
#include "data/import/ImportText.h"
#include "data/import/XmlDocument.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace kestrav::data
{

namespace
{

constexpr int kSecondsPerDay = 86400;
constexpr double kLargestOffset = 15.0;

// The civil date, in the calendar in force then, of a whole day number (Julian day of its noon).
void storeDate(long dayNumber, BirthEntry& entry)
{
    core::Chart chart;
    chart.time.dayCount = double(dayNumber) - core::kEpoch1900;
    core::JulianDayToDate(chart);
    entry.year = chart.time.year;
    entry.month = chart.time.month;
    entry.day = chart.time.day;
}

// Date and time of a Julian day that is given in local clock time, rounded to the second.
bool storeLocalMoment(double julianDay, BirthEntry& entry)
{
    constexpr double kLargest = 5.0e6;
    if (!(julianDay > 0.0 && julianDay < kLargest)) {
        return false;
    }
    double dayNumber = std::floor(julianDay + 0.5);
    double seconds = std::round((julianDay + 0.5 - dayNumber) * kSecondsPerDay);
    if (seconds >= kSecondsPerDay) {
        dayNumber += 1.0;
        seconds = 0.0;
    }
    storeDate(long(dayNumber), entry);
    entry.hours = seconds / 3600.0;
    return true;
}

// The number of a day of one of the two calendars; years are counted historically.
long dayNumberOf(int year, int month, int day, bool gregorian)
{
    // Long years begin with March, so that the leap day is the last one.
    const long astronomical = year < 0 ? year + 1 : year;
    const long monthsFromMarch = (month + 9) % 12;
    const long yearFromMarch = astronomical + 4800 - (month <= 2 ? 1 : 0);
    const long days =
        day + (153 * monthsFromMarch + 2) / 5 + 365 * yearFromMarch + yearFromMarch / 4;
    return gregorian ? days - yearFromMarch / 100 + yearFromMarch / 400 - 32045 : days - 32083;
}

// --- The one-chart file.

core::Result<core::Chart> readBirthData(const XmlElement& info)
{
    const auto number = [&](std::string_view name) {
        return core::parseNumber(info.childText(name));
    };
    const std::optional<double> moment = number("BirthDate");
    const std::optional<double> longitude = number("Longitude");
    const std::optional<double> latitude = number("Latitude");
    const std::optional<double> zone = number("TimeZone");
    const std::optional<double> saving =
        info.child("DST") ? number("DST") : std::optional<double>(0.0);
    if (!moment || !longitude || !latitude || !zone || !saving) {
        return core::Error{"BirthDate, Longitude, Latitude, TimeZone or DST is no number"};
    }
    BirthEntry entry;
    if (!storeLocalMoment(*moment, entry)) {
        return core::Error{"BirthDate " + core::shortestNumber(*moment) + " is no Julian day"};
    }
    const std::string last = info.childText("LastName");
    entry.name = info.childText("FirstName") + (last.empty() ? "" : " " + last);
    entry.longitude = 0.0 - *longitude;
    entry.latitude = *latitude;
    entry.zone = 0.0 - *zone;
    entry.saving = *saving;
    const std::string state = info.childText("State");
    entry.place = info.childText("City") + (state.empty() ? "" : ", " + state);
    entry.country = info.childText("Country");
    return chartOf(entry);
}

// --- The export of a bank of birth data.

// "49n18" or "52n0445": degrees, a letter, minutes and perhaps seconds.
std::optional<double> compactAngle(const std::string& text, std::string_view letters)
{
    const std::string lower = lowered(text);
    const std::size_t mark = lower.find_first_of(letters);
    if (mark == std::string::npos || mark == 0 || mark > 3 || lower.size() > mark + 5 ||
        lower.find_first_not_of("0123456789", 0) != mark ||
        lower.find_first_not_of("0123456789", mark + 1) != std::string::npos) {
        return std::nullopt;
    }
    const std::string_view rest = std::string_view(lower).substr(mark + 1);
    const int minutes = core::readLeadingInteger(rest.substr(0, 2));
    const int seconds = rest.size() > 2 ? core::readLeadingInteger(rest.substr(2)) : 0;
    if (minutes > 59 || seconds > 59) {
        return std::nullopt;
    }
    const double size = (core::readLeadingInteger(lower) * 3600 + minutes * 60 + seconds) / 3600.0;
    return lower[mark] == letters[1] && size > 0.0 ? -size : size;
}

// The meridian of the time in force: "h5e30" in hours, "m36e07" in degrees of longitude.
std::optional<double> meridianHours(const std::string& text)
{
    if (text.size() < 2) {
        return std::nullopt;
    }
    const std::optional<double> value = compactAngle(text.substr(1), "ew");
    if (!value || (text[0] != 'h' && text[0] != 'm')) {
        return std::nullopt;
    }
    return text[0] == 'h' ? *value : *value / 15.0;
}

// The first "hh:mm" or "hh:mm:ss" in a text such as "unknown, 12:00 used".
std::optional<double> timeInside(const std::string& text)
{
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) {
        return std::nullopt;
    }
    constexpr std::string_view kTimeCharacters = "0123456789:";
    std::size_t first = colon;
    while (first > 0 && kTimeCharacters.find(text[first - 1]) != std::string_view::npos) {
        --first;
    }
    const std::size_t end = std::min(text.find_first_not_of(kTimeCharacters, colon), text.size());
    return readTimeText(core::fromFileBytes(text.substr(first, end - first)));
}

struct Offsets
{
    std::optional<double> fromMoment;   ///< local clock time less the moment in Universal Time
    std::optional<double> fromMeridian; ///< of the time in force
};

Offsets offsetsOf(const XmlElement& time, long dayNumber, double hours)
{
    Offsets offsets;
    const std::optional<double> moment = core::parseNumber(time.attribute("jd_ut"));
    if (moment) {
        const double local = double(dayNumber) - 0.5 + hours / 24.0;
        offsets.fromMoment = std::round((local - *moment) * kSecondsPerDay) / 3600.0;
    }
    offsets.fromMeridian = meridianHours(time.attribute("stmerid"));
    return offsets;
}

struct BankEntry
{
    BirthEntry birth;
    bool timeUnknown = false;
};

core::Result<BankEntry> readMoment(const XmlElement& data)
{
    const std::optional<XmlElement> date = data.child("sbdate");
    const std::optional<XmlElement> time = data.child("sbtime");
    if (!date || !time) {
        return core::Error{"has no sbdate or no sbtime"};
    }
    const std::optional<int> year = core::parseInteger(date->attribute("iyear"));
    const std::optional<int> month = core::parseInteger(date->attribute("imonth"));
    const std::optional<int> day = core::parseInteger(date->attribute("iday"));
    constexpr int kLargestYear = 9999;
    if (!year || !month || !day || std::abs(*year) > kLargestYear || *year == 0 || *month < 1 ||
        *month > 12 || *day < 1 || *day > 31) {
        return core::Error{"the date " + shown(date->text()) + " is not understood"};
    }
    BankEntry entry;
    const std::optional<double> hours = timeInside(time->text());
    if (!hours) {
        return core::Error{"the time " + shown(time->text()) + " is not understood"};
    }
    // The bank says which calendar it means; ours is the one in force on the day.
    const long dayNumber = dayNumberOf(*year, *month, *day, date->attribute("ccalendar") != "j");
    storeDate(dayNumber, entry.birth);
    entry.birth.hours = *hours;
    entry.timeUnknown = time->attribute("time_unknown") == "yes";

    const Offsets offsets = offsetsOf(*time, dayNumber, *hours);
    const std::string type = time->attribute("ctimetype");
    const std::optional<double> total =
        offsets.fromMoment ? offsets.fromMoment : offsets.fromMeridian;
    if (total && std::fabs(*total) > kLargestOffset) {
        return core::Error{"date, time and moment in Universal Time do not fit together"};
    }
    if (!total && type != "l") {
        return core::Error{"has neither a moment in Universal Time nor a meridian"};
    }
    entry.birth.saving = type == "d" ? 1.0 : 0.0;
    // Local mean time without a meridian follows from the longitude, which is not known yet.
    entry.birth.zone = total ? *total - entry.birth.saving : core::kNotANumber;
    return entry;
}

core::Result<BankEntry> readBankEntry(const XmlElement& entryElement)
{
    const std::optional<XmlElement> data = entryElement.child("public_data");
    const std::optional<XmlElement> birthData = data ? data->child("bdata") : std::nullopt;
    const std::optional<XmlElement> place = birthData ? birthData->child("place") : std::nullopt;
    if (!place) {
        return core::Error{"has no public_data with bdata and place"};
    }
    core::Result<BankEntry> moment = readMoment(*birthData);
    if (!moment) {
        return moment;
    }
    BankEntry& entry = moment.value();
    BirthEntry& birth = entry.birth;
    std::optional<double> longitude = compactAngle(place->attribute("slong"), "ew");
    const std::optional<double> latitude = compactAngle(place->attribute("slati"), "ns");
    if (!longitude || !latitude || std::fabs(*longitude) > 360.0) {
        return core::Error{"the place " +
                           shown(place->attribute("slong") + " " + place->attribute("slati")) +
                           " is not understood"};
    }
    // Longitudes beyond 180 degrees occur and mean the other side.
    birth.longitude = *longitude - 360.0 * std::round(*longitude / 360.0);
    birth.latitude = *latitude;
    if (std::isnan(birth.zone)) {
        birth.zone = birth.longitude / 15.0;
    }
    const std::string plain = data->childText("sflname");
    birth.name = plain.empty() ? data->childText("name") : plain;
    const std::optional<XmlElement> gender = data->child("gender");
    const std::string sex = gender ? gender->attribute("csex") : std::string();
    birth.sex = sex == "m" ? "M" : sex == "f" ? "F" : "";
    birth.place = place->text();
    birth.country = birthData->childText("country");
    const std::string rating = data->childText("roddenrating");
    birth.notes = rating.empty() ? std::string() : "Rodden rating " + rating + ".";
    if (entry.timeUnknown) {
        birth.notes += birth.notes.empty() ? "Birth time unknown." : " Birth time unknown.";
    }
    return moment;
}

void readBank(const XmlElement& root, ImportReport& report)
{
    report.format = "export of a bank of birth data";
    long number = 0;
    for (const XmlElement& element : root.children()) {
        if (element.name() != "adb_entry") {
            continue;
        }
        ++number;
        const core::Result<BankEntry> entry = readBankEntry(element);
        if (!entry) {
            report.refuse(number, entry.error().message);
            continue;
        }
        const std::size_t before = report.charts.size();
        report.take(number, chartOf(entry.value().birth));
        if (entry.value().timeUnknown && report.charts.size() > before) {
            report.remarks.push_back(
                {number, "the birth time is unknown; the bank gives one all the same"});
        }
    }
}

} // namespace

bool isXml(std::span<const std::uint8_t> bytes)
{
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        return true;
    }
    const std::size_t skipped = text.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    return trimmed(text.substr(skipped, 100)).starts_with('<');
}

void readXmlCharts(std::span<const std::uint8_t> bytes, ImportReport& report)
{
    report.format = "XML";
    const core::Result<XmlDocument> document = XmlDocument::parse(bytes);
    if (!document) {
        report.refuse(document.error().line, document.error().message);
        return;
    }
    const XmlElement root = document.value().root();
    if (root.name() == "astrodatabank_export") {
        readBank(root, report);
        return;
    }
    const std::optional<XmlElement> info = root.child("BirthInfo");
    if (root.name() != "BirthData" || !info) {
        report.refuse(root.line(), "is XML of another kind, with the root " + shown(root.name()));
        return;
    }
    report.format = "XML file of one chart";
    report.take(info->line(), readBirthData(*info));
}

} // namespace kestrav::data
