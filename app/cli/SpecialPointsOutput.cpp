#include "app/cli/SpecialPointsOutput.h"

#include "analysis/CharaKarakas.h"
#include "analysis/Sahams.h"
#include "analysis/Sphutas.h"
#include "analysis/YogiPoint.h"
#include "app/cli/TextTable.h"
#include "app/cli/TextValues.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/SignData.h"
#include "core/TextForms.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace kestrav::cli
{

namespace
{

using core::at;

using Entry = std::pair<std::wstring, std::optional<double>>;

std::wstring positionOrNone(const std::optional<double>& longitude)
{
    return longitude ? core::FormatSignPosition(*longitude) : std::wstring(core::kNoName);
}

std::wstring starOf(const std::optional<double>& longitude)
{
    if (!longitude) {
        return {};
    }
    const double position = core::nakshatraPositionOf(*longitude);
    return std::wstring(core::nakshatraName(nakshatraOf(position))) + L" " +
           std::to_wstring(padaOf(position));
}

// Names and positions, down the left half first.
std::wstring twoColumns(const std::vector<Entry>& entries)
{
    TextTable table({{L"Name"},
                     {L"Position"},
                     {L"Nakshatra"},
                     {L""},
                     {L"Name"},
                     {L"Position"},
                     {L"Nakshatra"}});
    const std::size_t half = (entries.size() + 1) / 2;
    for (std::size_t i = 0; i < half; ++i) {
        std::vector<std::wstring> cells;
        for (const std::size_t place : {i, i + half}) {
            const bool exists = place < entries.size();
            cells.push_back(exists ? entries[place].first : L"");
            cells.push_back(exists ? positionOrNone(entries[place].second) : L"");
            cells.push_back(exists ? starOf(entries[place].second) : L"");
            if (place == i) {
                cells.emplace_back();
            }
        }
        table.add(std::move(cells));
    }
    return table.text();
}

std::optional<double> longitudeOf(const core::Chart& chart, int point)
{
    return chart.computed(point) ? std::optional(at(chart.longitude, point)) : std::nullopt;
}

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

std::wstring karakaTable(std::span<const std::wstring_view> names, std::span<const int> points,
                         const core::Chart& chart)
{
    TextTable table({{L"Karaka"}, {L"Planet"}, {L"Position"}});
    for (std::size_t rank = 0; rank < names.size(); ++rank) {
        table.add({std::wstring(names[rank]), pointLabel(points[rank]),
                   positionOrNone(longitudeOf(chart, points[rank]))});
    }
    return table.text();
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

std::wstring specialPointsText(const ComputedChart& computed)
{
    const auto saham = [&](int index) {
        return L" (" + std::wstring(at(analysis::sahamNames(), index)) + L" saham)";
    };
    std::vector<Entry> entries;
    for (int point = core::kDhuma; point < core::kPointCount; ++point) {
        const bool own = point <= core::kArudhaLagna || point >= core::kArudhaPada1;
        const bool annual = point == core::kMuntha || point == core::kJanmalagna;
        if (!own || (annual && !computed.chart.computed(point))) {
            continue;
        }
        std::wstring name = pointLabel(point);
        if (point == core::kSaham2) {
            name += saham(computed.settings.saham2);
        } else if (point == core::kSaham3) {
            name += saham(computed.settings.saham3);
        }
        entries.emplace_back(std::move(name), longitudeOf(computed.chart, point));
    }
    return L"Special points\n" + twoColumns(entries);
}

std::wstring karakasText(const ComputedChart& computed)
{
    const std::wstring heading = L"Chara karakas\n";
    if (computed.settings.charaKarakas == 8) {
        const auto points = analysis::eightKarakas(computed.chart);
        return points ? heading + karakaTable(analysis::eightKarakaNames(), *points, computed.chart)
                      : heading + L"Not computed.\n";
    }
    const auto points = analysis::sevenKarakas(computed.chart);
    return points ? heading + karakaTable(analysis::sevenKarakaNames(), *points, computed.chart)
                  : heading + L"Not computed.\n";
}

std::wstring yogiText(const ComputedChart& computed)
{
    const auto sun = longitudeOf(computed.chart, core::kSun);
    const auto moon = longitudeOf(computed.chart, core::kMoon);
    if (!sun || !moon) {
        return {};
    }
    const analysis::Yogi yogi = analysis::yogiOf(*sun, *moon);
    LabelledLines lines;
    lines.add(L"Yogi point", core::FormatSignPosition(yogi.point) + L"  " + starOf(yogi.point));
    lines.add(L"Yogi planet", pointLabel(yogi.planet));
    lines.add(L"Duplicate Yogi", pointLabel(yogi.duplicate));
    lines.add(L"Avayogi point",
              core::FormatSignPosition(yogi.avayogi) + L"  " + starOf(yogi.avayogi));
    lines.add(L"Avayogi planet", pointLabel(yogi.avayogiPlanet));
    return lines.text();
}

std::wstring sphutasText(const ComputedChart& computed)
{
    std::vector<Entry> entries;
    for (const analysis::Sphuta& sphuta : analysis::sphutas(computed.chart)) {
        entries.emplace_back(sphuta.name, sphuta.longitude);
    }
    return L"Sphutas\n" + twoColumns(entries);
}

std::wstring sahamsText(const ComputedChart& computed)
{
    const auto longitudes = analysis::sahams(computed.chart);
    std::vector<Entry> entries;
    entries.reserve(longitudes.size());
    for (int saham = 0; saham < analysis::kSahamCount; ++saham) {
        entries.emplace_back(at(analysis::sahamNames(), saham), at(longitudes, saham));
    }
    return L"Sahams\n" + twoColumns(entries);
}

} // namespace kestrav::cli
