#include "app/cli/DashaCommandOptions.h"

#include "app/present/Clock.h"
#include "app/present/TextValues.h"
#include "core/FileText.h"
#include "core/Points.h"
#include "timing/DashaOptions.h"
#include "timing/DashaTable.h"
#include "timing/SiderealSky.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;

constexpr int kMostLines = 100000;
constexpr int kUsualLines = 1000;
constexpr double kUsualYears = 120.0;
constexpr double kUnixEpoch = 2440587.5; ///< Julian day of 1970-01-01 0h
constexpr double kSecondsPerDay = 86400.0;

char lowerCase(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

// Whether a name begins with a text, without regard to case.
bool beginsWith(std::string_view name, std::string_view text)
{
    return text.size() <= name.size() &&
           std::equal(text.begin(), text.end(), name.begin(),
                      [](char a, char b) { return lowerCase(a) == lowerCase(b); });
}

// Whether a later word of a name does.
bool hasWord(std::string_view name, std::string_view text)
{
    for (std::size_t blank = name.find(' '); blank != std::string_view::npos;
         blank = name.find(' ', blank + 1)) {
        if (beginsWith(name.substr(blank + 1), text)) {
            return true;
        }
    }
    return false;
}

std::string joined(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ", ") + name;
    }
    return text;
}

// "--system 'x'".
std::string typed(std::string_view option, std::string_view text)
{
    return std::string(option) + " '" + std::string(core::cutUtf8(text, 60)) + "'";
}

std::string typed(const Arguments& arguments, std::string_view option)
{
    return std::string(option) + " " + arguments.value(option).value_or("");
}

std::vector<int> indexesOf(const std::vector<std::string>& names, std::string_view text,
                           bool (*matches)(std::string_view name, std::string_view text))
{
    std::vector<int> found;
    for (std::size_t i = 0; i < names.size() && !text.empty(); ++i) {
        if (matches(names[i], text)) {
            found.push_back(int(i));
        }
    }
    return found;
}

// The index of a choice: the index itself, its whole name, or the beginning of only one name; else
// the beginning of a later word of only one. `hint` ends the error about a name that there is not.
Result<int> readChoice(std::string_view option, std::string_view text,
                       const std::vector<std::string>& names, const std::string& hint)
{
    if (const std::optional<int> index = core::parseInteger(text)) {
        if (*index >= 0 && *index < int(names.size())) {
            return *index;
        }
        return Error{typed(option, text) + " is not an index from 0 to " +
                     std::to_string(names.size() - 1)};
    }
    std::vector<int> found = indexesOf(names, text, beginsWith);
    if (found.empty()) {
        found = indexesOf(names, text, hasWord);
    }
    std::vector<std::string> similar;
    for (const int i : found) {
        similar.push_back(names[std::size_t(i)]);
        if (found.size() == 1 || similar.back().size() == text.size()) {
            return i;
        }
    }
    return Error{typed(option, text) + (similar.empty() ? " is not known; " + hint
                                                        : " can be any of " + joined(similar))};
}

std::vector<std::string> choiceNames(std::string_view setting)
{
    const core::SettingInfo& info = *core::findSetting(setting);
    std::vector<std::string> names;
    for (int value = int(info.lowest); value <= int(info.highest); ++value) {
        names.emplace_back(core::choiceName(info, value));
    }
    return names;
}

std::vector<std::string> startPointNames()
{
    std::vector<std::string> names;
    for (int point = core::kAscendant; point <= core::kKetu; ++point) {
        names.push_back(core::toUtf8(present::pointLabel(point)));
    }
    names.insert(names.end(), {"Kshema", "Utpanna", "Sadha", "Adhana"});
    return names;
}

Result<int> readWhole(std::string_view option, const std::string& text, int lowest, int highest)
{
    const std::optional<int> number = core::parseInteger(text);
    if (!number || *number < lowest || *number > highest) {
        return Error{typed(option, text) + " is not a whole number from " + std::to_string(lowest) +
                     " to " + std::to_string(highest)};
    }
    return *number;
}

