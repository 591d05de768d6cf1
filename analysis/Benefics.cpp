#include "analysis/Benefics.h"

#include "core/Angles.h"

namespace kestrav::analysis
{

namespace
{

using core::at;

bool isWaxing(const core::Chart& chart)
{
    if (!chart.computed(core::kSun) || !chart.computed(core::kMoon)) {
        return true;
    }
    const double elongation =
        core::Normalize360(chart.longitude[core::kMoon] - chart.longitude[core::kSun]);
    return elongation < 180.0;
}

} // namespace

NaturalBenefics naturalBenefics(const core::Chart& chart)
{
    NaturalBenefics benefic{};
    benefic[core::kJupiter] = true;
    benefic[core::kVenus] = true;
    benefic[core::kMoon] = isWaxing(chart);
    int balance = 0;
    for (int body = core::kSun; body <= core::kKetu; ++body) {
        if (body != core::kMercury && chart.computed(body) &&
            at(chart.rashi, body) == chart.rashi[core::kMercury]) {
            balance += at(benefic, body) ? 1 : -1;
        }
    }
    benefic[core::kMercury] = balance >= 0;
    return benefic;
}

} // namespace kestrav::analysis
