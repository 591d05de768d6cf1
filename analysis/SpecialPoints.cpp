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

// The choices among the points; these are their defaults.
struct Choices
{
    bool upagrahaAtMiddle = false;
    int saham2 = kVivahaSaham;
    int saham3 = kKarmaSaham;
};

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
    const Choices choices;
    clear(chart, core::kDhuma, core::kMandi);
    clear(chart, core::kBhavaLagna, core::kArudhaLagna);
    clear(chart, core::kArudhaPada1, core::kSaham3);
    computeUpagrahas(chart, choices.upagrahaAtMiddle);
    computeSpecialLagnas(chart, context);
    computeArudhaPoints(chart, settings);
    computeYogiAndFortune(chart);
    computeSahamPoints(chart, choices.saham2, choices.saham3);
}

} // namespace kestrav::analysis
