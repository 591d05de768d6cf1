#include "app/present/SpecialPointTables.h"

#include "analysis/CharaKarakas.h"
#include "analysis/Sahams.h"
#include "analysis/Sphutas.h"
#include "analysis/YogiPoint.h"
#include "app/present/TextValues.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/SignData.h"
#include "core/TextForms.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

namespace kestrav::present
{

namespace
{

using core::at;

Cell positionCell(const std::optional<double>& longitude)
{
    return longitude ? Cell(core::FormatSignPosition(*longitude), *longitude) : Cell(core::kNoName);
}

std::wstring starOf(double longitude)
{
    const double position = core::nakshatraPositionOf(longitude);
    return std::wstring(core::nakshatraName(nakshatraOf(position))) + L" " +
           std::to_wstring(padaOf(position));
}

Cell starCell(const std::optional<double>& longitude)
{
    if (!longitude) {
        return {};
    }
    const int nakshatra = nakshatraOf(core::nakshatraPositionOf(*longitude));
    return {starOf(*longitude), *longitude, {Subject::Nakshatra, nakshatra}};
}

std::optional<double> longitudeOf(const core::Chart& chart, int point)
{
    return chart.computed(point) ? std::optional(at(chart.longitude, point)) : std::nullopt;
}

Table longitudesTable(std::string id, std::wstring title)
{
    return {std::move(id), std::move(title), {{L"Name"}, {L"Position"}, {L"Nakshatra"}}};
}

void addLongitude(Table& table, Cell name, const std::optional<double>& longitude)
{
    table.add({std::move(name), positionCell(longitude), starCell(longitude)});
}

void addKarakas(Table& table, std::span<const std::wstring_view> names, std::span<const int> points,
                const core::Chart& chart)
{
    for (std::size_t rank = 0; rank < names.size(); ++rank) {
        table.add(
            {names[rank], pointCell(points[rank]), positionCell(longitudeOf(chart, points[rank]))});
    }
}

} // namespace

Table specialPointsTable(const ComputedChart& computed)
{
    const auto saham = [&](int index) {
        return L" (" + std::wstring(at(analysis::sahamNames(), index)) + L" saham)";
    };
    Table table = longitudesTable("special-points", L"Special points");
    for (int point = core::kDhuma; point < core::kPointCount; ++point) {
        const bool own = point <= core::kArudhaLagna || point >= core::kArudhaPada1;
        const bool annual = point == core::kMuntha || point == core::kJanmalagna;
        if (!own || (annual && !computed.chart.computed(point))) {
            continue;
        }
        Cell name = pointCell(point);
        if (point == core::kSaham2) {
            name.text += saham(computed.settings.saham2);
        } else if (point == core::kSaham3) {
            name.text += saham(computed.settings.saham3);
        }
        addLongitude(table, std::move(name), longitudeOf(computed.chart, point));
    }
    return table;
}

Table karakasTable(const ComputedChart& computed)
{
    Table table = {"karakas", L"Chara karakas", {{L"Karaka"}, {L"Planet"}, {L"Position"}}};
    if (computed.settings.charaKarakas == 8) {
        if (const auto points = analysis::eightKarakas(computed.chart)) {
            addKarakas(table, analysis::eightKarakaNames(), *points, computed.chart);
        }
    } else if (const auto points = analysis::sevenKarakas(computed.chart)) {
        addKarakas(table, analysis::sevenKarakaNames(), *points, computed.chart);
    }
    if (table.rows.empty()) {
        table.notes.push_back(L"Not computed.");
    }
    return table;
}

Table yogiTable(const ComputedChart& computed)
{
    Table table = labelledTable("yogi", L"");
    const auto sun = longitudeOf(computed.chart, core::kSun);
    const auto moon = longitudeOf(computed.chart, core::kMoon);
    if (!sun || !moon) {
        return table;
    }
    const analysis::Yogi yogi = analysis::yogiOf(*sun, *moon);
    const auto place = [](double longitude) {
        return Cell(core::FormatSignPosition(longitude) + L"  " + starOf(longitude), longitude);
    };
    table.add({L"Yogi point", place(yogi.point)});
    table.add({L"Yogi planet", pointCell(yogi.planet)});
    table.add({L"Duplicate Yogi", pointCell(yogi.duplicate)});
    table.add({L"Avayogi point", place(yogi.avayogi)});
    table.add({L"Avayogi planet", pointCell(yogi.avayogiPlanet)});
    return table;
}

Table sphutasTable(const ComputedChart& computed)
{
    Table table = longitudesTable("sphutas", L"Sphutas");
    for (const analysis::Sphuta& sphuta : analysis::sphutas(computed.chart)) {
        addLongitude(table, sphuta.name, sphuta.longitude);
    }
    return table;
}

Table sahamsTable(const ComputedChart& computed)
{
    const auto longitudes = analysis::sahams(computed.chart);
    Table table = longitudesTable("sahams", L"Sahams");
    for (int saham = 0; saham < analysis::kSahamCount; ++saham) {
        addLongitude(table, at(analysis::sahamNames(), saham), at(longitudes, saham));
    }
    return table;
}

Table sideBySide(const Table& table)
{
    Table wide = {table.id, table.title, table.columns};
    wide.columns.push_back({L""});
    wide.columns.insert(wide.columns.end(), table.columns.begin(), table.columns.end());
    wide.notes = table.notes;
    const std::size_t half = (table.rows.size() + 1) / 2;
    for (std::size_t i = 0; i < half; ++i) {
        Row row = table.rows[i];
        row.emplace_back();
        if (i + half < table.rows.size()) {
            const Row& second = table.rows[i + half];
            row.insert(row.end(), second.begin(), second.end());
        } else {
            row.resize(wide.columns.size());
        }
        wide.add(std::move(row));
    }
    return wide;
}

} // namespace kestrav::present
