#include "analysis/SpecialPoints.h"

#include "analysis/Arudhas.h"
#include "analysis/Sahams.h"
#include "analysis/SpecialLagnas.h"
#include "analysis/Upagrahas.h"
#include "analysis/YogiPoint.h"

namespace kestrav::analysis
{

namespace
{

void clear(core::Chart& chart, int first, int last)
{
    for (int point = first; point <= last; ++point) {
        core::at(chart.degreeInSign, point) = core::kNotComputed;
    }
}

} // namespace

void computeSpecialPoints(core::Chart& chart, const core::Settings& settings,
                          astro::EphemerisContext& context)
{
    clear(chart, core::kDhuma, core::kMandi);
    clear(chart, core::kBhavaLagna, core::kArudhaLagna);
    clear(chart, core::kArudhaPada1, core::kSaham3);
    computeUpagrahas(chart, settings.upagrahaAtMiddle);
    computeSpecialLagnas(chart, context);
    computeArudhaPoints(chart, settings);
    computeYogiAndFortune(chart);
    computeSahamPoints(chart, settings.saham2, settings.saham3);
}

} // namespace kestrav::analysis
