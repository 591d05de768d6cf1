#include "timing/TithiDasha.h"

#include "core/Angles.h"

#include <algorithm>

namespace kestrav::timing
{

namespace
{

constexpr double kDegreesOfTithi = 12.0;

} // namespace

int lordOfTithi(int tithi)
{
    // Four rounds from the Sun to Rahu; the second ends with Saturn at the full moon, the fourth
    // leaves Saturn out and gives the new moon to Rahu.
    constexpr std::array<int, 30> kLords = {1, 2, 3, 4, 5, 6, 7, 8, 1, 2, 3, 4, 5, 6, 7,
                                            1, 2, 3, 4, 5, 6, 7, 8, 1, 2, 3, 4, 5, 6, 8};
    return core::at(kLords, tithi - 1);
}

void fillTithiDasha(const core::Chart& chart, DashaPlan& plan)
{
    const DashaRow& astottari = dashaRow(kAstottari);
    const double tithis =
        core::Normalize360(chart.longitude[core::kMoon] - chart.longitude[core::kSun]) /
        kDegreesOfTithi;
    const int running = std::min(int(tithis), 29);
    const auto& lords = astottari.lords;
    plan.count = astottari.count;
    plan.first =
        int(std::find(lords.begin(), lords.end(), lordOfTithi(running + 1)) - lords.begin());
    plan.cycles.fill({lords, astottari.years});
    plan.elapsed = (tithis - running) * core::at(astottari.years, plan.first);
}

} // namespace kestrav::timing
