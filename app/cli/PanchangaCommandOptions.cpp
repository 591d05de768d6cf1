#include "app/cli/PanchangaCommandOptions.h"

#include "app/cli/EphemerisCommandOptions.h"
#include "core/DateTime.h"
#include "core/FileText.h"
#include "core/Names.h"
#include "core/SignData.h"
#include "timing/PanchangaNames.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;

constexpr int kMostDays = 3660;
constexpr std::string_view kNative = "--native-";

core::DateTimeRecord recordOf(const core::CivilDate& date)
{
    core::DateTimeRecord record;
    record.year = date.year;
    record.month = date.month;
    record.day = date.day;
    return record;
}

Result<double> dayOfOption(const Arguments& arguments, const std::string& option)
{
    const Result<core::DateTimeRecord> date = readTableDate(arguments, option);
    if (!date) {
        return date.error();
    }
    return core::DateToJulianDay(date.value());
}

// The first option typed that cannot stand beside a span.
Result<void> checkSpan(const Arguments& arguments, const std::string& span)
{
    for (const char* const option : {"--date", "--time", "--now"}) {
        if (arguments.has(option)) {
            return Error{std::string(option) + " cannot stand beside " + span};
        }
    }
    return {};
}

Result<PanchangaDays> monthDays(Arguments& arguments)
{
    const std::string text = *arguments.value("--month");
    const std::string firstText = text + "-01";
    const Result<core::CivilDate> first = core::parseDate(firstText);
    if (!first) {
        return Error{"--month '" + text + "' is not a month; write YYYY-MM"};
    }
    if (!timing::isInTables(recordOf(first.value()))) {
        return Error{"--month " + text + " lies outside " + yearsOfTables()};
    }
    core::CivilDate next = first.value();
    next.month = next.month % 12 + 1;
    if (next.month == 1) {
        next.year = next.year == -1 ? 1 : next.year + 1;
    }
    arguments.store("--date", {firstText});
    PanchangaDays days;
    days.first = core::DateToJulianDay(recordOf(first.value()));
    days.last = core::DateToJulianDay(recordOf(next)) - 1.0;
    return days;
}

Result<PanchangaDays> spanDays(Arguments& arguments)
{
    for (const auto& [one, other] : {std::pair{"--from", "--to"}, {"--to", "--from"}}) {
        if (!arguments.has(other)) {
            return Error{std::string(one) + " needs " + other};
        }
    }
    const Result<double> first = dayOfOption(arguments, "--from");
    if (!first) {
        return first.error();
    }
    const Result<double> last = dayOfOption(arguments, "--to");
    if (!last) {
        return last.error();
    }
    const std::string from = *arguments.value("--from");
    const std::string to = *arguments.value("--to");
    if (last.value() < first.value()) {
        return Error{"--to " + to + " lies before --from " + from};
    }
    const double count = last.value() - first.value() + 1.0;
    if (count > kMostDays) {
        return Error{"--from " + from + " --to " + to + " are " +
                     std::to_string(static_cast<long long>(count)) + " days, more than " +
                     std::to_string(kMostDays)};
    }
    arguments.store("--date", {from});
    PanchangaDays days;
    days.first = first.value();
    days.last = last.value();
    return days;
}

Result<PanchangaDays> singleDay(const Arguments& arguments)
{
    PanchangaDays days;
    if (!arguments.has("--date") && !arguments.has("--now") && !arguments.has("--db")) {
        return Error{"--date is missing (or give --month, --from and --to, or --now)"};
    }
    days.atMoment = !arguments.has("--date") || arguments.has("--time");
    if (arguments.has("--date")) {
        const Result<double> day = dayOfOption(arguments, "--date");
        if (!day) {
            return day.error();
        }
        days.first = day.value();
        days.last = day.value();
    }
    return days;
}

// The nakshatra 0 to 26 of a number 1 to 27, a name or the beginning of only one name.
std::optional<int> findNakshatra(const std::string& text)
{
    if (const std::optional<int> number = core::parseInteger(text)) {
        return *number >= 1 && *number <= timing::kNakshatras ? std::optional(*number - 1)
                                                              : std::nullopt;
    }
    const auto lower = [](std::string word) {
        std::transform(word.begin(), word.end(), word.begin(), [](char letter) {
            return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
        });
        return word;
    };
    std::vector<int> found;
    for (int nakshatra = 0; nakshatra < timing::kNakshatras; ++nakshatra) {
        const std::string name = lower(core::toUtf8(core::nakshatraName(nakshatra)));
        if (name == lower(text)) {
            return nakshatra;
        }
        if (!text.empty() && name.starts_with(lower(text))) {
            found.push_back(nakshatra);
        }
    }
    return found.size() == 1 ? std::optional(found.front()) : std::nullopt;
}

