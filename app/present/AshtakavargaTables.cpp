#include "app/present/AshtakavargaTables.h"

#include "app/present/TextValues.h"
#include "app/present/VargaTables.h"
#include "core/PointNames.h"

#include <cmath>
#include <numeric>

namespace kestrav::present
{

namespace
{

using analysis::ReceiverRows;
using analysis::SignRow12;
using core::at;

Table signTable(std::string id, std::wstring title)
{
    Table table = {std::move(id), std::move(title), {{L"Receiver"}}};
    for (int sign = 1; sign <= 12; ++sign) {
        table.columns.push_back({std::wstring(core::SignName2(sign)), Align::Right});
    }
    table.columns.push_back({L"Sum", Align::Right});
    return table;
}

void addRow(Table& table, Cell label, const SignRow12& row)
{
    Row cells = {std::move(label)};
    for (const int value : row) {
        cells.push_back(integerCell(value));
    }
    cells.push_back(integerCell(std::accumulate(row.begin(), row.end(), 0)));
    table.add(std::move(cells));
}

void addRows(Table& table, const ReceiverRows& rows)
{
    for (int receiver = 0; receiver < analysis::kAshtakavargaPoints; ++receiver) {
        addRow(table, pointCell(receiver), at(rows, receiver));
    }
}

Table rowsTable(std::string id, std::wstring title, const ReceiverRows& rows)
{
    Table table = signTable(std::move(id), std::move(title));
    addRows(table, rows);
    return table;
}

} // namespace

Table ashtakavargaTable(const analysis::Ashtakavarga& ashtakavarga)
{
    Table table = signTable("ashtakavarga", L"Ashtakavarga, " + vargaHeading(ashtakavarga.varga));
    addRows(table, ashtakavarga.bindus);
    addRow(table, L"Sarva", ashtakavarga.sarva);
    addRow(table, L"Sarva with lagna", ashtakavarga.sarvaWithLagna);
    addRow(table, L"Planets there", ashtakavarga.occupants);
    return table;
}

Table trikonaTable(const analysis::Ashtakavarga& ashtakavarga)
{
    return rowsTable("trikona", L"Trikona reduction", ashtakavarga.trikona);
}

Table ekadhipatyaTable(const analysis::Ashtakavarga& ashtakavarga)
{
    return rowsTable("ekadhipatya", L"Ekadhipatya reduction", ashtakavarga.ekadhipatya);
}

Table pindaTable(const analysis::Ashtakavarga& ashtakavarga)
{
    Table table = {"pinda",
                   L"Pinda",
                   {{L"Receiver"},
                    {L"Rashi", Align::Right},
                    {L"Graha", Align::Right},
                    {L"Total", Align::Right}}};
    for (int receiver = 0; receiver < analysis::kAshtakavargaPoints; ++receiver) {
        const analysis::Pinda& pinda = at(ashtakavarga.pinda, receiver);
        table.add({pointCell(receiver), integerCell(pinda.rashi), integerCell(pinda.graha),
                   integerCell(pinda.total())});
    }
    return table;
}

Table kakshyasTable(const core::Chart& chart)
{
    Table table = {"kakshyas",
                   L"Kakshyas",
                   {{L"Planet"}, {L"Sign"}, {L"Kakshya", Align::Right}, {L"Lord"}, {L"Bindu"}}};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        if (!chart.computed(planet)) {
            continue;
        }
        const int sign = at(chart.rashi, planet);
        const double longitude = at(chart.longitude, planet);
        const analysis::Kakshya kakshya = analysis::kakshyaOf(std::fmod(longitude, 30.0));
        table.add({pointCell(planet),
                   {std::wstring(core::signNameLong(sign)), double(sign), {Subject::Sign, sign}},
                   integerCell(kakshya.part + 1),
                   pointCell(kakshya.lord),
                   analysis::kakshyaBindu(chart, planet, longitude) ? L"yes" : L"no"});
    }
    return table;
}

} // namespace kestrav::present
