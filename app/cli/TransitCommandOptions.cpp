#include "app/cli/TransitCommandOptions.h"

#include "analysis/ExplainText.h"
#include "app/present/Clock.h"
#include "app/present/TextValues.h"
#include "app/present/TransitChoices.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "timing/SiderealSky.h"
#include "timing/TransitSearch.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;
using timing::TransitKinds;

// The years for which the positions are tested.
constexpr int kFirstYear = -3000;
constexpr int kLastYear = 3000;
constexpr int kWidestOffset = 360;
constexpr double kUnixEpoch = 2440587.5; // Julian day of 1970-01-01 0h
constexpr double kSecondsPerDay = 86400.0;

std::string typed(std::string_view option, std::string_view text)
{
    return std::string(option) + " '" + std::string(core::cutUtf8(text, 60)) + "'";
}

std::vector<std::string> partsOf(const std::string& list)
{
    std::vector<std::string> parts;
    std::size_t begin = 0;
    while (begin <= list.size()) {
        const std::size_t end = std::min(list.find(',', begin), list.size());
        parts.push_back(analysis::explaining::plainName(list.substr(begin, end - begin)));
        begin = end + 1;
    }
    return parts;
}

Result<void> readDay(const Arguments& arguments, std::string_view option,
                     std::optional<double>& day)
{
    const std::optional<std::string> text = arguments.value(option);
    if (!text) {
        return {};
    }
    const Result<core::CivilDate> date = core::parseDate(*text);
    if (!date) {
        return Error{std::string(option) + ": " + date.error().message};
    }
    if (date.value().year < kFirstYear || date.value().year > kLastYear) {
        return Error{typed(option, *text) + " lies outside the years -3000 to 3000"};
    }
    core::DateTimeRecord record;
    record.year = date.value().year;
    record.month = date.value().month;
    record.day = date.value().day;
    day = core::DateToJulianDay(record);
    return {};
}

Result<void> readWhole(const Arguments& arguments, std::string_view option, int lowest, int highest,
                       int& value)
{
    const std::optional<std::string> text = arguments.value(option);
    if (!text) {
        return {};
    }
    const std::optional<int> number = core::parseInteger(*text);
    if (!number || *number < lowest || *number > highest) {
        return Error{typed(option, *text) + " is not a whole number from " +
                     std::to_string(lowest) + " to " + std::to_string(highest)};
    }
    value = *number;
    return {};
}

Result<void> readClockZone(const Arguments& arguments, std::optional<double>& clock)
{
    if (const std::optional<std::string> text = arguments.value("--clock")) {
        const Result<double> zone = core::parseZone(*text);
        if (!zone) {
            return Error{"--clock: " + zone.error().message};
        }
        clock = zone.value();
    }
    return {};
}

Result<void> readMode(const Arguments& arguments, timing::TransitMode& mode)
{
    const std::string text = arguments.value("--mode").value_or("native");
    if (text != "native" && text != "transit") {
        return Error{typed("--mode", text) + " is not known; write native or transit"};
    }
    mode = text == "native" ? timing::TransitMode::Native : timing::TransitMode::TransitToTransit;
    return {};
}

// The points of a list, each once and in the order typed.
Result<void> readPoints(std::string_view option, const std::string& list, bool bodiesOnly,
                        std::vector<int>& points)
{
    points.clear();
    for (const std::string& name : partsOf(list)) {
        const std::optional<int> point = analysis::explaining::findPoint(name);
        if (!point) {
            return Error{typed(option, list) + ": there is no point '" + name + "'"};
        }
        if (bodiesOnly && !present::movesByItself(*point)) {
            return Error{std::string(option) + ": " + core::toUtf8(present::pointLabel(*point)) +
                         " is no body that moves by itself; these are Sun to Ketu and Uranus to "
                         "Pluto"};
        }
        if (std::find(points.begin(), points.end(), *point) == points.end()) {
            points.push_back(*point);
        }
    }
    return {};
}

Result<void> readBodies(const Arguments& arguments, TransitRequest& request)
{
    const std::optional<std::string> list = arguments.value("--bodies");
    if (list && *list != "all") {
        return readPoints("--bodies", *list, true, request.options.bodies);
    }
    request.options.bodies = present::movingBodies();
    return {};
}

Result<void> readTargets(const Arguments& arguments, TransitRequest& request)
{
    const bool native = request.options.mode == timing::TransitMode::Native;
    const std::optional<std::string> list = arguments.value("--targets");
    if (list && *list != "all") {
        request.targetsTyped = true;
        return readPoints("--targets", *list, !native, request.options.targets);
    }
    if (!native) {
        request.options.targets = present::movingBodies();
        return {};
    }
    request.options.targets = present::nativePoints(list ? core::kPointCount - 1 : core::kKetu);
    return {};
}

