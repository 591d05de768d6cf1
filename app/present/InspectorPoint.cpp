#include "app/present/InspectorSections.h"

#include "analysis/Ashtakavarga.h"
#include "analysis/AspectTable.h"
#include "analysis/DignityTables.h"
#include "analysis/Explain.h"
#include "analysis/ExplainText.h"
#include "analysis/NakshatraLords.h"
#include "analysis/VargaNames.h"
#include "app/present/StrengthTables.h"
#include "app/present/TextValues.h"
#include "app/present/TransitChoices.h"
#include "app/present/VargaTables.h"
#include "core/PointNames.h"
#include "core/TextForms.h"

#include <algorithm>
#include <numbers>

namespace kestrav::present::inspecting
{

namespace
{

using core::at;

bool isPlanet(int point)
{
    return point >= core::kSun && point <= core::kSaturn;
}

bool isGraha(int point)
{
    return point >= core::kSun && point <= core::kKetu;
}

Table vargaSection(const ComputedChart& computed, int point)
{
    Table table = {"placements",
                   L"Divisional charts",
                   {{L"Varga"},
                    {L"Name"},
                    {L"Sign"},
                    {L"House", Align::Right},
                    {L"Position", Align::Right},
                    {L"Dignity"}}};
    for (int varga = 0; varga < core::kVargaCount; ++varga) {
        const core::VargaPlacement& placement = at(at(computed.chart.vargas, varga), point);
        const bool near = at(at(computed.chart.nearBoundary, varga), point);
        Cell sign = signCell(placement.sign, varga);
        sign.text += near ? L" *" : L"";
        table.add(
            {vargaCell(varga),
             analysis::vargaName(varga),
             std::move(sign),
             houseCell(countedFrom(computed.chart, core::kAscendant, placement.sign, varga), varga),
             {core::FormatDMS(placement.position, 1), placement.position},
             vargaDignityCell(computed, varga, point)});
    }
    table.notes.push_back(boundaryNote(computed.settings));
    return table;
}

std::wstring_view natureWord(int relation)
{
    return relation == 0 ? L"neutral" : relation > 0 ? L"friend" : L"enemy";
}

// Compound relationships are the natural one moved by the temporary one, so their difference is
// the latter; it is 0 where a position is missing or the settings leave it out.
Table relationshipSection(const core::Chart& chart, int planet)
{
    Table table = {
        "relationships",
        L"Relationships",
        {{L"Planet"}, {L"By nature"}, {L"Temporary"}, {L"Compound"}, {L"Of it towards this"}}};
    for (int other = core::kSun; other <= core::kSaturn; ++other) {
        if (other == planet) {
            continue;
        }
        const int natural = analysis::naturalRelationship(planet, other);
        const int compound = at(at(chart.compound, planet), other);
        const int towards = at(at(chart.compound, other), planet);
        table.add({pointCell(other),
                   {std::wstring(natureWord(natural)), double(natural)},
                   compound == natural ? Cell(core::kNoName)
                                       : Cell(std::wstring(natureWord(compound - natural)),
                                              double(compound - natural)),
                   {std::wstring(analysis::explaining::codeText(compound)), double(compound)},
                   {std::wstring(analysis::explaining::codeText(towards)), double(towards)}});
    }
    return table;
}

bool holds(const analysis::Aspect& aspect)
{
    return aspect.graha || aspect.rashi || aspect.value.value_or(0.0) > 0.0;
}

// The aspects that hold, with the point at the other end of each.
Table aspectSection(std::string id, std::wstring title,
                    const std::vector<std::pair<int, analysis::Aspect>>& aspects)
{
    Table table = {
        std::move(id), std::move(title), {{L"Point"}, {L"Full"}, {L"By sign"}, {L"Virupas"}}};
    table.columns.back().align = Align::Right;
    for (const auto& [other, aspect] : aspects) {
        if (holds(aspect)) {
            table.add({pointCell(other), aspect.graha ? L"full" : L"", aspect.rashi ? L"sign" : L"",
                       numberCell(aspect.value, 1)});
        }
    }
    if (table.rows.empty()) {
        table.notes.emplace_back(L"None.");
    }
    return table;
}

Table aspectsGiven(const ComputedChart& computed, int point)
{
    std::vector<std::pair<int, analysis::Aspect>> list;
    for (const auto& aspects : {analysis::bodyAspects(computed.chart, computed.settings),
                                analysis::houseAspects(computed.chart, computed.settings)}) {
        for (const analysis::Aspect& aspect : aspects) {
            if (aspect.from == point) {
                list.emplace_back(aspect.to, aspect);
            }
        }
    }
    return aspectSection("aspects-given", L"Aspects given", list);
}

Table aspectsReceived(const ComputedChart& computed, int point)
{
    std::vector<std::pair<int, analysis::Aspect>> list;
    for (int from = core::kSun; from <= core::kKetu; ++from) {
        const auto aspect =
            from == point ? std::nullopt
                          : analysis::aspectOnPoint(computed.chart, from, point, computed.settings);
        if (aspect) {
            list.emplace_back(from, *aspect);
        }
    }
    return aspectSection("aspects-received", L"Aspects received", list);
}

Table binduSection(const core::Chart& chart, int point)
{
    const analysis::Ashtakavarga bindus = analysis::computeAshtakavarga(chart, core::kRashi, false);
    const int sign = at(chart.rashi, point);
    const std::wstring where(core::signNameLong(sign));
    Table table = labelledTable("bindus", L"Ashtakavarga");
    if (point < analysis::kAshtakavargaPoints) {
        table.add({L"Own bindus in " + where, integerCell(at(at(bindus.bindus, point), sign - 1))});
    }
    table.add({L"Sarvashtakavarga of " + where, integerCell(at(bindus.sarva, sign - 1))});
    const analysis::Kakshya kakshya = analysis::kakshyaOf(at(chart.degreeInSign, point));
    table.add({L"Kakshya", integerCell(kakshya.part + 1)});
    table.add({L"Its lord", pointCell(kakshya.lord)});
    if (isPlanet(point)) {
        const bool bindu = analysis::kakshyaBindu(chart, point, at(chart.longitude, point));
        table.add({L"Bindu of the lord", bindu ? L"yes" : L"no"});
    }
    return table;
}

// The result of an explanation, where the point has one.
void addResult(Table& table, const ComputedChart& computed, int point, const wchar_t* label,
               const char* word)
{
    const auto explained =
        analysis::explain(computed.chart, computed.settings, std::to_string(point) + ":" + word);
    if (explained) {
        table.add({label, explained.value().result});
    }
}

void addWars(Table& table, const TableSource& source, int point)
{
    const Strengths strengths(source.computed, source.nameLetter);
    for (const analysis::War& war : strengths.shadbala.wars) {
        if (war.first != point && war.second != point) {
            continue;
        }
        const int other = war.first == point ? war.second : war.first;
        const std::wstring outcome = !war.winner            ? L"undecided against "
                                     : *war.winner == point ? L"won against "
                                                            : L"lost against ";
        table.add({L"Planetary war", {outcome + pointLabel(other), Link{Subject::Point, other}}});
    }
}

Table stateSection(const TableSource& source, int point)
{
    Table table = labelledTable("state", L"State");
    const auto add = [&](const wchar_t* label, const char* word) {
        addResult(table, source.computed, point, label, word);
    };
    add(L"Dignity", "dignity");
    add(L"Motion", "motion");
    add(L"Combustion", "combust");
    add(L"Nature here", "nature");
    add(L"Chara karaka", "karaka");
    add(L"Shadbala", "strength");
    if (isPlanet(point)) {
        addWars(table, source, point);
    }
    return table;
}

// The query of a topic that needs no choice; a sign is that of the point.
std::optional<std::string> queryOf(const analysis::ExplainTopic& topic, int point, int sign)
{
    std::string query =
        std::to_string(point) + std::string(topic.form.substr(topic.form.find(':')));
    if (const std::size_t place = query.find("SIGN"); place != std::string::npos) {
        query.replace(place, 4, std::to_string(sign));
    }
    const bool open = std::any_of(query.begin(), query.end(),
                                  [](char letter) { return letter >= 'A' && letter <= 'Z'; });
    return open ? std::nullopt : std::optional(query);
}

Table explanationSection(const ComputedChart& computed, int point)
{
    Table table = {
        "how-computed", L"How computed", {{L"Of"}, {L"Result"}, {L"How", Align::Wrapped}}};
    const int sign = at(computed.chart.rashi, point);
    for (const analysis::ExplainTopic& topic : analysis::explainTopics()) {
        const auto query = topic.appliesTo(point) ? queryOf(topic, point, sign) : std::nullopt;
        if (!query) {
            continue;
        }
        const auto explained = analysis::explain(computed.chart, computed.settings, *query);
        if (!explained) {
            continue;
        }
        std::wstring how;
        if (topic.form == "POINT:longitude" && computed.changed[std::size_t(point)]) {
            // The way from the sky to a longitude is not that of a changed one.
            table.add({explained.value().subject,
                       core::FormatDMS(at(computed.chart.longitude, point), 1),
                       L"Changed by you; all that follows is computed from this longitude."});
            continue;
        }
        for (const std::wstring& step : explained.value().steps) {
            how += (how.empty() ? L"" : L" ") + step;
        }
        for (const std::wstring& setting : explained.value().settings) {
            how += L" (" + setting + L")";
        }
        table.add({explained.value().subject, explained.value().result, std::move(how)});
    }
    return table;
}

} // namespace

Table positionSection(const ComputedChart& computed, int point)
{
    const core::Chart& chart = computed.chart;
    Table table = labelledTable("position", L"Position");
    if (!chart.computed(point)) {
        table.notes.push_back(L"Not computed: " +
                              analysis::explaining::whyNoPosition(chart, point) + L".");
        return table;
    }
    const double longitude = at(chart.longitude, point);
    const double star = at(chart.nakshatraPosition, point);
    const int sign = at(chart.rashi, point);
    table.add(
        {L"Position", {core::FormatSignPosition(longitude), longitude, {Subject::Sign, sign}}});
    table.add({L"Longitude", {core::FormatDMS(longitude, 1), longitude}});
    table.add({L"House", houseCell(countedFrom(chart, core::kAscendant, sign))});
    table.add({L"Lord of the sign", pointCell(analysis::signLord(sign))});
    table.add({L"Nakshatra", quarterCell(star)});
    table.add({L"Lord of the nakshatra", pointCell(analysis::nakshatraLord(star))});
    if (movesByItself(point) && chart.hasMoment) {
        constexpr double kDegrees = 180.0 / std::numbers::pi;
        table.add({L"Degrees a day", numberCell(at(chart.speed, point), 4)});
        table.add({L"Latitude", numberCell(at(chart.latitude, point) * kDegrees, 4)});
    }
    return table;
}

std::vector<Table> pointSections(const TableSource& source, int point)
{
    const ComputedChart& computed = source.computed;
    std::vector<Table> sections = {positionSection(computed, point)};
    if (computed.chart.computed(point)) {
        if (point < kPlacedPoints) {
            sections.push_back(vargaSection(computed, point));
        }
        if (Table state = stateSection(source, point); !state.rows.empty()) {
            sections.push_back(std::move(state));
        }
        if (isPlanet(point)) {
            sections.push_back(relationshipSection(computed.chart, point));
        }
        if (isGraha(point)) {
            sections.push_back(aspectsGiven(computed, point));
        }
        sections.push_back(aspectsReceived(computed, point));
        sections.push_back(binduSection(computed.chart, point));
        if (source.yogas != nullptr) {
            sections.push_back(yogaSection(source, point));
        }
    }
    sections.push_back(explanationSection(computed, point));
    return sections;
}

} // namespace kestrav::present::inspecting
