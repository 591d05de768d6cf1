#include "app/present/DignityTables.h"

#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "analysis/FunctionalNature.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "analysis/Vimshopaka.h"
#include "app/present/TextValues.h"
#include "app/present/VargaTables.h"
#include "core/Angles.h"
#include "core/PointNames.h"

#include <array>

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

// The shade of a display index, which is the code and 3 but for its refinements.
int shadeOfDignity(int shown)
{
    switch (shown) {
    case analysis::kDisplayMoolatrikona:
        return analysis::kOwn;
    case analysis::kDisplayExalted:
        return analysis::kExalted;
    case analysis::kDisplayCancelled:
        return analysis::kNeutral;
    case analysis::kDisplayRetrograde:
        return analysis::kDebilitated;
    default:
        return shown - 3;
    }
}

// A quarter of the 20 points is one shade.
Cell vimshopakaCell(const core::Chart& chart, int set, int planet)
{
    if (planet > core::kSaturn) {
        return {}; // the nodes do not score
    }
    constexpr std::array<int, 4> kShades = {-2, -1, 1, 3};
    const int total = at(at(chart.vimshopaka, planet), set);
    Cell cell = numberCell(analysis::vimshopakaPoints(total), 2);
    const int quarter = total * 4 / analysis::kFullVimshopaka;
    cell.shade = at(kShades, core::ClampRange(0, 3, quarter));
    return cell;
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

Table heatTable(const ComputedChart& computed)
{
    Table table = dignitiesTable(computed);
    table.id = "heat";
    for (Row& row : table.rows) {
        for (Cell& cell : row) {
            if (cell.link.subject == Subject::Point && cell.sortKey && *cell.sortKey >= 0.0) {
                cell.shade = shadeOfDignity(int(*cell.sortKey));
            }
        }
    }
    for (int set = 0; set < analysis::kVimshopakaSets; ++set) {
        Row row = {L"Vimshopaka", analysis::vimshopakaSetName(set)};
        for (int point = core::kSun; point <= core::kKetu; ++point) {
            row.push_back(vimshopakaCell(computed.chart, set, point));
        }
        table.add(std::move(row));
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
