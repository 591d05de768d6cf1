// Makes the database of sample charts from the readable table of their sources.
//
// Usage: make_sample_charts charts.txt Sample.ksc
//
// The table explains its own form. A chart that breaks it ends the program with 1 and one line that
// names the file and the line.
#include "core/DateTime.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/Result.h"
#include "data/BirthTexts.h"
#include "data/ChartLine.h"
#include "data/ChartLineFields.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace kestrav;
using core::Error;
using core::Result;

constexpr std::string_view kMargin = "    ";
constexpr std::string_view kEventMark = "    * ";
constexpr std::size_t kParts = 8;
constexpr double kNoon = 12.0;
constexpr std::array<std::wstring_view, 12> kMonths = {
    L"January", L"February", L"March",     L"April",   L"May",      L"June",
    L"July",    L"August",   L"September", L"October", L"November", L"December"};

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
    const std::size_t last = text.find_last_not_of(' ') + 1;
    return text.substr(first, std::max(last, first) - first);
}

// The text before the first separator, which is taken away with it.
std::string_view takePart(std::string_view& rest, std::string_view separator)
{
    const std::size_t end = std::min(rest.find(separator), rest.size());
    const std::string_view part = trimmed(rest.substr(0, end));
    rest.remove_prefix(std::min(end + separator.size(), rest.size()));
    return part;
}

std::optional<std::wstring> fitting(std::string_view text, std::size_t most)
{
    const std::wstring wide = core::fromFileBytes(text);
    return wide.size() > most ? std::nullopt : std::optional(wide);
}

std::wstring dateWords(const core::CivilDate& date)
{
    return std::to_wstring(date.day) + L" " +
           std::wstring(kMonths[static_cast<std::size_t>(date.month - 1)]) + L" " +
           std::to_wstring(date.year);
}

// Days by which a Julian date after 1582 lies behind the Gregorian one of the same name.
int julianLag(const core::CivilDate& date)
{
    const int year = date.month < 3 ? date.year - 1 : date.year;
    return year / 100 - year / 400 - 2;
}

// A date, with OS behind a Julian one. What it was called then goes into the notes.
Result<core::CivilDate> readDate(std::string_view text, std::wstring& notes)
{
    std::string_view rest = text;
    Result<core::CivilDate> date = core::parseDate(takePart(rest, " "));
    if (!date || rest.empty()) {
        return date;
    }
    if (trimmed(rest) != "OS") {
        return Error{"'" + std::string(text) + "' is no date"};
    }
    core::DateTimeRecord record;
    record.year = date.value().year;
    record.month = date.value().month;
    record.day = date.value().day;
    core::addDays(record, julianLag(date.value()));
    notes += L" In the Julian calendar of the time " + dateWords(date.value()) + L".";
    return core::CivilDate{record.year, record.month, record.day};
}

Result<void> readZone(std::string_view text, core::Chart& chart)
{
    if (text == "LMT") {
        chart.zone = std::round(chart.geoLongitude * 240.0) / 3600.0;
        return {};
    }
    std::string_view rest = text;
    const Result<double> zone = core::parseZone(takePart(rest, " "));
    if (!zone || (!rest.empty() && rest != "+1")) {
        return Error{"'" + std::string(text) + "' is no zone"};
    }
    chart.zone = zone.value();
    chart.daylightSaving = rest.empty() ? 0 : 1;
    return {};
}

Result<void> readTexts(const std::array<std::string_view, kParts>& parts, core::Chart& chart)
{
    const std::size_t comma = parts[4].rfind(", ");
    if (comma == std::string_view::npos) {
        return Error{"place and country need a comma between them"};
    }
    const auto name = fitting(parts[0], data::kNameLength);
    const auto place = fitting(parts[4].substr(0, comma), data::kPlaceLength);
    const auto country = fitting(parts[4].substr(comma + 2), data::kCountryLength);
    const auto occupation = fitting(parts[7], data::kOccupationLength);
    if (!name || name->empty() || !place || !country || !occupation) {
        return Error{"a text is missing or too long"};
    }
    if (parts[1] != "M" && parts[1] != "F" && parts[1] != "-") {
        return Error{"the sex is M, F or -"};
    }
    chart.name = *name;
    chart.place = *place;
    chart.identity.country = *country;
    chart.identity.occupation = *occupation;
    if (parts[1] == "-") {
        chart.identity.label = L"Event";
    } else {
        chart.identity.sex = core::fromFileBytes(parts[1]);
    }
    return {};
}

