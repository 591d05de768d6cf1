#include "app/present/TableWriters.h"
#include "app/present/TextTable.h"
#include "app/present/TextValues.h"

namespace kestrav::present
{

namespace
{

TextTable::Align textAlign(Align align)
{
    switch (align) {
    case Align::Right:
        return TextTable::Align::Right;
    case Align::Wrapped:
        return TextTable::Align::Wrapped;
    default:
        return TextTable::Align::Left;
    }
}

std::wstring labelledText(const Table& table)
{
    LabelledLines lines;
    for (const Row& row : table.rows) {
        lines.add(row.front().text, row.back().text);
    }
    return lines.text();
}

std::wstring columnText(const Table& table)
{
    std::vector<TextTable::Column> columns;
    columns.reserve(table.columns.size());
    for (const Column& column : table.columns) {
        columns.push_back({column.heading, textAlign(column.align)});
    }
    TextTable text(std::move(columns), table.gap);
    for (const Row& row : table.rows) {
        std::vector<std::wstring> cells;
        cells.reserve(row.size());
        for (const Cell& cell : row) {
            cells.push_back(cell.text);
        }
        text.add(std::move(cells));
    }
    return text.text();
}

} // namespace

std::wstring tableText(const Table& table)
{
    std::wstring text = table.title.empty() ? L"" : table.title + L"\n";
    if (!table.explainsItsEmptiness()) {
        const bool labels = table.withoutHeadings() && table.columns.size() == 2;
        text += labels ? labelledText(table) : columnText(table);
    }
    for (const std::wstring& note : table.notes) {
        text += wrapped(note, L"");
    }
    return text;
}

} // namespace kestrav::present
