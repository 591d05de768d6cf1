#include "app/cli/ComputedChart.h"
#include "app/cli/Console.h"
#include "app/cli/SharedOptions.h"
#include "app/cli/YogaCommandResearch.h"
#include "app/cli/YogaCommandSearch.h"
#include "app/present/ResearchTables.h"
#include "app/present/TableWriters.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "yoga/ResearchTable.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kestrav::cli
{

namespace
{

constexpr std::array<OptionInfo, 6> kTableOptions = {{
    {"--column", "KEY", "a column such as moon.nakshatra or name; may be repeated", true},
    {"--by", "KEY", "sort the rows by this column"},
    {"--count", "KEY", "count the charts by the values of this column instead of listing them"},
    {"--average", "KEY", "add the average of this column to the counts; may be repeated", true},
    {"--graph", "KEY", "the numbers of a graph of this column instead of a list"},
    {"--bars", "N", "bars of a graph of numbers, 1 to 1000; 12 when not given"},
}};

constexpr int kUsualBars = 12;
constexpr int kMostBars = 1000;

struct TableRequest
{
    std::vector<std::size_t> columns;
    std::optional<std::size_t> by;
    std::optional<std::size_t> count;
    std::vector<std::size_t> averages;
    std::optional<std::size_t> graph;
    int bars = kUsualBars;
    std::optional<wchar_t> tag;
};

core::Result<std::vector<std::size_t>> columnsOf(const Arguments& arguments, const char* option)
{
    std::vector<std::size_t> columns;
    for (const std::string& key : arguments.values(option)) {
        const std::optional<std::size_t> column = yoga::findResearchColumn(key);
        if (!column) {
            std::string keys;
            for (const yoga::ResearchColumn& one : yoga::researchColumns()) {
                keys += (keys.empty() ? "" : ", ") + one.key;
            }
            return core::Error{std::string(option) + " '" + key + "' is no column; there are " +
                               keys};
        }
        columns.push_back(*column);
    }
    return columns;
}

std::optional<std::size_t> firstOf(const std::vector<std::size_t>& columns)
{
    return columns.empty() ? std::nullopt : std::optional(columns.front());
}

core::Result<TableRequest> readRequest(const Arguments& arguments)
{
    TableRequest request;
    std::array<std::vector<std::size_t>, 5> lists;
    constexpr std::array<const char*, 5> kOptions = {"--column", "--by", "--count", "--average",
                                                     "--graph"};
    for (std::size_t i = 0; i < kOptions.size(); ++i) {
        core::Result<std::vector<std::size_t>> columns = columnsOf(arguments, kOptions[i]);
        if (!columns) {
            return columns.error();
        }
        lists[i] = std::move(columns.value());
    }
    request.columns = lists[0];
    request.by = firstOf(lists[1]);
    request.count = firstOf(lists[2]);
    request.averages = lists[3];
    request.graph = firstOf(lists[4]);
    const int kinds = int(!request.columns.empty()) + int(request.count.has_value()) +
                      int(request.graph.has_value());
    if (kinds != 1) {
        return core::Error{"give one of --column, --count and --graph"};
    }
    if (const std::optional<std::string> bars = arguments.value("--bars")) {
        request.bars = core::parseInteger(*bars).value_or(0);
        if (request.bars < 1 || request.bars > kMostBars) {
            return core::Error{"--bars '" + *bars + "' is not a whole number from 1 to 1000"};
        }
    }
    const core::Result<std::optional<wchar_t>> tag = typedTag(arguments);
    if (!tag) {
        return tag.error();
    }
    request.tag = tag.value();
    return request;
}

const yoga::ResearchColumn& column(std::size_t index)
{
    return yoga::researchColumns()[index];
}

bool isNumber(std::size_t index)
{
    const yoga::ColumnType type = column(index).type;
    return type != yoga::ColumnType::Text && type != yoga::ColumnType::Motion;
}

std::vector<std::size_t> rowsOf(const yoga::ResearchTable& table, const TableRequest& request)
{
    if (request.by) {
        return table.sortedRows(*request.by);
    }
    std::vector<std::size_t> rows(table.lines().size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = i;
    }
    return rows;
}

// A number, or the text of a column of texts.
Json cellJson(const yoga::ResearchTable& table, std::size_t row, std::size_t index)
{
    return isNumber(index) ? numberJson(table.number(row, index))
                           : textOrNull(table.text(row, index));
}

Json keysJson(const std::vector<std::size_t>& columns)
{
    Json keys = Json::array();
    for (const std::size_t index : columns) {
        keys.push_back(column(index).key);
    }
    return keys;
}

void addRows(Json& object, const yoga::ResearchTable& table, const TableRequest& request)
{
    object["columns"] = keysJson(request.columns);
    object["rows"] = Json::array();
    for (const std::size_t row : rowsOf(table, request)) {
        Json entry;
        entry["line"] = table.lines()[row] + 1;
        entry["values"] = Json::array();
        for (const std::size_t index : request.columns) {
            entry["values"].push_back(cellJson(table, row, index));
        }
        object["rows"].push_back(std::move(entry));
    }
}

void addGroups(Json& object, const yoga::ResearchTable& table, const TableRequest& request)
{
    object["groupedBy"] = column(*request.count).key;
    object["averaged"] = keysJson(request.averages);
    object["groups"] = Json::array();
    for (const yoga::TableGroup& group : table.groups(*request.count, request.averages)) {
        Json entry;
        entry["label"] = textOrNull(group.label);
        entry["value"] = numberJson(group.value);
        entry["count"] = group.count;
        entry["averages"] = Json::array();
        for (const std::optional<double>& average : group.averages) {
            entry["averages"].push_back(numberJson(average));
        }
        object["groups"].push_back(std::move(entry));
    }
}

void addBars(Json& object, const yoga::ResearchTable& table, const TableRequest& request)
{
    object["graphOf"] = column(*request.graph).key;
    object["bars"] = Json::array();
    for (const yoga::GraphBar& bar : table.graph(*request.graph, std::size_t(request.bars))) {
        Json entry;
        entry["label"] = textJson(bar.label);
        entry["low"] = bar.low;
        entry["high"] = bar.high;
        entry["count"] = bar.count;
        object["bars"].push_back(std::move(entry));
    }
}

// The rows in the order that was asked for; the title is for places that have room for one.
std::wstring rowsText(const yoga::ResearchTable& table, const TableRequest& request)
{
    present::Table all = present::researchRows(table, request.columns);
    present::Table shown = {all.id, L"", all.columns};
    for (const std::size_t row : rowsOf(table, request)) {
        shown.rows.push_back(std::move(all.rows[row]));
    }
    return present::tableText(shown);
}

// Labels and counts, and behind them averages under the headings of their columns; the command
// tells no shares.
std::wstring countsText(present::Table counts, const std::vector<std::size_t>& averages = {})
{
    constexpr std::ptrdiff_t kShare = 2;
    counts.title.clear();
    for (std::size_t i = 0; i < averages.size(); ++i) {
        counts.columns[kShare + 1 + i].heading = yoga::columnHeading(column(averages[i]));
    }
    counts.columns.erase(counts.columns.begin() + kShare);
    for (present::Row& row : counts.rows) {
        row.erase(row.begin() + kShare);
    }
    return present::tableText(counts);
}

std::wstring tableText(const yoga::ResearchTable& table, const TableRequest& request)
{
    if (request.graph) {
        return countsText(present::barTable(
            present::researchGraph(table, *request.graph, std::size_t(request.bars))));
    }
    if (request.count) {
        return countsText(present::researchGroups(table, *request.count, request.averages),
                          request.averages);
    }
    return rowsText(table, request);
}

} // namespace

ResearchTableCommand::ResearchTableCommand()
    : DatabaseCommand("yogas table",
                      "Tabulate, count or average what the research database says of charts", {},
                      {kTableOptions, kTagOption, kYesOption})
{}

ExitCode ResearchTableCommand::work(DatabaseCall& call) const
{
    const core::Result<TableRequest> read = readRequest(call.arguments);
    if (!read) {
        return usageError(call, read.error().message);
    }
    const TableRequest& request = read.value();
    ExitCode code = ExitCode::Done;
    const std::optional<CallData> data = openCall(call.arguments, call.console, code);
    const std::optional<data::LineList> research =
        data ? openResearch(call, data->data.series, code) : std::nullopt;
    if (!research) {
        return code;
    }
    const yoga::ResearchTable table =
        request.tag ? yoga::ResearchTable(*research, call.database, *request.tag)
                    : yoga::ResearchTable(*research);
    if (!call.json()) {
        call.console.print(tableText(table, request));
        return ExitCode::Done;
    }
    Json object = call.object();
    object["charts"] = table.lines().size();
    for (const char* const key :
         {"columns", "rows", "groupedBy", "averaged", "groups", "graphOf", "bars"}) {
        object[key] = nullptr;
    }
    if (request.graph) {
        addBars(object, table, request);
    } else if (request.count) {
        addGroups(object, table, request);
    } else {
        addRows(object, table, request);
    }
    call.console.print(jsonText(object));
    return ExitCode::Done;
}

} // namespace kestrav::cli