Result<void> readMoment(std::string_view date, std::string_view clock, core::Chart& chart,
                        std::wstring& remarks)
{
    const Result<core::CivilDate> day = readDate(date, remarks);
    if (!day) {
        return day.error();
    }
    chart.time.year = day.value().year;
    chart.time.month = day.value().month;
    chart.time.day = day.value().day;
    chart.time.localTime = kNoon;
    if (clock == "unknown") {
        remarks += L" The time is unknown; noon is taken.";
        return {};
    }
    const Result<double> time = core::parseClock(clock);
    if (!time) {
        return time.error();
    }
    chart.time.localTime = time.value();
    return {};
}

// The line at the margin. What must be said about date and time goes into the remarks.
Result<void> readHead(std::string_view line, core::Chart& chart, std::wstring& remarks)
{
    std::array<std::string_view, kParts> parts;
    for (std::string_view& part : parts) {
        part = takePart(line, "|");
    }
    if (parts.back().empty() || !line.empty()) {
        return Error{"a chart has eight parts"};
    }
    if (Result<void> texts = readTexts(parts, chart); !texts) {
        return texts;
    }
    if (Result<void> moment = readMoment(parts[2], parts[3], chart, remarks); !moment) {
        return moment;
    }
    std::string_view coordinates = parts[5];
    const Result<double> latitude = core::parseGeoLatitude(takePart(coordinates, " "));
    const Result<double> longitude = core::parseGeoLongitude(coordinates);
    if (!latitude || !longitude) {
        return Error{"'" + std::string(parts[5]) + "' is no latitude and longitude"};
    }
    chart.geoLatitude = latitude.value();
    chart.geoLongitude = longitude.value();
    return readZone(parts[6], chart);
}

Result<void> addEvent(std::string_view text, std::size_t slot, core::Chart& chart)
{
    if (slot >= chart.identity.events.size()) {
        return Error{"a chart has at most 39 events"};
    }
    core::LifeEvent& event = chart.identity.events[slot];
    std::string dateText(takePart(text, " "));
    if (text.starts_with("OS ")) {
        dateText += ' ';
        dateText += takePart(text, " ");
    }
    std::wstring remarks;
    const Result<core::CivilDate> date = readDate(dateText, remarks);
    if (!date) {
        return date.error();
    }
    event.date = {date.value().year, date.value().month, date.value().day};
    event.hours = kNoon;
    std::string_view rest = text;
    if (const Result<double> time = core::parseClock(takePart(rest, " ")); time) {
        event.hours = time.value();
        text = rest;
    }
    const auto name = fitting(text, data::kEventNameLength);
    if (!name || name->empty()) {
        return Error{"the name of an event is missing or too long"};
    }
    event.name = *name;
    return {};
}

// The lines of all charts, in their order.
Result<std::vector<std::string>> readTable(const std::string& path)
{
    std::ifstream file(path);
    if (!file) {
        return Error{"cannot be read", path};
    }
    std::vector<std::string> lines;
    core::Chart chart;
    std::wstring remarks;
    std::size_t events = 0;
    long number = 0;
    bool open = false;
    const auto close = [&] {
        if (open) {
            chart.identity.notes += remarks;
            data::refreshBirthTexts(chart);
            lines.push_back(data::FormatChartLine(chart, data::DateOrder::DayFirst));
        }
    };
    for (std::string line; std::getline(file, line);) {
        ++number;
        Result<void> read;
        if (line.empty() || line.starts_with('#')) {
            continue;
        }
        if (line.starts_with(kEventMark) && open) {
            read = addEvent(std::string_view(line).substr(kEventMark.size()), events++, chart);
        } else if (line.starts_with(kMargin) && open) {
            std::wstring& notes = chart.identity.notes;
            notes += (notes.empty() ? L"" : L" ") + core::fromFileBytes(trimmed(line));
        } else {
            close();
            chart = {};
            remarks.clear();
            events = 0;
            open = true;
            read = readHead(line, chart, remarks);
        }
        if (!read) {
            return Error{read.error().message, path, number};
        }
    }
    close();
    return lines;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: make_sample_charts charts.txt Sample.ksc\n", stderr);
        return 2;
    }
    const Result<std::vector<std::string>> lines = readTable(argv[1]);
    if (!lines) {
        std::fprintf(stderr, "make_sample_charts: %s\n", lines.error().text().c_str());
        return 1;
    }
    std::ofstream file(argv[2], std::ios::binary | std::ios::trunc);
    for (const std::string& line : lines.value()) {
        file << line << '\n';
    }
    if (!file.flush()) {
        std::fprintf(stderr, "make_sample_charts: cannot write '%s'\n", argv[2]);
        return 1;
    }
    std::printf("%s: %zu charts\n", argv[2], lines.value().size());
    return 0;
}
