#include "app/present/TableWriters.h"
#include "core/FileText.h"
#include "core/NumberText.h"
#include "data/export/ExportText.h"

namespace kestrav::present
{

namespace
{

// "-0.52" is a number for a spreadsheet and no formula.
std::string csvField(const std::wstring& text)
{
    const std::string bytes = core::toUtf8(text);
    return core::parseNumber(bytes) ? bytes : data::csvCell(text);
}

} // namespace

std::string tableCsv(const Table& table)
{
    std::string text;
    const auto endField = [&](std::size_t field, std::size_t count) {
        text += field + 1 < count ? "," : "\r\n";
    };
    if (!table.withoutHeadings()) {
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            text += csvField(table.columns[i].heading);
            endField(i, table.columns.size());
        }
    }
    for (const Row& row : table.rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            text += csvField(row[i].text);
            endField(i, row.size());
        }
    }
    return text;
}

} // namespace kestrav::present
