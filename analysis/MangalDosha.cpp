#include "analysis/MangalDosha.h"

#include "analysis/Aspects.h"
#include "analysis/Dignities.h"
#include "analysis/Vargas.h"
#include "core/Angles.h"

namespace kestrav::analysis
{

namespace
{

void append(std::wstring& list, bool wanted, std::wstring_view text)
{
    if (wanted) {
        list += (list.empty() ? L"" : L", ") + std::wstring(text);
    }
}

void appendCount(std::wstring& list, int house, std::wstring_view reference)
{
    const std::wstring number = house == 0 ? L"not known" : L"house " + std::to_wstring(house);
    append(list, true,
           number + L" from " + std::wstring(reference) +
               (MangalDosha::harmful(house) ? L" (dosha)" : L""));
}

} // namespace

bool MangalDosha::harmful(int house)
{
    switch (house) {
    case 1:
    case 2:
    case 4:
    case 7:
    case 8:
    case 12:
        return true;
    default:
        return false;
    }
}

bool MangalDosha::holds() const
{
    return harmful(fromAscendant) || harmful(fromMoon) || harmful(fromVenus);
}

bool MangalDosha::cancelled() const
{
    return holds() && (ownSign || exalted || withJupiter || aspectedByJupiter || inBothCharts);
}

std::wstring MangalDosha::why() const
{
    std::wstring counts;
    appendCount(counts, fromAscendant, L"the ascendant");
    appendCount(counts, fromMoon, L"the Moon");
    appendCount(counts, fromVenus, L"Venus");
    std::wstring reasons;
    append(reasons, ownSign, L"Mars is in his own sign");
    append(reasons, exalted, L"Mars is exalted");
    append(reasons, withJupiter, L"Jupiter is in his sign");
    append(reasons, aspectedByJupiter, L"Jupiter fully aspects him");
    append(reasons, inBothCharts, L"both charts have it");
    return L"Mars: " + counts + (cancelled() ? L"; cancelled because " + reasons : L"") + L".";
}

MangalDosha mangalDosha(const core::Chart& chart, const core::Settings& settings)
{
    const auto signOf = [&](int point) {
        return signInVarga(chart, core::kRashi, point);
    };
    MangalDosha dosha;
    const int sign = signOf(core::kMars);
    if (sign == 0) {
        return dosha;
    }
    const auto houseFrom = [&](int reference) {
        return signOf(reference) == 0 ? 0 : core::norm12(sign - signOf(reference) + 1);
    };
    dosha.fromAscendant = houseFrom(core::kAscendant);
    dosha.fromMoon = houseFrom(core::kMoon);
    dosha.fromVenus = houseFrom(core::kVenus);
    const int dignity = vargaDignity(chart, core::kMars, sign, core::kRashi, settings);
    dosha.ownSign = dignity == kOwn;
    dosha.exalted = dignity == kExalted;
    dosha.withJupiter = signOf(core::kJupiter) == sign;
    dosha.aspectedByJupiter = fullyAspects(chart, core::kJupiter, sign, settings);
    return dosha;
}

} // namespace kestrav::analysis
