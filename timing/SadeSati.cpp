#include "timing/SadeSati.h"

#include "core/Angles.h"
#include "core/PointNames.h"
#include "core/Points.h"
#include "timing/TransitSearch.h"

namespace kestrav::timing
{

std::vector<SaturnPhase> sadeSati(SiderealSky& sky, int moonSign, Span span)
{
    std::vector<SaturnPhase> phases;
    for (const TransitStay& stay : staysIn(sky, core::kSaturn, 30.0, span)) {
        const int sign = stay.part + 1;
        const int house = core::SignOf12(sign - moonSign + 1);
        if (!saturnPhaseName(house).empty()) {
            phases.push_back({house, sign, stay.begin, stay.end, stay.backward});
        }
    }
    return phases;
}

std::wstring_view saturnPhaseName(int house)
{
    switch (house) {
    case 12:
        return L"Sade Sati, first phase";
    case 1:
        return L"Sade Sati, second phase";
    case 2:
        return L"Sade Sati, third phase";
    case 4:
        return L"Small: Saturn in the 4th";
    case 8:
        return L"Small: Saturn in the 8th";
    default:
        return {};
    }
}

} // namespace kestrav::timing