Result<void> readAge(const Arguments& arguments, std::string_view option,
                     std::optional<double>& age)
{
    const std::optional<std::string> text = arguments.value(option);
    if (!text) {
        return {};
    }
    age = core::parseNumber(*text);
    if (!age || !(std::fabs(*age) <= timing::kLastAge)) {
        return Error{typed(option, *text) + " is not a number of years from -10000 to 10000"};
    }
    return {};
}

Result<void> readDate(const Arguments& arguments, std::string_view option,
                      std::optional<core::CivilDate>& date)
{
    if (const std::optional<std::string> text = arguments.value(option)) {
        const Result<core::CivilDate> read = core::parseDate(*text);
        if (!read) {
            return Error{std::string(option) + ": " + read.error().message};
        }
        date = read.value();
    }
    return {};
}

Result<void> checkPairs(const Arguments& arguments)
{
    for (const auto& [date, age] : {std::pair{"--from", "--from-age"}, {"--to", "--to-age"}}) {
        if (arguments.has(date) && arguments.has(age)) {
            return Error{std::string(date) + " cannot stand beside " + age};
        }
    }
    for (const char* const option : {"--from", "--to", "--at"}) {
        if (arguments.has(option) && arguments.has("--positions")) {
            return Error{std::string(option) +
                         " cannot stand beside --positions, which has no date of birth"};
        }
    }
    return {};
}

Result<void> applyYearLength(const std::string& text, core::Settings& settings)
{
    constexpr double kShortest = 200.0;
    constexpr double kLongest = 500.0;
    const std::optional<double> days = core::parseNumber(text);
    if (days && *days >= kShortest && *days <= kLongest) {
        settings.dashaYearLength = int(timing::YearLength::Custom);
        settings.customYearDays = *days;
        return {};
    }
    const std::vector<std::string> names = choiceNames("dashaYearLength");
    const Result<int> choice =
        readChoice("--year-length", text, names,
                   "write one of " + joined(names) + ", an index from 0 to 6 or 200 to 500 days");
    if (!choice) {
        return choice.error();
    }
    settings.dashaYearLength = choice.value();
    return {};
}

double julianDayAt(const core::CivilDate& date, double hour, double zone)
{
    core::DateTimeRecord record;
    record.year = date.year;
    record.month = date.month;
    record.day = date.day;
    return timing::julianDayOf(record, zone) + hour / 24.0;
}

// The age of one end of the list. `typedDate` is for the error about a date out of reach.
Result<double> ageOfEnd(const std::optional<core::CivilDate>& date,
                        const std::optional<double>& age, double usual, double hour,
                        const timing::Dasha& dasha, double zone, const std::string& typedDate)
{
    if (!date) {
        return age.value_or(usual);
    }
    const double ofDate = dasha.calendar.ageAt(julianDayAt(*date, hour, zone));
    if (!(std::fabs(ofDate) <= timing::kLastAge)) {
        return Error{typedDate + " lies more than 10000 years from birth"};
    }
    return ofDate;
}

} // namespace

Result<DashaRequest> readDashaRequest(const Arguments& arguments)
{
    DashaRequest request;
    Result<void> read = checkPairs(arguments);
    const auto next = [&read](auto step) {
        if (read) {
            read = step();
        }
    };
    next([&] { return readAge(arguments, "--from-age", request.fromAge); });
    next([&] { return readAge(arguments, "--to-age", request.toAge); });
    next([&] { return readDate(arguments, "--from", request.from); });
    next([&] { return readDate(arguments, "--to", request.to); });
    next([&] {
        const std::optional<std::string> at = arguments.value("--at");
        return at ? readAt(*at, request) : Result<void>();
    });
    if (!read) {
        return read.error();
    }
    if (const std::optional<std::string> lines = arguments.value("--lines")) {
        const Result<int> count = readWhole("--lines", *lines, 1, kMostLines);
        if (!count) {
            return count.error();
        }
        request.lines = count.value();
    }
    return request;
}

