#include "app/cli/DiagramCommandOptions.h"

#include "analysis/ExplainText.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/VargaOutput.h"
#include "core/NumberText.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace kestrav::cli
{

namespace
{

using core::Error;
using core::Result;
using present::PointSet;

struct PointGroup
{
    std::string_view name;
    int first;
    int last;
};

constexpr std::array<PointGroup, 7> kGroups = {{
    {"main", core::kAscendant, core::kKetu},
    {"outer", core::kUranus, core::kPluto},
    {"upagrahas", core::kDhuma, core::kMandi},
    {"lagnas", core::kBhavaLagna, core::kArudhaLagna},
    {"arudhas", core::kArudhaPada1, core::kUpapada},
    {"others", core::kYogiPoint, core::kSaham3},
    {"none", 0, -1},
}};

std::vector<std::string> wordsOf(std::string_view list)
{
    std::vector<std::string> words;
    while (true) {
        const std::size_t comma = list.find(',');
        std::string_view word = list.substr(0, comma);
        word.remove_prefix(std::min(word.find_first_not_of(' '), word.size()));
        words.emplace_back(word.substr(0, word.find_last_not_of(' ') + 1));
        if (comma == std::string_view::npos) {
            return words;
        }
        list.remove_prefix(comma + 1);
    }
}

// The index of the chosen name, `fallback` when the option was not typed.
Result<std::size_t> choice(const Arguments& arguments, std::string_view option,
                           std::span<const std::string_view> names, std::size_t fallback)
{
    const std::optional<std::string> text = arguments.value(option);
    if (!text) {
        return fallback;
    }
    const auto found = std::find(names.begin(), names.end(), *text);
    if (found != names.end()) {
        return std::size_t(found - names.begin());
    }
    std::string possible;
    for (const std::string_view name : names) {
        possible.append(possible.empty() ? "" : ", ").append(name);
    }
    return Error{std::string(option) + " '" + *text + "' is none of " + possible};
}

void add(PointSet& points, int first, int last)
{
    for (int point = first; point <= last; ++point) {
        points.set(std::size_t(point));
    }
}

Result<PointSet> readPoints(const Arguments& arguments)
{
    const std::optional<std::string> list = arguments.value("--points");
    PointSet points;
    for (const std::string& word : wordsOf(list.value_or("main"))) {
        const auto* const group = std::find_if(kGroups.begin(), kGroups.end(),
                                               [&](const PointGroup& g) { return g.name == word; });
        if (group != kGroups.end()) {
            add(points, group->first, group->last);
        } else if (word == "all") {
            // Cusps are no points that stand in a sign as planets do.
            add(points, core::kAscendant, core::kPluto);
            add(points, core::kArudhaPada1, core::kSaham3);
        } else if (const std::optional<int> point = analysis::explaining::findPoint(word)) {
            points.set(std::size_t(*point));
        } else {
            return Error{"--points: there is no point or group '" + word + "'"};
        }
    }
    return points;
}

Result<PointSet> readAspects(const Arguments& arguments)
{
    PointSet planets;
    const std::optional<std::string> list = arguments.value("--aspects");
    if (!list) {
        return planets;
    }
    for (const std::string& word : wordsOf(*list)) {
        if (word == "all") {
            add(planets, core::kSun, core::kKetu);
            continue;
        }
        const std::optional<int> point = analysis::explaining::findPoint(word);
        if (!point || *point < core::kSun || *point > core::kKetu) {
            return Error{"--aspects: '" + word + "' is no planet Sun to Ketu"};
        }
        planets.set(std::size_t(*point));
    }
    return planets;
}

Result<std::optional<present::BinduChoice>> readBindus(const Arguments& arguments)
{
    const std::optional<std::string> name = arguments.value("--bindus");
    if (!name) {
        return std::optional<present::BinduChoice>();
    }
    if (*name == "sarva") {
        return std::optional(present::BinduChoice{});
    }
    const std::optional<int> point = analysis::explaining::findPoint(*name);
    if (!point || *point > core::kSaturn) {
        return Error{"--bindus '" + *name + "' is none of sarva, ascendant, Sun to Saturn"};
    }
    return std::optional(present::BinduChoice{*point});
}

Result<double> readSize(const Arguments& arguments)
{
    const std::optional<std::string> text = arguments.value("--size");
    if (!text) {
        return 600.0;
    }
    const std::optional<double> size = core::parseNumber(*text);
    if (!size || *size < 50.0 || *size > 10000.0) {
        return Error{"--size '" + *text + "' is not a number from 50 to 10000"};
    }
    return *size;
}

Result<int> readFirst(const Arguments& arguments)
{
    const std::optional<std::string> text = arguments.value("--first");
    if (!text) {
        return 0;
    }
    const std::optional<int> sign = analysis::explaining::findSign(*text);
    if (!sign) {
        return Error{"--first '" + *text + "' is no sign"};
    }
    return *sign;
}

// Stores the value of a result, or keeps its error if it is the first one.
template <typename Value, typename Target>
void store(const Result<Value>& result, Target& target, std::optional<Error>& problem)
{
    if (result) {
        target = static_cast<Target>(result.value());
    } else if (!problem) {
        problem = result.error();
    }
}

} // namespace

Result<DiagramRequest> readDiagramRequest(const Arguments& arguments)
{
    static constexpr std::array<std::string_view, 4> kStyles = {"north", "south", "east", "circle"};
    static constexpr std::array<std::string_view, 3> kDegrees = {"none", "degrees", "minutes"};
    static constexpr std::array<std::string_view, 3> kLabels = {"none", "signs", "houses"};
    static constexpr std::array<std::string_view, 3> kColours = {"light", "dark", "print"};
    static constexpr std::array<std::string_view, 5> kBounds = {"automatic", "signs", "equal",
                                                                "cusps", "sandhis"};
    DiagramRequest request;
    present::DiagramOptions& options = request.options;
    std::optional<Error> problem;
    store(choice(arguments, "--style", kStyles, 0), request.style, problem);
    store(choice(arguments, "--degrees", kDegrees, 1), options.degrees, problem);
    store(choice(arguments, "--labels", kLabels, 1), options.labels, problem);
    store(choice(arguments, "--colours", kColours, 0), options.scheme, problem);
    store(choice(arguments, "--bounds", kBounds, 0), options.bounds, problem);
    store(readPoints(arguments), options.points, problem);
    store(readAspects(arguments), options.aspectsOf, problem);
    store(readBindus(arguments), options.bindus, problem);
    store(readFirst(arguments), options.firstSign, problem);
    store(readSize(arguments), request.size, problem);
    std::optional<int> varga;
    store(chosenVarga(arguments), varga, problem);
    if (problem) {
        return *problem;
    }
    request.varga = varga.value_or(core::kRashi);
    options.retrograde = options.combust = options.dignity = !arguments.has("--plain");
    options.navamshaRing = arguments.has("--navamshas");
    options.glyphs = arguments.has("--glyphs");
    request.svg = arguments.value("--svg");
    request.spoken = arguments.has("--spoken");
    request.twoCharts =
        std::any_of(kSecondChartOptions.begin(), kSecondChartOptions.end(),
                    [&](const OptionInfo& option) { return arguments.has(option.name); });
    if (request.svg && arguments.has("--json") && *request.svg == "-") {
        return Error{"--svg - and --json both write to standard output"};
    }
    return request;
}

} // namespace kestrav::cli
