#include "app/cli/StrengthText.h"

#include "app/cli/TextTable.h"
#include "app/cli/TextValues.h"
#include "core/PointNames.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace kestrav::cli
{

namespace
{

using analysis::Shadbala;
using analysis::Strength;
using core::at;
using Align = TextTable::Align;
using Value = std::function<Strength(const Shadbala&)>;

struct Row
{
    std::wstring_view name;
    Value value;
};

const std::vector<Row>& shadbalaRows()
{
    static const std::vector<Row> kRows = {
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

const std::vector<Row>& totalRows()
{
    static const std::vector<Row> kRows = {
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

TextTable planetTable(const std::wstring& heading)
{
    std::vector<TextTable::Column> columns = {{heading}};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        columns.push_back({pointLabel(planet), Align::Right});
    }
    return TextTable(std::move(columns));
}

void addRows(TextTable& table, const std::vector<Row>& rows, const analysis::ShadbalaTable& balas)
{
    for (const Row& row : rows) {
        std::vector<std::wstring> cells = {std::wstring(row.name)};
        for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
            cells.push_back(numberOrNone(row.value(at(balas.planets, planet)), 2));
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
std::wstring aspectTable(const std::vector<analysis::Aspect>& aspects, int first, int last)
{
    std::vector<TextTable::Column> columns = {{L"From"}};
    for (int to = first; to <= last; ++to) {
        columns.push_back({std::wstring(core::PointName(3, to)), Align::Left});
    }
    TextTable table(std::move(columns), 1);
    for (int from = core::kSun; from <= core::kKetu; ++from) {
        std::vector<std::wstring> cells = {pointLabel(from)};
        for (int to = first; to <= last; ++to) {
            const auto found =
                std::find_if(aspects.begin(), aspects.end(), [&](const analysis::Aspect& aspect) {
                    return aspect.from == from && aspect.to == to;
                });
            cells.push_back(found == aspects.end() ? L"" : aspectCell(*found));
        }
        table.add(std::move(cells));
    }
    return table.text();
}

} // namespace

std::wstring shadbalaText(const analysis::ShadbalaTable& table, const analysis::Rashmis& rashmis)
{
    TextTable text = planetTable(L"Shadbala");
    addRows(text, shadbalaRows(), table);
    addRows(text, totalRows(), table);
    std::vector<std::wstring> cells = {L"Rashmis"};
    for (int planet = core::kSun; planet <= core::kSaturn; ++planet) {
        cells.push_back(numberOrNone(at(rashmis.planets, planet), 2));
    }
    text.add(std::move(cells));
    return text.text() + L"All rashmis " + numberOrNone(rashmis.total, 2) + L"\n";
}

std::wstring shadbalaTotalsText(const analysis::ShadbalaTable& table)
{
    TextTable text = planetTable(L"Shadbala");
    addRows(text, totalRows(), table);
    return text.text();
}

std::wstring bhavaBalaText(const std::array<analysis::BhavaBala, 12>& houses)
{
    TextTable table({{L"House", Align::Right},
                     {L"Lord"},
                     {L"Of the lord", Align::Right},
                     {L"Dig", Align::Right},
                     {L"Drishti", Align::Right},
                     {L"Total", Align::Right}});
    for (const analysis::BhavaBala& bala : houses) {
        table.add({std::to_wstring(bala.house),
                   bala.lordPoint == 0 ? std::wstring(core::kNoName) : pointLabel(bala.lordPoint),
                   numberOrNone(bala.lord, 2), numberOrNone(bala.dig, 2),
                   numberOrNone(bala.drishti, 2), numberOrNone(bala.total, 2)});
    }
    return L"Bhava bala\n" + table.text();
}

std::wstring avasthasText(const std::array<analysis::Avasthas, 10>& avasthas)
{
    TextTable table({{L"Body"},
                     {L"Baladi"},
                     {L"Jagradadi"},
                     {L"Deeptadi"},
                     {L"Shayanadi"},
                     {L"Lajjitadi", Align::Wrapped}});
    for (int body = core::kSun; body <= core::kKetu; ++body) {
        const analysis::Avasthas& states = at(avasthas, body);
        std::wstring company;
        for (const analysis::Lajjitadi state : states.lajjitadi) {
            append(company, analysis::avasthaName(state));
        }
        table.add({pointLabel(body), stateCell(states.baladi), stateCell(states.jagradadi),
                   deeptadiCell(states.deeptadi), shayanadiCell(states.shayanadi), company});
    }
    return L"Avasthas\n" + table.text();
}

std::wstring warsText(const std::vector<analysis::War>& wars)
{
    if (wars.empty()) {
        return L"No planetary war.\n";
    }
    std::wstring text;
    for (const analysis::War& war : wars) {
        text += L"Planetary war of " + pointLabel(war.first) + L" and " + pointLabel(war.second);
        text += war.winner ? L": " + pointLabel(*war.winner) + L" wins" +
                                 (war.bala ? L" " + fixedNumber(*war.bala, 2) + L" virupas" : L"")
                           : L": the winner is not computed";
        text += L".\n";
    }
    return text;
}

std::wstring aspectsText(const std::vector<analysis::Aspect>& aspects)
{
    return L"Aspects (virupas; f full aspect, s sign aspect)\n" +
           aspectTable(aspects, core::kSun, core::kKetu) + L"\n" +
           aspectTable(aspects, core::kCusp1, core::kCusp12);
}

} // namespace kestrav::cli
