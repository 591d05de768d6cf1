#include "app/cli/DignityOutput.h"

#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "analysis/FunctionalNature.h"
#include "analysis/Vargas.h"
#include "app/present/TextValues.h"

#include <nlohmann/json.hpp>

namespace kestrav::cli
{

namespace
{

using core::at;

int displayOf(const ComputedChart& computed, int varga, int point)
{
    return analysis::shownDignity(computed.chart, point, varga, computed.settings);
}

Json dignityJson(const ComputedChart& computed, int varga, int point)
{
    const int sign = analysis::signInVarga(computed.chart, varga, point);
    const int display = displayOf(computed, varga, point);
    Json object;
    object["point"] = point;
    object["varga"] = varga;
    object["sign"] = sign;
    object["code"] = analysis::vargaDignity(computed.chart, point, sign, varga, computed.settings);
    object["display"] = display;
    object["word"] = textJson(present::withoutEndBlanks(analysis::dignityWord(display, false)));
    return object;
}

template <typename Relation>
Json relationJson(const Relation& relation)
{
    Json rows = Json::array();
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        Json row = Json::array();
        for (int other = core::kSun; other <= core::kSaturn; ++other) {
            row.push_back(relation(planet, other));
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

auto compoundOf(const core::Chart& chart)
{
    return [&chart](int planet, int other) {
        return at(at(chart.compound, planet), other);
    };
}

} // namespace

Json dignitiesJson(const ComputedChart& computed)
{
    Json list = Json::array();
    for (int varga = 0; varga < core::kScoredVargas; ++varga) {
        for (int point = core::kSun; point <= core::kKetu; ++point) {
            list.push_back(dignityJson(computed, varga, point));
        }
    }
    return list;
}

Json relationshipsJson(const ComputedChart& computed)
{
    Json object;
    object["natural"] = relationJson(analysis::naturalRelationship);
    object["compound"] = relationJson(compoundOf(computed.chart));
    return object;
}

Json functionalJson(const ComputedChart& computed)
{
    const analysis::NatureTable natures = analysis::chartNatures(computed.chart);
    Json list = Json::array();
    for (int point = core::kSun; point <= core::kKetu; ++point) {
        const analysis::Nature& nature = at(natures, point);
        Json object;
        object["point"] = point;
        object["yogakaraka"] = nature.yogakaraka;
        object["benefic"] = nature.benefic;
        object["malefic"] = nature.malefic;
        object["maraka"] = nature.maraka;
        object["label"] = textJson(analysis::natureLabel(nature));
        list.push_back(std::move(object));
    }
    return list;
}

} // namespace kestrav::cli
