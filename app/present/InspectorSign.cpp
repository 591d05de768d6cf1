#include "app/present/InspectorSections.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/AspectTable.h"
#include "analysis/Aspects.h"
#include "analysis/SignStrength.h"
#include "analysis/Vargas.h"
#include "app/present/StrengthTables.h"
#include "app/present/TextValues.h"
#include "app/present/VargaTables.h"
#include "core/Angles.h"
#include "core/PointNames.h"
#include "core/SignData.h"
#include "core/TextForms.h"

#include <array>

namespace kestrav::present::inspecting
{

namespace
{

using core::at;

// The sign that is looked at.
struct Place
{
    const TableSource& source;
    int sign;
    int varga;
    int house; ///< 0 when it is no house that is looked at
    const core::Chart& chart;
    analysis::SignView view;
};

constexpr std::array<std::wstring_view, 3> kModalities = {L"movable", L"fixed", L"dual"};

void addHouse(Table& table, const Place& place)
{
    const ComputedChart& computed = place.source.computed;
    const double cusp = at(place.chart.longitude, core::cuspPoint(place.house));
    if (place.chart.computed(core::cuspPoint(place.house))) {
        table.add({L"Cusp", {core::FormatSignPosition(cusp), cusp}});
    }
    const Strengths strengths(computed, place.source.nameLetter);
    const analysis::BhavaBala& bala = at(strengths.houses, place.house - 1);
    table.add({L"Bhava bala", numberCell(bala.total, 2)});
}

Table headSection(const Place& place)
{
    const core::Settings& settings = place.source.computed.settings;
    Table table = labelledTable("sign", L"Sign and lord");
    table.add({L"Sign", signCell(place.sign, place.varga)});
    const auto house = [&place](int sign) {
        return houseCell(countedFrom(place.chart, core::kAscendant, sign, place.varga),
                         place.varga);
    };
    table.add({L"House", house(place.sign)});
    const int lord = analysis::lordOfSign(place.view, place.sign, settings.coLords);
    table.add({L"Lord", pointCell(lord, place.varga)});
    const int lordSign = at(place.view.sign, lord);
    table.add({L"Lord stands in", signCell(lordSign, place.varga)});
    table.add({L"That is house", house(lordSign)});
    table.add({L"Kind", at(kModalities, analysis::signModality(place.sign))});
    const int seventh = core::norm12(place.sign + 6);
    const int stronger = analysis::strongerSign(place.view, place.sign, seventh);
    table.add({L"Stronger of it and the seventh", signCell(stronger, place.varga)});
    if (place.house > 0 && place.varga == core::kRashi) {
        addHouse(table, place);
    }
    return table;
}

Table occupantSection(const Place& place)
{
    const ComputedChart& computed = place.source.computed;
    Table table = {"occupants", L"What stands there", {{L"Point"}, {L"Position"}, {L"Dignity"}}};
    table.columns[1].align = Align::Right;
    for (const int point : placedPoints(computed)) {
        if (analysis::signInVarga(place.chart, place.varga, point) != place.sign) {
            continue;
        }
        const double position = at(at(place.chart.vargas, place.varga), point).position;
        table.add({pointCell(point, place.varga),
                   {core::FormatDMS(position, 1), position},
                   vargaDignityCell(computed, place.varga, point)});
    }
    if (table.rows.empty()) {
        table.notes.emplace_back(L"Nothing.");
    }
    return table;
}

// The value of aspects falls on the middle of a house and exists in the rashi only.
analysis::Strength valueOn(const std::vector<analysis::Aspect>& aspects, int planet, int house)
{
    for (const analysis::Aspect& aspect : aspects) {
        if (aspect.from == planet && aspect.to == core::cuspPoint(house)) {
            return aspect.value;
        }
    }
    return {};
}

Table aspectSection(const Place& place)
{
    const core::Settings& settings = place.source.computed.settings;
    Table table = {
        "aspects-on", L"Aspects on it", {{L"From"}, {L"Share"}, {L"By sign"}, {L"Virupas"}}};
    table.columns[1].align = Align::Right;
    table.columns[3].align = Align::Right;
    const bool withValues = place.house > 0 && place.varga == core::kRashi;
    const std::vector<analysis::Aspect> onHouses =
        withValues ? analysis::houseAspects(place.chart, settings)
                   : std::vector<analysis::Aspect>();
    for (int planet = core::kSun; planet <= core::kKetu; ++planet) {
        const int from = at(place.view.sign, planet);
        if (from == 0) {
            continue;
        }
        const double share =
            analysis::grahaAspectShare(planet, core::norm12(place.sign - from + 1), settings);
        const bool bySign = analysis::signAspects(from, place.sign);
        const analysis::Strength value = valueOn(onHouses, planet, place.house);
        if (share > 0.0 || bySign || value.value_or(0.0) > 0.0) {
            table.add({pointCell(planet, place.varga), share > 0.0 ? numberCell(share, 2) : Cell(),
                       bySign ? L"sign" : L"", value ? numberCell(value, 1) : Cell()});
        }
    }
    if (table.rows.empty()) {
        table.notes.emplace_back(L"None.");
    }
    return table;
}

Table binduSection(const Place& place)
{
    const analysis::Ashtakavarga bindus =
        analysis::computeAshtakavarga(place.chart, place.varga, false);
    Table table = {"bindus", L"Ashtakavarga", {{L"Receiver"}, {L"Bindus", Align::Right}}};
    for (int receiver = 0; receiver < analysis::kAshtakavargaPoints; ++receiver) {
        table.add({pointCell(receiver, place.varga),
                   integerCell(at(at(bindus.bindus, receiver), place.sign - 1))});
    }
    table.add({L"Sarva", integerCell(at(bindus.sarva, place.sign - 1))});
    table.add({L"Sarva with lagna", integerCell(at(bindus.sarvaWithLagna, place.sign - 1))});
    return table;
}

Table cuspSection(const Place& place)
{
    Table table = {"cusps", L"Cusps in it", {{L"House", Align::Right}, {L"Cusp"}}};
    for (int house = 1; house <= 12; ++house) {
        const int cusp = core::cuspPoint(house);
        if (place.chart.computed(cusp) && at(place.chart.rashi, cusp) == place.sign) {
            const double longitude = at(place.chart.longitude, cusp);
            table.add(
                {houseCell(house, core::kRashi), {core::FormatSignPosition(longitude), longitude}});
        }
    }
    if (table.rows.empty()) {
        table.notes.emplace_back(L"None.");
    }
    return table;
}

} // namespace

std::vector<Table> signSections(const TableSource& source, int sign, int varga, int house)
{
    const core::Chart& chart = source.computed.chart;
    const Place place{source, sign,  varga,
                      house,  chart, analysis::signView(chart, varga, source.computed.settings)};
    std::vector<Table> sections = {headSection(place), occupantSection(place), aspectSection(place),
                                   binduSection(place)};
    if (varga == core::kRashi && chart.computed(core::kCusp1)) {
        sections.push_back(cuspSection(place));
    }
    return sections;
}

} // namespace kestrav::present::inspecting
