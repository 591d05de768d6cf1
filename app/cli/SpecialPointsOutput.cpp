#include "app/cli/SpecialPointsOutput.h"

#include "analysis/CharaKarakas.h"
#include "analysis/Sahams.h"
#include "analysis/Sphutas.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string_view>

namespace kestrav::cli
{

namespace
{

using core::at;

template <typename Points>
Json pointList(const Points& points)
{
    return points ? Json(*points) : Json();
}

Json longitudeJson(std::wstring_view name, const std::optional<double>& longitude)
{
    Json object;
    object["name"] = textJson(name);
    object["longitude"] = numberJson(longitude);
    return object;
}

} // namespace

Json karakasJson(const ComputedChart& computed)
{
    Json object;
    object["seven"] = pointList(analysis::sevenKarakas(computed.chart));
    object["eight"] = pointList(analysis::eightKarakas(computed.chart));
    return object;
}

Json sphutasJson(const ComputedChart& computed)
{
    Json list = Json::array();
    for (const analysis::Sphuta& sphuta : analysis::sphutas(computed.chart)) {
        list.push_back(longitudeJson(sphuta.name, sphuta.longitude));
    }
    return list;
}

Json sahamsJson(const ComputedChart& computed)
{
    const auto longitudes = analysis::sahams(computed.chart);
    Json list = Json::array();
    for (int saham = 0; saham < analysis::kSahamCount; ++saham) {
        list.push_back(longitudeJson(at(analysis::sahamNames(), saham), at(longitudes, saham)));
    }
    return list;
}

} // namespace kestrav::cli