Result<void> readAspects(const Arguments& arguments, int& choice)
{
    constexpr std::array<std::string_view, 4> kNames = {"every", "graha", "sign", "both"};
    const std::optional<std::string> text = arguments.value("--aspects");
    if (!text) {
        return {};
    }
    const auto name = std::find(kNames.begin(), kNames.end(), *text);
    if (name != kNames.end()) {
        choice = int(name - kNames.begin());
        return {};
    }
    const std::optional<int> index = core::parseInteger(*text);
    if (!index || *index < 0 || *index > timing::kLastAspectChoice) {
        return Error{typed("--aspects", *text) +
                     " is not known; write every, graha, sign, both or an index from 0 to 5"};
    }
    choice = *index;
    return {};
}

Result<void> readKinds(const Arguments& arguments, TransitKinds& kinds)
{
    const std::optional<std::string> list = arguments.value("--kinds");
    if (!list) {
        return {};
    }
    for (const auto& [name, member] : present::kTransitKinds) {
        kinds.*member = *list == "all";
    }
    if (*list == "all" || *list == "none") {
        return {};
    }
    for (const std::string& part : partsOf(*list)) {
        const auto kind = std::find_if(present::kTransitKinds.begin(), present::kTransitKinds.end(),
                                       [&](const auto& entry) { return entry.name == part; });
        if (kind == present::kTransitKinds.end()) {
            return Error{typed("--kinds", *list) + ": there is no kind '" + part +
                         "'; write aspects, orbs, signs, nakshatras, padas, stations, combustion, "
                         "all or none"};
        }
        kinds.*(kind->member) = true;
    }
    return {};
}

} // namespace

Result<TransitRequest> readTransitRequest(const Arguments& arguments)
{
    TransitRequest request;
    timing::TransitOptions& options = request.options;
    Result<void> read;
    const auto next = [&read](auto step) {
        if (read) {
            read = step();
        }
    };
    next([&] { return readDay(arguments, "--from", request.first); });
    next([&] { return readDay(arguments, "--to", request.last); });
    next([&] { return readClockZone(arguments, request.clock); });
    next([&] { return readMode(arguments, options.mode); });
    next([&] { return readBodies(arguments, request); });
    next([&] { return readTargets(arguments, request); });
    next([&] { return readAspects(arguments, options.aspectChoice); });
    next([&] { return readKinds(arguments, options.kinds); });
    next([&] {
        return readWhole(arguments, "--orb", present::kNarrowestOrb, timing::kWidestOrb,
                         options.orbDegrees);
    });
    next([&] {
        return readWhole(arguments, "--offset", -kWidestOffset, kWidestOffset,
                         options.offsetDegrees);
    });
    if (!read) {
        return read.error();
    }
    options.excludeUpagrahas = arguments.has("--no-upagrahas");
    request.kakshyas = arguments.has("--kakshyas");
    request.sadeSati = arguments.has("--sade-sati");
    return request;
}

bool namesChart(const Arguments& arguments)
{
    constexpr std::array<std::string_view, 11> kOptions = {
        "--date", "--time", "--dst",  "--lon",   "--lat",      "--name",
        "--now",  "--db",   "--line", "--place", "--positions"};
    return std::any_of(kOptions.begin(), kOptions.end(),
                       [&](std::string_view option) { return arguments.has(option); });
}

Result<void> settleTransitDays(TransitRequest& request, double clock)
{
    if (request.first) {
        request.days.first = *request.first;
    } else {
        const Result<double> moment = present::presentMoment();
        if (!moment) {
            return moment.error();
        }
        request.days.first =
            timing::civilDayOf(kUnixEpoch + moment.value() / kSecondsPerDay, clock);
    }
    request.days.last = request.last.value_or(request.days.first + present::kUsualTransitDays - 1);
    if (request.days.last < request.days.first) {
        return Error{"--to lies before " +
                     std::string(request.first ? "--from" : "today, where --from begins")};
    }
    if (request.days.last - request.days.first > present::kMostTransitDays) {
        return Error{"--to lies more than 200 years after --from"};
    }
    return {};
}

Result<void> settleTransitTargets(TransitRequest& request, const core::Chart& native)
{
    std::vector<int>& targets = request.options.targets;
    const auto missing = [&](int point) {
        return !native.computed(point);
    };
    const auto first = std::find_if(targets.begin(), targets.end(), missing);
    if (request.targetsTyped && first != targets.end()) {
        return Error{"--targets: the chart has no position of " +
                     core::toUtf8(present::pointLabel(*first))};
    }
    targets.erase(std::remove_if(first, targets.end(), missing), targets.end());
    return {};
}

} // namespace kestrav::cli
