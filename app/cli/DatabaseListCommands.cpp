#include "app/cli/DatabaseListCommands.h"

#include "analysis/ExplainText.h"
#include "app/cli/ChartSource.h"
#include "app/cli/Console.h"
#include "app/cli/DatabaseOptions.h"
#include "app/cli/DatabaseRecord.h"
#include "app/present/BirthRecord.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/Chooser.h"
#include "data/DatabaseMessages.h"
#include "data/ResearchDatabase.h"
#include "data/ResearchLabels.h"
#include "data/ResearchLine.h"
#include "data/import/BirthEntry.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <variant>

namespace kestrav::cli
{

namespace
{

constexpr std::array<OptionInfo, 1> kSortOption = {{
    {"--by", "ORDER",
     "alphabetical, file, now-location, group-a, group-b, male, female or linked; with the "
     "research database trop-sun, sid-sun, sid-moon, sid-asc, sign:POINT or nakshatra:POINT"},
}};

// The words of the sort box in its order.
constexpr std::array<std::string_view, data::kSortOrders> kSortWords = {
    "alphabetical", "file", "now-location", "group-a", "group-b", "male", "female", "linked"};

struct ResearchWord
{
    std::string_view word;
    data::ResearchKey key;
};

constexpr std::array<ResearchWord, 4> kResearchWords = {{
    {"trop-sun", {data::ResearchKey::Kind::TropicalSun, core::kSun}},
    {"sid-sun", {data::ResearchKey::Kind::Sign, core::kSun}},
    {"sid-moon", {data::ResearchKey::Kind::Sign, core::kMoon}},
    {"sid-asc", {data::ResearchKey::Kind::Sign, core::kAscendant}},
}};

using Order = std::variant<data::SortOrder, data::ResearchKey>;

std::optional<data::ResearchKey> researchKey(const std::string& word)
{
    for (const ResearchWord& each : kResearchWords) {
        if (word == each.word) {
            return each.key;
        }
    }
    const std::size_t colon = std::min(word.find(':'), word.size());
    const std::string kind = word.substr(0, colon);
    const std::optional<int> point = colon < word.size()
                                         ? analysis::explaining::findPoint(word.substr(colon + 1))
                                         : std::nullopt;
    const bool known =
        point && std::find(data::kResearchPoints.begin(), data::kResearchPoints.end(), *point) !=
                     data::kResearchPoints.end();
    if (!known || (kind != "sign" && kind != "nakshatra")) {
        return std::nullopt;
    }
    return data::ResearchKey{kind == "sign" ? data::ResearchKey::Kind::Sign
                                            : data::ResearchKey::Kind::Nakshatra,
                             *point};
}

// The order of a word, of its text in the sort box, or of its number there.
std::optional<Order> orderOf(const std::string& typed)
{
    const std::string word = data::lowered(typed);
    for (int i = 0; i < data::kSortOrders; ++i) {
        if (word == kSortWords[std::size_t(i)] || word == std::to_string(i) ||
            word == data::lowered(core::toUtf8(data::sortOrderText(i)))) {
            return data::SortOrder(i);
        }
    }
    const std::optional<data::ResearchKey> key = researchKey(word);
    return key ? std::optional<Order>(*key) : std::nullopt;
}

// A row of the list, with what it is labelled by.
struct ShownRow
{
    const data::ChooserRow* row;
    std::optional<std::wstring> label{};
};

Json rowJson(const ShownRow& shown)
{
    const data::ChooserRow& row = *shown.row;
    Json object;
    object["line"] = row.line + 1;
    object["name"] = row.name;
    object["tag"] = row.tag == L' ' ? Json() : textJson(std::wstring(1, row.tag));
    object["sex"] = row.sex == ' ' ? Json() : Json(std::string(1, row.sex));
    object["code"] = textOrNull(core::fromFileBytes(row.code));
    object["year"] = row.date.year;
    object["month"] = row.date.month;
    object["day"] = row.date.day;
    object["timeText"] = textJson(core::fromFileBytes(row.time));
    return object;
}

std::wstring rowText(const ShownRow& shown, const DatabaseCall& call, const data::ChooserList& list)
{
    std::wstring text = std::to_wstring(shown.row->line + 1);
    const std::size_t digits = std::to_wstring(call.database.size()).size();
    text.insert(0, digits - std::min(digits, text.size()), L' ');
    return text + L"  " + data::chooserText(*shown.row, list.nameWidth, call.database.order());
}

// The rows as lines, their labels below each other.
std::wstring rowsText(const DatabaseCall& call, const data::ChooserList& list,
                      const std::vector<ShownRow>& rows)
{
    std::vector<std::wstring> lines;
    std::size_t width = 0;
    for (const ShownRow& row : rows) {
        width = std::max(width, lines.emplace_back(rowText(row, call, list)).size());
    }
    std::wstring text;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].label) {
            lines[i].resize(width, L' ');
            lines[i] += L"    " + *rows[i].label;
        }
        text += lines[i] + L"\n";
    }
    return text;
}

