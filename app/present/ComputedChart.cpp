#include "app/present/ComputedChart.h"

#include "analysis/AnalyseChart.h"
#include "analysis/ComputeChart.h"
#include "analysis/Motion.h"
#include "astro/RiseSet.h"

namespace kestrav::present
{

void computeFromBirthData(ComputedChart& computed, astro::EphemerisContext& context)
{
    core::Chart& chart = computed.chart;
    if (!computed.hasPlace) {
        analysis::computePositions(chart, computed.settings, context);
        analysis::computeMotions(chart, context);
        chart.weekday = core::Weekday(chart);
        analysis::AnalyseChart(chart, computed.settings, context);
        // Whether it is night depends on the place, and with it every saham.
        for (const int point : {core::kSaham2, core::kSaham3}) {
            core::at(chart.degreeInSign, point) = core::kNotComputed;
        }
        return;
    }
    analysis::ComputeChart(chart, computed.settings, context);
    const astro::Observer observer = astro::observerOf(chart);
    computed.day = chart.vedicDay;
    computed.upperCulmination =
        astro::sunEvent(context, chart.time, observer, astro::HorizonEvent::UpperCulmination);
    analysis::AnalyseChart(chart, computed.settings, context);
}

} // namespace kestrav::present