BirthStar starOf(int nakshatra, std::optional<int> pada)
{
    constexpr double kWidth = 360.0 / timing::kNakshatras;
    constexpr double kQuarter = kWidth / 4.0;
    BirthStar star;
    const double begin = nakshatra * kWidth;
    if (pada) {
        star.moonLongitude = begin + (*pada - 0.5) * kQuarter;
        star.signKnown = true;
        return star;
    }
    star.moonLongitude = begin + 0.5 * kWidth;
    star.signKnown = core::signOfLongitude(begin + 0.5 * kQuarter) ==
                     core::signOfLongitude(begin + 3.5 * kQuarter);
    return star;
}

} // namespace

Result<PanchangaDays> readPanchangaDays(Arguments& arguments)
{
    const bool month = arguments.has("--month");
    const bool span = arguments.has("--from") || arguments.has("--to");
    if (month && span) {
        return Error{"--month cannot stand beside --from and --to"};
    }
    if (month || span) {
        const std::string typed = month ? "--month" : "--from and --to";
        if (const Result<void> checked = checkSpan(arguments, typed); !checked) {
            return checked.error();
        }
    }
    Result<PanchangaDays> days = month  ? monthDays(arguments)
                                 : span ? spanDays(arguments)
                                        : singleDay(arguments);
    if (!days || days.value().atMoment) {
        return days;
    }
    days.value().isSpan = month || span;
    if (arguments.has("--db")) {
        arguments.store("--date", {}); // the database gives the place and its clock only
    } else {
        arguments.store("--time", {"12:00"}); // the clock of a day is that of its noon
    }
    return days;
}

bool hasNativeChart(const Arguments& arguments)
{
    return std::any_of(kNativeOptions.begin(), kNativeOptions.end(), [&](const OptionInfo& option) {
        return option.name != "--native-star" && arguments.has(option.name);
    });
}

Result<BirthData> readNative(const Arguments& arguments)
{
    if (arguments.has("--native-star")) {
        return Error{"--native-star cannot stand beside other options of the native"};
    }
    if (!arguments.has("--native")) {
        for (const char* const option : {"--native-date", "--native-time"}) {
            if (!arguments.has(option) && !arguments.has("--native-positions")) {
                return Error{std::string(option) + " is missing beside the other options of the "
                                                   "native"};
            }
        }
        if (!arguments.has("--native-zone") && !arguments.has("--native-place") &&
            !arguments.has("--native-positions")) {
            return Error{"--native-zone is missing (or give --native-place)"};
        }
        return readBirthData(arguments, PlaceNeed::Optional, kNative);
    }
    for (const OptionInfo& option : kNativeOptions) {
        if (option.name != "--native" && arguments.has(option.name)) {
            return Error{std::string(option.name) + " cannot stand beside --native"};
        }
    }
    if (!arguments.has("--db")) {
        return Error{"--native needs --db"};
    }
    BirthData native;
    native.need = PlaceNeed::Optional;
    native.database = DatabaseChoice{
        *arguments.value("--db"), core::fromFileBytes(*arguments.value("--native")), std::nullopt};
    return native;
}

Result<std::optional<BirthStar>> readBirthStar(const Arguments& arguments)
{
    const std::optional<std::string> text = arguments.value("--native-star");
    if (!text) {
        return std::optional<BirthStar>();
    }
    std::string name = *text;
    std::optional<int> pada;
    const std::size_t blank = name.rfind(' ');
    if (blank != std::string::npos && blank + 2 == name.size() && name.back() >= '1' &&
        name.back() <= '4') {
        pada = name.back() - '0';
        name.erase(name.find_last_not_of(' ', blank) + 1);
    }
    const std::optional<int> nakshatra = findNakshatra(name);
    if (!nakshatra) {
        return Error{"--native-star '" + std::string(core::cutUtf8(*text, 60)) +
                     "' is not the name or number 1 to 27 of one nakshatra, with or without a pada "
                     "1 to 4"};
    }
    return std::optional(starOf(*nakshatra, pada));
}

} // namespace kestrav::cli
