#include "app/present/VargaTables.h"

#include "analysis/Dignities.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "analysis/Vimshopaka.h"
#include "app/present/TextValues.h"
#include "core/Angles.h"
#include "core/PointNames.h"
#include "core/TextForms.h"

#include <algorithm>

namespace kestrav::present
{

namespace
{

using core::at;

std::wstring divisionText(int varga)
{
    return std::to_wstring(analysis::vargaDivision(varga));
}

} // namespace

std::wstring vargaHeading(int varga)
{
    return std::wstring(analysis::vargaName(varga)) + L" (D-" + divisionText(varga) + L"), " +
           std::wstring(analysis::vargaMeaning(varga));
}

std::wstring boundaryNote(const core::Settings& settings)
{
    return L"* within " + std::to_wstring(settings.sandhiMinutes) + L"' of the boundary of a part";
}

Cell vargaCell(int varga)
{
    return {L"D" + divisionText(varga), double(varga), {Subject::Varga, varga}};
}

Cell vargaDignityCell(const ComputedChart& computed, int varga, int point)
{
    if (point < core::kSun || point > core::kKetu) {
        return {};
    }
    const int shown = analysis::shownDignity(computed.chart, point, varga, computed.settings);
    return {withoutEndBlanks(analysis::dignityWord(shown, false)), double(shown)};
}

std::vector<int> placedPoints(const ComputedChart& computed)
{
    std::vector<int> points;
    for (int point = 0; point < kPlacedPoints; ++point) {
        if (computed.chart.computed(point)) {
            points.push_back(point);
        }
    }
    return points;
}

std::vector<int> mainPoints(const ComputedChart& computed)
{
    std::vector<int> points = placedPoints(computed);
    const auto other = [](int point) {
        return point > core::kPluto || (point > core::kKetu && point < core::kUranus);
    };
    points.erase(std::remove_if(points.begin(), points.end(), other), points.end());
    return points;
}

int countedFrom(const core::Chart& chart, int reference, int sign, int varga)
{
    const int first = analysis::signInVarga(chart, varga, reference);
    return first == 0 || sign == 0 ? 0 : core::norm12(sign - first + 1);
}

Table vargaListTable()
{
    Table table = {"varga-list",
                   L"",
                   {{L"Index", Align::Right},
                    {L"Division", Align::Right},
                    {L"Name"},
                    {L"Short"},
                    {L"Meaning"}}};
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        table.add({integerCell(varga),
                   integerCell(analysis::vargaDivision(varga)),
                   {std::wstring(analysis::vargaName(varga)), Link{Subject::Varga, varga}},
                   analysis::vargaShortName(varga),
                   analysis::vargaMeaning(varga)});
    }
    return table;
}

Table vargaSignsTable(const ComputedChart& computed, const std::vector<int>& points)
{
    const core::Chart& chart = computed.chart;
    Table table = {"varga-signs", L"Divisional charts", {{L"Point"}}};
    table.gap = 1;
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        table.columns.push_back({L"D" + divisionText(varga)});
    }
    for (const int point : points) {
        Row cells = {pointCell(point)};
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            const int sign = at(at(chart.vargas, varga), point).sign;
            const bool near = at(at(chart.nearBoundary, varga), point);
            cells.emplace_back(std::wstring(core::SignName2(sign)) + (near ? L"*" : L""),
                               double(sign), Link{Subject::Sign, sign, varga});
        }
        table.add(std::move(cells));
    }
    table.notes.push_back(boundaryNote(computed.settings));
    return table;
}

Table vargaTable(const ComputedChart& computed, int varga)
{
    const core::Chart& chart = computed.chart;
    Table table = {"varga",
                   vargaHeading(varga),
                   {{L"Point"},
                    {L"Sign"},
                    {L"Position", Align::Right},
                    {L"Step", Align::Right},
                    {L"Dignity"}}};
    for (const int point : placedPoints(computed)) {
        const core::VargaPlacement& placement = at(at(chart.vargas, varga), point);
        Cell name = pointCell(point, varga);
        name.text += at(at(chart.nearBoundary, varga), point) ? L" *" : L"";
        table.add({std::move(name),
                   {std::wstring(core::signNameLong(placement.sign)),
                    double(placement.sign),
                    {Subject::Sign, placement.sign, varga}},
                   {core::FormatDMS(placement.position, 1), placement.position},
                   integerCell(placement.strengthStep),
                   vargaDignityCell(computed, varga, point)});
    }
    table.notes.push_back(boundaryNote(computed.settings));
    return table;
}

Table vimshopakaTable(const ComputedChart& computed)
{
    Table table = {"vimshopaka", std::wstring(analysis::kVimshopakaHeading), {{L"Planet"}}};
    for (int set = 0; set < analysis::kVimshopakaSets; ++set) {
        table.columns.push_back({std::wstring(analysis::vimshopakaSetName(set)), Align::Right});
        table.columns.push_back({L""});
    }
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        Row cells = {pointCell(planet)};
        for (const int total : at(computed.chart.vimshopaka, planet)) {
            cells.push_back(numberCell(analysis::vimshopakaPoints(total), 2));
            cells.emplace_back(analysis::vimshopakaWord(total));
        }
        table.add(std::move(cells));
    }
    return table;
}

} // namespace kestrav::present
