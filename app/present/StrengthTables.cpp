#include "app/present/StrengthTables.h"

#include "app/present/TextValues.h"
#include "core/PointNames.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace kestrav::present
{

namespace
{

using analysis::Shadbala;
using analysis::Strength;
using core::at;
using Value = std::function<Strength(const Shadbala&)>;

struct StrengthRow
{
    std::wstring_view name;
    Value value;
};

const std::vector<StrengthRow>& shadbalaRows()
{
    static const std::vector<StrengthRow> kRows = {
        {L"  Uccha",
         [](const Shadbala& bala) {
             return bala.sthana.uccha;
         }},
        {L"  Saptavargaja",
         [](const Shadbala& bala) {
             return bala.sthana.saptavargaja;
         }},
        {L"  Ojayugma",
         [](const Shadbala& bala) {
             return bala.sthana.ojayugma;
         }},
        {L"  Kendradi",
         [](const Shadbala& bala) {
             return bala.sthana.kendradi;
         }},
        {L"  Drekkana",
         [](const Shadbala& bala) {
             return bala.sthana.drekkana;
         }},
        {L"Sthana",
         [](const Shadbala& bala) {
             return bala.sthana.total();
         }},
        {L"Dig",
         [](const Shadbala& bala) {
             return bala.dig;
         }},
        {L"  Nathonnatha",
         [](const Shadbala& bala) {
             return bala.kala.nathonnatha;
         }},
        {L"  Paksha",
         [](const Shadbala& bala) {
             return bala.kala.paksha;
         }},
        {L"  Tribhaga",
         [](const Shadbala& bala) {
             return bala.kala.tribhaga;
         }},
        {L"  Varsha",
         [](const Shadbala& bala) {
             return bala.kala.varsha;
         }},
        {L"  Masa",
         [](const Shadbala& bala) {
             return bala.kala.masa;
         }},
        {L"  Vara",
         [](const Shadbala& bala) {
             return bala.kala.vara;
         }},
        {L"  Hora",
         [](const Shadbala& bala) {
             return bala.kala.hora;
         }},
        {L"  Ayana",
         [](const Shadbala& bala) {
             return bala.kala.ayana;
         }},
        {L"  Yuddha",
         [](const Shadbala& bala) {
             return bala.kala.yuddha;
         }},
        {L"Kala",
         [](const Shadbala& bala) {
             return bala.kala.total();
         }},
        {L"Cheshta",
         [](const Shadbala& bala) {
             return bala.cheshta;
         }},
        {L"Naisargika",
         [](const Shadbala& bala) {
             return bala.naisargika;
         }},
        {L"Drik",
         [](const Shadbala& bala) {
             return bala.drik;
         }},
    };
    return kRows;
}

const std::vector<StrengthRow>& totalRows()
{
    static const std::vector<StrengthRow> kRows = {
        {L"Total",
         [](const Shadbala& bala) {
             return bala.total;
         }},
        {L"Required",
         [](const Shadbala& bala) {
             return bala.required;
         }},
        {L"Ratio",
         [](const Shadbala& bala) {
             return bala.ratio;
         }},
        {L"Ishta phala",
         [](const Shadbala& bala) {
             return bala.phala.ishta;
         }},
        {L"Kashta phala",
         [](const Shadbala& bala) {
             return bala.phala.kashta;
         }},
    };
    return kRows;
}

Table planetTable(std::string id, const std::wstring& title)
{
    Table table = {std::move(id), title, {{L"Part"}}};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        table.columns.push_back({pointLabel(planet), Align::Right});
    }
    return table;
}

void addRows(Table& table, const std::vector<StrengthRow>& rows,
             const analysis::ShadbalaTable& balas)
{
    for (const StrengthRow& row : rows) {
        Row cells = {row.name};
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            cells.push_back(numberCell(row.value(at(balas.planets, planet)), 2));
        }
        table.add(std::move(cells));
    }
}

template <typename State>
std::wstring stateCell(const std::optional<State>& state)
{
    return std::wstring(state ? analysis::avasthaName(*state) : core::kNoName);
}

void append(std::wstring& list, std::wstring_view name)
{
    list += (list.empty() ? L"" : L", ") + std::wstring(name);
}

std::wstring deeptadiCell(const std::optional<analysis::DeeptadiState>& state)
{
    if (!state) {
        return std::wstring(core::kNoName);
    }
    std::wstring text(analysis::avasthaName(state->state));
    if (state->vikala) {
        append(text, analysis::kVikalaName);
    }
    if (state->kopa) {
        append(text, analysis::kKopaName);
    }
    return text;
}

std::wstring shayanadiCell(const std::optional<analysis::ShayanadiState>& state)
{
    if (!state) {
        return std::wstring(core::kNoName);
    }
    std::wstring text(analysis::avasthaName(state->state));
    if (state->part) {
        append(text, analysis::avasthaName(*state->part));
    }
    return text;
}

std::wstring aspectCell(const analysis::Aspect& aspect)
{
    std::wstring marks = std::wstring(aspect.graha ? L"f" : L"") + (aspect.rashi ? L"s" : L"");
    if (!aspect.value || (*aspect.value == 0.0 && marks.empty())) {
        return marks;
    }
    return fixedNumber(*aspect.value, 1) + (marks.empty() ? L"" : L" ") + marks;
}

