#include "app/present/ChangedPoints.h"

#include "app/present/TextValues.h"
#include "core/Points.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kestrav::present
{

namespace
{

constexpr std::array<std::string_view, 12> kOfOtherMoments = {
    "transits",         "transit-kakshyas", "sade-sati",    "ephemeris",
    "ephemeris-events", "moon-phases",      "eclipses",     "compare",
    "eclipsed-points",  "event-transits",   "compare-back", "dashas"};

constexpr wchar_t kMark[] = L"*";

} // namespace

std::wstring changedPointsLine(const ComputedChart& computed)
{
    std::wstring names;
    for (int point = 0; point < core::kPointCount; ++point) {
        if (computed.changed[std::size_t(point)]) {
            names += names.empty() ? L"Changed by you: " : L", ";
            names += point == core::cuspPoint(10) ? L"Midheaven" : pointLabel(point);
        }
    }
    return names;
}

void markChangedPoints(Table& table, const ComputedChart& computed)
{
    if (computed.changed.none() || std::find(kOfOtherMoments.begin(), kOfOtherMoments.end(),
                                             table.id) != kOfOtherMoments.end()) {
        return;
    }
    bool any = false;
    for (Row& row : table.rows) {
        if (row.empty() || row.front().link.subject != Subject::Point) {
            continue;
        }
        Cell& cell = row.front();
        if (computed.changed[std::size_t(cell.link.index)] &&
            cell.text == pointLabel(cell.link.index)) {
            cell.text += kMark;
            any = true;
        }
    }
    if (any) {
        table.notes.emplace_back(L"* Its position was changed by you.");
    }
}

timing::DashaOptions dashaOptions(const ComputedChart& computed)
{
    timing::DashaOptions options = timing::dashaOptions(computed.settings);
    options.sunModified = computed.changed[core::kSun];
    return options;
}

} // namespace kestrav::present
