#include "timing/MoonPhases.h"

#include "core/Angles.h"
#include "core/Points.h"

namespace kestrav::timing
{

std::wstring_view moonPhaseName(MoonPhase phase)
{
    switch (phase) {
    case MoonPhase::New:
        return L"New moon";
    case MoonPhase::FirstQuarter:
        return L"First quarter";
    case MoonPhase::Full:
        return L"Full moon";
    case MoonPhase::LastQuarter:
        return L"Last quarter";
    }
    return {};
}

std::vector<PhaseMoment> moonPhasesIn(SiderealSky& sky, Span span)
{
    const auto elongation = [&](double day) {
        return core::Normalize360(sky.tropicalLongitude(core::kMoon, day) -
                                  sky.tropicalLongitude(core::kSun, day));
    };
    std::vector<PhaseMoment> found;
    const CurveShape shape{360.0, 6.0, true, 1e-6};
    forEachCrossing(elongation, shape, span, {0.0, 90.0}, [&](const Crossing& crossing) {
        found.push_back({MoonPhase(crossing.level), crossing.day,
                         sky.longitude(core::kSun, crossing.day),
                         sky.longitude(core::kMoon, crossing.day)});
        return true;
    });
    return found;
}

} // namespace kestrav::timing
