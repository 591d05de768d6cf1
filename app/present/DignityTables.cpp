#include "app/present/DignityTables.h"

#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "analysis/FunctionalNature.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "app/present/TextValues.h"
#include "app/present/VargaTables.h"
#include "core/PointNames.h"

namespace kestrav::present
{

namespace
{

using core::at;

Cell dignityCell(const ComputedChart& computed, int varga, int point, bool shortForm)
{
    const int shown = analysis::shownDignity(computed.chart, point, varga, computed.settings);
    return {withoutEndBlanks(analysis::dignityWord(shown, shortForm)),
            double(shown),
            {Subject::Point, point, varga}};
}

// What planet feels for the other by a table of relationships.
template <typename Relation>
Table relationTable(std::string id, const std::wstring& title, const Relation& relation)
{
    Table table = {std::move(id), title, {{L"Planet"}}};
    for (int other = core::kSun; other <= core::kSaturn; ++other) {
        table.columns.push_back({pointLabel(other)});
    }
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        Row cells = {pointCell(planet)};
        for (int other = core::kSun; other <= core::kSaturn; ++other) {
            if (planet == other) {
                cells.emplace_back();
                continue;
            }
            const int code = relation(planet, other);
            cells.emplace_back(withoutEndBlanks(analysis::dignityWord(code + 3, false)),
                               double(code));
        }
        table.add(std::move(cells));
    }
    return table;
}

std::wstring reportLabel(const analysis::Nature& nature)
{
    const std::wstring_view label = analysis::natureReportLabel(nature);
    const std::size_t first = label.find_first_not_of(L' ');
    return first == std::wstring_view::npos ? L"" : std::wstring(label.substr(first));
}

} // namespace

Table planetsTable(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    const analysis::NatureTable natures = analysis::chartNatures(chart);
    Table table = {
        "planets",
        L"",
        {{L"Planet"}, {L"Sign"}, {L"Dignity"}, {L"Combust"}, {L"Nature"}, {L"For this ascendant"}}};
    for (int point = core::kSun; point <= core::kKetu; ++point) {
        const analysis::Nature& nature = at(natures, point);
        const int sign = at(chart.rashi, point);
        table.add({pointCell(point),
                   {std::wstring(core::signNameLong(sign)), double(sign), {Subject::Sign, sign}},
                   dignityCell(computed, core::kRashi, point, false),
                   at(chart.combust, point) ? L"combust" : L"",
                   analysis::natureLabel(nature),
                   reportLabel(nature)});
    }
    return table;
}

Table dignitiesTable(const ComputedChart& computed)
{
    Table table = {"dignities", L"", {{L"Varga"}, {L"Name"}}};
    for (int point = core::kSun; point <= core::kKetu; ++point) {
        table.columns.push_back({pointLabel(point)});
    }
    for (int varga = 0; varga < core::kScoredVargas; ++varga) {
        Row cells = {vargaCell(varga), analysis::vargaName(varga)};
        for (int point = core::kSun; point <= core::kKetu; ++point) {
            cells.push_back(dignityCell(computed, varga, point, true));
        }
        table.add(std::move(cells));
    }
    return table;
}

Table naturalRelationshipsTable()
{
    return relationTable("natural-relationships", L"Natural relationships",
                         analysis::naturalRelationship);
}

Table compoundRelationshipsTable(const ComputedChart& computed)
{
    return relationTable(
        "compound-relationships", L"Compound relationships",
        [&](int planet, int other) { return at(at(computed.chart.compound, planet), other); });
}

} // namespace kestrav::present
