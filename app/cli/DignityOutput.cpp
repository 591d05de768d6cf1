#include "app/cli/DignityOutput.h"

#include "analysis/Dignities.h"
#include "analysis/DignityTables.h"
#include "analysis/FunctionalNature.h"
#include "analysis/VargaNames.h"
#include "analysis/Vargas.h"
#include "app/cli/TextTable.h"
#include "app/cli/TextValues.h"
#include "core/PointNames.h"

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

std::wstring word(int display, bool shortForm)
{
    const std::wstring_view text = analysis::dignityWord(display, shortForm);
    return std::wstring(text.substr(0, text.find_last_not_of(L' ') + 1));
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
    object["word"] = textJson(word(display, false));
    return object;
}

// What planet feels for the other by a table of relationships.
template <typename Relation>
std::wstring relationTable(const std::wstring& heading, const Relation& relation)
{
    std::vector<TextTable::Column> columns = {{heading}};
    for (int other = core::kSun; other <= core::kSaturn; ++other) {
        columns.push_back({pointLabel(other)});
    }
    TextTable table(std::move(columns));
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        std::vector<std::wstring> cells = {pointLabel(planet)};
        for (int other = core::kSun; other <= core::kSaturn; ++other) {
            cells.push_back(planet == other ? L"" : word(relation(planet, other) + 3, false));
        }
        table.add(std::move(cells));
    }
    return table.text();
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

std::wstring reportLabel(const analysis::Nature& nature)
{
    const std::wstring_view label = analysis::natureReportLabel(nature);
    const std::size_t first = label.find_first_not_of(L' ');
    return first == std::wstring_view::npos ? L"" : std::wstring(label.substr(first));
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

std::wstring planetsText(const ComputedChart& computed)
{
    const core::Chart& chart = computed.chart;
    const analysis::NatureTable natures = analysis::chartNatures(chart);
    TextTable table(
        {{L"Planet"}, {L"Sign"}, {L"Dignity"}, {L"Combust"}, {L"Nature"}, {L"For this ascendant"}});
    for (int point = core::kSun; point <= core::kKetu; ++point) {
        const analysis::Nature& nature = at(natures, point);
        table.add({pointLabel(point), std::wstring(core::signNameLong(at(chart.rashi, point))),
                   word(displayOf(computed, core::kRashi, point), false),
                   at(chart.combust, point) ? L"combust" : L"",
                   std::wstring(analysis::natureLabel(nature)), reportLabel(nature)});
    }
    return table.text();
}

std::wstring vargaDignitiesText(const ComputedChart& computed)
{
    std::vector<TextTable::Column> columns = {{L"Varga"}, {L""}};
    for (int point = core::kSun; point <= core::kKetu; ++point) {
        columns.push_back({pointLabel(point)});
    }
    TextTable table(std::move(columns));
    for (int varga = 0; varga < core::kScoredVargas; ++varga) {
        std::vector<std::wstring> cells = {L"D" + std::to_wstring(analysis::vargaDivision(varga)),
                                           std::wstring(analysis::vargaName(varga))};
        for (int point = core::kSun; point <= core::kKetu; ++point) {
            cells.push_back(word(displayOf(computed, varga, point), true));
        }
        table.add(std::move(cells));
    }
    return table.text();
}

std::wstring relationshipsText(const ComputedChart& computed)
{
    return relationTable(L"Natural", analysis::naturalRelationship) + L"\n" +
           relationTable(L"Compound", compoundOf(computed.chart));
}

} // namespace kestrav::cli
