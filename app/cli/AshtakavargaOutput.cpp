#include "app/cli/AshtakavargaOutput.h"

#include "app/cli/TextTable.h"
#include "app/cli/TextValues.h"
#include "app/cli/VargaOutput.h"
#include "core/PointNames.h"

#include <nlohmann/json.hpp>

#include <numeric>

namespace kestrav::cli
{

namespace
{

using analysis::ReceiverRows;
using analysis::SignRow12;
using core::at;
using Align = TextTable::Align;

TextTable signTable()
{
    std::vector<TextTable::Column> columns = {{L"Receiver"}};
    for (int sign = 1; sign <= 12; ++sign) {
        columns.push_back({std::wstring(core::SignName2(sign)), Align::Right});
    }
    columns.push_back({L"Sum", Align::Right});
    return TextTable(std::move(columns));
}

void addRow(TextTable& table, std::wstring label, const SignRow12& row)
{
    std::vector<std::wstring> cells = {std::move(label)};
    for (const int value : row) {
        cells.push_back(std::to_wstring(value));
    }
    cells.push_back(std::to_wstring(std::accumulate(row.begin(), row.end(), 0)));
    table.add(std::move(cells));
}

void addRows(TextTable& table, const ReceiverRows& rows)
{
    for (int receiver = 0; receiver < analysis::kAshtakavargaPoints; ++receiver) {
        addRow(table, pointLabel(receiver), at(rows, receiver));
    }
}

std::wstring rowsText(const std::wstring& heading, const ReceiverRows& rows)
{
    TextTable table = signTable();
    addRows(table, rows);
    return L"\n" + heading + L"\n" + table.text();
}

std::wstring pindaText(const analysis::Ashtakavarga& ashtakavarga)
{
    TextTable table({{L"Receiver"},
                     {L"Rashi", Align::Right},
                     {L"Graha", Align::Right},
                     {L"Total", Align::Right}});
    for (int receiver = 0; receiver < analysis::kAshtakavargaPoints; ++receiver) {
        const analysis::Pinda& pinda = at(ashtakavarga.pinda, receiver);
        table.add({pointLabel(receiver), std::to_wstring(pinda.rashi), std::to_wstring(pinda.graha),
                   std::to_wstring(pinda.total())});
    }
    return L"\nPinda\n" + table.text();
}

Json pindaJson(const analysis::Ashtakavarga& table)
{
    Json list = Json::array();
    for (const analysis::Pinda& pinda : table.pinda) {
        Json object;
        object["rashi"] = pinda.rashi;
        object["graha"] = pinda.graha;
        object["total"] = pinda.total();
        list.push_back(std::move(object));
    }
    return list;
}

} // namespace

Json ashtakavargaJson(const analysis::Ashtakavarga& table)
{
    Json object;
    object["varga"] = table.varga;
    object["bindus"] = table.bindus;
    object["sarva"] = table.sarva;
    object["sarvaWithLagna"] = table.sarvaWithLagna;
    object["occupants"] = table.occupants;
    object["trikona"] = table.reduced ? Json(table.trikona) : Json();
    object["ekadhipatya"] = table.reduced ? Json(table.ekadhipatya) : Json();
    object["pinda"] = table.reduced ? pindaJson(table) : Json();
    return object;
}

std::wstring ashtakavargaText(const analysis::Ashtakavarga& table)
{
    TextTable bindus = signTable();
    addRows(bindus, table.bindus);
    addRow(bindus, L"Sarva", table.sarva);
    addRow(bindus, L"Sarva with lagna", table.sarvaWithLagna);
    addRow(bindus, L"Planets there", table.occupants);
    std::wstring text = L"Ashtakavarga, " + vargaHeading(table.varga) + L"\n" + bindus.text();
    if (!table.reduced) {
        return text;
    }
    return text + rowsText(L"Trikona reduction", table.trikona) +
           rowsText(L"Ekadhipatya reduction", table.ekadhipatya) + pindaText(table);
}

} // namespace kestrav::cli
