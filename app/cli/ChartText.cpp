#include "app/cli/ChartText.h"

#include "app/present/ChartTables.h"
#include "app/present/TableWriters.h"

namespace kestrav::cli
{

std::wstring inputText(const ComputedChart& computed)
{
    return present::tableText(present::birthTable(computed));
}

std::wstring tablesText(const std::vector<present::Table>& tables)
{
    std::wstring text;
    for (const present::Table& table : tables) {
        if (!table.rows.empty() || !table.notes.empty()) {
            text += (text.empty() ? L"" : L"\n") + present::tableText(table);
        }
    }
    return text;
}

} // namespace kestrav::cli
