#include "timing/Balance.h"

#include "analysis/NakshatraLords.h"
#include "core/PointNames.h"

#include <cmath>

namespace kestrav::timing
{

DashaBalance balanceOf(double nakshatraPosition)
{
    constexpr double kDaysOfMonth = 30.5;
    const int place = int(nakshatraPosition) % 9;
    const double passed = nakshatraPosition - std::floor(nakshatraPosition);
    const double remaining = (1.0 - passed) * core::at(analysis::kVimshottariYears, place);
    DashaBalance balance;
    balance.lord = core::at(analysis::kNakshatraLords, place);
    balance.years = int(remaining);
    const double months = (remaining - balance.years) * 12.0;
    balance.months = int(months);
    balance.days = int((months - balance.months) * kDaysOfMonth);
    return balance;
}

std::optional<DashaBalance> balanceAtBirth(const core::Chart& chart)
{
    if (!chart.computed(core::kMoon)) {
        return std::nullopt;
    }
    return balanceOf(chart.nakshatraPosition[core::kMoon]);
}

std::wstring balanceLine(const DashaBalance& balance)
{
    constexpr int kLongName = 4;
    std::wstring line = L"Balance of ";
    line += core::PointName(kLongName, balance.lord);
    line += L" Dasha " + std::to_wstring(balance.years) + L"Y ";
    line += std::to_wstring(balance.months) + L"M ";
    line += std::to_wstring(balance.days) + L"D";
    return line;
}

} // namespace kestrav::timing
