#include "app/cli/EphemerisCommandOptions.h"

#include "astro/Ayanamsa.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "core/PointNames.h"
#include "core/Points.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <optional>
#include <string>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;

constexpr int kLargestSaving = 3;
constexpr std::array<int, 11> kUsualBodies = {
    core::kSun,    core::kMoon, core::kMars,   core::kMercury, core::kJupiter, core::kVenus,
    core::kSaturn, core::kRahu, core::kUranus, core::kNeptune, core::kPluto};

std::string lowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

std::string nameOfBody(int body)
{
    std::string name = lowerCase(core::toUtf8(core::PointName(-1, body)));
    return name.substr(0, name.find_last_not_of(' ') + 1);
}

std::optional<int> bodyOf(const std::string& word)
{
    const std::optional<int> index = core::parseInteger(word);
    for (const int body : core::kBodies) {
        if (index ? *index == body : lowerCase(word) == nameOfBody(body)) {
            return body;
        }
    }
    return std::nullopt;
}

Result<std::vector<int>> readBodies(const Arguments& arguments)
{
    const std::optional<std::string> text = arguments.value("--bodies");
    if (!text) {
        return std::vector<int>(kUsualBodies.begin(), kUsualBodies.end());
    }
    std::vector<int> bodies;
    for (std::size_t begin = 0; begin <= text->size();) {
        const std::size_t end = std::min(text->find(',', begin), text->size());
        const std::string word = text->substr(begin, end - begin);
        const std::optional<int> body = bodyOf(word);
        if (!body) {
            return Error{"--bodies: '" + word +
                         "' is none of Sun to Ketu and Uranus to Pluto, nor their index"};
        }
        if (std::find(bodies.begin(), bodies.end(), *body) == bodies.end()) {
            bodies.push_back(*body);
        }
        begin = end + 1;
    }
    return bodies;
}

Error planError(timing::PlanProblem problem, const Arguments& arguments)
{
    using timing::PlanProblem;
    const std::string to = "--to " + arguments.value("--to").value_or("");
    switch (problem) {
    case PlanProblem::StepNotPositive:
        return {"--step '" + arguments.value("--step").value_or("") + "' is not above 0"};
    case PlanProblem::FirstOutOfReach:
        return {"--from lies outside " + yearsOfTables()};
    case PlanProblem::LastOutOfReach:
        return {"--to lies outside " + yearsOfTables()};
    case PlanProblem::Reversed:
        return {to + " lies before --from " + arguments.value("--from").value_or("")};
    case PlanProblem::TooLong:
        return {to + " lies more than " +
                std::to_string(static_cast<long long>(timing::kLongestTable)) +
                " days after --from"};
    case PlanProblem::TooManyPositions:
        return {"--step is too small: the table would have more than " +
                std::to_string(timing::kMostTablePositions) +
                " positions; a larger step, an earlier --to or fewer --bodies make it shorter"};
    case PlanProblem::None:
        break;
    }
    return {""};
}

} // namespace

std::string yearsOfTables()
{
    return "the years " + std::to_string(timing::kFirstTableYear) + " to " +
           std::to_string(timing::kLastTableYear);
}

Result<core::DateTimeRecord> readTableDate(const Arguments& arguments, std::string_view option)
{
    const std::optional<std::string> text = arguments.value(option);
    if (!text) {
        return Error{std::string(option) + " is missing"};
    }
    const Result<core::CivilDate> date = core::parseDate(*text);
    if (!date) {
        return Error{std::string(option) + ": " + date.error().message};
    }
    core::DateTimeRecord record;
    record.year = date.value().year;
    record.month = date.value().month;
    record.day = date.value().day;
    record.localTime = 0.0;
    if (!timing::isInTables(record)) {
        return Error{std::string(option) + " " + *text + " lies outside " + yearsOfTables()};
    }
    return record;
}

Result<double> readTableClock(const Arguments& arguments)
{
    double offset = 0.0;
    if (const std::optional<std::string> text = arguments.value("--zone")) {
        const Result<double> zone = core::parseZone(*text);
        if (!zone) {
            return Error{"--zone: " + zone.error().message};
        }
        offset = zone.value();
    }
    if (const std::optional<std::string> text = arguments.value("--dst")) {
        const std::optional<int> saving = core::parseInteger(*text);
        if (!saving || *saving < 0 || *saving > kLargestSaving) {
            return Error{"--dst '" + *text + "' is not a whole number from 0 to 3"};
        }
        offset += *saving;
    }
    return offset;
}

Result<timing::EphemerisPlan> readEphemerisPlan(const Arguments& arguments)
{
    timing::EphemerisPlan plan;
    const Result<core::DateTimeRecord> first = readTableDate(arguments, "--from");
    if (!first) {
        return first.error();
    }
    plan.first = first.value();
    plan.last = plan.first;
    plan.last.day = core::daysInMonth(plan.first.year, plan.first.month);
    if (arguments.has("--to")) {
        const Result<core::DateTimeRecord> last = readTableDate(arguments, "--to");
        if (!last) {
            return last.error();
        }
        plan.last = last.value();
    }
    if (const std::optional<std::string> text = arguments.value("--time")) {
        const Result<double> time = core::parseClock(*text);
        if (!time) {
            return Error{"--time: " + time.error().message};
        }
        plan.first.localTime = time.value();
    }
    if (const std::optional<std::string> text = arguments.value("--step")) {
        const Result<timing::TableStep> step = timing::parseTableStep(*text);
        if (!step) {
            return Error{"--step: " + step.error().message};
        }
        plan.step = step.value();
    }
    const Result<double> clock = readTableClock(arguments);
    if (!clock) {
        return clock.error();
    }
    plan.clockOffset = clock.value();
    const Result<std::vector<int>> bodies = readBodies(arguments);
    if (!bodies) {
        return bodies.error();
    }
    plan.bodies = bodies.value();
    const timing::PlanProblem problem = timing::checkPlan(plan);
    if (problem != timing::PlanProblem::None) {
        return planError(problem, arguments);
    }
    return plan;
}

Result<void> applyZodiac(const Arguments& arguments, core::Settings& settings)
{
    const std::optional<std::string> text = arguments.value("--zodiac");
    if (!text) {
        return {};
    }
    const bool tropical = lowerCase(*text) == "tropical";
    if (!tropical && lowerCase(*text) != "sidereal") {
        return Error{"--zodiac '" + *text + "' is neither tropical nor sidereal"};
    }
    if (tropical) {
        // A row without a rate is tropical whatever its value.
        settings.ayanamsaRow = core::kAyanamsaRows - 1;
        settings.ayanamsaTable.back().annualRate = 0.0;
    } else if (astro::isTropical(astro::selectedRow(settings))) {
        return Error{"--zodiac sidereal: the ayanamsa of the settings is tropical; choose another "
                     "with --set ayanamsaRow=N"};
    }
    return {};
}

} // namespace kestrav::cli
