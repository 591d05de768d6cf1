#include "app/cli/VargaOutput.h"

#include "analysis/VargaNames.h"
#include "app/present/VargaTables.h"

#include <nlohmann/json.hpp>

namespace kestrav::cli
{

namespace
{

using core::at;

using present::kPlacedPoints;

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

} // namespace kestrav::cli
