#include "app/present/CompareTables.h"

#include "analysis/VargaNames.h"
#include "app/present/ChangedPoints.h"
#include "app/present/DashaTables.h"
#include "app/present/TextValues.h"
#include "app/present/VargaTables.h"
#include "core/Names.h"
#include "core/PointNames.h"
#include "core/TextForms.h"
#include "timing/DashaQuery.h"

#include <vector>

namespace kestrav::present
{

namespace
{

using core::at;

constexpr int kComparedLevels = 3;

// The ascendant and the bodies that a chart has.
std::vector<int> comparedPoints(const core::Chart& chart)
{
    std::vector<int> points;
    for (int point = 0; point <= core::kPluto; ++point) {
        if ((point <= core::kKetu || point >= core::kUranus) && chart.computed(point)) {
            points.push_back(point);
        }
    }
    return points;
}

std::wstring pointsInSign(const core::Chart& chart, int sign)
{
    std::wstring names;
    for (const int point : comparedPoints(chart)) {
        if (at(chart.rashi, point) == sign) {
            names += (names.empty() ? L"" : L", ") + pointLabel(point);
        }
    }
    return names;
}

// The rows of what differs.
class Differences
{
public:
    Differences(const ComputedChart& one, const ComputedChart& other) : one_(one), other_(other)
    {}

    void addPoint(int point)
    {
        const core::Chart& first = one_.chart;
        const core::Chart& second = other_.chart;
        if (!first.computed(point) || !second.computed(point)) {
            return;
        }
        const auto sign = [point](const core::Chart& chart) {
            return signCell(at(chart.rashi, point));
        };
        add(pointCell(point), L"Sign", sign(first), sign(second));
        const auto star = [point](const core::Chart& chart) {
            return int(nakshatraOf(at(chart.nakshatraPosition, point)));
        };
        const auto starCell = [](int nakshatra) {
            return Cell(std::wstring(core::nakshatraName(nakshatra)), double(nakshatra),
                        {Subject::Nakshatra, nakshatra});
        };
        add(pointCell(point), L"Nakshatra", starCell(star(first)), starCell(star(second)));
        const auto quarter = [point](const core::Chart& chart) {
            return integerCell(padaOf(at(chart.nakshatraPosition, point)));
        };
        add(pointCell(point), L"Quarter", quarter(first), quarter(second));
        for (int varga = core::kRashi + 1; varga < core::kVargaCount; ++varga) {
            const auto placed = [point, varga](const core::Chart& chart) {
                return signCell(at(at(chart.vargas, varga), point).sign, varga);
            };
            add(pointCell(point), analysis::vargaName(varga), placed(first), placed(second));
        }
    }

    void addDashas(const astro::Series& series, double moment)
    {
        for (int level = 1; level <= kComparedLevels; ++level) {
            add(L"Dasha", L"Lord of level " + std::to_wstring(level),
                lordCell(one_, series, moment, level), lordCell(other_, series, moment, level));
        }
    }

    [[nodiscard]] Table table() &&
    {
        if (table_.rows.empty()) {
            table_.notes.emplace_back(L"Nothing changes.");
        }
        return std::move(table_);
    }

private:
    void add(Cell what, std::wstring_view part, Cell first, Cell second)
    {
        if (first.text != second.text) {
            table_.add({std::move(what), part, std::move(first), std::move(second)});
        }
    }

    [[nodiscard]] static Cell lordCell(const ComputedChart& computed, const astro::Series& series,
                                       double moment, int level)
    {
        const timing::DashaOptions options = dashaOptions(computed);
        const int lord =
            timing::lordAtMoment(computed.chart, computed.settings, options, series, moment, level);
        if (lord == timing::kNoLord) {
            return core::kNoName;
        }
        const timing::LordKind kind = dashaLordKind(options.system);
        return {dashaLordName(kind, lord), double(lord), dashaLordLink(kind, lord)};
    }

    const ComputedChart& one_;
    const ComputedChart& other_;
    Table table_ = {"differences", L"", {{L"Of"}, {L"What"}, {L"Before"}, {L"After"}}};
};

} // namespace

Table positionsInChart(const core::Chart& one, const core::Chart& other)
{
    const std::wstring name = other.name.empty() ? L"the other chart" : other.name;
    Table table = {"compare",
                   (one.name.empty() ? L"Positions" : one.name) + L" in " + name,
                   {{L"Point"},
                    {L"Position"},
                    {L"House", Align::Right},
                    {L"From the Moon", Align::Right},
                    {L"There in this sign"}}};
    for (const int point : comparedPoints(one)) {
        const double longitude = at(one.longitude, point);
        const int sign = at(one.rashi, point);
        table.add({pointCell(point),
                   {core::FormatSignPosition(longitude), longitude, {Subject::Sign, sign}},
                   countCell(countedFrom(other, core::kAscendant, sign)),
                   countCell(countedFrom(other, core::kMoon, sign)),
                   pointsInSign(other, sign)});
    }
    return table;
}

Table differencesTable(const ComputedChart& one, const ComputedChart& other,
                       const astro::Series& series, double moment)
{
    Differences differences(one, other);
    for (const int point : comparedPoints(one.chart)) {
        differences.addPoint(point);
    }
    differences.addDashas(series, moment);
    return std::move(differences).table();
}

} // namespace kestrav::present