void printRows(DatabaseCall& call, const data::ChooserList& list, const std::vector<ShownRow>& rows)
{
    data::tellShortLine(list, call.database, call.messages);
    if (!call.json()) {
        call.console.print(rowsText(call, list, rows));
        return;
    }
    Json object = call.object();
    object["charts"] = Json::array();
    for (const ShownRow& row : rows) {
        Json& entry = object["charts"].emplace_back(rowJson(row));
        if (call.info.name != "db list") {
            entry["label"] = row.label ? textJson(*row.label) : Json();
        }
    }
    call.console.print(jsonText(object));
}

std::vector<ShownRow> sortedByBox(const data::ChooserList& list, data::SortOrder order)
{
    std::vector<ShownRow> rows;
    for (const std::size_t row : data::sortedRows(list, order)) {
        rows.push_back({&list.rows[row]});
    }
    return rows;
}

// Nothing when there is no research database.
std::optional<std::vector<ShownRow>>
sortedByResearch(DatabaseCall& call, const data::ChooserList& list, const data::ResearchKey& key)
{
    const data::ResearchState state = data::researchState(call.database, call.settings);
    if (state != data::ResearchState::Fresh) {
        call.messages.notice(data::kResearchCaption, data::researchStateText(state));
        data::suggestRefreshing(call.messages);
    }
    if (state == data::ResearchState::Missing || state == data::ResearchState::Foreign) {
        return std::nullopt;
    }
    const core::Result<data::LineList> research = data::loadResearch(call.path);
    if (!research) {
        call.console.error(research.error().text());
        return std::nullopt;
    }
    std::vector<ShownRow> rows;
    for (const data::LabelledRow& row : data::rowsByResearch(list, research.value(), key)) {
        ShownRow& shown = rows.emplace_back(ShownRow{&list.rows[row.row]});
        if (row.value != 0) {
            shown.label = data::researchLabel(row.value, key);
        }
    }
    return rows;
}

} // namespace

ListChartsCommand::ListChartsCommand()
    : DatabaseCommand("db list", "List the charts of a database in the order of the file")
{}

ExitCode ListChartsCommand::work(DatabaseCall& call) const
{
    const data::ChooserList list = data::listCharts(call.database);
    printRows(call, list, sortedByBox(list, data::SortOrder::FileOrder));
    return ExitCode::Done;
}

SortChartsCommand::SortChartsCommand()
    : DatabaseCommand("db sort",
                      "List the charts of a database sorted, those of a group or sex only, or "
                      "sorted and labelled by what the research database says",
                      {}, {kSortOption})
{}

ExitCode SortChartsCommand::work(DatabaseCall& call) const
{
    const std::string typed = call.arguments.value("--by").value_or("alphabetical");
    const std::optional<Order> order = orderOf(typed);
    if (!order) {
        return usageError(call, "--by '" + typed + "' is no order");
    }
    const data::ChooserList list = data::listCharts(call.database);
    if (const auto* const box = std::get_if<data::SortOrder>(&*order)) {
        printRows(call, list, sortedByBox(list, *box));
        return ExitCode::Done;
    }
    const auto rows = sortedByResearch(call, list, std::get<data::ResearchKey>(*order));
    if (!rows) {
        return ExitCode::Failed;
    }
    printRows(call, list, *rows);
    return ExitCode::Done;
}

ShowChartCommand::ShowChartCommand()
    : DatabaseCommand("db show", "Show everything that a database keeps about a chart", {},
                      {kChosenChartOptions})
{}

ExitCode ShowChartCommand::work(DatabaseCall& call) const
{
    core::Chart chart;
    ExitCode code = ExitCode::Done;
    const std::optional<std::size_t> line = chosenChart(call, chart, code);
    if (!line) {
        return code;
    }
    for (const std::string& text : present::unreadTexts(chart)) {
        call.console.warning(text);
    }
    if (!call.json()) {
        call.console.print(recordText(chart));
        return ExitCode::Done;
    }
    Json object = call.object();
    object["line"] = *line + 1;
    object["chart"] = recordJson(chart);
    call.console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
