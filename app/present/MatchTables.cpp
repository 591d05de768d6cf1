#include "app/present/MatchTables.h"

#include "core/FileText.h"
#include "core/NumberText.h"

namespace kestrav::present
{

namespace
{

// Points are whole or half.
Cell pointsCell(double points)
{
    return {core::fromFileBytes(core::shortestNumber(points)), points};
}

} // namespace

Table kutasTable(const analysis::Matching& matching)
{
    Table table = {"kutas",
                   L"Kutas",
                   {{L"Kuta"},
                    {L"Points", Align::Right},
                    {L"of", Align::Right},
                    {L"Because", Align::Wrapped}}};
    for (const analysis::KutaScore& kuta : matching.kutas) {
        table.add({kuta.name, pointsCell(kuta.points), pointsCell(kuta.maximum), kuta.why});
    }
    table.add({L"Total", pointsCell(matching.total), pointsCell(analysis::kFullKutas), L""});
    return table;
}

Table doshasTable(const analysis::Matching& matching)
{
    Table table = {"doshas", L"Doshas", {{L"Dosha"}, {L"Holds"}, {L"Because", Align::Wrapped}}};
    for (const analysis::Dosha& dosha : matching.doshas) {
        table.add({dosha.name,
                   !dosha.holds ? L"no" : (dosha.cancelled ? L"yes, but cancelled" : L"yes"),
                   dosha.why});
    }
    return table;
}

} // namespace kestrav::present