Result<void> applyDashaOptions(const Arguments& arguments, core::Settings& settings)
{
    if (const std::optional<std::string> text = arguments.value("--system")) {
        const Result<int> system = readChoice("--system", *text, choiceNames("dashaSystem"),
                                              "kestrav-cli dasha --list lists the systems");
        if (!system) {
            return system.error();
        }
        settings.dashaSystem = system.value();
    }
    if (const std::optional<std::string> text = arguments.value("--levels")) {
        const Result<int> levels = readWhole("--levels", *text, 1, timing::kDashaLevels);
        if (!levels) {
            return levels.error();
        }
        settings.dashaLevels = levels.value();
    }
    if (const std::optional<std::string> text = arguments.value("--start-point")) {
        const std::vector<std::string> names = startPointNames();
        const Result<int> point =
            readChoice("--start-point", *text, names, "write one of " + joined(names));
        if (!point) {
            return point.error();
        }
        settings.dashaStartPoint = point.value();
    }
    if (const std::optional<std::string> text = arguments.value("--total-length")) {
        const std::vector<std::string> names = choiceNames("dashaTotalLength");
        const Result<int> length =
            readChoice("--total-length", *text, names, "write one of " + joined(names));
        if (!length) {
            return length.error();
        }
        settings.dashaTotalLength = length.value();
    }
    const std::optional<std::string> year = arguments.value("--year-length");
    return year ? applyYearLength(*year, settings) : Result<void>();
}

Result<timing::DashaSpan> dashaSpan(const DashaRequest& request, const Arguments& arguments,
                                    const core::Settings& settings, const timing::Dasha& dasha,
                                    double zone)
{
    timing::DashaSpan span;
    span.levels = settings.dashaLevels;
    span.budget = request.lines.value_or(kUsualLines);
    const std::string first = typed(arguments, request.from ? "--from" : "--from-age");
    const std::string last = typed(arguments, request.to ? "--to" : "--to-age");
    const Result<double> start =
        ageOfEnd(request.from, request.fromAge, 0.0, 0.0, dasha, zone, first);
    if (!start) {
        return start.error();
    }
    const double cycle = timing::chosenCycleYears(settings.dashaTotalLength);
    // A list whose periods are counted ends with the last of them, else with a life or a cycle.
    const double usualEnd =
        request.lines ? timing::kLastAge : start.value() + (cycle > 0.0 ? cycle : kUsualYears);
    const Result<double> end =
        ageOfEnd(request.to, request.toAge, usualEnd, 24.0, dasha, zone, last);
    if (!end) {
        return end.error();
    }
    // The whole of the last day is meant, so a last day before the first ends where that begins.
    if (end.value() < start.value() ||
        (request.from && request.to && end.value() == start.value())) {
        const bool hasFirst = request.from || request.fromAge;
        return Error{last + " lies before " + (hasFirst ? first : "birth, where the list begins")};
    }
    span.startAge = start.value();
    span.endAge = end.value();
    return span;
}

core::Result<void> readAt(const std::string& text, DashaRequest& request)
{
    if (text == "now") {
        const Result<double> moment = present::presentMoment();
        if (!moment) {
            return moment.error();
        }
        request.atJulianDay = kUnixEpoch + moment.value() / kSecondsPerDay;
        return {};
    }
    const std::size_t mark = text.find_first_of("T ");
    const Result<core::CivilDate> date = core::parseDate(text.substr(0, mark));
    if (!date) {
        return Error{"--at: " + date.error().message};
    }
    request.atDate = date.value();
    if (mark != std::string::npos) {
        const Result<double> hour = core::parseClock(text.substr(mark + 1));
        if (!hour) {
            return Error{"--at: " + hour.error().message};
        }
        request.atHour = hour.value();
    }
    return {};
}

std::optional<double> momentAsked(const DashaRequest& request, double zone)
{
    if (request.atDate) {
        return julianDayAt(*request.atDate, request.atHour, zone);
    }
    return request.atJulianDay;
}

} // namespace kestrav::cli
