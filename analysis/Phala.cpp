#include "analysis/Phala.h"

#include "analysis/CheshtaBala.h"

#include <cmath>

namespace kestrav::analysis
{

Strength phalaCheshta(const core::Chart& chart, const StrengthInputs& inputs, int planet)
{
    if (planet != core::kSun && planet != core::kMoon) {
        return cheshtaBala(chart, inputs, planet);
    }
    if (!chart.computed(core::kSun)) {
        return std::nullopt;
    }
    const double sun = chart.longitude[core::kSun];
    if (planet == core::kSun) {
        return inputs.ayanamsa ? Strength(arcBetween(sun + *inputs.ayanamsa + 90.0, 0.0) / 3.0)
                               : std::nullopt;
    }
    return chart.computed(core::kMoon)
               ? Strength(arcBetween(chart.longitude[core::kMoon], sun) / 3.0)
               : std::nullopt;
}

Phala phalaOf(const Strength& uccha, const Strength& cheshta)
{
    if (!uccha || !cheshta) {
        return {};
    }
    return {std::sqrt(*uccha * *cheshta), std::sqrt((60.0 - *uccha) * (60.0 - *cheshta))};
}

} // namespace kestrav::analysis
