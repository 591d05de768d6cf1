#include "analysis/SpecialPoints.h"

#include "analysis/Arudhas.h"
#include "analysis/DayParts.h"
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

bool allComputed(const core::Chart& chart, int first, int last)
{
    for (int point = first; point <= last; ++point) {
        if (!chart.computed(point)) {
            return false;
        }
    }
    return true;
}

} // namespace

void computeSpecialPoints(core::Chart& chart, const core::Settings& settings,
                          astro::EphemerisContext& context)
{
    const Choices choices;
    clear(chart, core::kDhuma, core::kMandi);
    clear(chart, core::kBhavaLagna, core::kArudhaLagna);
    clear(chart, core::kArudhaPada1, core::kSaham3);
    if (!chart.computed(core::kSun)) {
        return;
    }
    computeUpagrahas(chart, choices.upagrahaAtMiddle);
    if (!allComputed(chart, core::kAscendant, core::kMoon)) {
        return;
    }
    computeSpecialLagnas(chart, context);
    // With the Sun and the ascendant there it is always known.
    const bool night = isNight(chart).value_or(false);
    computeYogiAndFortune(chart, night);
    if (allComputed(chart, core::kAscendant, core::kSaturn)) {
        computeSahamPoints(chart, night, choices.saham2, choices.saham3);
    }
    if (allComputed(chart, core::kAscendant, core::kKetu)) {
        computeArudhaPoints(chart, settings);
    }
}

} // namespace kestrav::analysis
