#include "app/present/AccessibleText.h"

#include "analysis/Dignities.h"
#include "app/present/DiagramLabels.h"
#include "core/DisplayFlags.h"
#include "core/PointNames.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace kestrav::present
{

namespace
{

// The same tiny lift of the minutes as in the text form of a sign position.
constexpr double kMinuteLift = 0.00000001;

std::wstring counted(int count, const std::wstring& what)
{
    return std::to_wstring(count) + L" " + what + (count == 1 ? L"" : L"s");
}

} // namespace

WholeDegrees wholeDegrees(double position)
{
    double degrees = 0.0;
    const double rest = std::modf(position, &degrees);
    return {int(degrees), std::min(int(rest * 60.0 + kMinuteLift), 59)};
}

bool PointState::exalted() const
{
    return dignity == analysis::kDisplayExalted;
}

bool PointState::debilitated() const
{
    return dignity == 0 || dignity == analysis::kDisplayCancelled ||
           dignity == analysis::kDisplayRetrograde;
}

std::wstring spokenPoint(int point, double position, const PointState& state, DegreeForm degrees)
{
    std::wstring text = longPointName(point);
    if (degrees != DegreeForm::None || point == core::kAscendant) {
        const WholeDegrees whole = wholeDegrees(position);
        text += L" " + counted(whole.degrees, L"degree") + L" " + counted(whole.minutes, L"minute");
    }
    if (state.exalted()) {
        text += L" exalted";
    } else if (state.debilitated()) {
        text += state.dignity == analysis::kDisplayCancelled ? L" debilitated with cancellation"
                                                             : L" debilitated";
    }
    text += state.retrograde ? L" retrograde" : L"";
    text += state.combust ? L" combust" : L"";
    return text;
}

std::wstring spokenPlace(int house, int sign, std::span<const std::wstring> contents)
{
    std::wstring text;
    if (house != 0) {
        const bool english = (core::DisplayFlags() & core::kEnglishNames) != 0;
        text = (english ? L"House " : L"Bhava ") + std::to_wstring(house);
    }
    if (sign != 0) {
        text += (text.empty() ? L"" : L", ") + std::wstring(core::signNameLong(sign));
    }
    text += L": ";
    for (std::size_t i = 0; i < contents.size(); ++i) {
        text += (i == 0 ? L"" : L", ") + contents[i];
    }
    return contents.empty() ? text + L"empty" : text;
}

std::wstring accessibleText(const DisplayList& list)
{
    std::vector<const Region*> cells;
    for (const Region& region : list.regions) {
        if (region.kind == RegionKind::Sign || region.kind == RegionKind::House) {
            cells.push_back(&region);
        }
    }
    std::stable_sort(cells.begin(), cells.end(), [](const Region* one, const Region* other) {
        return one->house < other->house;
    });
    std::wstring text = list.title + L"\n" + list.description;
    for (const Region* const cell : cells) {
        if (!cell->spoken.empty()) {
            text += cell->spoken + L"\n";
        }
    }
    return text;
}

} // namespace kestrav::present
