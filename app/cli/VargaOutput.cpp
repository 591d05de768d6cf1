#include "app/cli/VargaOutput.h"

#include "analysis/Dignities.h"
#include "analysis/VargaNames.h"
#include "analysis/Vimshopaka.h"
#include "app/cli/TextTable.h"
#include "app/cli/TextValues.h"
#include "core/PointNames.h"
#include "core/TextForms.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace kestrav::cli
{

namespace
{

using core::at;
using Align = TextTable::Align;

// Points from here on have no placements.
constexpr int kPlacedPoints = core::kPartOfFortune;

bool hasDignity(int varga, int point)
{
    return varga < core::kScoredVargas && point <= core::kKetu;
}

Json placementJson(const core::Chart& chart, int varga, int point)
{
    Json object;
    object["point"] = point;
    for (const char* const key :
         {"sign", "strengthStep", "dignityCode", "position", "nearBoundary"}) {
        object[key] = nullptr;
    }
    if (!chart.computed(point)) {
        return object;
    }
    const core::VargaPlacement& placement = at(at(chart.vargas, varga), point);
    object["sign"] = placement.sign;
    object["strengthStep"] = placement.strengthStep;
    if (hasDignity(varga, point)) {
        object["dignityCode"] = placement.dignityCode;
    }
    object["position"] = numberJson(placement.position);
    object["nearBoundary"] = at(at(chart.nearBoundary, varga), point);
    return object;
}

Json vargaJson(const core::Chart& chart, int varga)
{
    Json object;
    object["index"] = varga;
    object["name"] = textJson(analysis::vargaName(varga));
    object["division"] = analysis::vargaDivision(varga);
    object["placements"] = Json::array();
    for (int point = 0; point < kPlacedPoints; ++point) {
        object["placements"].push_back(placementJson(chart, varga, point));
    }
    return object;
}

std::wstring boundaryNote(const core::Settings& settings)
{
    return L"* within " + std::to_wstring(settings.sandhiMinutes) +
           L"' of the boundary of a part\n";
}

std::wstring dignityCell(const ComputedChart& computed, int varga, int point)
{
    if (point < core::kSun || point > core::kKetu) {
        return {};
    }
    return std::wstring(analysis::dignityWord(
        analysis::shownDignity(computed.chart, point, varga, computed.settings), false));
}

} // namespace

core::Result<std::optional<int>> chosenVarga(const Arguments& arguments)
{
    const std::optional<std::string> text = arguments.value("--varga");
    if (!text) {
        return std::optional<int>();
    }
    const std::optional<int> varga = analysis::findVarga(*text);
    if (!varga) {
        return core::Error{"there is no divisional chart '" + *text +
                           "'; kestrav-cli vargas lists them"};
    }
    return varga;
}

std::wstring vargaHeading(int varga)
{
    return std::wstring(analysis::vargaName(varga)) + L" (D-" +
           std::to_wstring(analysis::vargaDivision(varga)) + L"), " +
           std::wstring(analysis::vargaMeaning(varga));
}

std::wstring vargaListText()
{
    TextTable table({{L"Index", Align::Right},
                     {L"Division", Align::Right},
                     {L"Name"},
                     {L"Short"},
                     {L"Meaning"}});
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        table.add({std::to_wstring(varga), std::to_wstring(analysis::vargaDivision(varga)),
                   std::wstring(analysis::vargaName(varga)),
                   std::wstring(analysis::vargaShortName(varga)),
                   std::wstring(analysis::vargaMeaning(varga))});
    }
    return table.text();
}

Json vargasJson(const ComputedChart& computed, std::optional<int> varga)
{
    Json list = Json::array();
    for (int index = 0; index < core::kVargaCount; ++index) {
        if (index == varga.value_or(index)) {
            list.push_back(vargaJson(computed.chart, index));
        }
    }
    return list;
}

Json vimshopakaJson(const ComputedChart& computed)
{
    Json list = Json::array();
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        Json object;
        object["point"] = planet;
        object["total"] = at(computed.chart.vimshopaka, planet);
        object["positional"] = at(computed.chart.vimshopakaPositional, planet);
        list.push_back(std::move(object));
    }
    return list;
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

std::wstring vargaSignsText(const ComputedChart& computed, const std::vector<int>& points)
{
    const core::Chart& chart = computed.chart;
    std::vector<TextTable::Column> columns = {{L"Point"}};
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        columns.push_back({L"D" + std::to_wstring(analysis::vargaDivision(varga))});
    }
    TextTable table(std::move(columns), 1);
    for (const int point : points) {
        std::vector<std::wstring> cells = {pointLabel(point)};
        for (int varga = 0; varga < core::kVargaCount; ++varga) {
            const int sign = at(at(chart.vargas, varga), point).sign;
            cells.push_back(std::wstring(core::SignName2(sign)) +
                            (at(at(chart.nearBoundary, varga), point) ? L"*" : L""));
        }
        table.add(std::move(cells));
    }
    return table.text() + boundaryNote(computed.settings);
}

std::wstring vargaText(const ComputedChart& computed, int varga)
{
    const core::Chart& chart = computed.chart;
    TextTable table({{L"Point"},
                     {L"Sign"},
                     {L"Position", Align::Right},
                     {L"Step", Align::Right},
                     {L"Dignity"}});
    for (const int point : placedPoints(computed)) {
        const core::VargaPlacement& placement = at(at(chart.vargas, varga), point);
        const bool near = at(at(chart.nearBoundary, varga), point);
        table.add({pointLabel(point) + (near ? L" *" : L""),
                   std::wstring(core::signNameLong(placement.sign)),
                   core::FormatDMS(placement.position, 1), std::to_wstring(placement.strengthStep),
                   dignityCell(computed, varga, point)});
    }
    return vargaHeading(varga) + L"\n" + table.text() + boundaryNote(computed.settings);
}

std::wstring vimshopakaText(const ComputedChart& computed)
{
    std::vector<TextTable::Column> columns = {{L"Planet"}};
    for (int set = 0; set < analysis::kVimshopakaSets; ++set) {
        columns.push_back({std::wstring(analysis::vimshopakaSetName(set)), Align::Right});
        columns.push_back({L""});
    }
    TextTable table(std::move(columns));
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        std::vector<std::wstring> cells = {pointLabel(planet)};
        for (const int total : at(computed.chart.vimshopaka, planet)) {
            cells.push_back(fixedNumber(analysis::vimshopakaPoints(total), 2));
            cells.emplace_back(analysis::vimshopakaWord(total));
        }
        table.add(std::move(cells));
    }
    return std::wstring(analysis::kVimshopakaHeading) + L"\n" + table.text();
}

} // namespace kestrav::cli
