#include "app/present/ChartListTable.h"

#include "app/present/PersonTables.h"
#include "core/FileText.h"

namespace kestrav::present
{

Table chartListTable(const data::ChooserList& list, const std::vector<std::size_t>& order)
{
    Table table = {
        "charts",
        L"",
        {{L"Line", Align::Right}, {L"Name"}, {L"Date"}, {L"Time"}, {L"Tag"}, {L"Sex"}, {L"Code"}}};
    for (const std::size_t index : order) {
        const data::ChooserRow& row = list.rows[index];
        const auto letter = [](wchar_t character) {
            return character == L' ' ? std::wstring() : std::wstring(1, character);
        };
        table.add({integerCell(int(row.line) + 1), core::fromFileBytes(row.name),
                   plainDateCell(row.date), core::fromFileBytes(row.time), letter(row.tag),
                   letter(wchar_t(row.sex)), core::fromFileBytes(row.code)});
    }
    return table;
}

} // namespace kestrav::present
