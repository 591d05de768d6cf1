#include "app/present/Table.h"

#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/PointNames.h"

#include <algorithm>
#include <cassert>

namespace kestrav::present
{

void Table::add(Row row)
{
    assert(row.size() == columns.size());
    rows.push_back(std::move(row));
}

bool Table::withoutHeadings() const
{
    return std::all_of(columns.begin(), columns.end(),
                       [](const Column& column) { return column.heading.empty(); });
}

Table labelledTable(std::string id, std::wstring title)
{
    Table table;
    table.id = std::move(id);
    table.title = std::move(title);
    table.columns.resize(2);
    return table;
}

int compareCells(const Cell& one, const Cell& other)
{
    if (one.sortKey.has_value() != other.sortKey.has_value()) {
        return one.sortKey ? -1 : 1;
    }
    if (one.sortKey && *one.sortKey != *other.sortKey) {
        return *one.sortKey < *other.sortKey ? -1 : 1;
    }
    return one.text.compare(other.text);
}

Cell pointCell(int point, int varga)
{
    return {pointLabel(point), double(point), {Subject::Point, point, varga}};
}

Cell signCell(int sign, int varga)
{
    if (sign == 0) {
        return core::kNoName;
    }
    return {std::wstring(core::signNameLong(sign)), double(sign), {Subject::Sign, sign, varga}};
}

Cell houseCell(int house, int varga)
{
    if (house == 0) {
        return core::kNoName;
    }
    return {std::to_wstring(house), double(house), {Subject::House, house, varga}};
}

Cell quarterCell(double position)
{
    const int nakshatra = nakshatraOf(position);
    return {std::wstring(core::nakshatraName(nakshatra)) + L" " + std::to_wstring(padaOf(position)),
            position,
            {Subject::Nakshatra, nakshatra}};
}

Cell numberCell(const std::optional<double>& value, int decimals)
{
    Cell cell(numberOrNone(value, decimals));
    cell.sortKey = value;
    return cell;
}

Cell countCell(int count)
{
    return count == 0 ? Cell(core::kNoName) : integerCell(count);
}

Cell integerCell(int value)
{
    return {std::to_wstring(value), double(value)};
}

} // namespace kestrav::present