// One row for each aspecting body, one column for each point from `first` to `last`.
Table aspectTable(std::string id, const std::vector<analysis::Aspect>& aspects, int first, int last)
{
    Table table = {std::move(id), L"", {{L"From"}}};
    table.gap = 1;
    for (int to = first; to <= last; ++to) {
        table.columns.push_back({std::wstring(core::PointName(3, to))});
    }
    for (int from = core::kSun; from <= core::kKetu; ++from) {
        Row cells = {pointCell(from)};
        for (int to = first; to <= last; ++to) {
            const auto found =
                std::find_if(aspects.begin(), aspects.end(), [&](const analysis::Aspect& aspect) {
                    return aspect.from == from && aspect.to == to;
                });
            Cell cell = found == aspects.end() ? Cell() : Cell(aspectCell(*found));
            if (found != aspects.end()) {
                cell.sortKey = found->value;
            }
            cells.push_back(std::move(cell));
        }
        table.add(std::move(cells));
    }
    return table;
}

} // namespace

Strengths::Strengths(const ComputedChart& computed, int nameLetter)
    : inputs(analysis::strengthInputs(computed.chart)),
      shadbala(analysis::computeShadbala(computed.chart, inputs)),
      houses(analysis::computeBhavaBala(computed.chart, shadbala)),
      rashmis(analysis::computeRashmis(computed.chart, computed.settings)),
      avasthas(analysis::computeAvasthas(computed.chart, inputs, nameLetter, computed.settings)),
      aspects(analysis::bodyAspects(computed.chart, computed.settings))
{
    const auto onHouses = analysis::houseAspects(computed.chart, computed.settings);
    aspects.insert(aspects.end(), onHouses.begin(), onHouses.end());
}

Table shadbalaTable(const Strengths& strengths)
{
    Table table = planetTable("shadbala", L"Shadbala");
    addRows(table, shadbalaRows(), strengths.shadbala);
    addRows(table, totalRows(), strengths.shadbala);
    Row cells = {L"Rashmis"};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        cells.push_back(numberCell(at(strengths.rashmis.planets, planet), 2));
    }
    table.add(std::move(cells));
    table.notes.push_back(L"All rashmis " + numberOrNone(strengths.rashmis.total, 2));
    return table;
}

Table shadbalaTotalsTable(const Strengths& strengths)
{
    Table table = planetTable("shadbala-totals", L"Shadbala");
    addRows(table, totalRows(), strengths.shadbala);
    return table;
}

Table rashmisTable(const Strengths& strengths)
{
    Table table = {"rashmis", L"Rashmis", {{L"Planet"}, {L"Rays", Align::Right}}};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        table.add({pointCell(planet), numberCell(at(strengths.rashmis.planets, planet), 2)});
    }
    table.add({L"All", numberCell(strengths.rashmis.total, 2)});
    return table;
}

Table bhavaBalaTable(const Strengths& strengths)
{
    Table table = {"bhava-bala",
                   L"Bhava bala",
                   {{L"House", Align::Right},
                    {L"Lord"},
                    {L"Of the lord", Align::Right},
                    {L"Dig", Align::Right},
                    {L"Drishti", Align::Right},
                    {L"Total", Align::Right}}};
    for (const analysis::BhavaBala& bala : strengths.houses) {
        table.add({{std::to_wstring(bala.house), double(bala.house), {Subject::House, bala.house}},
                   bala.lordPoint == 0 ? Cell(core::kNoName) : pointCell(bala.lordPoint),
                   numberCell(bala.lord, 2),
                   numberCell(bala.dig, 2),
                   numberCell(bala.drishti, 2),
                   numberCell(bala.total, 2)});
    }
    return table;
}

Table avasthasTable(const Strengths& strengths)
{
    Table table = {"avasthas",
                   L"Avasthas",
                   {{L"Body"},
                    {L"Baladi"},
                    {L"Jagradadi"},
                    {L"Deeptadi"},
                    {L"Shayanadi"},
                    {L"Lajjitadi", Align::Wrapped}}};
    for (int body = core::kSun; body <= core::kKetu; ++body) {
        const analysis::Avasthas& states = at(strengths.avasthas, body);
        std::wstring company;
        for (const analysis::Lajjitadi state : states.lajjitadi) {
            append(company, analysis::avasthaName(state));
        }
        table.add({pointCell(body), stateCell(states.baladi), stateCell(states.jagradadi),
                   deeptadiCell(states.deeptadi), shayanadiCell(states.shayanadi), company});
    }
    return table;
}

Table warsTable(const Strengths& strengths)
{
    Table table = {"planetary-war",
                   L"Planetary war",
                   {{L"First"}, {L"Second"}, {L"Winner"}, {L"Virupas", Align::Right}}};
    for (const analysis::War& war : strengths.shadbala.wars) {
        table.add({pointCell(war.first), pointCell(war.second),
                   war.winner ? pointCell(*war.winner) : Cell(L"not computed"),
                   numberCell(war.bala, 2)});
    }
    if (table.rows.empty()) {
        table.notes.push_back(L"No planetary war.");
    }
    return table;
}

Table bodyAspectsTable(const Strengths& strengths)
{
    Table table = aspectTable("aspects", strengths.aspects, core::kSun, core::kKetu);
    table.title = L"Aspects (virupas; f full aspect, s sign aspect)";
    return table;
}

Table houseAspectsTable(const Strengths& strengths)
{
    Table table = aspectTable("house-aspects", strengths.aspects, core::kCusp1, core::kCusp12);
    table.title = L"Aspects on the houses";
    return table;
}

} // namespace kestrav::present
