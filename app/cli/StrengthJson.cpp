#include "app/cli/StrengthJson.h"

#include <nlohmann/json.hpp>

#include <optional>

namespace kestrav::cli
{

namespace
{

using core::at;

Json sthanaJson(const analysis::SthanaBala& sthana)
{
    Json object;
    object["uccha"] = numberJson(sthana.uccha);
    object["saptavargaja"] = numberJson(sthana.saptavargaja);
    object["ojayugma"] = numberJson(sthana.ojayugma);
    object["kendradi"] = numberJson(sthana.kendradi);
    object["drekkana"] = numberJson(sthana.drekkana);
    return object;
}

Json kalaJson(const analysis::KalaBala& kala)
{
    Json object;
    object["nathonnatha"] = numberJson(kala.nathonnatha);
    object["paksha"] = numberJson(kala.paksha);
    object["tribhaga"] = numberJson(kala.tribhaga);
    object["varsha"] = numberJson(kala.varsha);
    object["masa"] = numberJson(kala.masa);
    object["vara"] = numberJson(kala.vara);
    object["hora"] = numberJson(kala.hora);
    object["ayana"] = numberJson(kala.ayana);
    object["yuddha"] = numberJson(kala.yuddha);
    return object;
}

Json planetJson(const analysis::Shadbala& bala)
{
    Json object;
    object["point"] = bala.point;
    object["sthana"] = sthanaJson(bala.sthana);
    object["dig"] = numberJson(bala.dig);
    object["kala"] = kalaJson(bala.kala);
    object["cheshta"] = numberJson(bala.cheshta);
    object["naisargika"] = numberJson(bala.naisargika);
    object["drik"] = numberJson(bala.drik);
    object["total"] = numberJson(bala.total);
    object["required"] = numberJson(bala.required);
    object["ratio"] = numberJson(bala.ratio);
    object["ishta"] = numberJson(bala.phala.ishta);
    object["kashta"] = numberJson(bala.phala.kashta);
    return object;
}

template <typename State>
Json stateJson(const std::optional<State>& state)
{
    return state ? textJson(analysis::avasthaName(*state)) : Json();
}

Json deeptadiJson(const std::optional<analysis::DeeptadiState>& state)
{
    if (!state) {
        return {};
    }
    Json object;
    object["state"] = textJson(analysis::avasthaName(state->state));
    object["vikala"] = state->vikala;
    object["kopa"] = state->kopa;
    return object;
}

Json shayanadiJson(const std::optional<analysis::ShayanadiState>& state)
{
    if (!state) {
        return {};
    }
    Json object;
    object["state"] = textJson(analysis::avasthaName(state->state));
    object["part"] = stateJson(state->part);
    return object;
}

Json lajjitadiJson(const std::vector<analysis::Lajjitadi>& states)
{
    Json list = Json::array();
    for (const analysis::Lajjitadi state : states) {
        list.push_back(textJson(analysis::avasthaName(state)));
    }
    return list;
}

Json pointOrNull(const std::optional<int>& point)
{
    return point ? Json(*point) : Json();
}

} // namespace

Json shadbalaJson(const analysis::ShadbalaTable& table)
{
    Json list = Json::array();
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        list.push_back(planetJson(at(table.planets, planet)));
    }
    return list;
}

Json bhavaBalaJson(const std::array<analysis::BhavaBala, 12>& houses)
{
    Json list = Json::array();
    for (const analysis::BhavaBala& bala : houses) {
        Json object;
        object["house"] = bala.house;
        object["lord"] = numberJson(bala.lord);
        object["dig"] = numberJson(bala.dig);
        object["drishti"] = numberJson(bala.drishti);
        object["total"] = numberJson(bala.total);
        list.push_back(std::move(object));
    }
    return list;
}

Json rashmisJson(const analysis::Rashmis& rashmis)
{
    Json planets = Json::array();
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        planets.push_back(numberJson(at(rashmis.planets, planet)));
    }
    Json object;
    object["planets"] = std::move(planets);
    object["total"] = numberJson(rashmis.total);
    return object;
}

Json avasthasJson(const std::array<analysis::Avasthas, 10>& avasthas)
{
    Json list = Json::array();
    for (int body = core::kSun; body <= core::kKetu; ++body) {
        const analysis::Avasthas& states = at(avasthas, body);
        Json object;
        object["point"] = body;
        object["baladi"] = stateJson(states.baladi);
        object["jagradadi"] = stateJson(states.jagradadi);
        object["deeptadi"] = deeptadiJson(states.deeptadi);
        object["lajjitadi"] = lajjitadiJson(states.lajjitadi);
        object["shayanadi"] = shayanadiJson(states.shayanadi);
        list.push_back(std::move(object));
    }
    return list;
}

Json warsJson(const std::vector<analysis::War>& wars)
{
    Json list = Json::array();
    for (const analysis::War& war : wars) {
        Json object;
        // Without latitudes there is neither winner nor loser, so the pair is told by itself.
        object["planets"] = Json::array({war.first, war.second});
        object["winner"] = pointOrNull(war.winner);
        object["loser"] = pointOrNull(war.loser);
        object["bala"] = numberJson(war.bala);
        list.push_back(std::move(object));
    }
    return list;
}

Json aspectsJson(const std::vector<analysis::Aspect>& aspects)
{
    Json list = Json::array();
    for (const analysis::Aspect& aspect : aspects) {
        Json object;
        object["from"] = aspect.from;
        object["to"] = aspect.to;
        object["graha"] = aspect.graha;
        object["rashi"] = aspect.rashi;
        object["value"] = numberJson(aspect.value);
        list.push_back(std::move(object));
    }
    return list;
}

} // namespace kestrav::cli
