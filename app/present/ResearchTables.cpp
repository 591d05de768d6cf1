#include "app/present/ResearchTables.h"

#include <utility>

namespace kestrav::present
{

namespace
{

const yoga::ResearchColumn& columnAt(std::size_t column)
{
    return yoga::researchColumns()[column];
}

bool isText(std::size_t column)
{
    const yoga::ColumnType type = columnAt(column).type;
    return type == yoga::ColumnType::Text || type == yoga::ColumnType::Motion;
}

Align alignOf(std::size_t column)
{
    switch (columnAt(column).type) {
    case yoga::ColumnType::Number:
    case yoga::ColumnType::Angle:
    case yoga::ColumnType::Clock:
    case yoga::ColumnType::House:
        return Align::Right;
    default:
        return Align::Left;
    }
}

// The places of the rows in the order of a column of texts; equal texts share one.
std::vector<double> ranksOf(const yoga::ResearchTable& research, std::size_t column)
{
    std::vector<double> ranks(research.lines().size());
    const std::vector<std::size_t> order = research.sortedRows(column);
    for (std::size_t i = 0; i < order.size(); ++i) {
        const bool equal =
            i > 0 && research.text(order[i], column) == research.text(order[i - 1], column);
        ranks[order[i]] = equal ? ranks[order[i - 1]] : double(i);
    }
    return ranks;
}

} // namespace

Table researchRows(const yoga::ResearchTable& research, std::span<const std::size_t> columns)
{
    const std::size_t count = research.lines().size();
    Table table = {"research",
                   std::to_wstring(count) + (count == 1 ? L" chart" : L" charts"),
                   {{L"Line", Align::Right}}};
    for (const std::size_t column : columns) {
        table.columns.push_back({yoga::columnHeading(columnAt(column)), alignOf(column)});
    }
    for (const std::size_t line : research.lines()) {
        table.rows.push_back({integerCell(int(line) + 1)});
    }
    for (const std::size_t column : columns) {
        const std::vector<double> ranks =
            isText(column) ? ranksOf(research, column) : std::vector<double>();
        for (std::size_t row = 0; row < count; ++row) {
            Cell cell(research.text(row, column));
            if (!cell.text.empty()) {
                cell.sortKey = ranks.empty() ? research.number(row, column) : ranks[row];
            }
            table.rows[row].push_back(std::move(cell));
        }
    }
    return table;
}

Table researchGroups(const yoga::ResearchTable& research, std::size_t column,
                     std::span<const std::size_t> averaged)
{
    const std::size_t whole = research.lines().size();
    Table table = {"research-groups",
                   L"Charts by " + yoga::columnHeading(columnAt(column)),
                   {{yoga::columnHeading(columnAt(column)), alignOf(column)},
                    {L"Charts", Align::Right},
                    {L"Share", Align::Right}}};
    for (const std::size_t other : averaged) {
        table.columns.push_back({L"Average " + yoga::columnHeading(columnAt(other)), Align::Right});
    }
    double rank = 0.0;
    for (const yoga::TableGroup& group : research.groups(column, averaged)) {
        Row row;
        row.emplace_back(group.label.empty() ? L"--" : group.label, rank);
        row.push_back(integerCell(int(group.count)));
        row.emplace_back(shareText(group.count, whole), double(group.count));
        for (std::size_t i = 0; i < averaged.size(); ++i) {
            const std::optional<double>& average = group.averages[i];
            Cell cell(average ? yoga::columnValueText(*average, columnAt(averaged[i]))
                              : std::wstring(L"--"));
            cell.sortKey = average;
            row.push_back(std::move(cell));
        }
        table.add(std::move(row));
        rank += 1.0;
    }
    return table;
}

BarChartModel researchGraph(const yoga::ResearchTable& research, std::size_t column,
                            std::size_t bars)
{
    BarChartModel model{yoga::columnHeading(columnAt(column)), {}};
    for (const yoga::GraphBar& bar : research.graph(column, bars)) {
        model.bars.push_back({bar.label, bar.count});
    }
    return model;
}

Table barTable(const BarChartModel& model)
{
    Table table = {"research-graph",
                   model.title,
                   {{model.title}, {L"Charts", Align::Right}, {L"Share", Align::Right}}};
    std::size_t whole = 0;
    for (const CountBar& bar : model.bars) {
        whole += bar.count;
    }
    double rank = 0.0;
    for (const CountBar& bar : model.bars) {
        table.add({Cell(bar.label, rank), integerCell(int(bar.count)),
                   Cell(shareText(bar.count, whole), double(bar.count))});
        rank += 1.0;
    }
    return table;
}

std::optional<std::size_t> lineOfRow(const Row& row)
{
    return row.empty() || !row[0].sortKey || *row[0].sortKey < 1.0
               ? std::nullopt
               : std::optional(std::size_t(*row[0].sortKey) - 1);
}

} // namespace kestrav::present
