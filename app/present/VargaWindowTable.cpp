#include "app/present/VargaWindowTable.h"

#include "app/present/TextValues.h"
#include "app/present/VargaTables.h"
#include "core/PointNames.h"

#include <cmath>

namespace kestrav::present
{

namespace
{

// "1:59:20", "0:00:45".
Cell lengthCell(const timing::VargaWindow& window)
{
    if (!window.begin || !window.end) {
        return {std::wstring(core::kNoName)};
    }
    const double hours = *window.end - *window.begin;
    const double days = std::floor(hours / 24.0);
    const std::wstring clock = clockSeconds(hours - 24.0 * days, false);
    return {days > 0.0 ? std::to_wstring(int(days)) + L"d " + clock : clock, hours};
}

} // namespace

Table vargaWindowTable(const ComputedChart& computed, const timing::VargaWindows& windows,
                       std::optional<int> varga)
{
    Table table = {"varga-windows",
                   L"The ascendant stays in its sign",
                   {{L"Varga"},
                    {L"Ascendant"},
                    {L"From", Align::Right},
                    {L"To", Align::Right},
                    {L"Length", Align::Right}}};
    const auto hourCell = [&](const std::optional<double>& hour) -> Cell {
        return hour ? Cell(clockSeconds(*hour, computed.settings.twelveHourClock), *hour)
                    : Cell(core::kNoName);
    };
    for (const timing::VargaWindow& window : windows) {
        if (varga && window.varga != *varga) {
            continue;
        }
        table.add({vargaCell(window.varga), core::signNameLong(window.sign), hourCell(window.begin),
                   hourCell(window.end), lengthCell(window)});
    }
    return table;
}

} // namespace kestrav::present
