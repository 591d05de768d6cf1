#include "app/cli/AshtakavargaOutput.h"

#include <nlohmann/json.hpp>

namespace kestrav::cli
{

namespace
{

Json pindaJson(const analysis::Ashtakavarga& table)
{
    Json list = Json::array();
    for (const analysis::Pinda& pinda : table.pinda) {
        Json object;
        object["rashi"] = pinda.rashi;
        object["graha"] = pinda.graha;
        object["total"] = pinda.total();
        list.push_back(std::move(object));
    }
    return list;
}

} // namespace

Json ashtakavargaJson(const analysis::Ashtakavarga& table)
{
    Json object;
    object["varga"] = table.varga;
    object["bindus"] = table.bindus;
    object["sarva"] = table.sarva;
    object["sarvaWithLagna"] = table.sarvaWithLagna;
    object["occupants"] = table.occupants;
    object["trikona"] = table.reduced ? Json(table.trikona) : Json();
    object["ekadhipatya"] = table.reduced ? Json(table.ekadhipatya) : Json();
    object["pinda"] = table.reduced ? pindaJson(table) : Json();
    return object;
}

} // namespace kestrav::cli
